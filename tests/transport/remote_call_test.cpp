// The remote call procedure on the real bus, where the proxies' suites do not
// reach yet: replies their rows do not script, a failed check, the send-only
// call and the "ret" of a reply text. Request forms, the split call and the
// failure paths shared by every proxy method are run there, for every method.
#include <gtest/gtest.h>
#include <json/json.h>

#include <string>

#include "FCRemoteCall_internal.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using namespace zunde;
using zunde::testing::LogCapture;
using zunde::testing::TestService;

const CallLogLines kLines = {
    {LogPriority::Info, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCTestProxy::%s] called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCTestProxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::Module, 0, FC_LINE_MOD("[FCTestProxy::%s] fail to parse json data\n")},
};

bool ReadName(Json::Value& root, std::string& name) {
  name = root["name"].asString();
  return true;
}

using RemoteCallTest = zunde::testing::ServiceTest;

// A status other than -1 is not examined: the reply is read, and without "ret" the result is false.
TEST_F(RemoteCallTest, ResultIsRetAndOutputsFillWheneverTheReplyParses) {
  TestService::Reply("GetName", R"({"name": "x"})", /*status=*/5);
  std::string out;
  EXPECT_FALSE(RemoteCall(kLines, "GetName").Reads(ReadName, out).Run());
  EXPECT_EQ(out, "x");
}

TEST_F(RemoteCallTest, FailedCheckSendsNothingAndLeavesOutputs) {
  LogCapture::Clear();
  std::string out = "untouched";
  EXPECT_FALSE(RemoteCall(kLines, "GetName").Require(false).Entry().Reads(ReadName, out).Run());
  EXPECT_EQ(out, "untouched");
  EXPECT_TRUE(TestService::TakeCalls().empty());
  EXPECT_TRUE(LogCapture::Lines().empty()) << "a check before the entry line silences it";
}

// The steps for replies that are not read as typed outputs: the send-only call and the "ret" of a reply text.
TEST_F(RemoteCallTest, SendTakesAnyAnswerAndParseReturnValueReadsRet) {
  TestService::Reply("Clear", "not json");
  EXPECT_TRUE(RemoteCall(kLines, "Clear").Send());
  TestService::ReplyWithError("Clear");
  EXPECT_FALSE(RemoteCall(kLines, "Clear").Send());

  LogCapture::Clear();
  EXPECT_TRUE(ParseReturnValue(kLines.parseFailed, R"({"ret": true})"));
  EXPECT_FALSE(ParseReturnValue(kLines.parseFailed, R"({"ret": false})") || ParseReturnValue(kLines.parseFailed, "{}"));
  EXPECT_TRUE(LogCapture::Lines().empty());
  EXPECT_FALSE(ParseReturnValue(kLines.parseFailed, "{"));
  EXPECT_TRUE(LogCapture::Find("[16][0][FCTestProxy::TestBody] fail to parse json data\n"));
}

}  // namespace
