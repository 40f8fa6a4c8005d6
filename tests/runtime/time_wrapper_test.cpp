// The runtime's leaf services: clocks, the debug printer and the assertion
// handler.
#include <gtest/gtest.h>

#include <sys/time.h>
#include <sys/times.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "FCDebug.h"
#include "FCTimeWapper.h"
#include "log_capture.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::LogRecord;

// time() may read a coarser clock than the wall clock; compare with that.
unsigned long WallClockSeconds() {
  timeval now = {0, 0};
  gettimeofday(&now, nullptr);
  return static_cast<unsigned long>(now.tv_sec);
}

// The library's lines reach a __dlog_print that the application defines:
// this executable links its own, and the clock's line arrives there.
TEST(Clock, EpochTimeLogsTheSecondsItReturnsToTheApplicationsLog) {
  const unsigned long before = WallClockSeconds();
  const unsigned long now = FCTimeWrapper::EpochTime();
  EXPECT_GE(now, before);
  EXPECT_LE(now, WallClockSeconds());
  LogRecord record;
  ASSERT_TRUE(LogCapture::Find("CurrentTime return " + std::to_string(now) + "\n", &record));
  EXPECT_EQ(record.tag + " " + std::to_string(record.priority) + " " + record.format,
            "zunde-provider 5 %s: %s(%d) > DBG_LV[%d]CurrentTime return %d\n");
  EXPECT_EQ(record.text.rfind("common/Core/CSP_Wrapper/FCTimeWapper.cpp: EpochTime(", 0), 0u) << record.text;
}

// The tick clock is times()'s ticks in milliseconds, wrapped at 32 bits.
TEST(Clock, TickIsTheProcessTicksInMillisecondsWrappedAt32Bits) {
  const unsigned int msPerTick = static_cast<unsigned int>(1000 / sysconf(_SC_CLK_TCK));
  const unsigned int before = static_cast<unsigned int>(times(nullptr)) * msPerTick;
  const unsigned long tick = FCTimeWrapper::Tick();
  const unsigned int after = static_cast<unsigned int>(times(nullptr)) * msPerTick;
  ASSERT_LE(tick, 0xFFFFFFFFUL);
  // Modular distances, so that a wrap between the readings does not matter.
  EXPECT_LE(static_cast<unsigned int>(tick) - before, after - before);
}

// Over a second, so that both the seconds and the nanoseconds of the request count.
TEST(Clock, SleepReturnsZeroAfterTheWholeTime) {
  const unsigned long before = FCTimeWrapper::Tick();
  EXPECT_EQ(FCTimeWrapper::Sleep(1020), 0);
  EXPECT_GE(FCTimeWrapper::Tick() - before, 1010u);  // less at most one tick
}

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
