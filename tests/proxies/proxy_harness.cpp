// The generic tests of the proxy harness, run for every row that a family
// instantiates.
#include "proxy_harness.h"

#include <json/json.h>

#include "log_capture.h"
#include "test_service.h"

namespace zunde::testing {

::testing::AssertionResult Logged(const ExpectedLine& expected) {
  LogRecord record;
  if (LogCapture::Find(" > " + expected.text, &record) && record.logId == expected.logId &&
      record.priority == expected.priority) {
    return ::testing::AssertionSuccess();
  }
  auto failure = ::testing::AssertionFailure() << "no line " << expected.logId << "/" << expected.priority << " \""
                                               << expected.text << "\" among:";
  for (const auto& found : LogCapture::Records()) failure << "\n  " << found.logId << "/" << found.priority << " " << found.text;
  return failure;
}

void StartService() { TestService::Start(); }
void StopService() { TestService::Stop(); }
void ForgetCallsAndLines() {
  TestService::TakeCalls();
  LogCapture::Clear();
}

namespace {

// The row's reply with "ret" set to false and every other member kept; ""
// when the reply is not an object.
std::string WithRetFalse(const std::string& reply) {
  Json::Value root;
  if (!Json::Reader().parse(reply, root) || !root.isObject()) return "";
  root["ret"] = false;
  return Json::FastWriter().write(root);
}

}  // namespace

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ProxyMethod);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ProxyPassThrough);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ProxyRefused);

TEST_P(ProxyMethod, SendsItsRequestAndFillsItsOutputs) {
  const ProxyCase& row = GetParam();
  TestService::Reply(row.member, row.reply);
  const Observed observed = row.call();
  EXPECT_EQ(observed.result, row.result);
  EXPECT_EQ(observed.after, row.outputs);
  const ReceivedCall call = TestService::TakeOnlyCall();
  EXPECT_EQ(call.member, row.member);
  EXPECT_EQ(call.payload, row.request);
  EXPECT_EQ(call.length, static_cast<int32_t>(row.request.size()));
  if (!row.entry.text.empty()) {
    EXPECT_TRUE(Logged(row.entry));
  }
}

// The service absent, then a reply that is not JSON: false, outputs as they
// were, and the line of each failure.
TEST_P(ProxyMethod, FailuresLeaveOutputsUntouched) {
  const ProxyCase& row = GetParam();
  TestService::ReplyWithError(row.member);
  Observed observed = row.call();
  EXPECT_FALSE(observed.result);
  EXPECT_EQ(observed.after, observed.before);
  EXPECT_TRUE(Logged(row.sendFailed));
  if (!row.readsReply) return;
  TestService::Reply(row.member, "");
  observed = row.call();
  EXPECT_FALSE(observed.result);
  EXPECT_EQ(observed.after, observed.before);
  EXPECT_TRUE(Logged(row.parseFailed));
}

TEST_P(ProxyMethod, RetFalseStillFillsOutputs) {
  const ProxyCase& row = GetParam();
  const std::string reply = WithRetFalse(row.reply);
  if (!row.readsReply || !row.result || reply.empty()) GTEST_SKIP() << "no successful reply to turn";
  TestService::Reply(row.member, reply);
  const Observed observed = row.call();
  EXPECT_FALSE(observed.result);
  EXPECT_EQ(observed.after, row.outputs);
}

TEST_P(ProxyPassThrough, ForwardsTextAsItStandsAndReturnsTheRawReply) {
  const PassThroughCase& row = GetParam();
  TestService::Reply(row.member, R"({"ret": false, "x": 1})");
  std::string reply;
  EXPECT_EQ(row.call("not json {", reply), !row.returnsRet);
  EXPECT_EQ(reply, R"({"ret": false, "x": 1})");
  const ReceivedCall call = TestService::TakeOnlyCall();
  EXPECT_EQ(call.member, row.member);
  EXPECT_EQ(call.payload, row.forwardsRequest ? "not json {" : "");
  if (!row.entry.text.empty()) {
    EXPECT_TRUE(Logged(row.entry));
  }
}

TEST_P(ProxyPassThrough, EmptyReplyComesBackEmpty) {
  const PassThroughCase& row = GetParam();
  TestService::Reply(row.member, "");
  std::string reply = "-";
  EXPECT_EQ(row.call("{}", reply), !row.returnsRet);
  EXPECT_EQ(reply, "");
}

TEST_P(ProxyPassThrough, ServiceAbsentLeavesTheReplyUntouched) {
  const PassThroughCase& row = GetParam();
  TestService::ReplyWithoutArguments(row.member);
  std::string reply = "-";
  EXPECT_FALSE(row.call("{}", reply));
  EXPECT_EQ(reply, "-");
  EXPECT_TRUE(Logged(row.sendFailed));
}

TEST_P(ProxyRefused, SendsNothingAndLeavesOutputsUntouched) {
  const RefusedCase& row = GetParam();
  const Observed observed = row.call();
  EXPECT_FALSE(observed.result);
  EXPECT_EQ(observed.after, observed.before);
  EXPECT_TRUE(TestService::TakeCalls().empty());
  if (row.entryLine.empty()) {
    EXPECT_TRUE(LogCapture::Lines().empty());
  } else {
    ASSERT_EQ(LogCapture::Lines().size(), 1u);
    EXPECT_TRUE(LogCapture::Find(" > " + row.entryLine));
  }
}

}  // namespace zunde::testing
