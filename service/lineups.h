// What the operator and match-finder handlers share: the line-up of the
// request's activity, its channels by program source id, and the guide's
// slots of a channel as far as the activity loaded it.
#ifndef ZUNDE_SERVICE_LINEUPS_H
#define ZUNDE_SERVICE_LINEUPS_H

#include <string>

#include "handler_helpers.h"

namespace zunde::service {

// The line-up of the activity under "activityID"; refused when it has none.
const Lineup& LineupOf(Request& request);

// The line-up's entry for `sourceId`; null when it lists none.
const LineupChannel* EntryBySource(const Lineup& lineup, const std::string& sourceId);
const FCRemoteChannel* BySource(const Lineup& lineup, const std::string& sourceId);

// The end of the guide of an activity: the window, or further where more
// was loaded.
time_t GuideEnd(Request& request, int activity);

// The slot on `channel` at `time`; false outside its activity's guide.
bool SlotOf(Request& request, const FCRemoteChannel& channel, time_t time, Slot& slot);

inline const RequiredKey kActivityKey{"activityID", JsonType::Int};

}  // namespace zunde::service

#endif
