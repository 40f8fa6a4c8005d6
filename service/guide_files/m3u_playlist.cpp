#include "m3u_playlist.h"

#include <zlib.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>

#include "xml_stream.h"

namespace zunde::service::guide {
namespace {

bool StartsWith(const std::string& text, const char* prefix) { return text.rfind(prefix, 0) == 0; }

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

std::string Trim(const std::string& text) {
  const size_t first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

// The comma that ends the attributes: the first one outside quotes.
size_t NameComma(const std::string& info) {
  char quote = 0;
  for (size_t i = 0; i < info.size(); ++i) {
    if (quote != 0) {
      if (info[i] == quote) quote = 0;
    } else if (info[i] == '"' || info[i] == '\'') {
      quote = info[i];
    } else if (info[i] == ',') {
      return i;
    }
  }
  return std::string::npos;
}

// name="value", name='value' or name=value, separated by blanks; the
// duration in front ("-1") is skipped.
std::map<std::string, std::string> Attributes(const std::string& text) {
  std::map<std::string, std::string> attributes;
  size_t at = 0;
  while (at < text.size()) {
    const size_t equals = text.find('=', at);
    if (equals == std::string::npos) break;
    const size_t blank = text.find_last_of(" \t", equals);
    const size_t nameStart = blank == std::string::npos || blank < at ? at : blank + 1;
    const std::string name = Lower(text.substr(nameStart, equals - nameStart));
    size_t end;
    std::string value;
    const char quote = equals + 1 < text.size() ? text[equals + 1] : 0;
    if (quote == '"' || quote == '\'') {
      end = text.find(quote, equals + 2);
      if (end == std::string::npos) end = text.size();
      value = text.substr(equals + 2, end - equals - 2);
      ++end;
    } else {
      end = text.find_first_of(" \t", equals + 1);
      if (end == std::string::npos) end = text.size();
      value = text.substr(equals + 1, end - equals - 1);
    }
    if (!name.empty()) attributes[name] = value;
    at = end;
  }
  return attributes;
}

std::string Attribute(const M3uEntry& entry, const char* name) {
  const auto found = entry.attributes.find(name);
  return found == entry.attributes.end() ? "" : found->second;
}

M3uEntry EntryOf(const std::string& info, int line) {
  M3uEntry entry;
  entry.line = line;
  const size_t comma = NameComma(info);
  entry.attributes = Attributes(info.substr(0, comma));
  const std::string title = comma == std::string::npos ? "" : Trim(info.substr(comma + 1));
  entry.tvgId = Attribute(entry, "tvg-id");
  entry.name = Attribute(entry, "tvg-name");
  if (entry.name.empty()) entry.name = title;
  entry.logo = Attribute(entry, "tvg-logo");
  entry.group = Attribute(entry, "group-title");
  return entry;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  size_t at = StartsWith(text, "\xEF\xBB\xBF") ? 3 : 0;
  while (at <= text.size()) {
    size_t end = text.find('\n', at);
    if (end == std::string::npos) end = text.size();
    std::string line = text.substr(at, end - at);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(Trim(line));
    at = end + 1;
  }
  return lines;
}

}  // namespace

std::vector<M3uEntry> ParseM3u(const std::string& text) {
  std::vector<M3uEntry> entries;
  M3uEntry pending;
  bool open = false;
  std::string group;  // the last #EXTGRP, for an entry without group-title
  const std::vector<std::string> lines = Lines(text);
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string& line = lines[i];
    const int number = static_cast<int>(i) + 1;
    if (StartsWith(line, "#EXTINF:")) {
      pending = EntryOf(line.substr(8), number);
      open = true;
    } else if (StartsWith(line, "#EXTGRP:")) {
      group = Trim(line.substr(8));
    } else if (!line.empty() && line[0] != '#') {
      if (!open) pending = M3uEntry{"", line, "", "", "", {}, number};
      pending.url = line;
      if (pending.group.empty()) pending.group = group;
      entries.push_back(pending);
      open = false;
      group.clear();
    }
  }
  return entries;
}

std::vector<M3uEntry> ReadM3u(const std::string& path) {
  gzFile file = gzopen(path.c_str(), "rb");
  if (file == nullptr) throw GuideFileError(path + ": " + std::strerror(errno ? errno : ENOENT));
  std::string text;
  char buffer[65536];
  int read;
  while ((read = gzread(file, buffer, sizeof buffer)) > 0) text.append(buffer, static_cast<size_t>(read));
  const bool failed = read < 0;
  gzclose(file);
  if (failed) throw GuideFileError(path + ": cannot be read");
  return ParseM3u(text);
}

}  // namespace zunde::service::guide
