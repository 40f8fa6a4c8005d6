#include "FCMarshal.h"

bool FCMarshal::ParseToJson(std::string& text, Json::Value& root) {
  Json::Reader reader;
  return reader.parse(text, root, true);
}
