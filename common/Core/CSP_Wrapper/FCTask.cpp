#include "FCTask.h"

#include <cstring>

#include "FCDebug.h"
#include "FCLocked_internal.h"

using zunde::Locked;

FCTask::FCTask() : m_name() {}

FCTask::~FCTask() { FCASSERT(FlagCreate() == false); }

bool FCTask::Create(const char* name, unsigned long queueSize, unsigned long stackSize) {
  FCASSERT(FlagCreate() == false);
  FCASSERT(name != NULL);
  if (!m_queue.Create(queueSize)) return false;
  if (!m_lock.Create()) {
    m_queue.Destroy();
    return false;
  }
  std::memset(m_name, 0, sizeof m_name);
  std::strncpy(m_name, name, sizeof m_name - 1);
  if (!FCThread::Create(m_name, stackSize)) {
    m_lock.Destroy();
    m_queue.Destroy();
    return false;
  }
  return true;
}

void FCTask::Destroy() {
  FCASSERT(FlagCreate() == true);
  Stop();
  FCThread::Destroy();
  m_handlers.Clear();
  m_lock.Destroy();
  m_queue.Destroy();
}

FCQueue::EResult FCTask::Send(const FCEvent& event, int priority) {
  FCASSERT(FlagCreate() == true);
  return m_queue.Send(event, priority);
}

void FCTask::Stop() {
  FCASSERT(FlagCreate() == true);
  m_queue.Close();
}

void FCTask::SetHandler(int event, FCHandler* handler) {
  FCASSERT(FlagCreate() == true);
  Locked locked(m_lock);
  m_handlers.RemoveIf([event](const Binding& binding) { return binding.event == event; });
  if (handler != nullptr) m_handlers.PushBack(Binding{event, handler});
}

void FCTask::t_OnEvent(const FCEvent&) {}

FCHandler* FCTask::HandlerOf(int event) {
  Locked locked(m_lock);
  Binding* binding = m_handlers.Find([event](const Binding& b) { return b.event == event; });
  return binding != nullptr ? binding->handler : nullptr;
}

void FCTask::t_Main() {
  FCEvent event;
  while (m_queue.Receive(&event, FCQueue::WAIT_FOREVER) == FCQueue::eOk) {
    FCHandler* handler = HandlerOf(event.event);
    if (handler != nullptr) {
      handler->t_OnEvent(*this, event);
    } else {
      t_OnEvent(event);
    }
  }
}
