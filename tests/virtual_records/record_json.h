// Every virtual channel record has a static ToJson / FromJson pair; the tests
// compare FastWriter's compact text, member order and number forms included.
// Most cases are one row of a table: a name, a use of a record, the text it
// is given, and the exact text it must give back.
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

// Reading never changes what it reads.
template <typename Record>
Record Read(const std::string& text) {
  Json::Value in = Parsed(text);
  const Json::Value before = in;
  Record record;
  EXPECT_TRUE(Record::FromJson(in, record));
  EXPECT_EQ(before, in);
  return record;
}

template <typename Record>
std::string Reread(const std::string& text) {
  return Write(Read<Record>(text));
}

template <typename Record>
std::string TextOf(const std::string& text) {
  return Read<Record>(text).ToString();
}

// `json` with the members of `changed` put over it.
inline std::string Overlay(const std::string& json, const std::string& changed) {
  Json::Value result = Parsed(json);
  const Json::Value members = Parsed(changed);
  for (const std::string& key : members.getMemberNames()) result[key] = members[key];
  return Compact(result);
}

struct TextCase {
  const char* name;
  std::string (*use)(const std::string& input);
  std::string input;
  std::string expected;
};

class Text : public ::testing::TestWithParam<TextCase> {};

inline std::string CaseName(const ::testing::TestParamInfo<TextCase>& info) { return info.param.name; }

}  // namespace vcrecords

#endif
