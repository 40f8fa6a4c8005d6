// The remote call procedure, on the real bus: what the typed, pass-through and
// split calls send, what they make of each kind of reply, and their lines.
#include <gtest/gtest.h>
#include <json/json.h>

#include <string>

#include "FCMarshal.h"
#include "FCRemoteCall_internal.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::CallLogLines;
using zunde::LogLine;
using zunde::LogPrefix;
using zunde::LogPriority;
using zunde::RemoteCall;
using zunde::testing::LogCapture;
using zunde::testing::LogRecord;
using zunde::testing::ServiceTest;
using zunde::testing::TestService;

const CallLogLines kLines = {
    {LogPriority::Info, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCTestProxy::%s] called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCTestProxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::Module, 0, FC_LINE_MOD("[FCOtherProxy::%s] fail to parse json data\n")},
};

bool WriteName(const std::string& name, Json::Value& root) {
  root["name"] = name;
  return true;
}

bool WriteCount(int count, Json::Value& root) {
  root["count"] = count;
  return true;
}

bool ReadName(Json::Value& root, std::string& name) {
  name = root["name"].asString();
  return true;
}

// A typed method as a proxy writes it: one writer, one reader.
bool RenameThing(const std::string& in, std::string& out) {
  return RemoteCall(kLines, "RenameThing").Entry().Writes(WriteName, in).Writes(WriteCount, 2).Reads(ReadName, out).Run();
}

class RemoteCallTest : public ServiceTest {
 protected:
  void SetUp() override {
    ServiceTest::SetUp();
    LogCapture::Clear();
  }
};

TEST_F(RemoteCallTest, RequestIsTheStyledWriterTextWithoutTerminator) {
  TestService::Reply("RenameThing", R"({"ret": true, "name": "b"})");
  std::string out;
  EXPECT_TRUE(RenameThing("a", out));
  EXPECT_EQ(out, "b");

  const auto call = TestService::TakeOnlyCall();
  EXPECT_EQ(call.member, "RenameThing");
  EXPECT_EQ(call.payload, "{\n   \"count\" : 2,\n   \"name\" : \"a\"\n}\n");
  EXPECT_EQ(call.length, static_cast<int>(call.payload.size()));
}

TEST_F(RemoteCallTest, MethodWithoutInputsSendsAnEmptyBuffer) {
  TestService::Reply("GetThing", R"({"ret": true})");
  EXPECT_TRUE(RemoteCall(kLines, "GetThing").Run());
  const auto call = TestService::TakeOnlyCall();
  EXPECT_EQ(call.length, 0);
  EXPECT_EQ(call.payload, "");
}

TEST_F(RemoteCallTest, FailedCheckSendsNothingAndLeavesOutputs) {
  std::string out = "untouched";
  EXPECT_FALSE(RemoteCall(kLines, "RenameThing").Require(false).Entry().Reads(ReadName, out).Run());
  EXPECT_EQ(out, "untouched");
  EXPECT_TRUE(TestService::TakeCalls().empty());
  EXPECT_TRUE(LogCapture::Lines().empty()) << "a check before the entry line silences it";
}

TEST_F(RemoteCallTest, EntryLineNamesTheCallingFunction) {
  TestService::Reply("RenameThing", R"({"ret": true})");
  std::string out;
  RenameThing("a", out);

  LogRecord record;
  ASSERT_TRUE(LogCapture::Find("DBG_LV[0][FCTestProxy::RenameThing] called\n", &record));
  EXPECT_EQ(record.text.find("tests/transport/remote_call_test.cpp: RenameThing("), 0u) << record.text;
  EXPECT_EQ(record.format, "%s: %s(%d) > DBG_LV[%d][FCTestProxy::%s] called\n");
  EXPECT_EQ(record.priority, 4);
  EXPECT_EQ(record.logId, 0);
}

struct ReplyCase {
  const char* name;
  std::string payload;
  bool result;
  std::string out;  // what the reader leaves in the output
};

// Names the case in test listings.
void PrintTo(const ReplyCase& c, std::ostream* os) { *os << c.name; }

class TypedCallReply : public RemoteCallTest, public ::testing::WithParamInterface<ReplyCase> {};

