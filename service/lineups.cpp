#include "lineups.h"

#include <algorithm>

#include "operator_state.h"

namespace zunde::service {

const Lineup& LineupOf(Request& request) {
  const int activity = ActivityOf(request);
  const Lineup* lineup = request.catalogue.LineupOf(activity);
  if (lineup == nullptr) throw BadRequest("activity " + std::to_string(activity) + " has no operator line-up");
  return *lineup;
}

const LineupChannel* EntryBySource(const Lineup& lineup, const std::string& sourceId) {
  for (const LineupChannel& entry : lineup.channels) {
    if (!sourceId.empty() && entry.channel.str_program_source_id == sourceId) return &entry;
  }
  return nullptr;
}

const FCRemoteChannel* BySource(const Lineup& lineup, const std::string& sourceId) {
  const LineupChannel* entry = EntryBySource(lineup, sourceId);
  return entry ? &entry->channel : nullptr;
}

time_t GuideEnd(Request& request, int activity) {
  return std::max(request.catalogue.WindowEnd(), LoadGuideLoadedUntil(request.store, activity));
}

bool SlotOf(Request& request, const FCRemoteChannel& channel, time_t time, Slot& slot) {
  return request.catalogue.SlotAt(channel.str_program_source_id, channel.genre_id, time, GuideEnd(request, channel.activityID),
                                  slot);
}

}  // namespace zunde::service
