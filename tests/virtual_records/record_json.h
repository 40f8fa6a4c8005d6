// Every virtual channel record has a static ToJson / FromJson pair; the tests
// compare FastWriter's compact text, member order and number forms included.
#ifndef ZUNDE_TESTS_VIRTUAL_RECORD_JSON_H
#define ZUNDE_TESTS_VIRTUAL_RECORD_JSON_H

#include <gtest/gtest.h>
#include <json/json.h>

#include <string>

namespace vcrecords {

inline std::string Compact(const Json::Value& value) { return Json::FastWriter().write(value); }

inline Json::Value Parse(const std::string& text) {
  Json::Value value;
  EXPECT_TRUE(Json::Reader().parse(text, value)) << text;
  return value;
}

template <typename Record>
std::string Write(const Record& record) {
  Json::Value out;
  EXPECT_TRUE(Record::ToJson(record, out));
  return Compact(out);
}

template <typename Record>
Record Read(const std::string& text) {
  Json::Value in = Parse(text);
  Record record;
  EXPECT_TRUE(Record::FromJson(in, record));
  return record;
}

// `json` with the members of `changed` put over it.
inline std::string Overlay(const std::string& json, const std::string& changed) {
  Json::Value result = Parse(json);
  const Json::Value members = Parse(changed);
  for (const std::string& key : members.getMemberNames()) result[key] = members[key];
  return Compact(result);
}

}  // namespace vcrecords

#endif
