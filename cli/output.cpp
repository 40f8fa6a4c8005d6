#include "output.h"

#include <algorithm>
#include <cstdio>

#include "session.h"

namespace zcli {
namespace {

constexpr size_t kCellWidth = 32;

std::string Cell(const Json::Value& value) {
  std::string text = value.isString() ? value.asString() : value.isNull() ? "" : CompactJson(value);
  if (text.size() > kCellWidth) text = text.substr(0, kCellWidth - 1) + "~";
  return text;
}

bool IsTable(const Json::Value& value) { return value.isArray() && !value.empty() && value[0].isObject(); }

// Nested objects (a record's "config" or "channel_key") read as dotted keys.
void Flatten(const Json::Value& value, const std::string& prefix, Json::Value& flat) {
  for (const std::string& key : value.getMemberNames()) {
    const Json::Value& member = value[key];
    if (member.isObject() && !member.empty())
      Flatten(member, prefix + key + ".", flat);
    else
      flat[prefix + key] = member;
  }
}

void PrintTable(const Json::Value& rows, std::vector<std::string> columns) {
  std::vector<Json::Value> flat;
  for (const Json::Value& row : rows) {
    flat.emplace_back(Json::objectValue);
    Flatten(row, "", flat.back());
  }
  if (columns.empty())
    for (const Json::Value& row : flat)
      for (const std::string& key : row.getMemberNames())
        if (std::find(columns.begin(), columns.end(), key) == columns.end()) columns.push_back(key);
  std::vector<size_t> widths;
  for (const std::string& column : columns) {
    size_t width = column.size();
    for (const Json::Value& row : flat) width = std::max(width, Cell(row[column]).size());
    widths.push_back(width);
  }
  auto line = [&](auto text) {
    std::string out;
    for (size_t c = 0; c < columns.size(); ++c) {
      std::string cell = text(c);
      out += cell + std::string(widths[c] - cell.size() + 2, ' ');
    }
    out.erase(out.find_last_not_of(' ') + 1);
    std::printf("%s\n", out.c_str());
  };
  line([&](size_t c) { return columns[c]; });
  for (const Json::Value& row : flat) line([&](size_t c) { return Cell(row[columns[c]]); });
}

}  // namespace

std::string CompactJson(const Json::Value& value) {
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "";
  return Json::writeString(builder, value);
}

void PrintReadable(const Json::Value& result, const std::vector<std::string>& columns) {
  if (!result.isObject() || result.empty()) {
    std::printf("%s\n", result.isNull() || result.empty() ? "ok" : Cell(result).c_str());
    return;
  }
  Json::Value flat(Json::objectValue);
  Flatten(result, "", flat);
  size_t width = 0;
  for (const std::string& key : flat.getMemberNames())
    if (!IsTable(flat[key])) width = std::max(width, key.size());
  for (const std::string& key : flat.getMemberNames()) {
    if (IsTable(flat[key])) continue;
    const std::string text = flat[key].isString() ? flat[key].asString() : CompactJson(flat[key]);
    std::printf("%-*s  %s\n", static_cast<int>(width), key.c_str(), text.c_str());
  }
  for (const std::string& key : flat.getMemberNames()) {
    if (!IsTable(flat[key])) continue;
    if (width > 0 || flat.size() > 1) std::printf("%s:\n", key.c_str());
    PrintTable(flat[key], columns);
  }
}

void PrintResult(const Json::Value& result, const std::vector<std::string>& columns) {
  if (GlobalOptions().json)
    std::printf("%s\n", CompactJson(result).c_str());
  else
    PrintReadable(result, columns);
}

}  // namespace zcli
