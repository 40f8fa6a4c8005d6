// The entry's own member: "Reset" returns the whole state to the defaults.
#include "member_table.h"

namespace zunde::service {
namespace {

void ResetEverything(Request& request, Json::Value& reply) {
  request.store.EraseAll();
  request.events.push_back({kEventStateReset, {0, -1, -1}});
  Succeed(reply);
}

}  // namespace

const MemberTable& EntryMembers() {
  static const MemberTable table = {
      {"Reset", {}, ResetEverything, true},
  };
  return table;
}

}  // namespace zunde::service
