// Extended M3U playlists of internet channels, as IPTV providers and
// players write them: with or without the "#EXTM3U" header, CRLF line
// ends, a byte-order mark, option lines (#EXTVLCOPT, #KODIPROP, ...) between
// an entry and its URL, attributes in any order and letter case, and names
// holding commas and quotes.
#ifndef ZUNDE_SERVICE_GUIDE_FILES_M3U_PLAYLIST_H
#define ZUNDE_SERVICE_GUIDE_FILES_M3U_PLAYLIST_H

#include <map>
#include <string>
#include <vector>

namespace zunde::service::guide {

struct M3uEntry {
  std::string tvgId;
  std::string name;   // tvg-name, else the text after the #EXTINF's comma
  std::string logo;   // tvg-logo
  std::string group;  // group-title, else the #EXTGRP before it
  std::string url;
  std::map<std::string, std::string> attributes;  // every attribute, names in lower case
  int line = 0;                                   // of its #EXTINF
};

// The entries of `text` in playlist order; a URL without #EXTINF is an
// entry named by its URL.
std::vector<M3uEntry> ParseM3u(const std::string& text);

// Reads `path` (plain or .gz); throws GuideFileError when it cannot.
std::vector<M3uEntry> ReadM3u(const std::string& path);

}  // namespace zunde::service::guide

#endif
