// How a family of members is declared: one table per topic, one row per
// member, in the manner of a bus vtable. A row names the member, every key
// (and its JSON type) its handler reads, the handler, and its flags; the
// dispatcher checks the keys before the handler runs and wraps a state
// change in one transaction, committed before the answer.
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

// What a row promises about its member.
enum RowFlags : unsigned {
  kReads = 0,            // reads state only
  kChanges = 1,          // changes state: runs in a transaction, and forgets kept answers
  kNeverDelayed = 2,     // answered at once even while the slow switch is on
  kKeepsAnswer = 4,      // its answer depends on the request, the state and the catalogue only
  kTurnsSwitch = 8,      // changes what is kept in memory only (RuntimeState), so needs no transaction
};

struct Member {
  const char* name;
  std::vector<RequiredKey> keys;
  Handler handler;
  unsigned flags;
};

using MemberTable = std::vector<Member>;

// The tables, by family and topic.
const MemberTable& EntryMembers();
const MemberTable& EnvironmentMembers();
const MemberTable& SetTopBoxActivityMembers();
const MemberTable& SetTopBoxChannelMapMembers();
const MemberTable& SetTopBoxProgramMapMembers();
const MemberTable& OperatorCatalogueMembers();
const MemberTable& OperatorRecommendationMembers();
const MemberTable& MatchFinderMembers();
const MemberTable& BroadcastMembers();
const MemberTable& VirtualChannelMembers();

// Every table above, in the order they are listed.
std::vector<const MemberTable*> AllMemberTables();

}  // namespace zunde::service

#endif
