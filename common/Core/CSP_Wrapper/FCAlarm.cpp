#include "FCAlarm.h"

#include "FCClock_internal.h"
#include "FCDebug.h"
#include "FCLocked_internal.h"
#include "FCLog_internal.h"

using zunde::Locked;

FCAlarm::FCAlarm()
    : m_pTask(nullptr),
      m_priority(FCQueue::ePriorityNormal),
      m_armed(false),
      m_periodic(false),
      m_quit(false),
      m_periodMs(0),
      m_due(0) {}

FCAlarm::~FCAlarm() { FCASSERT(FlagCreate() == false); }

bool FCAlarm::Create(FCTask* task, const FCEvent& event, int priority) {
  FCASSERT(FlagCreate() == false);
  FCASSERT(task != NULL);
  if (!m_wake.Create(0)) return false;
  if (!m_lock.Create()) {
    m_wake.Destroy();
    return false;
  }
  m_pTask = task;
  m_event = event;
  m_priority = priority;
  m_armed = false;
  m_quit = false;
  if (!FCThread::Create("alarm", 0)) {
    m_lock.Destroy();
    m_wake.Destroy();
    return false;
  }
  return true;
}

void FCAlarm::Destroy() {
  FCASSERT(FlagCreate() == true);
  {
    Locked locked(m_lock);
    m_armed = false;
    m_quit = true;
  }
  m_wake.Give();
  FCThread::Destroy();
  m_lock.Destroy();
  m_wake.Destroy();
}

void FCAlarm::Start(unsigned long delayMs, bool periodic) {
  FCASSERT(FlagCreate() == true);
  FCASSERT(periodic == false || delayMs > 0);
  {
    Locked locked(m_lock);
    m_armed = true;
    m_periodic = periodic;
    m_periodMs = delayMs;
    m_due = zunde::MonotonicMs() + static_cast<uint32_t>(delayMs);
  }
  m_wake.Give();
}

void FCAlarm::Cancel() {
  FCASSERT(FlagCreate() == true);
  Locked locked(m_lock);
  m_armed = false;
}

bool FCAlarm::IsArmed() {
  FCASSERT(FlagCreate() == true);
  Locked locked(m_lock);
  return m_armed;
}

void FCAlarm::t_OnExpire() { Post(m_event); }

void FCAlarm::Post(const FCEvent& event) {
  if (m_pTask->Send(event, m_priority) != FCQueue::eFull) return;
  FC_LOG_WARN(0, "[FCAlarm::%s] queue of %s full, event %d lost\n", __func__, m_pTask->Name(), event.event);
}

void FCAlarm::Expire() {
  // The next state is set first, so that a Start or Cancel made by the
  // expiry itself stands.
  if (m_periodic) {
    m_due = zunde::MonotonicMs() + static_cast<uint32_t>(m_periodMs);
  } else {
    m_armed = false;
  }
  t_OnExpire();
}

void FCAlarm::t_Main() {
  for (;;) {
    unsigned long wait = FCQueue::WAIT_FOREVER;
    {
      Locked locked(m_lock);
      if (m_quit) return;
      if (m_armed) {
        const int32_t left = zunde::MsUntil(m_due);
        if (left <= 0) {
          Expire();
          continue;
        }
        wait = static_cast<unsigned long>(left);
      }
    }
    // Woken early (a Start, a Cancel, the end), the state is read again.
    m_wake.Try(wait);
  }
}
