#include "guide_window.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <map>

#include "arg_checks.h"
#include "session.h"

namespace zcli {

const char kFromHelp[] = "start: now (default), now+90m, now-2h, HH:MM today, or seconds since the epoch";

long long ParseFrom(const std::string& text) {
  std::string seconds = text;
  return CheckTime(seconds).empty() ? std::stoll(seconds) : -1;
}

int FetchGuide(int activity, long long start, int seconds, std::vector<GuideRow>& rows, const char* command) {
  const auto act = static_cast<eRemoteContentActivity>(activity);
  FCRemoteContent_MSOAPI* catalogue = FCAPI::GetRemoteContentMSOAPI();
  std::vector<FCRemoteChannel> channels;
  if (!catalogue->GetFullChannelList(act, channels)) return ReportFailure(command);
  std::vector<std::string> ids;
  for (const FCRemoteChannel& channel : channels) ids.push_back(channel.str_program_source_id);
  FCFilterCriteria filter;
  std::map<std::string, std::vector<FCRemoteProgram> > programs;
  if (!catalogue->GetProgramMap(act, ids, static_cast<int>(start), seconds, filter, programs))
    return ReportFailure(command);
  for (const FCRemoteChannel& channel : channels) {
    rows.push_back({channel, programs[channel.str_program_source_id]});
    std::sort(rows.back().programs.begin(), rows.back().programs.end(),
              [](const FCRemoteProgram& a, const FCRemoteProgram& b) { return a.utc_starttime < b.utc_starttime; });
  }
  return kOk;
}

}  // namespace zcli
