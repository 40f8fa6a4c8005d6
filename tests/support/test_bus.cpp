#include "test_bus.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace zunde::testing {
namespace {

pid_t daemonPid = -1;
std::string busAddress;

[[noreturn]] void Fail(const char* what) {
  std::fprintf(stderr, "test bus: %s\n", what);
  std::exit(2);
}

std::string ReadLine(int fd) {
  std::string line;
  char c;
  while (read(fd, &c, 1) == 1 && c != '\n') line += c;
  return line;
}

}  // namespace

void TestBus::Start() {
  int pipeFds[2];
  if (pipe(pipeFds) != 0) Fail("no pipe");
  daemonPid = fork();
  if (daemonPid < 0) Fail("cannot fork");
  if (daemonPid == 0) {
    close(pipeFds[0]);
    const std::string printAddress = "--print-address=" + std::to_string(pipeFds[1]);
    execlp("dbus-daemon", "dbus-daemon", "--config-file=" ZUNDE_TEST_BUS_CONFIG, "--nofork", "--nopidfile",
           printAddress.c_str(), static_cast<char*>(nullptr));
    std::perror("dbus-daemon");
    _exit(127);
  }
  close(pipeFds[1]);
  busAddress = ReadLine(pipeFds[0]);
  close(pipeFds[0]);
  if (busAddress.empty()) Fail("dbus-daemon printed no address");
  setenv("DBUS_SYSTEM_BUS_ADDRESS", busAddress.c_str(), 1);
}

void TestBus::Stop() {
  if (daemonPid <= 0) return;
  kill(daemonPid, SIGTERM);
  waitpid(daemonPid, nullptr, 0);
  daemonPid = -1;
}

const std::string& TestBus::Address() { return busAddress; }

}  // namespace zunde::testing
