#include "FCAtomic_internal.h"
#include "FCDebug.h"
#include "FCThread.h"

// The owner is read without the lock by threads that do not hold it; they
// can only ever see another thread's id or 0, never their own, so the
// comparison is sound.
using zunde::AtomicLoad;
using zunde::AtomicStore;

FCMutex::FCMutex() : m_owner(0), m_depth(0) {}

FCMutex::~FCMutex() { FCASSERT(FlagCreate() == false); }

bool FCMutex::Create() {
  if (!m_semaphore.Create(1)) return false;
  AtomicStore(&m_owner, 0);
  return true;
}

void FCMutex::Destroy() {
  FCASSERT(FlagCreate() == true);
  m_semaphore.Destroy();
}

void FCMutex::Lock() {
  FCASSERT(FlagCreate() == true);
  const pthread_t caller = pthread_self();
  if (AtomicLoad(&m_owner) == caller) {
    ++m_depth;
    return;
  }
  m_semaphore.Take();
  AtomicStore(&m_owner, caller);
  m_depth = 1;
}

void FCMutex::Unlock() {
  FCASSERT(FlagCreate() == true);
  if (AtomicLoad(&m_owner) != pthread_self()) return;
  if (--m_depth > 0) return;
  AtomicStore(&m_owner, 0);
  m_semaphore.Give();
}
