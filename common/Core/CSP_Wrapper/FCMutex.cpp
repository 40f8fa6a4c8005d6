#include "FCDebug.h"
#include "FCThread.h"

// The owner is read without the lock by threads that do not hold it; they
// can only ever see another thread's id or 0, never their own, so the
// comparison is sound. Atomic access keeps the read well defined.
namespace {

pthread_t LoadOwner(const pthread_t* owner) { return __atomic_load_n(owner, __ATOMIC_ACQUIRE); }

void StoreOwner(pthread_t* owner, pthread_t value) { __atomic_store_n(owner, value, __ATOMIC_RELEASE); }

}  // namespace

FCMutex::FCMutex() : m_owner(0), m_depth(0) {}

FCMutex::~FCMutex() { FCASSERT(FlagCreate() == false); }

bool FCMutex::Create() {
  if (!m_semaphore.Create(1)) return false;
  StoreOwner(&m_owner, 0);
  return true;
}

void FCMutex::Destroy() {
  FCASSERT(FlagCreate() == true);
  m_semaphore.Destroy();
}

void FCMutex::Lock() {
  FCASSERT(FlagCreate() == true);
  const pthread_t caller = pthread_self();
  if (LoadOwner(&m_owner) == caller) {
    ++m_depth;
    return;
  }
  m_semaphore.Take();
  StoreOwner(&m_owner, caller);
  m_depth = 1;
}

void FCMutex::Unlock() {
  FCASSERT(FlagCreate() == true);
  if (LoadOwner(&m_owner) != pthread_self()) return;
  if (--m_depth > 0) return;
  StoreOwner(&m_owner, 0);
  m_semaphore.Give();
}
