#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "FCDebug.h"

namespace {

// Lines start with a process-wide counter: read the first back.
TEST(DebugPrint, OnlyLevelZeroPrintsAndCountsALine) {
  testing::internal::CaptureStdout();
  FCDebug::Print("first");
  FCDebug::Print(1UL, "hidden");
  FCDebug::Print(7UL, "hidden");
  FCDebug::Print(0UL, "tuner %d lost", 2);
  const std::string output = testing::internal::GetCapturedStdout();
  const unsigned long first = std::strtoul(output.c_str(), nullptr, 10);
  EXPECT_EQ(output, std::to_string(first) + " (0): first\n" + std::to_string(first + 1) + " (0): tuner 2 lost\n");
}

// Without the marker file "/etc/debug" an assertion stops the process
// without a word of its own; a sanitizer's crash report is the only exception.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
const char kNothing[] = "";
#else
const char kNothing[] = "^$";
#endif

TEST(AssertDeathTest, WithoutTheMarkerFileOnlyTheCallersMessageIsPrinted) {
  if (access("/etc/debug", F_OK) == 0) GTEST_SKIP() << "/etc/debug exists on this machine";
  EXPECT_DEATH(_FCAssert("count > 0", "queue.cpp", 42), kNothing);
  EXPECT_DEATH(_FCAssert("id != 0", "thread.cpp", 7, "thread %d not created\n", 11), "thread 11 not created");
}

}  // namespace
