// Holds an FCMutex for the rest of a scope, so that every return path of a
// runtime object's operation unlocks.
#ifndef ZUNDE_FCLOCKED_INTERNAL_H
#define ZUNDE_FCLOCKED_INTERNAL_H

#include "FCThread.h"

namespace zunde {

class Locked {
 public:
  explicit Locked(FCMutex& mutex) : m_mutex(mutex) { m_mutex.Lock(); }
  ~Locked() { m_mutex.Unlock(); }
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;

 private:
  FCMutex& m_mutex;
};

}  // namespace zunde

#endif
