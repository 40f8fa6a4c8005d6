// This suite's bus allows messages of kBusLimit bytes at most, so that the
// limit is cheap to reach.
#ifndef ZUNDE_TESTS_HOSTILE_INPUT_H
#define ZUNDE_TESTS_HOSTILE_INPUT_H

#include <cstdint>

#include "test_bus.h"

namespace zunde::testing {

inline constexpr uint32_t kBusLimit = 262144;
inline const bool kSmallBus = (TestBus::UseConfig(ZUNDE_HOSTILE_BUS_CONFIG), true);

}  // namespace zunde::testing

#endif
