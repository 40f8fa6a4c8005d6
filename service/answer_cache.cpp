#include "answer_cache.h"

namespace zunde::service {

// A member name holds no NUL, so the key cannot be mistaken for another's.
std::string AnswerCache::KeyOf(const std::string& member, const std::string& payload) {
  std::string key;
  key.reserve(member.size() + 1 + payload.size());
  return key.append(member).append(1, '\0').append(payload);
}

const std::string* AnswerCache::Find(const std::string& member, const std::string& payload) const {
  const auto found = answers_.find(KeyOf(member, payload));
  return found == answers_.end() ? nullptr : &found->second;
}

void AnswerCache::Keep(const std::string& member, const std::string& payload, const std::string& answer) {
  std::string key = KeyOf(member, payload);
  const std::size_t size = key.size() + answer.size();
  if (size > maxBytes_) return;
  if (bytes_ + size > maxBytes_) Forget();
  if (answers_.emplace(std::move(key), answer).second) bytes_ += size;
}

void AnswerCache::Forget() {
  answers_.clear();
  bytes_ = 0;
}

}  // namespace zunde::service
