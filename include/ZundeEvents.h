// The numbered events zunde-service sends (D-Bus signal "Event"), with the
// names zunde-cli and README.md show for them. Subscribe to them with
// FCEMSProxy; README.md says what each event's three parameters hold.
#ifndef ZUNDE_EVENTS_H
#define ZUNDE_EVENTS_H

#include <cstring>

namespace zunde {

enum EventNumber : int {
  kEventStateReset = 1,             // param1: 0 the whole state, 1 the environment only
  kEventEnvironmentChanged = 2,     // param1: what changed (1 country and language, 2 recommendation type, 3 user id, 4 access token)
  kEventActivityChanged = 10,       // param1: activity, param2: its source (-1: deleted)
  kEventSetTopBoxSetting = 11,      // param1: activity, param2: which setting (1 zip code, 2 head-end, 3 device type, 4 location)
  kEventChannelMapChanged = 12,     // param1: activity, param2: number of channels
  kEventFavoriteChanged = 13,       // param1: activity, param2: favourite list, param3: channels on that list
  kEventChannelEditCompleted = 14,  // param1: activity
  kEventProgramMapChanged = 15,     // param1: number of programmes, param2: 0 set, 1 cleared
};

struct EventName {
  int number;
  const char* name;
};

inline constexpr EventName kEventNames[] = {
    {kEventStateReset, "StateReset"},
    {kEventEnvironmentChanged, "EnvironmentChanged"},
    {kEventActivityChanged, "ActivityChanged"},
    {kEventSetTopBoxSetting, "SetTopBoxSetting"},
    {kEventChannelMapChanged, "ChannelMapChanged"},
    {kEventFavoriteChanged, "FavoriteChanged"},
    {kEventChannelEditCompleted, "ChannelEditCompleted"},
    {kEventProgramMapChanged, "ProgramMapChanged"},
};

// The name of event `number`; null for a number the service does not send.
inline const char* EventNameOf(int number) {
  for (const EventName& event : kEventNames)
    if (event.number == number) return event.name;
  return nullptr;
}

// The number of the event called `name`; -1 when there is none.
inline int EventNumberOf(const char* name) {
  for (const EventName& event : kEventNames)
    if (std::strcmp(event.name, name) == 0) return event.number;
  return -1;
}

}  // namespace zunde

#endif
