#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "FCDebug.h"

namespace {

using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

// The counter is the number before " (": read it back from a printed line.
unsigned long CounterOf(const std::string& line) { return std::strtoul(line.c_str(), nullptr, 10); }

TEST(DebugPrint, LevelZeroPrintsTheCounterTheLevelAndTheMessage) {
  CaptureStdout();
  FCDebug::Print(0UL, "tuner %d lost", 2);
  const std::string line = GetCapturedStdout();
  EXPECT_EQ(line, std::to_string(CounterOf(line)) + " (0): tuner 2 lost\n");
}

TEST(DebugPrint, OtherLevelsPrintNothingAndLeaveTheCounter) {
  CaptureStdout();
  FCDebug::Print("first");
  FCDebug::Print(1UL, "hidden");
  FCDebug::Print(7UL, "hidden");
  FCDebug::Print("second");
  const std::string output = GetCapturedStdout();
  const auto firstEnd = output.find('\n');
  ASSERT_NE(firstEnd, std::string::npos);
  const std::string first = output.substr(0, firstEnd + 1);
  const std::string second = output.substr(firstEnd + 1);
  EXPECT_EQ(first, std::to_string(CounterOf(first)) + " (0): first\n");
  EXPECT_EQ(second, std::to_string(CounterOf(first) + 1) + " (0): second\n");
}

TEST(DebugPrintDeathTest, NullFormatEndsTheProcess) {
  EXPECT_DEATH(FCDebug::Print(static_cast<const char*>(nullptr)), "");
  EXPECT_DEATH(FCDebug::Print(0UL, nullptr), "");
}

// Without the marker file "/etc/debug" an assertion stops the process
// without a word; a sanitizer's own crash report is the only exception.
TEST(AssertDeathTest, WithoutTheMarkerFileNothingIsPrinted) {
  if (access("/etc/debug", F_OK) == 0) GTEST_SKIP() << "/etc/debug exists on this machine";
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  EXPECT_DEATH(_FCAssert("count > 0", "queue.cpp", 42), "");
#else
  EXPECT_DEATH(_FCAssert("count > 0", "queue.cpp", 42), "^$");
#endif
}

TEST(AssertDeathTest, FormattedMessageComesFirst) {
  EXPECT_DEATH(_FCAssert("id != 0", "thread.cpp", 7, "thread %d not created\n", 11), "thread 11 not created");
}

TEST(AssertDeathTest, MacroReportsOnlyAFalseCondition) {
  FCASSERT(1 + 1 == 2);
  EXPECT_DEATH(FCASSERT(1 + 1 == 3), "");
}

}  // namespace
