// The events the service sends after a change. Their numbers, names and
// parameters are shared with applications (ZundeEvents.h); here are the
// values the parameters carry.
#ifndef ZUNDE_SERVICE_EVENTS_H
#define ZUNDE_SERVICE_EVENTS_H

#include <array>
#include <cstdint>

#include "ZundeEvents.h"

namespace zunde::service {

enum EnvironmentPart : int32_t { kCountryAndLanguage = 1, kRecommendType = 2, kUserId = 3, kAccessToken = 4 };

enum SetTopBoxSetting : int32_t { kZipCode = 1, kHeadEndId = 2, kDeviceType = 3, kLocation = 4 };

// All three parameters travel (12 bytes); an unused one is -1.
struct Event {
  int number;
  std::array<int32_t, 3> params{-1, -1, -1};
};

}  // namespace zunde::service

#endif
