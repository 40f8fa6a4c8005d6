// Milliseconds of the monotonic clock, for the runtime's own deadlines.
//
// FCTimeWrapper::Tick counts in steps of the system's clock tick (10 ms on
// most systems), which would let an alarm fire up to a step early; this
// clock has a resolution of a millisecond. Both wrap at 32 bits, so
// deadlines are compared by the signed difference.
#ifndef ZUNDE_FCCLOCK_INTERNAL_H
#define ZUNDE_FCCLOCK_INTERNAL_H

#include <cstdint>
#include <ctime>

namespace zunde {

inline uint32_t MonotonicMs() {
  timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<uint32_t>(now.tv_sec * 1000 + now.tv_nsec / 1000000);
}

// Milliseconds from now until `deadline`; 0 or less once it has passed.
inline int32_t MsUntil(uint32_t deadline) { return static_cast<int32_t>(deadline - MonotonicMs()); }

}  // namespace zunde

#endif
