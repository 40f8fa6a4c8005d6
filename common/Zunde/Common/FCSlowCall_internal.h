// The sync-call monitor on the library's own remote calls, switched on by
// the environment: with ZUNDE_SLOW_CALL_MS=N, a call still waiting for its
// answer after N milliseconds logs one warning naming its member and the
// time waited. Unset (or not a positive number), a watch does nothing, and
// the monitor's thread is never started.
#ifndef ZUNDE_FCSLOWCALL_INTERNAL_H
#define ZUNDE_FCSLOWCALL_INTERNAL_H

class FCSyncDet;

namespace zunde {

// Watches one call for as long as it lives.
class SlowCallWatch {
 public:
  explicit SlowCallWatch(const char* member);
  ~SlowCallWatch();
  SlowCallWatch(const SlowCallWatch&) = delete;
  SlowCallWatch& operator=(const SlowCallWatch&) = delete;

 private:
  FCSyncDet* m_pMonitor = nullptr;
  unsigned long m_ticket = 0;
};

}  // namespace zunde

#endif
