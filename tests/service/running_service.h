// The real zunde-service as a child process on the test bus.
#ifndef ZUNDE_TESTS_RUNNING_SERVICE_H
#define ZUNDE_TESTS_RUNNING_SERVICE_H

#include <string>
#include <utility>
#include <vector>

namespace zunde::testing {

class RunningService {
 public:
  // Starts it on `dataDir` and waits until it owns its name.
  static void Start(const std::string& dataDir, int slowReplyMs = 3000, const std::vector<std::string>& more = {});
  // SIGTERM; the exit status, or -1 if it did not exit by itself.
  static int Stop();
  // SIGKILL, as a crash would.
  static void Kill();
  // Sends `signal` and leaves it running.
  static void Signal(int signal);
  // Runs the service with `args` (and the shell's `env` assignments) to its
  // end: the exit status and what it wrote to standard error.
  static std::pair<int, std::string> Run(const std::string& args, const std::string& env = "");
};

}  // namespace zunde::testing

#endif
