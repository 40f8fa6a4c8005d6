// A remote call still waiting after ZUNDE_SLOW_CALL_MS logs one warning
// naming its member; unset, a slow call changes nothing.
#include <dirent.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>
#include <string>

#include "FCRemoteContentOnTV_Proxy.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::ServiceTest;
using zunde::testing::TestService;

const std::regex kSlowLine(R"(\[FCSyncDet::Report\] GetPersonalUserID still running after (\d+) ms\n$)");

int ThreadsOfProcess() {
  int threads = 0;
  DIR* tasks = opendir("/proc/self/task");
  while (readdir(tasks) != nullptr) ++threads;
  closedir(tasks);
  return threads;
}

// The slow-line waits of one slow GetPersonalUserID call (the service answers after 500 ms).
std::vector<unsigned long> SlowLinesOfASlowCall() {
  TestService::Reply("GetPersonalUserID", R"({"ret": true, "in_user_id": "u"})", 0, -1, 500);
  std::string user;
  LogCapture::Clear();
  EXPECT_TRUE(FCRemoteContentOnTV_Proxy().GetPersonalUserID(user));
  std::vector<unsigned long> waits;
  std::smatch waited;
  for (const auto& line : LogCapture::Lines()) {
    if (std::regex_search(line, waited, kSlowLine)) waits.push_back(std::stoul(waited[1]));
  }
  return waits;
}

class SlowCallThread : public ServiceTest {};

TEST_F(SlowCallThread, UnsetChangesNothing) {
  unsetenv("ZUNDE_SLOW_CALL_MS");
  SlowLinesOfASlowCall();  // the connection's own threads start here
  const int threads = ThreadsOfProcess();
  EXPECT_TRUE(SlowLinesOfASlowCall().empty());
  EXPECT_EQ(ThreadsOfProcess(), threads);
}

TEST_F(SlowCallThread, SetLogsOneWarningNamingTheMemberAndTheWait) {
  setenv("ZUNDE_SLOW_CALL_MS", "50", 1);
  const auto waits = SlowLinesOfASlowCall();
  unsetenv("ZUNDE_SLOW_CALL_MS");
  ASSERT_EQ(waits.size(), 1u);
  EXPECT_GE(waits[0], 50u);
}

}  // namespace
