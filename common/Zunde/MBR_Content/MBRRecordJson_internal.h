// Reading and writing the JSON forms of the set-top-box records.
//
// A record's JSON form is a list of fields, each a key and the member it
// carries; one list serves both directions. Reading never changes the input
// (no member is created by a look-up) and never lets jsoncpp throw: a
// missing member, or one of a type that does not convert, reads as 0, false
// or the empty string. The service always sends every key, but one that is
// missing must not end the caller's process.
#ifndef ZUNDE_MBRRECORDJSON_INTERNAL_H
#define ZUNDE_MBRRECORDJSON_INTERNAL_H

#include <json/json.h>

#include <string>
#include <tuple>

namespace zunde {
namespace mbrjson {

// The member `key` of `object`, or null when `object` is no object or lacks it.
inline const Json::Value& Member(const Json::Value& object, const char* key) {
  if (!object.isObject()) return Json::Value::nullSingleton();
  const Json::Value* found = object.find(key, key + std::char_traits<char>::length(key));
  return found != nullptr ? *found : Json::Value::nullSingleton();
}

// The JSON value of each field type. Start times are 32-bit on the wire.
inline Json::Value ToValue(int value) { return Json::Value(value); }
inline Json::Value ToValue(unsigned long value) { return Json::Value(static_cast<Json::UInt>(value)); }
inline Json::Value ToValue(bool value) { return Json::Value(value); }
inline Json::Value ToValue(const std::string& value) { return Json::Value(value); }

inline void FromValue(const Json::Value& value, int& out) {
  out = value.isConvertibleTo(Json::intValue) ? value.asInt() : 0;
}
inline void FromValue(const Json::Value& value, unsigned long& out) {
  out = value.isConvertibleTo(Json::uintValue) ? value.asUInt() : 0U;
}
inline void FromValue(const Json::Value& value, bool& out) {
  out = value.isConvertibleTo(Json::booleanValue) && value.asBool();
}
inline void FromValue(const Json::Value& value, std::string& out) {
  out = value.isString() ? value.asString() : std::string();
}

template <class T>
T Read(const Json::Value& object, const char* key) {
  T value;
  FromValue(Member(object, key), value);
  return value;
}

// One key of a record's JSON form and the member it carries.
template <class Record, class T>
struct Field {
  const char* key;
  T Record::*member;
};

template <class Record, class T>
constexpr Field<Record, T> MakeField(const char* key, T Record::*member) {
  return Field<Record, T>{key, member};
}

// Writes every field of `fields` (a tuple of Field) into `object`, in order.
template <class Record, class Fields>
void WriteFields(const Record& record, Json::Value& object, const Fields& fields) {
  std::apply([&](const auto&... field) { ((object[field.key] = ToValue(record.*(field.member))), ...); }, fields);
}

// Reads every field of `fields` from `object`, in order.
template <class Record, class Fields>
void ReadFields(const Json::Value& object, Record& record, const Fields& fields) {
  std::apply([&](const auto&... field) { (FromValue(Member(object, field.key), record.*(field.member)), ...); },
             fields);
}

// The tables travel as one array member of the request, left out when the
// table is empty, so that the service tells "no table" from "empty table"
// the same way it always has.
template <class Items, class WriteItem>
void WriteArrayMember(Json::Value& root, const char* key, Items& items, WriteItem writeItem) {
  if (items.empty()) return;
  Json::Value array(Json::arrayValue);
  for (auto& item : items) {
    Json::Value element(Json::objectValue);
    writeItem(item, element);
    array.append(element);
  }
  root[key] = array;
}

// Calls `readElement` with each element of the array member `key`; a
// missing member, or one that is no array, has no elements.
template <class ReadElement>
void ReadArrayMember(Json::Value& root, const char* key, ReadElement readElement) {
  if (!Member(root, key).isArray()) return;
  for (Json::Value& element : root[key]) readElement(element);
}

}  // namespace mbrjson
}  // namespace zunde

#endif
