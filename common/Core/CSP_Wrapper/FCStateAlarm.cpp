#include "FCStateAlarm.h"

void FCStateAlarm::Start(unsigned long periodMs) {
  // Cancelled first, so that no reading of the alarm's thread meets this one.
  Cancel();
  m_state = t_ReadState();
  FCAlarm::Start(periodMs, true);
}

void FCStateAlarm::t_OnExpire() {
  const int state = t_ReadState();
  if (state == m_state) return;
  FCEvent changed = Event();
  changed.param1 = state;
  changed.param2 = m_state;
  m_state = state;
  Post(changed);
}
