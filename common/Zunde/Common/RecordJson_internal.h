// Reading and writing records as JSON objects.
//
// A record's JSON form is a list of fields, each a key and the member it
// carries; one list serves both directions. Each field names a codec that
// converts its value. Writing is the same for every codec; reading differs:
//
//   Strict   jsoncpp's own conversions, as the catalogue records use them: a
//            missing key reads as "", 0 or false; a value of a type that
//            does not convert, or a look-up in a value that is no object,
//            throws Json::Exception to the caller.
//   Lenient  never throws, as the set-top-box records need: a missing key,
//            or a value of a type that does not convert, reads as "", 0 or
//            false. The service sends every key, but one that is missing
//            must not end the caller's process.
//
// Either way look-ups go through a const reference, so reading never adds a
// key to the document read.
#ifndef ZUNDE_RECORDJSON_INTERNAL_H
#define ZUNDE_RECORDJSON_INTERNAL_H

#include <json/json.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace zunde {
namespace recordjson {

// The member `key` of `object`, or null when `object` is no object or lacks it.
inline const Json::Value& MemberOrNull(const Json::Value& object, const char* key) {
  if (!object.isObject()) return Json::Value::nullSingleton();
  const Json::Value* found = object.find(key, key + std::char_traits<char>::length(key));
  return found != nullptr ? *found : Json::Value::nullSingleton();
}

// Each value by its own type. Times are 32-bit on the wire; a list of texts
// is an array, left out when empty.
struct WritesByType {
  static void Write(Json::Value& object, const char* key, const std::string& v) { object[key] = v; }
  static void Write(Json::Value& object, const char* key, int v) { object[key] = v; }
  static void Write(Json::Value& object, const char* key, unsigned int v) { object[key] = static_cast<Json::UInt>(v); }
  static void Write(Json::Value& object, const char* key, unsigned long v) {
    object[key] = static_cast<Json::UInt>(v);
  }
  static void Write(Json::Value& object, const char* key, bool v) { object[key] = v; }
  static void Write(Json::Value& object, const char* key, const std::vector<std::string>& v) {
    for (const std::string& item : v) object[key].append(Json::Value(item));
  }
};

struct Strict : WritesByType {
  static const Json::Value& Member(const Json::Value& object, const char* key) { return object[key]; }
  // jsoncpp decides: a text or number has no elements, an object throws at
  // its first.
  static bool HasElements(const Json::Value&) { return true; }

  static void Read(const Json::Value& value, std::string& out) { out = value.asString(); }
  static void Read(const Json::Value& value, int& out) { out = value.asInt(); }
  static void Read(const Json::Value& value, unsigned int& out) { out = value.asUInt(); }
  static void Read(const Json::Value& value, bool& out) { out = value.asBool(); }
  // Appends to what the record holds.
  static void Read(const Json::Value& value, std::vector<std::string>& out) {
    for (Json::ArrayIndex index = 0; index < value.size(); ++index) out.push_back(value[index].asString());
  }
};

struct Lenient : WritesByType {
  static const Json::Value& Member(const Json::Value& object, const char* key) { return MemberOrNull(object, key); }
  static bool HasElements(const Json::Value& value) { return value.isArray(); }

