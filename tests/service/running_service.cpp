#include "running_service.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

#include "child_process.h"

namespace zunde::testing {
namespace {
pid_t servicePid = -1;
}

void RunningService::Start(const std::string& dataDir, int slowReplyMs, const std::vector<std::string>& more) {
  std::vector<std::string> args = {"zunde-service", "--data-dir", dataDir, "--slow-reply-ms", std::to_string(slowReplyMs)};
  args.insert(args.end(), more.begin(), more.end());
  std::vector<char*> argv;
  for (std::string& arg : args) argv.push_back(arg.data());
  argv.push_back(nullptr);
  const StartedChild child = StartChild([&](int writeFd) {
    dup2(writeFd, STDOUT_FILENO);
    close(writeFd);
    execv(ZUNDE_SERVICE_PATH, argv.data());
  });
  servicePid = child.pid;
  ASSERT_EQ(child.firstLine, "zunde-service ready");
}

int RunningService::Stop() {
  if (servicePid <= 0) return -1;
  kill(servicePid, SIGTERM);
  int status = 0;
  waitpid(servicePid, &status, 0);
  servicePid = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void RunningService::Signal(int signal) {
  if (servicePid > 0) kill(servicePid, signal);
}

void RunningService::Kill() {
  if (servicePid <= 0) return;
  kill(servicePid, SIGKILL);
  waitpid(servicePid, nullptr, 0);
  servicePid = -1;
}

std::pair<int, std::string> RunningService::Run(const std::string& args, const std::string& env) {
  FILE* pipe = popen((env + " " + ZUNDE_SERVICE_PATH + " " + args + " 2>&1 >/dev/null").c_str(), "r");
  std::string text;
  char buffer[512];
  while (fgets(buffer, sizeof buffer, pipe)) text += buffer;
  return {WEXITSTATUS(pclose(pipe)), text};
}

}  // namespace zunde::testing
