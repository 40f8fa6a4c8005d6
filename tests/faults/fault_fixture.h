// What the fault tests share: a watchdog that ends a hung test, the service
// stopped after each test, and one call that is known to succeed.
#ifndef ZUNDE_TESTS_FAULT_FIXTURE_H
#define ZUNDE_TESTS_FAULT_FIXTURE_H

#include <dlog.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "FCRemoteContentOnTV_Proxy.h"
#include "log_capture.h"
#include "test_service.h"

namespace zunde::testing {

class FaultTest : public ::testing::Test {
 protected:
  void SetUp() override { alarm(60); }  // SIGALRM ends a test that hangs
  void TearDown() override {
    TestService::Stop();
    alarm(0);
  }
};

inline const char* const kUserReply = R"({"ret": true, "in_user_id": "u"})";

// GetPersonalUserID: true when it succeeded with the scripted user.
inline bool CallForUser() {
  std::string user;
  return FCRemoteContentOnTV_Proxy().GetPersonalUserID(user) && user == "u";
}

// The two lines of a call that failed in transport, `cause` being libdbus's error text.
inline void ExpectTransportFailure(const std::string& cause) {
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0]dbus_connection_send_with_reply_and_block: " + cause + "\n"))
      << ::testing::PrintToString(LogCapture::Lines());
  LogRecord line;
  ASSERT_TRUE(LogCapture::Find(
      "DBG_LV[0][FCRemoteContentOnTV_Proxy::GetPersonalUserID] fail to communicate using d-bus\n", &line));
  EXPECT_EQ(line.logId, LOG_ID_SYSTEM);
  EXPECT_EQ(line.priority, DLOG_WARN);
}

}  // namespace zunde::testing

#endif
