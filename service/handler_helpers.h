// What the handlers of every family share: reading the common request
// keys, and the shapes of an answer.
#ifndef ZUNDE_SERVICE_HANDLER_HELPERS_H
#define ZUNDE_SERVICE_HANDLER_HELPERS_H

#include <string>

#include "member_table.h"

namespace zunde::service {

// "ret" true; the rest of the reply is filled by the handler.
void Succeed(Json::Value& reply);

// Throws BadRequest when `activity` is not 0 to 4.
int CheckedActivity(int activity);
// The activity under "activityID", checked.
int ActivityOf(Request& request);
// The service id under "TCServiceId".
unsigned long long ServiceIdOf(Request& request);

// Queues an event, sent once the change is committed; unused parameters are -1.
void Raise(Request& request, EventNumber number, int32_t p1, int32_t p2 = -1, int32_t p3 = -1);

}  // namespace zunde::service

#endif
