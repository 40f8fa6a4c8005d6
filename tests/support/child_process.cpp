#include "child_process.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace zunde::testing {

StartedChild StartChild(std::vector<const char*> argv) {
  StartedChild child;
  int pipeFds[2];
  if (pipe(pipeFds) != 0) return child;
  child.pid = fork();
  if (child.pid == 0) {
    dup2(pipeFds[1], STDOUT_FILENO);
    close(pipeFds[0]);
    close(pipeFds[1]);
    argv.push_back(nullptr);
    execvp(argv[0], const_cast<char* const*>(argv.data()));
    std::perror(argv[0]);
    _exit(127);
  }
  close(pipeFds[1]);
  for (char c; child.pid > 0 && read(pipeFds[0], &c, 1) == 1 && c != '\n';) child.firstLine += c;
  close(pipeFds[0]);
  return child;
}

void StopChild(pid_t& pid) {
  if (pid <= 0) return;
  kill(pid, SIGTERM);
  waitpid(pid, nullptr, 0);
  pid = -1;
}

}  // namespace zunde::testing
