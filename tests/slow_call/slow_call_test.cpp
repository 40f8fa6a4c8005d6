// A remote call still waiting after ZUNDE_SLOW_CALL_MS logs one warning
// naming its member; unset, a slow call changes nothing.
#include <dlog.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <regex>
#include <string>

#include "FCRemoteContentOnTV_Proxy.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::ServiceTest;
using zunde::testing::TestService;

long ThreadsOfProcess() { return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {}); }

// The waits that the warnings of one slow call name (the service answers
// GetPersonalUserID after 500 ms).
std::vector<unsigned long> WarningsOfASlowCall() {
  TestService::Reply("GetPersonalUserID", R"({"ret": true, "in_user_id": "u"})", 0, -1, 500);
  std::string user;
  LogCapture::Clear();
  EXPECT_TRUE(FCRemoteContentOnTV_Proxy().GetPersonalUserID(user));
  const std::regex warning(R"(> DBG_LV\[0\]\[FCSyncDet::Report\] GetPersonalUserID still running after (\d+) ms\n$)");
  std::vector<unsigned long> waits;
  std::smatch waited;
  for (const auto& record : LogCapture::Records()) {
    if (std::regex_search(record.text, waited, warning) && record.logId == LOG_ID_SYSTEM &&
        record.priority == DLOG_WARN)
      waits.push_back(std::stoul(waited[1]));
  }
  return waits;
}

class SlowCallThread : public ServiceTest {};

TEST_F(SlowCallThread, UnsetChangesNothing) {
  unsetenv("ZUNDE_SLOW_CALL_MS");
  WarningsOfASlowCall();  // the connection's own threads start here
  const long threads = ThreadsOfProcess();
  EXPECT_TRUE(WarningsOfASlowCall().empty());
  EXPECT_EQ(ThreadsOfProcess(), threads);
}

TEST_F(SlowCallThread, SetLogsOneWarningNamingTheMemberAndTheWait) {
  setenv("ZUNDE_SLOW_CALL_MS", "50", 1);
  const auto waits = WarningsOfASlowCall();
  unsetenv("ZUNDE_SLOW_CALL_MS");
  ASSERT_EQ(waits.size(), 1u);
  EXPECT_GE(waits[0], 50u);
}

}  // namespace
