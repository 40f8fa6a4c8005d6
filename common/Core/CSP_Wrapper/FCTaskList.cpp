#include "FCTaskList.h"

#include <cstring>

#include "FCDebug.h"
#include "FCLocked_internal.h"

using zunde::Locked;

namespace {

auto Named(const char* name) {
  return [name](FCTask* task) { return std::strcmp(task->Name(), name) == 0; };
}

}  // namespace

FCTaskList::FCTaskList() {}

FCTaskList::~FCTaskList() { FCASSERT(FlagCreate() == false); }

bool FCTaskList::Create() {
  FCASSERT(FlagCreate() == false);
  return m_lock.Create();
}

void FCTaskList::Destroy() {
  FCASSERT(FlagCreate() == true);
  m_tasks.Clear();
  m_lock.Destroy();
}

bool FCTaskList::Add(FCTask* task) {
  FCASSERT(FlagCreate() == true);
  FCASSERT(task != NULL && task->FlagCreate());
  Locked locked(m_lock);
  if (m_tasks.Find(Named(task->Name())) != nullptr) return false;
  m_tasks.PushBack(task);
  return true;
}

bool FCTaskList::Remove(FCTask* task) {
  FCASSERT(FlagCreate() == true);
  Locked locked(m_lock);
  return m_tasks.RemoveIf([task](FCTask* listed) { return listed == task; }) > 0;
}

FCTask* FCTaskList::Find(const char* name) {
  FCASSERT(FlagCreate() == true);
  FCASSERT(name != NULL);
  Locked locked(m_lock);
  FCTask** found = m_tasks.Find(Named(name));
  return found != nullptr ? *found : nullptr;
}

void FCTaskList::StopAll() {
  FCASSERT(FlagCreate() == true);
  // Each task leaves the list before it stops, and the lock is not held
  // while it finishes its queue: its handlers may still find the tasks
  // after it, to send them their last events.
  for (;;) {
    FCTask* task = nullptr;
    {
      Locked locked(m_lock);
      if (!m_tasks.PopFront(&task)) return;
    }
    task->Destroy();
  }
}
