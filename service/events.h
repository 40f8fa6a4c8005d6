// The numbered events the service sends after a change; README.md lists
// them with their parameters.
#ifndef ZUNDE_SERVICE_EVENTS_H
#define ZUNDE_SERVICE_EVENTS_H

#include <array>
#include <cstdint>

namespace zunde::service {

enum EventNumber : int {
  kEventStateReset = 1,          // param1: 0 the whole state, 1 the environment only
  kEventEnvironmentChanged = 2,  // param1: what changed (EnvironmentPart)
  kEventActivityChanged = 10,    // param1: activity, param2: its source (-1: deleted)
  kEventSetTopBoxSetting = 11,   // param1: activity, param2: which setting (SetTopBoxSetting)
  kEventChannelMapChanged = 12,  // param1: activity, param2: number of channels
  kEventFavoriteChanged = 13,    // param1: activity, param2: favourite list, param3: its size
  kEventChannelEditCompleted = 14,  // param1: activity
  kEventProgramMapChanged = 15,     // param1: number of programmes, param2: 0 set, 1 cleared
};

enum EnvironmentPart : int32_t { kCountryAndLanguage = 1, kRecommendType = 2, kUserId = 3, kAccessToken = 4 };

enum SetTopBoxSetting : int32_t { kZipCode = 1, kHeadEndId = 2, kDeviceType = 3, kLocation = 4 };

// All three parameters travel (12 bytes); an unused one is -1.
struct Event {
  int number;
  std::array<int32_t, 3> params{-1, -1, -1};
};

}  // namespace zunde::service

#endif
