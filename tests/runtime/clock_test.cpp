#include <gtest/gtest.h>

#include <sys/time.h>
#include <sys/times.h>
#include <unistd.h>

#include <ctime>

#include "FCError.h"
#include "FCTimeWapper.h"
#include "log_capture.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::LogRecord;

unsigned long WallClockSeconds() {
  timeval now = {0, 0};
  gettimeofday(&now, nullptr);
  return static_cast<unsigned long>(now.tv_sec);
}

// The library's lines reach a __dlog_print that the application defines:
// this executable links its own, and the clock's line arrives there.
TEST(Clock, EpochTimeLogsTheSecondsItReturnsToTheApplicationsLog) {
  LogCapture::Clear();
  // time() may read a coarser clock than the wall clock; compare with that.
  const unsigned long before = WallClockSeconds();
  const unsigned long now = FCTimeWrapper::EpochTime();
  const unsigned long after = WallClockSeconds();
  EXPECT_GE(now, before);
  EXPECT_LE(now, after);

  LogRecord record;
  ASSERT_TRUE(LogCapture::Find("CurrentTime return " + std::to_string(now) + "\n", &record));
  EXPECT_EQ(record.tag, "zunde-provider");
  EXPECT_EQ(record.priority, 5);
  EXPECT_EQ(record.format, "%s: %s(%d) > DBG_LV[%d]CurrentTime return %d\n");
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

TEST(Clock, SleepReturnsZeroAfterTheWholeTime) {
  const unsigned long before = FCTimeWrapper::Tick();
  EXPECT_EQ(FCTimeWrapper::Sleep(20), 0);
  EXPECT_GE(FCTimeWrapper::Tick() - before, 10u);  // at least one tick later
}

struct ErrorNumber {
  int value;
  int expected;
};

TEST(Errors, NumbersAreTheSystemsAndTheRuntimesOwn) {
  const ErrorNumber numbers[] = {
      {FCError::ERROR_NO_ENTRY, 2},         {FCError::ERROR_INTERRUPTED, 4},      {FCError::ERROR_INVALID, 9},
      {FCError::ERROR_AGAIN, 11},           {FCError::ERROR_WOULD_BLOCK, 11},     {FCError::ERROR_NO_MEM, 12},
      {FCError::ERROR_ACCESS, 13},          {FCError::ERROR_FAULT, 14},           {FCError::ERROR_IN_USE, 16},
      {FCError::ERROR_EXIST, 17},           {FCError::ERROR_EXIST_INVALID, 21},   {FCError::ERROR_INVALID_ARG, 22},
      {FCError::ERROR_NO_SPACE, 28},        {FCError::ERROR_OVERFLOW, 36},        {FCError::ERROR_UNSUPPORTED, 95},
      {FCError::ERROR_ADDR_IN_USE, 98},     {FCError::ERROR_CONN_RESET, 104},     {FCError::ERROR_IN_PROGRESS, 115},
      {FCError::ERROR_INVALID_FORMAT, 10000}, {FCError::ERROR_UNKNOWN_FORMAT, 10001},
      {FCError::ERROR_UNINITIALIZED, 20000}, {FCError::ERROR_INITIALIZED_BEFORE, 20000},
      {FCError::ERROR_UNKNOWN, 30000}};
  for (const auto& number : numbers) EXPECT_EQ(number.value, number.expected);
}

TEST(Errors, NumberIsTheCallingThreadsErrno) {
  FCError::Set(FCError::ERROR_UNKNOWN);
  EXPECT_EQ(errno, 30000);
  errno = 0;
  EXPECT_EQ(FCError::Num(), 0);
}

}  // namespace
