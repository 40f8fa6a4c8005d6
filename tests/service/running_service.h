// The real zunde-service as a child process on the test bus.
#ifndef ZUNDE_TESTS_RUNNING_SERVICE_H
#define ZUNDE_TESTS_RUNNING_SERVICE_H

#include <string>
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
};

}  // namespace zunde::testing

#endif