TEST_P(TypedCallReply, ResultIsRetAndOutputsFillWheneverTheReplyParses) {
  TestService::Reply("RenameThing", GetParam().payload);
  std::string out = "untouched";
  EXPECT_EQ(RenameThing("a", out), GetParam().result);
  EXPECT_EQ(out, GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(
    Replies, TypedCallReply,
    ::testing::Values(ReplyCase{"RetTrue", R"({"ret": true, "name": "x"})", true, "x"},
                      ReplyCase{"RetFalseStillFills", R"({"ret": false, "name": "x"})", false, "x"},
                      ReplyCase{"MissingRetIsFalse", R"({"name": "x"})", false, "x"},
                      ReplyCase{"MissingMemberReadsEmpty", R"({"ret": true})", true, ""},
                      ReplyCase{"CommentsAreAllowed", "// note\n{\"ret\": true, \"name\": \"y\"}", true, "y"},
                      ReplyCase{"EmptyReplyDoesNotParse", "", false, "untouched"},
                      ReplyCase{"GarbageDoesNotParse", "{\"ret\": tru", false, "untouched"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(RemoteCallTest, UnparsableReplyWritesTheFamilysParseLine) {
  TestService::Reply("RenameThing", "");
  std::string out;
  EXPECT_FALSE(RenameThing("a", out));
  LogRecord record;
  ASSERT_TRUE(LogCapture::Find("> [16][0][FCOtherProxy::RenameThing] fail to parse json data\n", &record));
  EXPECT_EQ(record.priority, 5);
  EXPECT_EQ(record.logId, 2);
}

TEST_F(RemoteCallTest, TransportFailureWritesTheFamilysLineAndLeavesOutputs) {
  TestService::ReplyWithError("RenameThing");
  std::string out = "untouched";
  EXPECT_FALSE(RenameThing("a", out));
  EXPECT_EQ(out, "untouched");
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0][FCTestProxy::RenameThing] fail to communicate using d-bus\n"));
}

TEST_F(RemoteCallTest, ServiceStatusMinusOneIsATransportFailure) {
  TestService::Reply("RenameThing", R"({"ret": true, "name": "x"})", -1);
  std::string out = "untouched";
  EXPECT_FALSE(RenameThing("a", out));
  EXPECT_EQ(out, "untouched");
}

TEST_F(RemoteCallTest, OtherStatusesAreNotExamined) {
  TestService::Reply("RenameThing", R"({"ret": true, "name": "x"})", 5);
  std::string out;
  EXPECT_TRUE(RenameThing("a", out));
}

TEST_F(RemoteCallTest, SendIgnoresTheReply) {
  TestService::Reply("Clear", "not json");
  EXPECT_TRUE(RemoteCall(kLines, "Clear").Send());
  TestService::ReplyWithError("Clear");
  EXPECT_FALSE(RemoteCall(kLines, "Clear").Send());
}

TEST_F(RemoteCallTest, PassThroughForwardsTextUnchangedAndReturnsTheRawReply) {
  TestService::Reply("Raw", R"({"ret": false})");
  std::string reply = "untouched";
  EXPECT_TRUE(RemoteCall(kLines, "Raw").Entry().PassThrough("not json at all", reply));
  EXPECT_EQ(reply, R"({"ret": false})");
  EXPECT_EQ(TestService::TakeOnlyCall().payload, "not json at all");
}

TEST_F(RemoteCallTest, PassThroughOfAnEmptyReplyIsTrueWithAnEmptyString) {
  TestService::Reply("Raw", "");
  std::string reply = "untouched";
  EXPECT_TRUE(RemoteCall(kLines, "Raw").PassThrough("", reply));
  EXPECT_EQ(reply, "");
}

TEST_F(RemoteCallTest, PassThroughFailureLeavesTheReply) {
  TestService::ReplyWithoutArguments("Raw");
  std::string reply = "untouched";
  EXPECT_FALSE(RemoteCall(kLines, "Raw").PassThrough("{}", reply));
  EXPECT_EQ(reply, "untouched");
}

TEST_F(RemoteCallTest, ConnectFirstStillCalls) {
  TestService::Reply("Reset", R"({"ret": true})");
  EXPECT_TRUE(RemoteCall(kLines, "Reset").Entry().ConnectFirst().Run());
}

// The split call: each step names the member in its lines.
bool SplitString(const char* member, const std::string& request, std::string& reply) {
  return zunde::CallWithStringArguments(kLines, member, request, reply);
}

TEST_F(RemoteCallTest, SplitStringStepNamesTheMember) {
  TestService::Reply("GetProgram", "text");
  std::string reply;
  EXPECT_TRUE(SplitString("GetProgram", "{}", reply));
  EXPECT_EQ(reply, "text");
  LogRecord record;
  ASSERT_TRUE(LogCapture::Find("[FCTestProxy::GetProgram] called\n", &record));
  EXPECT_NE(record.text.find(": SplitString("), std::string::npos) << record.text;
}

TEST_F(RemoteCallTest, SplitJsonStepWritesStyledTextAndParses) {
  TestService::Reply("GetProgram", R"({"ret": true, "name": "n"})");
  Json::Value request;
  request["id"] = 1;
  Json::Value reply;
  EXPECT_TRUE(zunde::CallWithJsonArguments(kLines, "GetProgram", request, reply, SplitString));
  EXPECT_EQ(reply["name"].asString(), "n");
  EXPECT_EQ(TestService::TakeOnlyCall().payload, "{\n   \"id\" : 1\n}\n");
}

TEST_F(RemoteCallTest, SplitJsonStepReportsAParseFailureWithTheMember) {
  TestService::Reply("GetProgram", "");
  Json::Value reply;
  EXPECT_FALSE(zunde::CallWithJsonArguments(kLines, "GetProgram", Json::Value(), reply));
  EXPECT_TRUE(LogCapture::Find("[FCOtherProxy::GetProgram] fail to parse json data\n"));
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
}

TEST(ParseReturnValue, ReadsRetOrReportsTheText) {
  LogCapture::Clear();
  const LogLine line{LogPriority::Warning, LogPrefix::Module, 0,
                     FC_LINE_MOD("[FCConnectedContent_Proxy::%s] fail to parse json output data\n")};
  EXPECT_TRUE(zunde::ParseReturnValue(line, R"({"ret": true})"));
  EXPECT_FALSE(zunde::ParseReturnValue(line, R"({"ret": false})"));
  EXPECT_FALSE(zunde::ParseReturnValue(line, R"({})"));
  EXPECT_TRUE(LogCapture::Lines().empty());
  EXPECT_FALSE(zunde::ParseReturnValue(line, "{"));
  EXPECT_TRUE(LogCapture::Find("[16][0][FCConnectedContent_Proxy::TestBody] fail to parse json output data\n"));
}

TEST(ParseToJson, CollectsCommentsAndReportsTheReadersResult) {
  Json::Value root;
  std::string text = "/* c */ {\"a\": 1}";
  EXPECT_TRUE(FCMarshal::ParseToJson(text, root));
  EXPECT_EQ(root["a"].asInt(), 1);
  std::string empty;
  EXPECT_FALSE(FCMarshal::ParseToJson(empty, root));
}

}  // namespace
