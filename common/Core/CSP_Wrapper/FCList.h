// A list of values in order, as the task runtime keeps its events, handlers
// and tasks.
//
// It has no lock of its own: the object that holds a list guards it. Values
// are copied in and out; a list of pointers does not own what they point to.
//
//   FCList<int> list;
//   list.PushBack(1);
//   list.PushBack(2);
//   int* two = list.Find([](int v) { return v == 2; });
//   int first;
//   list.PopFront(&first);   // first == 1
#ifndef ZUNDE_FCLIST_H
#define ZUNDE_FCLIST_H

#include <cstddef>
#include <list>

template <typename T>
class FCList {
 public:
  FCList() = default;
  FCList(const FCList&) = delete;
  FCList& operator=(const FCList&) = delete;

  bool IsEmpty() const { return m_items.empty(); }
  std::size_t Size() const { return m_items.size(); }

  void PushBack(const T& value) { m_items.push_back(value); }
  void PushFront(const T& value) { m_items.push_front(value); }

  // Moves the first value into `value`; false when the list is empty.
  bool PopFront(T* value) {
    if (m_items.empty()) return false;
    *value = m_items.front();
    m_items.pop_front();
    return true;
  }

  // The first value for which `match(value)` is true, or null. The pointer
  // stays valid until that value is removed.
  template <typename Match>
  T* Find(Match match) {
    for (T& value : m_items) {
      if (match(value)) return &value;
    }
    return nullptr;
  }

  // Removes every value for which `match(value)` is true; returns how many.
  template <typename Match>
  std::size_t RemoveIf(Match match) {
    const std::size_t before = m_items.size();
    m_items.remove_if(match);
    return before - m_items.size();
  }

  // Calls `visit(value)` on each value, first to last.
  template <typename Visit>
  void ForEach(Visit visit) {
    for (T& value : m_items) visit(value);
  }

  void Clear() { m_items.clear(); }

 private:
  std::list<T> m_items;
};

#endif
