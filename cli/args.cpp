#include <sstream>

#include "command_table.h"

namespace zcli {

int Args::i(size_t n) const { return std::stoi(values_.at(n)); }

unsigned long long Args::u(size_t n) const { return std::stoull(values_.at(n)); }

bool Args::b(size_t n) const {
  const std::string& text = values_.at(n);
  return text == "true" || text == "1" || text == "on" || text == "yes";
}

std::vector<std::string> Args::list(size_t n) const {
  std::vector<std::string> items;
  std::istringstream text(values_.at(n));
  for (std::string item; std::getline(text, item, ',');)
    if (!item.empty()) items.push_back(item);
  return items;
}

Json::Value Args::json(size_t n) const {
  Json::Value value;
  std::istringstream text(values_.at(n));
  std::string errors;
  Json::parseFromStream(Json::CharReaderBuilder(), text, &value, &errors);
  return value;
}

namespace {

void Overlay(Json::Value& base, const Json::Value& given) {
  for (const std::string& key : given.getMemberNames()) {
    if (base[key].isObject() && given[key].isObject())
      Overlay(base[key], given[key]);
    else
      base[key] = given[key];
  }
}

}  // namespace

Json::Value Args::over(size_t n, Json::Value base) const {
  if (!base.isObject()) base = Json::Value(Json::objectValue);
  Overlay(base, json(n));
  return base;
}

}  // namespace zcli
