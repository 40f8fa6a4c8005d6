// The remote call procedure on the real bus, where the proxies' suites do not
// reach: replies they do not script, a failed check, the send-only call, and
// the steps of the split call. Request forms and the failure paths shared by
// every proxy method are run there, for every method.
#include <gtest/gtest.h>
#include <json/json.h>

#include <string>
#include <tuple>

#include "FCRemoteCall_internal.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::CallLogLines;
using zunde::LogPrefix;
using zunde::LogPriority;
using zunde::RemoteCall;
using zunde::testing::LogCapture;
using zunde::testing::LogRecord;
using zunde::testing::TestService;

const CallLogLines kLines = {
    {LogPriority::Info, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCTestProxy::%s] called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCTestProxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::Module, 0, FC_LINE_MOD("[FCOtherProxy::%s] fail to parse json data\n")},
};

bool ReadName(Json::Value& root, std::string& name) {
  name = root["name"].asString();
  return true;
}

// A typed method as a proxy writes it; its lines name the function.
bool GetName(std::string& out) { return RemoteCall(kLines, "GetName").Reads(ReadName, out).Run(); }

using RemoteCallTest = zunde::testing::ServiceTest;

TEST_F(RemoteCallTest, ResultIsRetAndOutputsFillWheneverTheReplyParses) {
  const std::tuple<const char*, int, bool, const char*> cases[] = {
      {R"({"ret": true, "name": "x"})", 5, true, "x"},  // a status other than -1 is not examined
      {R"({"name": "x"})", 0, false, "x"},
      {"// note\n{\"ret\": true, \"name\": \"y\"}", 0, true, "y"}};
  for (const auto& [payload, status, result, name] : cases) {
    TestService::Reply("GetName", payload, status);
    std::string out;
    EXPECT_EQ(GetName(out), result) << payload;
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

// The split call's string step, as a proxy keeps it: its entry line names the member.
bool SplitString(const char* member, const std::string& request, std::string& reply) {
  return zunde::CallWithStringArguments(kLines, member, request, reply);
}

TEST_F(RemoteCallTest, TypedCallThroughTheSplitSteps) {
  TestService::Reply("GetName", R"({"ret": false, "name": "z"})");
  std::string out;
  auto viaJson = [](const char* member, const Json::Value& request, Json::Value& reply) {
    return zunde::CallWithJsonArguments(kLines, member, request, reply, SplitString);
  };
  EXPECT_FALSE(RemoteCall(kLines, "GetName").Through(viaJson).Reads(ReadName, out).Run());
  EXPECT_EQ(out, "z");
  EXPECT_EQ(TestService::TakeOnlyCall().payload, "null\n") << "the split call always writes its root";
  LogRecord record;
  ASSERT_TRUE(LogCapture::Find("DBG_LV[0][FCTestProxy::GetName] called\n", &record));
  EXPECT_NE(record.text.find(": SplitString("), std::string::npos) << record.text;

  TestService::Reply("GetName", "");
  Json::Value reply;
  EXPECT_FALSE(zunde::CallWithJsonArguments(kLines, "GetName", Json::Value(), reply));
  EXPECT_TRUE(LogCapture::Find("> [16][0][FCOtherProxy::GetName] fail to parse json data\n"));
}

TEST(ParseReturnValue, ReadsRetOrReportsTheText) {
  LogCapture::Clear();
  const zunde::LogLine line{LogPriority::Warning, LogPrefix::Module, 0,
                            FC_LINE_MOD("[FCConnectedContent_Proxy::%s] fail to parse json output data\n")};
  EXPECT_TRUE(zunde::ParseReturnValue(line, R"({"ret": true})"));
  EXPECT_FALSE(zunde::ParseReturnValue(line, R"({"ret": false})") || zunde::ParseReturnValue(line, R"({})"));
  EXPECT_TRUE(LogCapture::Lines().empty());
  EXPECT_FALSE(zunde::ParseReturnValue(line, "{"));
  EXPECT_TRUE(LogCapture::Find("[16][0][FCConnectedContent_Proxy::TestBody] fail to parse json output data\n"));
}

}  // namespace
