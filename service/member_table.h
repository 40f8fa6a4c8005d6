// How a family of members is declared: one table per family, one row per
// member, in the manner of a bus vtable. A row names the member, the keys
// (and their JSON types) its request must hold, the handler, and whether it
// changes state; the dispatcher checks the keys before the handler runs and
// wraps a state change in one transaction, committed before the answer.
#ifndef ZUNDE_SERVICE_MEMBER_TABLE_H
#define ZUNDE_SERVICE_MEMBER_TABLE_H

#include <json/json.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "catalogue.h"
#include "events.h"
#include "storage_limits.h"
#include "store.h"

namespace zunde::service {

enum class JsonType { Int, UInt, String, Bool, Array, Object };

struct RequiredKey {
  const char* name;
  JsonType type;
};

// What the service keeps in memory only.
struct RuntimeState {
  bool slow = false;  // the slow switch
};

// One request on its way through a handler.
struct Request {
  Json::Value& body;
  Store& store;
  RuntimeState& runtime;
  std::vector<Event>& events;  // sent once the change is committed
  const Catalogue& catalogue;
  const StorageLimits& limits;
};

// The request asks for something that cannot be: the answer is "ret" false
// with this text as "error", and nothing is changed.
struct BadRequest : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Fills `reply` (its "ret" included) or throws BadRequest.
using Handler = void (*)(Request& request, Json::Value& reply);

struct Member {
  const char* name;
  std::vector<RequiredKey> keys;
  Handler handler;
  bool changesState;
};

using MemberTable = std::vector<Member>;

// The families.
const MemberTable& EntryMembers();
const MemberTable& EnvironmentMembers();
const MemberTable& SetTopBoxMembers();
const MemberTable& OperatorMembers();
const MemberTable& MatchFinderMembers();
const MemberTable& BroadcastMembers();
const MemberTable& VirtualChannelMembers();

// Shared by the handlers.
void Succeed(Json::Value& reply);
// Throws BadRequest when `activity` is not 0 to 4.
int CheckedActivity(int activity);
// The service id under "TCServiceId".
unsigned long long ServiceIdOf(Request& request);

}  // namespace zunde::service

#endif