  static void Read(const Json::Value& value, std::string& out) {
    out = value.isString() ? value.asString() : std::string();
  }
  static void Read(const Json::Value& value, int& out) {
    out = value.isConvertibleTo(Json::intValue) ? value.asInt() : 0;
  }
  static void Read(const Json::Value& value, unsigned long& out) {
    out = value.isConvertibleTo(Json::uintValue) ? value.asUInt() : 0U;
  }
  static void Read(const Json::Value& value, bool& out) {
    out = value.isConvertibleTo(Json::booleanValue) && value.asBool();
  }
};

// The value of the member `key`, read by `Codec`.
template <class Codec, class T>
T Read(const Json::Value& object, const char* key) {
  T value;
  Codec::Read(Codec::Member(object, key), value);
  return value;
}

// One field of a record's JSON form. The two keys differ only where the
// service writes and reads a field under different spellings.
template <class Codec, class Record, class T>
struct Field {
  using codec = Codec;
  const char* writeKey;
  const char* readKey;
  T Record::*member;
};

template <class Codec = Strict, class Record, class T>
constexpr Field<Codec, Record, T> MakeField(const char* key, T Record::*member) {
  return Field<Codec, Record, T>{key, key, member};
}

template <class Record, class T>
constexpr Field<Strict, Record, T> MakeAsymmetricField(const char* writeKey, const char* readKey, T Record::*member) {
  return Field<Strict, Record, T>{writeKey, readKey, member};
}

template <class Record, class F>
void WriteField(const Record& record, Json::Value& object, const F& field) {
  F::codec::Write(object, field.writeKey, record.*(field.member));
}

template <class Record, class F>
void ReadField(const Json::Value& object, Record& record, const F& field) {
  using Codec = typename F::codec;
  Codec::Read(Codec::Member(object, field.readKey), record.*(field.member));
}

// Writes every field of `fields` (a tuple of Field) into `object`, in order.
template <class Record, class Fields>
void WriteFields(const Record& record, Json::Value& object, const Fields& fields) {
  std::apply([&](const auto&... field) { (WriteField(record, object, field), ...); }, fields);
}

// Keys ordered as jsoncpp orders an object's members: bytes compared as
// unsigned, a key before the longer keys it begins.
struct KeyText {
  const char* text;
  std::size_t length;
};

inline int CompareKeys(const KeyText& a, const KeyText& b) {
  const int bytes = std::memcmp(a.text, b.text, std::min(a.length, b.length));
  if (bytes != 0) return bytes;
  return a.length < b.length ? -1 : (a.length > b.length ? 1 : 0);
}

// A table's keys in that order, with their positions in the table; worked
// out once per thread for the table last read, which is nearly always the
// table read now.
template <std::size_t N>
const std::array<std::pair<KeyText, std::size_t>, N>& SortedKeys(const std::array<const char*, N>& keys) {
  thread_local std::array<const char*, N> cachedFor{};
  thread_local std::array<std::pair<KeyText, std::size_t>, N> sorted;
  if (cachedFor != keys) {
    for (std::size_t i = 0; i < N; ++i) sorted[i] = {{keys[i], std::strlen(keys[i])}, i};
    std::sort(sorted.begin(), sorted.end(),
              [](const auto& a, const auto& b) { return CompareKeys(a.first, b.first) < 0; });
    cachedFor = keys;
  }
  return sorted;
}

// Finds the members named `keys` in one walk over `object`'s members beside
// the sorted keys: a record of twenty fields would otherwise pay twenty tree
// look-ups. A key the object lacks stays null.
template <std::size_t N>
std::array<const Json::Value*, N> FindMembers(const Json::Value& object, const std::array<const char*, N>& keys) {
  std::array<const Json::Value*, N> found{};
  const auto& sorted = SortedKeys(keys);
  std::size_t next = 0;
  for (auto member = object.begin(); member != object.end() && next < N; ++member) {
    const char* end = nullptr;
    const char* name = member.memberName(&end);
    const KeyText memberKey{name, static_cast<std::size_t>(end - name)};
    while (next < N && CompareKeys(sorted[next].first, memberKey) < 0) ++next;
    // A key the table lists twice is found for both fields.
    while (next < N && CompareKeys(sorted[next].first, memberKey) == 0) found[sorted[next++].second] = &*member;
  }
  return found;
}

template <class Record, class Fields, std::size_t... I>
void ReadFoundFields(const Json::Value& object, Record& record, const Fields& fields, std::index_sequence<I...>) {
  const auto found = FindMembers(object, std::array<const char*, sizeof...(I)>{std::get<I>(fields).readKey...});
  const Json::Value& null = Json::Value::nullSingleton();
  (std::tuple_element_t<I, Fields>::codec::Read(found[I] != nullptr ? *found[I] : null,
                                                record.*(std::get<I>(fields).member)),
   ...);
}

// Reads every field of `fields` from `object`, in order. In an object a
// missing key reads as null under every codec; anything else goes through
// each codec's own look-up, which decides whether it throws.
template <class Record, class Fields>
void ReadFields(const Json::Value& object, Record& record, const Fields& fields) {
  if (object.isObject()) {
    ReadFoundFields(object, record, fields, std::make_index_sequence<std::tuple_size<Fields>::value>());
    return;
  }
  std::apply([&](const auto&... field) { (ReadField(object, record, field), ...); }, fields);
}

// Tables and lists travel as one array member, one object per item, left
// out when there are no items: the service does not tell an empty container
// from a missing one.
template <class Items, class WriteItem>
void WriteArrayMember(Json::Value& root, const char* key, Items& items, WriteItem writeItem) {
  for (auto& item : items) {
    Json::Value element(Json::objectValue);
    writeItem(item, element);
    root[key].append(element);
  }
}

// Calls `readElement` with each element of the array member `key`, index 0
// to size()-1; a missing member has none.
template <class Codec, class ReadElement>
void ReadArrayMember(Json::Value& root, const char* key, ReadElement readElement) {
  const Json::Value& array = Codec::Member(root, key);
  if (!Codec::HasElements(array)) return;
  for (Json::ArrayIndex index = 0; index < array.size(); ++index) {
    // The element belongs to `root`, which the caller may change; the const
    // look-up only keeps a missing key from being created.
    readElement(const_cast<Json::Value&>(array[index]));
  }
}

}  // namespace recordjson
}  // namespace zunde

#endif
