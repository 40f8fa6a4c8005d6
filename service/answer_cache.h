// The answers kept for members whose answer depends only on the request,
// the state and the catalogue: a large line-up or guide is then written
// once until something changes, not once per call.
#ifndef ZUNDE_SERVICE_ANSWER_CACHE_H
#define ZUNDE_SERVICE_ANSWER_CACHE_H

#include <cstddef>
#include <string>
#include <unordered_map>

namespace zunde::service {

class AnswerCache {
 public:
  // Keeps at most about `maxBytes` of requests and answers together; past
  // that, everything kept goes before the new answer is kept.
  explicit AnswerCache(std::size_t maxBytes = std::size_t{64} << 20) : maxBytes_(maxBytes) {}

  // The kept answer; null when there is none.
  const std::string* Find(const std::string& member, const std::string& payload) const;
  void Keep(const std::string& member, const std::string& payload, const std::string& answer);
  // Every kept answer goes: the state or the catalogue changed.
  void Forget();

 private:
  static std::string KeyOf(const std::string& member, const std::string& payload);

  std::unordered_map<std::string, std::string> answers_;
  std::size_t bytes_ = 0;
  std::size_t maxBytes_;
};

}  // namespace zunde::service

#endif
