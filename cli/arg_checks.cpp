#include "arg_checks.h"

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

namespace zcli {
namespace {

bool AllDigits(const std::string& text, size_t from = 0) {
  return text.size() > from && text.find_first_not_of("0123456789", from) == std::string::npos;
}

std::string Range(long long low, unsigned long long high) {
  return std::to_string(low) + " to " + std::to_string(high);
}

// Whole seconds from "90m", "2h", "30", "1d".
bool Span(const std::string& text, long long& seconds) {
  const size_t digits = text.find_first_not_of("0123456789");
  const std::string number = text.substr(0, digits), unit = digits == std::string::npos ? "s" : text.substr(digits);
  if (number.empty() || number.size() > 9) return false;
  const long long per = unit == "s" ? 1 : unit == "m" ? 60 : unit == "h" ? 3600 : unit == "d" ? 86400 : 0;
  seconds = std::stoll(number) * per;
  return per != 0;
}

bool Today(const std::string& text, long long& seconds) {
  if (text.size() != 5 || text[2] != ':' || !AllDigits(text.substr(0, 2)) || !AllDigits(text.substr(3))) return false;
  const int hour = std::stoi(text.substr(0, 2)), minute = std::stoi(text.substr(3));
  if (hour > 23 || minute > 59) return false;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  local.tm_hour = hour;
  local.tm_min = minute;
  local.tm_sec = 0;
  local.tm_isdst = -1;
  seconds = std::mktime(&local);
  return true;
}

bool Seconds(const std::string& text, long long& seconds) {
  if (AllDigits(text)) {
    if (text.size() > 12) return false;
    seconds = std::stoll(text);
    return true;
  }
  if (text.rfind("now", 0) == 0) {
    seconds = std::time(nullptr);
    if (text.size() == 3) return true;
    long long span = 0;
    if ((text[3] != '+' && text[3] != '-') || !Span(text.substr(4), span)) return false;
    seconds += text[3] == '+' ? span : -span;
    return true;
  }
  return Today(text, seconds);
}

const char* TypeName(Json::ValueType type) {
  switch (type) {
    case Json::intValue: return "a whole number";
    case Json::uintValue: return "a whole number from 0";
    case Json::realValue: return "a number";
    case Json::stringValue: return "a string";
    case Json::booleanValue: return "true or false";
    case Json::arrayValue: return "an array";
    case Json::objectValue: return "an object";
    case Json::nullValue: break;
  }
  return "null";
}

bool Fits(const Json::Value& value, Json::ValueType type) {
  switch (type) {
    case Json::intValue: return value.isInt();
    case Json::uintValue: return value.isUInt();
    case Json::realValue: return value.isNumeric();
    case Json::stringValue: return value.isString();
    case Json::booleanValue: return value.isBool();
    case Json::arrayValue: return value.isArray();
    case Json::objectValue: return value.isObject();
    case Json::nullValue: break;
  }
  return true;
}

// The first key of `value` that `shape` does not allow, with why; empty when none.
std::string Mismatch(const Json::Value& value, const Json::Value& shape, const std::string& path) {
  if (!Fits(value, shape.type())) return "\"" + path + "\" must be " + TypeName(shape.type());
  if (shape.isArray() && !shape.empty()) {
    for (Json::ArrayIndex n = 0; n < value.size(); ++n) {
      const std::string why = Mismatch(value[n], shape[0], path + "[" + std::to_string(n) + "]");
      if (!why.empty()) return why;
    }
  }
  if (!shape.isObject()) return "";
  for (const std::string& key : value.getMemberNames()) {
    const std::string at = path.empty() ? key : path + "." + key;
    if (!shape.isMember(key)) return "unknown key \"" + at + "\"";
    const std::string why = Mismatch(value[key], shape[key], at);
    if (!why.empty()) return why;
  }
  return "";
}

bool ReadSource(std::string& text, std::string& why) {
  if (text != "-" && text.rfind('@', 0) != 0) return true;
  if (text == "-") {
    text.assign(std::istreambuf_iterator<char>(std::cin), {});
    return true;
  }
  std::ifstream file(text.substr(1));
  if (!file) {
    why = "cannot read " + text.substr(1);
    return false;
  }
  text.assign(std::istreambuf_iterator<char>(file), {});
  return true;
}

}  // namespace

std::string CheckWhole(std::string& text, long long low, unsigned long long high, const char* type) {
  const bool negative = !text.empty() && text[0] == '-';
  const std::string range = " (" + std::string(type) + ": " + Range(low, high) + ")";
  if (!AllDigits(text, negative ? 1 : 0)) return "'" + text + "' is not a whole number" + range;
  errno = 0;
  if (negative) {
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    if (errno == 0 && value >= low) return "";
  } else {
    const unsigned long long value = std::strtoull(text.c_str(), nullptr, 10);
    if (errno == 0 && value <= high) return "";
  }
  return "'" + text + "' is out of range" + range;
}

std::string CheckTime(std::string& text) {
  long long seconds = 0;
  const std::string forms = " (seconds since the epoch, now, now+90m, now-2h or HH:MM";
  if (!Seconds(text, seconds)) return "'" + text + "' is not a time" + forms + ")";
  if (seconds < 0 || seconds > UINT32_MAX) return "'" + text + "' is out of range" + forms + ", up to 2106-02-07)";
  text = std::to_string(seconds);
  return "";
}

std::string CheckJson(std::string& text, const Json::Value& shape) {
  std::string why;
  if (!ReadSource(text, why)) return why;
  Json::Value value;
  std::istringstream in(text);
  Json::CharReaderBuilder builder;
  builder["rejectDupKeys"] = true;
  if (!Json::parseFromStream(builder, in, &value, &why) || !value.isObject()) return "not a JSON object";
  if (shape.isNull()) return "";
  why = Mismatch(value, shape, "");
  return why;
}

}  // namespace zcli
