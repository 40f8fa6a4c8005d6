// A private dbus-daemon that plays the system bus for one test process.
#ifndef ZUNDE_TESTS_TEST_BUS_H
#define ZUNDE_TESTS_TEST_BUS_H

namespace zunde::testing {

class TestBus {
 public:
  // Starts the daemon from the repository's configuration and points
  // DBUS_SYSTEM_BUS_ADDRESS at it. Aborts the test run if it cannot.
  static void Start();
  // Makes Start use the daemon configuration at `path` instead (called
  // before main by a suite that needs a bus of its own).
  static void UseConfig(const char* path);
  // Ends the daemon; the library's connection sees its bus go away.
  static void Stop();
};

}  // namespace zunde::testing

#endif
