// main of the test executables that need a bus: a private daemon plays the
// system bus for the whole run.
#include <gtest/gtest.h>

#include "test_bus.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const bool listing = ::testing::GTEST_FLAG(list_tests);
  if (!listing) zunde::testing::TestBus::Start();
  const int result = RUN_ALL_TESTS();
  if (!listing) zunde::testing::TestBus::Stop();
  return result;
}
