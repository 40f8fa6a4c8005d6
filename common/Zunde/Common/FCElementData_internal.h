// What the catalogue records and the smart channel guide records share.
//
// Their JSON forms take jsoncpp's conversions as they are (the Strict codec
// of the record JSON helpers): a value of a type that does not convert
// throws Json::Exception, which the programme record turns into a fatal
// assertion and the others hand to their caller.
#ifndef ZUNDE_FCELEMENTDATA_INTERNAL_H
#define ZUNDE_FCELEMENTDATA_INTERNAL_H

#include <json/json.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "RecordJson_internal.h"

class FCFilterCriteria;

namespace zunde {
namespace catalogue {

// The filter test of programmes and guide entries: true when the filter's
// rec id and rep id are both empty; otherwise false without genres; otherwise
// true when ",g," occurs in the filter's genre id list for some genre id g.
bool SatisfiesFilter(const std::vector<std::string>& genres, const FCFilterCriteria& filter);

using recordjson::MakeAsymmetricField;
using recordjson::MakeField;
using recordjson::ReadFields;
using recordjson::WriteArrayMember;
using recordjson::WriteFields;

// The member `key` of `value` without creating it: null when absent.
inline const Json::Value& Member(const Json::Value& value, const char* key) {
  return recordjson::Strict::Member(value, key);
}

template <class ReadElement>
void ReadArrayMember(Json::Value& root, const char* key, ReadElement readElement) {
  recordjson::ReadArrayMember<recordjson::Strict>(root, key, readElement);
}

// A map whose elements carry their key under `mapKeyKey`, beside the value's
// own members as `writeValue` puts them. Reading keeps the first of equal
// keys, as std::map::insert does.
template <class Value, class WriteValue>
void WriteKeyedMap(std::map<std::string, Value>& map, const char* key, const char* mapKeyKey, Json::Value& root,
                   WriteValue writeValue) {
  WriteArrayMember(root, key, map, [&](std::pair<const std::string, Value>& entry, Json::Value& element) {
    writeValue(entry.second, element);
    element[mapKeyKey] = entry.first;
  });
}

template <class Value, class ReadValue>
void ReadKeyedMap(Json::Value& root, const char* key, const char* mapKeyKey, std::map<std::string, Value>& map,
                  ReadValue readValue) {
  ReadArrayMember(root, key, [&](Json::Value& element) {
    Value value;
    readValue(element, value);
    map.insert(std::make_pair(Member(element, mapKeyKey).asString(), std::move(value)));
  });
}

// An unsigned time written unsigned but read back as int, as the service
// reads it: times beyond 2^31-1 do not convert.
struct UnsignedReadAsInt : recordjson::Strict {
  static void Read(const Json::Value& value, unsigned int& out) { out = static_cast<unsigned int>(value.asInt()); }
};

// An unsigned time carried as int both ways.
struct UnsignedAsInt : recordjson::Strict {
  static void Write(Json::Value& object, const char* key, unsigned int v) { object[key] = static_cast<int>(v); }
  static void Read(const Json::Value& value, unsigned int& out) { out = static_cast<unsigned int>(value.asInt()); }
};

}  // namespace catalogue
}  // namespace zunde

#endif
