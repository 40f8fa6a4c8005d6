#include <dlog.h>
#include <gtest/gtest.h>

#include <regex>

#include "FCSyncDet.h"
#include "FCTimeWapper.h"
#include "log_capture.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::LogRecord;

TEST(ThreadSyncDet, WarnsOnceAboutAnOperationPastItsThreshold) {
  LogCapture::Clear();
  FCSyncDet monitor;
  ASSERT_TRUE(monitor.Create());
  const unsigned long slow = monitor.Begin("ReadTuner", 10);
  const unsigned long quick = monitor.Begin("Tune", 60 * 1000);
  LogRecord line;
  for (int i = 0; i < 6000 && !LogCapture::Find(" ms\n", &line); ++i) FCTimeWrapper::Sleep(10);
  FCTimeWrapper::Sleep(50);  // room for a second line
  monitor.End(slow);
  monitor.End(quick);
  monitor.Destroy();

  ASSERT_EQ(LogCapture::Records().size(), 1u);
  EXPECT_EQ(std::vector<int>({line.logId, line.priority}), std::vector<int>({LOG_ID_SYSTEM, DLOG_WARN}));
  std::smatch waited;
  ASSERT_TRUE(std::regex_search(line.text, waited,
                                std::regex(R"(> DBG_LV\[0\]\[FCSyncDet::Report\] ReadTuner still running after (\d+) ms\n$)")))
      << line.text;
  EXPECT_GE(std::stoul(waited[1]), 10u);
}

}  // namespace
