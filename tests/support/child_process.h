// Helper processes of the tests: started with their standard output on a
// pipe, on which they announce themselves with one line, and ended again.
#ifndef ZUNDE_TESTS_CHILD_PROCESS_H
#define ZUNDE_TESTS_CHILD_PROCESS_H

#include <sys/types.h>

#include <string>
#include <vector>

namespace zunde::testing {

struct StartedChild {
  pid_t pid = -1;          // -1 when fork failed
  std::string firstLine;   // empty when the child wrote none
};

// Runs the program `argv[0]` (looked up in PATH) with `argv` and reads the
// first line it writes on its standard output.
StartedChild StartChild(std::vector<const char*> argv);

// Ends a child started above and reaps it.
void StopChild(pid_t& pid);

}  // namespace zunde::testing

#endif
