#include "FCSlowCall_internal.h"

#include <cstdlib>

#include "FCSyncDet.h"

namespace zunde {
namespace {

// The threshold in milliseconds, read afresh for each call so that an
// application may switch the watch on and off; 0 when it is off.
unsigned long SlowCallThresholdMs() {
  const char* text = std::getenv("ZUNDE_SLOW_CALL_MS");
  if (text == nullptr || *text == '\0') return 0;
  char* end = nullptr;
  const unsigned long ms = std::strtoul(text, &end, 10);
  return *end == '\0' ? ms : 0;
}

// The process's monitor, started by the first call watched. Like the API
// objects it lives until the process ends.
FCSyncDet* SlowCallMonitor() {
  static FCSyncDet* const monitor = [] {
    FCSyncDet* made = new FCSyncDet;
    if (made->Create()) return made;
    delete made;
    return static_cast<FCSyncDet*>(nullptr);
  }();
  return monitor;
}

}  // namespace

SlowCallWatch::SlowCallWatch(const char* member) {
  const unsigned long thresholdMs = SlowCallThresholdMs();
  if (thresholdMs == 0) return;
  m_pMonitor = SlowCallMonitor();
  if (m_pMonitor != nullptr) m_ticket = m_pMonitor->Begin(member, thresholdMs);
}

SlowCallWatch::~SlowCallWatch() {
  if (m_pMonitor != nullptr) m_pMonitor->End(m_ticket);
}

}  // namespace zunde
