// What every zunde-cli command shares: the global options, the exit
// statuses, and telling a refusal by the service from a service that is not
// there at all.
#ifndef ZUNDE_CLI_SESSION_H
#define ZUNDE_CLI_SESSION_H

#include <string>

namespace zcli {

enum Exit { kOk = 0, kRefused = 1, kUsage = 2, kUnreachable = 3 };

struct Options {
  bool json = false;  // one JSON document per result instead of tables
  int repeat = 1;     // make each call this many times and report its cost
};

Options& GlobalOptions();

// True when the service answers on the bus at all, whatever it answers.
bool ServiceAnswers();

// After a call that failed: one line naming `what` and why, from the
// library's outcome of the call; kUnreachable when the bus or the service
// failed, else kRefused.
int ReportFailure(const std::string& what);

// Whether the last call failed only because the service answered "ret" false.
bool AnswerWasNo();

// The message for a service that cannot be reached; kUnreachable.
int ReportUnreachable();

}  // namespace zcli

#endif
