// Reading and writing the JSON forms of the catalogue records and the smart
// channel guide records.
//
// A record's JSON form is a list of fields, each a key and the member it
// carries; one list serves both directions. Unlike the set-top-box records,
// these take jsoncpp's conversions as they are: a missing key reads as "", 0
// or false, and a value of a type that does not convert throws
// Json::Exception, which the programme record turns into a fatal assertion
// and the others hand to their caller. Look-ups go through a const reference,
// so reading never adds a key to the value read.
#ifndef ZUNDE_FCELEMENTDATA_INTERNAL_H
#define ZUNDE_FCELEMENTDATA_INTERNAL_H

#include <json/json.h>

#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

class FCFilterCriteria;

namespace zunde {
namespace catalogue {

// The filter test of programmes and guide entries: true when the filter's
// rec id and rep id are both empty; otherwise false without genres; otherwise
// true when ",g," occurs in the filter's genre id list for some genre id g.
bool SatisfiesFilter(const std::vector<std::string>& genres, const FCFilterCriteria& filter);

// The member `key` of `value` without creating it: null when absent.
inline const Json::Value& Member(const Json::Value& value, const char* key) { return value[key]; }

// Members converted by their own type. Genre id lists are arrays of strings,
// left out when empty and appended to on reading.
struct Plain {
  static void Write(Json::Value& object, const char* key, const std::string& v) { object[key] = v; }
  static void Write(Json::Value& object, const char* key, int v) { object[key] = v; }
  static void Write(Json::Value& object, const char* key, unsigned int v) { object[key] = static_cast<Json::UInt>(v); }
  static void Write(Json::Value& object, const char* key, bool v) { object[key] = v; }
  static void Write(Json::Value& object, const char* key, const std::vector<std::string>& v) {
    for (const std::string& item : v) object[key].append(Json::Value(item));
  }

  static void Read(const Json::Value& value, std::string& out) { out = value.asString(); }
  static void Read(const Json::Value& value, int& out) { out = value.asInt(); }
  static void Read(const Json::Value& value, unsigned int& out) { out = value.asUInt(); }
  static void Read(const Json::Value& value, bool& out) { out = value.asBool(); }
  static void Read(const Json::Value& value, std::vector<std::string>& out) {
    for (Json::ArrayIndex index = 0; index < value.size(); ++index) out.push_back(value[index].asString());
  }
};

// An unsigned time written unsigned but read back as int, as the service
// reads it: times beyond 2^31-1 do not convert.
struct UnsignedReadAsInt {
  static void Write(Json::Value& object, const char* key, unsigned int v) { object[key] = static_cast<Json::UInt>(v); }
  static void Read(const Json::Value& value, unsigned int& out) { out = static_cast<unsigned int>(value.asInt()); }
};

// An unsigned time carried as int both ways.
struct UnsignedAsInt {
  static void Write(Json::Value& object, const char* key, unsigned int v) { object[key] = static_cast<int>(v); }
  static void Read(const Json::Value& value, unsigned int& out) { out = static_cast<unsigned int>(value.asInt()); }
};

// One field of a record's JSON form. The two keys differ only where the
// service writes and reads a field under different spellings.
template <class Codec, class Record, class T>
struct Field {
  using codec = Codec;
  const char* writeKey;
  const char* readKey;
  T Record::*member;
};

template <class Codec = Plain, class Record, class T>
constexpr Field<Codec, Record, T> MakeField(const char* key, T Record::*member) {
  return Field<Codec, Record, T>{key, key, member};
}

template <class Record, class T>
constexpr Field<Plain, Record, T> MakeAsymmetricField(const char* writeKey, const char* readKey, T Record::*member) {
  return Field<Plain, Record, T>{writeKey, readKey, member};
}

// Writes every field of `fields` (a tuple of Field) into `object`.
template <class Record, class Fields>
void WriteFields(const Record& record, Json::Value& object, const Fields& fields) {
  std::apply(
      [&](const auto&... field) {
        (std::decay_t<decltype(field)>::codec::Write(object, field.writeKey, record.*(field.member)), ...);
      },
      fields);
}

// Reads every field of `fields` from `object`, in order.
template <class Record, class Fields>
void ReadFields(const Json::Value& object, Record& record, const Fields& fields) {
  std::apply(
      [&](const auto&... field) {
        (std::decay_t<decltype(field)>::codec::Read(Member(object, field.readKey), record.*(field.member)), ...);
      },
      fields);
}

// Containers travel as one array member, left out when the container is
// empty: the service does not tell an empty container from a missing one.
template <class Items, class WriteItem>
void WriteArrayMember(Json::Value& root, const char* key, Items& items, WriteItem writeItem) {
  for (auto& item : items) {
    Json::Value element;
    writeItem(item, element);
    root[key].append(element);
  }
}

// Calls `readElement` with each element of the array member `key`, index 0
// to size()-1. A missing member, or a text or number, has no elements; an
// object makes jsoncpp throw.
template <class ReadElement>
void ReadArrayMember(Json::Value& root, const char* key, ReadElement readElement) {
  const Json::Value& array = Member(root, key);
  for (Json::ArrayIndex index = 0; index < array.size(); ++index) {
    // The element belongs to `root`, which the caller may change; the const
    // look-up only keeps a missing key from being created.
    readElement(const_cast<Json::Value&>(array[index]));
  }
}

}  // namespace catalogue
}  // namespace zunde

#endif
