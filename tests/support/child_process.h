// Helper processes of the tests: started with their standard output on a
// pipe, on which they announce themselves with one line, and ended again.
#ifndef ZUNDE_TESTS_CHILD_PROCESS_H
#define ZUNDE_TESTS_CHILD_PROCESS_H

#include <sys/types.h>

#include <functional>
#include <string>

namespace zunde::testing {

struct StartedChild {
  pid_t pid = -1;          // -1 when fork failed
  std::string firstLine;   // empty when the child wrote none
};

// Forks; the child runs `exec` (which must not return) with its standard
// output on a pipe, also given as `writeFd`; the parent reads the first line
// the child writes on it.
StartedChild StartChild(const std::function<void(int writeFd)>& exec);

// Ends a child started above and reaps it.
void StopChild(pid_t& pid);

}  // namespace zunde::testing

#endif
