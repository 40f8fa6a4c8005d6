// Every virtual channel record has a static ToJson / FromJson pair; the tests
// compare FastWriter's compact text, member order and number forms included.
#ifndef ZUNDE_TESTS_VIRTUAL_RECORD_JSON_H
#define ZUNDE_TESTS_VIRTUAL_RECORD_JSON_H

#include <gtest/gtest.h>
#include <json/json.h>

#include <string>

#include "json_text.h"

namespace vcrecords {

using zunde::testing::Compact;
using zunde::testing::Parsed;

template <typename Record>
std::string Write(const Record& record) {
  Json::Value out;
  EXPECT_TRUE(Record::ToJson(record, out));
  return Compact(out);
}

template <typename Record>
Record Read(const std::string& text) {
  Json::Value in = Parsed(text);
  Record record;
  EXPECT_TRUE(Record::FromJson(in, record));
  return record;
}

// `json` with the members of `changed` put over it.
inline std::string Overlay(const std::string& json, const std::string& changed) {
  Json::Value result = Parsed(json);
  const Json::Value members = Parsed(changed);
  for (const std::string& key : members.getMemberNames()) result[key] = members[key];
  return Compact(result);
}

}  // namespace vcrecords

#endif
