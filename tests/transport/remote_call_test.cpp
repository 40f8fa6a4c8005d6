// The remote call procedure on the real bus, where the proxies' suites do not
// reach yet: replies their rows do not script, a failed check, the send-only
// call and the "ret" of a reply text. Request forms, the split call and the
// failure paths shared by every proxy method are run there, for every method.
#include <gtest/gtest.h>
#include <json/json.h>

#include <string>
#include <tuple>

#include "FCRemoteCall_internal.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::LogPrefix;
using zunde::LogPriority;
using zunde::RemoteCall;
using zunde::testing::LogCapture;
using zunde::testing::TestService;

const zunde::CallLogLines kLines = {
    {LogPriority::Info, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCTestProxy::%s] called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCTestProxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::Module, 0, FC_LINE_MOD("[FCTestProxy::%s] fail to parse json data\n")},
};

bool ReadName(Json::Value& root, std::string& name) {
  name = root["name"].asString();
  return true;
}

using RemoteCallTest = zunde::testing::ServiceTest;

TEST_F(RemoteCallTest, ResultIsRetAndOutputsFillWheneverTheReplyParses) {
  const std::tuple<const char*, int, bool, const char*> cases[] = {
      {R"({"ret": true, "name": "x"})", 5, true, "x"},  // a status other than -1 is not examined
      {R"({"name": "x"})", 0, false, "x"},
      {"// note\n{\"ret\": true, \"name\": \"y\"}", 0, true, "y"}};
  for (const auto& [payload, status, result, name] : cases) {
    TestService::Reply("GetName", payload, status);
    std::string out;
    EXPECT_EQ(RemoteCall(kLines, "GetName").Reads(ReadName, out).Run(), result) << payload;
    EXPECT_EQ(out, name) << payload;
  }
}

TEST_F(RemoteCallTest, FailedCheckSendsNothingAndLeavesOutputs) {
  LogCapture::Clear();
  std::string out = "untouched";
  EXPECT_FALSE(RemoteCall(kLines, "GetName").Require(false).Entry().Reads(ReadName, out).Run());
  EXPECT_EQ(out, "untouched");
  EXPECT_TRUE(TestService::TakeCalls().empty());
  EXPECT_TRUE(LogCapture::Lines().empty()) << "a check before the entry line silences it";
}

TEST_F(RemoteCallTest, SendTakesAnyAnswerAndFailsOnlyOnTheTransport) {
  TestService::Reply("Clear", "not json");
  EXPECT_TRUE(RemoteCall(kLines, "Clear").Send());
  TestService::ReplyWithError("Clear");
  EXPECT_FALSE(RemoteCall(kLines, "Clear").Send());
}

TEST(ParseReturnValue, ReadsRetOrReportsTheText) {
  LogCapture::Clear();
  const zunde::LogLine& line = kLines.parseFailed;
  EXPECT_TRUE(zunde::ParseReturnValue(line, R"({"ret": true})"));
  EXPECT_FALSE(zunde::ParseReturnValue(line, R"({"ret": false})") || zunde::ParseReturnValue(line, R"({})"));
  EXPECT_TRUE(LogCapture::Lines().empty());
  EXPECT_FALSE(zunde::ParseReturnValue(line, "{"));
  EXPECT_TRUE(LogCapture::Find("[16][0][FCTestProxy::TestBody] fail to parse json data\n"));
}

}  // namespace
