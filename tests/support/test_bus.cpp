#include "test_bus.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "child_process.h"

namespace zunde::testing {
namespace {

pid_t daemonPid = -1;
const char* configPath = ZUNDE_TEST_BUS_CONFIG;

}  // namespace

void TestBus::Start() {
  const std::string configOption = std::string("--config-file=") + configPath;
  const StartedChild daemon = StartChild([&configOption](int) {
    execlp("dbus-daemon", "dbus-daemon", configOption.c_str(), "--nofork", "--nopidfile", "--print-address",
           static_cast<char*>(nullptr));
  });
  daemonPid = daemon.pid;
  if (daemon.firstLine.empty()) {
    std::fprintf(stderr, "test bus: dbus-daemon printed no address\n");
    std::exit(2);
  }
  setenv("DBUS_SYSTEM_BUS_ADDRESS", daemon.firstLine.c_str(), 1);
}

void TestBus::UseConfig(const char* path) { configPath = path; }

void TestBus::Stop() { StopChild(daemonPid); }

}  // namespace zunde::testing
