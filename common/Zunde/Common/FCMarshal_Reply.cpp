#include "FCMarshal.h"
#include "FCRemoteCall_internal.h"

bool zunde::ParseJsonText(const char* begin, const char* end, Json::Value& root) {
  Json::Reader reader;
  return reader.parse(begin, end, root, true);
}

bool FCMarshal::ParseToJson(std::string& text, Json::Value& root) {
  return zunde::ParseJsonText(text.data(), text.data() + text.size(), root);
}
