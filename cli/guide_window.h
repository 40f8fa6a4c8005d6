// A window of the operator's guide as the guide grid and the XMLTV export
// show it: the line-up of an activity, each channel with its programmes
// in start order, and the start times the user may type.
#ifndef ZUNDE_CLI_GUIDE_WINDOW_H
#define ZUNDE_CLI_GUIDE_WINDOW_H

#include <ZundeProvider.h>

#include <string>
#include <vector>

namespace zcli {

struct GuideRow {
  FCRemoteChannel channel;
  std::vector<FCRemoteProgram> programs;
};

// The time `text` names, in any form CheckTime takes; -1 when it names none.
long long ParseFrom(const std::string& text);
// Help for an option taking such a time, checked with CheckTime.
extern const char kFromHelp[];

// The line-up of `activity` and its programmes in [start, start + seconds).
// kOk, else the exit status after saying which call of `command` failed.
int FetchGuide(int activity, long long start, int seconds, std::vector<GuideRow>& rows, const char* command);

}  // namespace zcli

#endif
