// The remote call as the proxies make it, where the proxies' own rows do not
// reach: the status that comes with a reply. The request forms, the checks,
// the send-only call and the failure paths are run in the proxies' suites,
// for every method.
#include <gtest/gtest.h>

#include <string>

#include "FCRemoteContentOnTV_Proxy.h"
#include "test_service.h"

namespace {

using zunde::testing::TestService;
using RemoteCall = zunde::testing::ServiceTest;

// Only a reply without arguments (-1) fails the call: any other status is not
// examined, the reply is read, and without "ret" the result is false.
TEST_F(RemoteCall, ResultIsRetAndOutputsFillWheneverTheReplyParses) {
  TestService::Reply("GetRemoteContentEnv", R"({"country": "x", "language": "y"})", /*status=*/5);
  std::string country, language;
  EXPECT_FALSE(FCRemoteContentOnTV_Proxy().GetRemoteContentEnv(country, language));
  EXPECT_EQ(country + language, "xy");
}

}  // namespace
