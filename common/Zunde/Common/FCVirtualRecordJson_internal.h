// Reading and writing the members of the virtual channel records.
//
// The records are filled from whatever the service sends, so reading never
// changes the input (no member is created by a lookup) and never lets
// jsoncpp throw: a missing member gives the stated default, a member of a
// type that does not convert gives 0 or "".
#ifndef ZUNDE_FCVIRTUALRECORDJSON_INTERNAL_H
#define ZUNDE_FCVIRTUALRECORDJSON_INTERNAL_H

#include <json/json.h>

#include <cstdlib>
#include <string>

namespace zunde {
namespace vcjson {

inline constexpr const char* kServiceIdKey = "TCServiceId";

// The member `key` of `object`, or null when `object` is no object or lacks it.
inline const Json::Value& Member(const Json::Value& object, const char* key) {
  if (!object.isObject()) return Json::Value::nullSingleton();
  const Json::Value* found = object.find(key, key + std::char_traits<char>::length(key));
  return found != nullptr ? *found : Json::Value::nullSingleton();
}

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
  return Has(object, key) ? AsString(Member(object, key)) : std::string(absent);
}

inline int Int(const Json::Value& object, const char* key, int absent = 0) {
  return Has(object, key) ? AsInt(Member(object, key)) : absent;
}

inline unsigned int UInt(const Json::Value& object, const char* key) { return AsUInt(Member(object, key)); }

// Numbers the service may send as text: the text is read with base prefixes
// ("0x10" is 16, "010" is 8).
inline unsigned int LenientUInt(const Json::Value& object, const char* key) {
  const Json::Value& value = Member(object, key);
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

}  // namespace vcjson
}  // namespace zunde

#endif
