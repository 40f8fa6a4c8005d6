// Fields that one thread writes and another reads without a lock (a thread's
// ids, a lock's owner) are accessed atomically, so that the read is well
// defined while the field keeps its plain type and place in the record.
#ifndef ZUNDE_FCATOMIC_INTERNAL_H
#define ZUNDE_FCATOMIC_INTERNAL_H

#include <type_traits>

namespace zunde {

template <typename T>
T AtomicLoad(const T* field) {
  return __atomic_load_n(field, __ATOMIC_ACQUIRE);
}

// The value takes the field's type, so that a literal 0 needs no cast.
template <typename T>
void AtomicStore(T* field, typename std::common_type<T>::type value) {
  __atomic_store_n(field, value, __ATOMIC_RELEASE);
}

}  // namespace zunde

#endif
