#include "test_bus.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "child_process.h"

namespace zunde::testing {
namespace {

pid_t daemonPid = -1;

}  // namespace

void TestBus::Start() {
  const StartedChild daemon = StartChild([](int) {
    execlp("dbus-daemon", "dbus-daemon", "--config-file=" ZUNDE_TEST_BUS_CONFIG, "--nofork", "--nopidfile",
           "--print-address", static_cast<char*>(nullptr));
  });
  daemonPid = daemon.pid;
  if (daemon.firstLine.empty()) {
    std::fprintf(stderr, "test bus: dbus-daemon printed no address\n");
    std::exit(2);
  }
  setenv("DBUS_SYSTEM_BUS_ADDRESS", daemon.firstLine.c_str(), 1);
}

void TestBus::Stop() { StopChild(daemonPid); }

}  // namespace zunde::testing
