#include "handler_helpers.h"

#include "FCMarshal.h"

namespace zunde::service {

void Succeed(Json::Value& reply) { reply["ret"] = true; }

int CheckedActivity(int activity) {
  if (activity < 0 || activity > 4) throw BadRequest("activity " + std::to_string(activity) + " is not 0 to 4");
  return activity;
}

int ActivityOf(Request& request) {
  eRemoteContentActivity activity;
  FCMarshal::JsonToactivityID(request.body, activity);
  return CheckedActivity(activity);
}

unsigned long long ServiceIdOf(Request& request) {
  unsigned long long id = 0;
  FCMarshal::VCJsonToServiceId(request.body, id);
  return id;
}

void Raise(Request& request, EventNumber number, int32_t p1, int32_t p2, int32_t p3) {
  request.events.push_back({number, {p1, p2, p3}});
}

}  // namespace zunde::service
