// The bytes of a call on the bus, how a call fails, and calls from several
// threads at once on the one shared connection.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include "FCIPCConnection.h"
#include "FCMessageBuffer.h"
#include "FCRemoteContentOnTV_Proxy.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::LogRecord;
using zunde::testing::TestService;

int CallWith(const std::string& payload, FCMessageBuffer& reply) {
  FCMessageBuffer request;
  request.PushConcatenated(payload.size(), const_cast<char*>(payload.data()));
  return FIIPCConnection::GetInstance()->Call("com.velmora.FCCallListener", "Member", request, reply);
}

using ConnectionCall = zunde::testing::ServiceTest;

// The reply's array is appended to the buffer by its own element count, whatever the length argument
// says, and the service's status is returned as it is.
TEST_F(ConnectionCall, BytesTravelExactlyBothWays) {
  for (const std::string& payload : {std::string(), std::string("a\0b\xff", 4)}) {
    TestService::Reply("Member", "abc", /*status=*/7, /*length=*/99);
    FCMessageBuffer reply;
    reply.PushChar('>');
    EXPECT_EQ(CallWith(payload, reply), 7);
    EXPECT_EQ(std::string(reply.GetAsCStr(0), reply.GetFullBufferSize()), ">abc");
    const auto call = TestService::TakeOnlyCall();
    EXPECT_EQ(std::tie(call.member, call.length, call.payload),
              std::make_tuple("Member", int(payload.size()), payload));
  }
}

TEST_F(ConnectionCall, FailuresReturnMinusOneWithTheirLine) {
  const std::pair<void (*)(), const char*> cases[] = {
      {[] { TestService::ReplyWithoutArguments("Member"); }, "DBG_LV[0]IPCS: Message has no arguments!\n\n"},
      {[] { TestService::ReplyWithError("Member"); },
       "DBG_LV[0]dbus_connection_send_with_reply_and_block: scripted error\n"}};
  for (const auto& [script, line] : cases) {
    script();
    FCMessageBuffer reply;
    EXPECT_EQ(CallWith("{}", reply), -1) << line;
    EXPECT_EQ(reply.GetFullBufferSize(), 0u);
    LogRecord record;
    ASSERT_TRUE(LogCapture::Find(line, &record)) << line;
    EXPECT_EQ(std::tie(record.tag, record.priority, record.logId), std::make_tuple("zunde-provider", 5, 2));
  }
}

// Each thread blocks until its own answer arrives; no call is lost or mixed up.
TEST_F(ConnectionCall, ConcurrentCallsEachGetTheirOwnAnswers) {
  TestService::Reply("GetPersonalUserID", R"({"ret": true, "in_user_id": "shared"})");
  TestService::Reply("SetPersonalUserID", R"({"ret": true})");
  constexpr int kThreads = 4, kCallsPerThread = 25;
  std::atomic<int> succeeded{0};
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([t, &succeeded] {
      FCRemoteContentOnTV_Proxy proxy;
      for (int i = 0; i < kCallsPerThread; ++i) {
        std::string user;
        const bool ok = t % 2 ? proxy.SetPersonalUserID("thread-" + std::to_string(t))
                              : proxy.GetPersonalUserID(user) && user == "shared";
        succeeded += ok;
      }
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(succeeded.load(), kThreads * kCallsPerThread);
  const auto calls = TestService::TakeCalls();
  EXPECT_EQ(calls.size(), static_cast<size_t>(kThreads * kCallsPerThread));
  EXPECT_EQ(std::count_if(calls.begin(), calls.end(), [](const auto& call) {
              return call.member == "SetPersonalUserID" && call.payload.find("\"thread-") != std::string::npos;
            }), kThreads / 2 * kCallsPerThread);
}

}  // namespace
