// Turns one request into one answer through the member tables.
#ifndef ZUNDE_SERVICE_DISPATCHER_H
#define ZUNDE_SERVICE_DISPATCHER_H

#include <map>
#include <string>
#include <vector>

#include "member_table.h"

namespace zunde::service {

class Dispatcher {
 public:
  Dispatcher(Store& store, const Catalogue& catalogue, const StorageLimits& limits = {});

  // The answer text for `payload` sent to `member`; always a JSON object
  // with "ret", and "error" when the request was refused. `events` receives
  // the events of a committed change.
  std::string Answer(const std::string& member, const std::string& payload, std::vector<Event>& events);

  const RuntimeState& Runtime() const { return runtime_; }
  // The row of `member`; null when there is none.
  const Member* Find(const std::string& member) const;

 private:
  void Run(const Member& member, Json::Value& body, Json::Value& reply, std::vector<Event>& events);

  Store& store_;
  const Catalogue& catalogue_;
  StorageLimits limits_;
  RuntimeState runtime_;
  std::map<std::string, const Member*> members_;
};

}  // namespace zunde::service

#endif
