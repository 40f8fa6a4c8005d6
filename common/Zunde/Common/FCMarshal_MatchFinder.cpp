#include "FCMarshal.h"

namespace {

constexpr int kDigitBufferSize = 30;

}  // namespace

bool FCMarshal::TCServiceIdToJson(unsigned long long& id, Json::Value& root) {
  static const char kDigits[] = "0123456789";
  char buffer[kDigitBufferSize] = {};
  int first = kDigitBufferSize - 1;  // the last byte stays the terminator
  // The division runs on the caller's variable, which is left at 0.
  while (id != 0) {
    buffer[--first] = kDigits[id % 10];
    id /= 10;
  }
  if (buffer[first] == '\0') return true;  // a zero id: no digit, no key
  root["TCServiceId"] = std::string(buffer + first);
  return true;
}

bool FCMarshal::JsonToTCServiceId(Json::Value& root, unsigned long long& id) {
  const std::string text = root.get("TCServiceId", "").asString();
  id = 0;
  for (const char* c = text.c_str(); *c != '\0'; ++c) id = id * 10 + static_cast<unsigned long long>(*c - '0');
  return true;
}
