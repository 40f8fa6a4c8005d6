#include "guide_window.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <map>

#include "session.h"

namespace zcli {

const char kFromHelp[] = "start: now (default), HH:MM today, or seconds since the epoch";

long long ParseFrom(const std::string& text) {
  const time_t now = std::time(nullptr);
  if (text == "now") return now;
  if (!text.empty() && text.find_first_not_of("0123456789") == std::string::npos) return std::stoll(text);
  int hour = 0, minute = 0;
  char rest = 0;
  if (std::sscanf(text.c_str(), "%d:%d%c", &hour, &minute, &rest) != 2 || hour > 23 || minute > 59 || hour < 0 ||
      minute < 0)
    return -1;
  std::tm local = *std::localtime(&now);
  local.tm_hour = hour;
  local.tm_min = minute;
  local.tm_sec = 0;
  return std::mktime(&local);
}

std::string CheckFrom(std::string& text) { return ParseFrom(text) < 0 ? "'" + text + "' is not now, HH:MM or a time" : ""; }

int FetchGuide(int activity, long long start, int seconds, std::vector<GuideRow>& rows, const char* command) {
  const auto act = static_cast<eRemoteContentActivity>(activity);
  FCRemoteContent_MSOAPI* catalogue = FCAPI::GetRemoteContentMSOAPI();
  std::vector<FCRemoteChannel> channels;
  if (!catalogue->GetFullChannelList(act, channels)) return ReportFailure(std::string(command) + ": GetFullChannelList");
  std::vector<std::string> ids;
  for (const FCRemoteChannel& channel : channels) ids.push_back(channel.str_program_source_id);
  FCFilterCriteria filter;
  std::map<std::string, std::vector<FCRemoteProgram> > programs;
  if (!catalogue->GetProgramMap(act, ids, static_cast<int>(start), seconds, filter, programs))
    return ReportFailure(std::string(command) + ": GetProgramMap");
  for (const FCRemoteChannel& channel : channels) {
    rows.push_back({channel, programs[channel.str_program_source_id]});
    std::sort(rows.back().programs.begin(), rows.back().programs.end(),
              [](const FCRemoteProgram& a, const FCRemoteProgram& b) { return a.utc_starttime < b.utc_starttime; });
  }
  return kOk;
}

}  // namespace zcli
