// The entry's own member: "Reset" returns the whole state to the defaults.
#include "handler_helpers.h"

namespace zunde::service {
namespace {

void ResetEverything(Request& request, Json::Value& reply) {
  request.store.EraseAll();
  Raise(request, kEventStateReset, 0);
  Succeed(reply);
}

}  // namespace

const MemberTable& EntryMembers() {
  static const MemberTable table = {
      {"Reset", {}, ResetEverything, kChanges},
  };
  return table;
}

}  // namespace zunde::service
