// The virtual-table slot that a pointer to a virtual member function names.
#ifndef ZUNDE_TESTS_VTABLE_SLOT_H
#define ZUNDE_TESTS_VTABLE_SLOT_H

#include <cstddef>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace zunde::testing {

// The slot index of `member`, or -1 if it is not virtual. Under the Itanium
// C++ ABI a pointer to a virtual member function holds 1 + the byte offset
// of its slot; the ARM variant holds the offset and marks virtual members in
// the low bit of the adjustment.
template <typename Class, typename Function>
std::ptrdiff_t SlotOf(Function Class::*member) {
  struct {
    std::ptrdiff_t ptr;
    std::ptrdiff_t adj;
  } representation;
  static_assert(sizeof(member) == sizeof(representation), "not an Itanium-style member pointer");
  std::memcpy(&representation, &member, sizeof representation);
#if defined(__arm__) || defined(__aarch64__)
  if ((representation.adj & 1) == 0) return -1;
  return representation.ptr / static_cast<std::ptrdiff_t>(sizeof(void*));
#else
  if ((representation.ptr & 1) == 0) return -1;
  return (representation.ptr - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
#endif
}

using SlotList = std::vector<std::pair<std::string, std::ptrdiff_t>>;

// A pointer to a member function of `Class` with type `Function`.
template <typename Class, typename Function>
using MemberOf = Function Class::*;

}  // namespace zunde::testing

// One entry of a slot list: the operation's name and its slot.
#define ZUNDE_SLOT(Class, name) \
  { #name, ::zunde::testing::SlotOf(&Class::name) }
// The same for one overload, picked by its signature.
#define ZUNDE_SLOT_OF(Class, name, ...) \
  { #name " " #__VA_ARGS__, ::zunde::testing::SlotOf(static_cast<::zunde::testing::MemberOf<Class, __VA_ARGS__>>(&Class::name)) }

#endif
