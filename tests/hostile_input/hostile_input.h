// This suite's bus allows messages of kBusLimit bytes at most, so that the
// limit is cheap to reach.
#ifndef ZUNDE_TESTS_HOSTILE_INPUT_H
#define ZUNDE_TESTS_HOSTILE_INPUT_H

#include <gmock/gmock.h>

#include <cstdint>

#include "test_bus.h"

namespace zunde::testing {

inline constexpr uint32_t kBusLimit = 262144;
inline const bool kSmallBus = (TestBus::UseConfig(ZUNDE_HOSTILE_BUS_CONFIG), true);

// What a process that ends by design writes: under the sanitizers, their
// reports of the assertion's own write to address zero, and nothing before.
inline auto EndedByDesign() {
  using namespace ::testing;
  return AnyOf(Not(HasSubstr("Sanitizer")),
               AllOf(ContainsRegex("^[^\n]*FCDebug\\.cpp:[0-9]+:[0-9]+: runtime error: store to null pointer"),
                     ContainsRegex("SUMMARY: AddressSanitizer: SEGV [^ ]*FCDebug\\.cpp:[0-9]+ in Crash")));
}

}  // namespace zunde::testing

#endif
