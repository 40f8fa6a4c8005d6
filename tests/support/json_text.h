// JSON in tests: records are compared by the compact text of their JSON
// forms, which shows member names, order and number forms at once.
#ifndef ZUNDE_TESTS_JSON_TEXT_H
#define ZUNDE_TESTS_JSON_TEXT_H

#include <gtest/gtest.h>
#include <json/json.h>

#include <string>

namespace zunde::testing {

// FastWriter's one-line text, ending in a newline.
inline std::string Compact(const Json::Value& value) { return Json::FastWriter().write(value); }

inline Json::Value Parsed(const std::string& text) {
  Json::Value value;
  EXPECT_TRUE(Json::Reader().parse(text, value)) << text;
  return value;
}

}  // namespace zunde::testing

#endif
