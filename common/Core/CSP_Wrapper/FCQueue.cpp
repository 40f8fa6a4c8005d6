#include "FCQueue.h"

#include "FCDebug.h"
#include "FCLocked_internal.h"

using zunde::Locked;

FCQueue::FCQueue() : m_capacity(0), m_count(0), m_closed(false) {}

FCQueue::~FCQueue() { FCASSERT(FlagCreate() == false); }

bool FCQueue::Create(unsigned long capacity) {
  FCASSERT(FlagCreate() == false);
  FCASSERT(capacity > 0);
  if (!m_queued.Create(0)) return false;
  if (!m_lock.Create()) {
    m_queued.Destroy();
    return false;
  }
  m_capacity = capacity;
  m_count = 0;
  m_closed = false;
  return true;
}

void FCQueue::Destroy() {
  FCASSERT(FlagCreate() == true);
  for (auto& events : m_events) events.Clear();
  m_lock.Destroy();
  m_queued.Destroy();
}

FCQueue::EResult FCQueue::Send(const FCEvent& event, int priority) {
  FCASSERT(FlagCreate() == true);
  FCASSERT(priority >= ePriorityHigh && priority <= ePriorityLow);
  {
    Locked locked(m_lock);
    if (m_closed) return eClosed;
    if (m_count >= m_capacity) return eFull;
    m_events[priority].PushBack(event);
    ++m_count;
  }
  m_queued.Give();
  return eOk;
}

FCQueue::EResult FCQueue::Receive(FCEvent* event, unsigned long ms) {
  FCASSERT(FlagCreate() == true);
  FCASSERT(event != NULL);
  if (!m_queued.Try(ms)) return eTimeOut;
  Locked locked(m_lock);
  for (auto& events : m_events) {
    if (events.PopFront(event)) {
      --m_count;
      return eOk;
    }
  }
  // Only the closing unit is left: put it back for the next receiver.
  m_queued.Give();
  return eClosed;
}

void FCQueue::Close() {
  FCASSERT(FlagCreate() == true);
  Locked locked(m_lock);
  if (m_closed) return;
  m_closed = true;
  m_queued.Give();
}
