// Turns one request into one answer through the member tables. Callable
// from anywhere that has a member name and a request text: the bus, a page,
// a test.
#ifndef ZUNDE_SERVICE_DISPATCHER_H
#define ZUNDE_SERVICE_DISPATCHER_H

#include <map>
#include <string>
#include <vector>

#include "answer_cache.h"
#include "member_table.h"

namespace zunde::service {

class Dispatcher {
 public:
  Dispatcher(Store& store, const Catalogue& catalogue, const StorageLimits& limits = {});

  // The answer text for `payload` sent to `member`: one compact JSON object
  // with "ret", and "error" when the request was refused. `events` receives
  // the events of a committed change.
  std::string Answer(const std::string& member, const std::string& payload, std::vector<Event>& events);

  // Serves from `catalogue` from now on (a reloaded or replaced one); it
  // must outlive its use here.
  void ReplaceCatalogue(const Catalogue& catalogue);

  // Whether the answer to `member` goes out at once even while the slow
  // switch is on.
  bool NeverDelayed(const std::string& member) const;

  const RuntimeState& Runtime() const { return runtime_; }
  // The row of `member`; null when there is none.
  const Member* Find(const std::string& member) const;

 private:
  std::string Run(const Member& member, const std::string& payload, std::vector<Event>& events);
  void Handle(const Member& member, Json::Value& body, Json::Value& reply, std::vector<Event>& events);

  Store& store_;
  const Catalogue* catalogue_;
  StorageLimits limits_;
  RuntimeState runtime_;
  std::map<std::string, const Member*> members_;
  AnswerCache kept_;
};

}  // namespace zunde::service

#endif
