#include "child_process.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace zunde::testing {

StartedChild StartChild(const std::function<void(int writeFd)>& exec) {
  StartedChild child;
  int pipeFds[2];
  if (pipe(pipeFds) != 0) return child;
  child.pid = fork();
  if (child.pid == 0) {
    close(pipeFds[0]);
    dup2(pipeFds[1], STDOUT_FILENO);
    exec(pipeFds[1]);
    std::perror("exec");
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
