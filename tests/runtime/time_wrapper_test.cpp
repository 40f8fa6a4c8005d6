// The runtime's leaf services: clocks, the debug printer and the assertion
// handler.
#include <gtest/gtest.h>

#include <sys/times.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <string>

#include "FCDebug.h"
#include "FCTimeWapper.h"
#include "log_capture.h"

namespace {

// The library's lines reach a __dlog_print that the application defines:
// this executable links its own, and the clock's line arrives there. time()
// may read a coarser clock than the wall clock, which can put it a second behind.
TEST(Clock, EpochTimeLogsTheSecondsItReturnsToTheApplicationsLog) {
  const unsigned long now = FCTimeWrapper::EpochTime();
  EXPECT_NEAR(static_cast<double>(now), static_cast<double>(std::time(nullptr)), 1.0);
  zunde::testing::LogRecord record;
  ASSERT_TRUE(zunde::testing::LogCapture::Find("CurrentTime return " + std::to_string(now) + "\n", &record));
  EXPECT_EQ(record.tag + " " + std::to_string(record.priority) + " " + record.format,
            "zunde-provider 5 %s: %s(%d) > DBG_LV[%d]CurrentTime return %d\n");
  EXPECT_EQ(record.text.rfind("common/Core/CSP_Wrapper/FCTimeWapper.cpp: EpochTime(", 0), 0u) << record.text;
}

// The tick clock is times()'s ticks in milliseconds, wrapped at 32 bits; the
// sleep, over a second, waits for both the seconds and the nanoseconds.
TEST(Clock, TickIsTheProcessTicksInMillisecondsAndSleepWaitsTheWholeTime) {
  const auto ticksInMs = [] { return static_cast<unsigned int>(times(nullptr) * (1000 / sysconf(_SC_CLK_TCK))); };
  const unsigned int before = ticksInMs();
  const unsigned long tick = FCTimeWrapper::Tick();
  const unsigned int after = ticksInMs();
  ASSERT_LE(tick, 0xFFFFFFFFUL);
  // Modular distances, so that a wrap between the readings does not matter.
  EXPECT_LE(static_cast<unsigned int>(tick) - before, after - before);
  EXPECT_EQ(FCTimeWrapper::Sleep(1020), 0);
  EXPECT_GE(static_cast<unsigned int>(FCTimeWrapper::Tick() - tick), 1010u);  // less at most one tick
}

// Lines start with a process-wide counter: read the first back.
TEST(DebugPrint, OnlyLevelZeroPrintsAndCountsALine) {
  testing::internal::CaptureStdout();
  FCDebug::Print("first");
  FCDebug::Print(1UL, "hidden");
  FCDebug::Print(0UL, "tuner %d lost", 2);
  const std::string output = testing::internal::GetCapturedStdout();
  const unsigned long first = std::strtoul(output.c_str(), nullptr, 10);
  EXPECT_EQ(output, std::to_string(first) + " (0): first\n" + std::to_string(first + 1) + " (0): tuner 2 lost\n");
}

// Without the marker file "/etc/debug" an assertion stops the process
// without a word of its own: standard error is empty, or holds a
// sanitizer's crash report.
TEST(AssertDeathTest, WithoutTheMarkerFileOnlyTheCallersMessageIsPrinted) {
  if (access("/etc/debug", F_OK) == 0) GTEST_SKIP() << "/etc/debug exists on this machine";
  EXPECT_DEATH(_FCAssert("count > 0", "queue.cpp", 42), "^($|.*(Sanitizer|runtime error))");
  EXPECT_DEATH(_FCAssert("id != 0", "thread.cpp", 7, "thread %d not created\n", 11),
               "^thread 11 not created\n($|.*(Sanitizer|runtime error))");
}

}  // namespace
