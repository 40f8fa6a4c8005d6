// Reading and writing the members of the virtual channel records.
//
// The records are filled from whatever the service sends, so reading never
// changes the input (no member is created by a lookup) and never lets
// jsoncpp throw: a missing member gives the stated default, a member of a
// type that does not convert gives 0 or "".
#ifndef ZUNDE_FCVIRTUALRECORDJSON_INTERNAL_H
#define ZUNDE_FCVIRTUALRECORDJSON_INTERNAL_H

#include <json/json.h>

#include <cstddef>
#include <cstdlib>
#include <string>

#include "RecordJson_internal.h"

namespace zunde {
namespace vcjson {

inline constexpr const char* kServiceIdKey = "TCServiceId";

using recordjson::MemberOrNull;

inline bool Has(const Json::Value& object, const char* key) {
  return object.isObject() && object.isMember(key);
}

inline std::string AsString(const Json::Value& value) {
  return value.isConvertibleTo(Json::stringValue) ? value.asString() : std::string();
}

inline unsigned int AsUInt(const Json::Value& value) {
  return value.isConvertibleTo(Json::uintValue) ? value.asUInt() : 0U;
}

inline int AsInt(const Json::Value& value) {
  return value.isConvertibleTo(Json::intValue) ? value.asInt() : 0;
}

inline std::string String(const Json::Value& object, const char* key, const char* absent = "") {
  return Has(object, key) ? AsString(MemberOrNull(object, key)) : std::string(absent);
}

inline int Int(const Json::Value& object, const char* key, int absent = 0) {
  return Has(object, key) ? AsInt(MemberOrNull(object, key)) : absent;
}

inline unsigned int UInt(const Json::Value& object, const char* key) { return AsUInt(MemberOrNull(object, key)); }

// Numbers the service may send as text: the text is read with base prefixes
// ("0x10" is 16, "010" is 8).
inline unsigned int LenientUInt(const Json::Value& object, const char* key) {
  const Json::Value& value = MemberOrNull(object, key);
  if (value.isString()) return static_cast<unsigned int>(std::strtoul(value.asCString(), nullptr, 0));
  return AsUInt(value);
}

// Service ids are decimal text, so that no JSON reader on the way rounds
// the 64-bit number through a double.
inline void WriteServiceId(Json::Value& object, unsigned long long id) { object[kServiceIdKey] = std::to_string(id); }

inline unsigned long long ReadServiceId(const Json::Value& object) {
  return std::strtoull(String(object, kServiceIdKey, "0").c_str(), nullptr, 10);
}

// Members carried as programme metadata: empty ones are left out, as the
// service leaves them out.
inline bool IsWorthCarrying(const Json::Value& value) {
  if (value.isNull()) return false;
  if (value.isArray() || value.isObject()) return !value.empty();
  if (value.isString()) return !value.asString().empty();
  return true;
}

// Field tables: a record lists its simple fields once, each with its key and
// its public accessors, and WriteFields / ReadFields below walk the list.
// `group` names the object a field is nested in, or is null.
template <typename Record, typename Get, typename Set>
struct Field {
  const char* group;
  const char* key;
  Get (Record::*get)() const;
  void (Record::*set)(Set);
};

template <typename Record>
using TextField = Field<Record, const std::string&, const std::string&>;
template <typename Record>
using CountField = Field<Record, unsigned int, unsigned int>;
template <typename Record>
using IndexField = Field<Record, int, int>;

inline Json::Value& Slot(Json::Value& out, const char* group, const char* key) {
  return group != nullptr ? out[group][key] : out[key];
}

inline const Json::Value& Place(const Json::Value& in, const char* group) {
  return group != nullptr ? MemberOrNull(in, group) : in;
}

template <typename Record, typename Get, typename Set, std::size_t N>
void WriteFields(const Record& record, Json::Value& out, const Field<Record, Get, Set> (&fields)[N]) {
  for (const auto& field : fields) Slot(out, field.group, field.key) = (record.*field.get)();
}

// `read(object, key)` gives the value to store.
template <typename Record, typename Get, typename Set, std::size_t N, typename Read>
void ReadFields(const Json::Value& in, Record& record, const Field<Record, Get, Set> (&fields)[N], Read read) {
  for (const auto& field : fields) (record.*field.set)(read(Place(in, field.group), field.key));
}

}  // namespace vcjson
}  // namespace zunde

#endif
