// The bytes of a call on the bus and calls from several threads at once on the one shared connection.
#include <gtest/gtest.h>

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

// The length argument is the request's size; the reply's array is appended to the buffer by its own
// element count, whatever the reply's length argument says; the status comes back as it is. A reply
// without arguments gives -1 and leaves the buffer.
TEST_F(ConnectionCall, BytesTravelExactlyBothWays) {
  const std::string payload("a\0b\xff", 4);
  TestService::Reply("Member", "abc", /*status=*/7, /*length=*/99);
  FCMessageBuffer reply;
  reply.PushChar('>');
  EXPECT_EQ(CallWith(payload, reply), 7);
  const auto call = TestService::TakeOnlyCall();
  EXPECT_EQ(std::tie(call.member, call.length, call.payload), std::make_tuple("Member", 4, payload));

  TestService::ReplyWithoutArguments("Member");
  EXPECT_EQ(CallWith("{}", reply), -1);
  EXPECT_EQ(std::string(reply.GetAsCStr(0), reply.GetFullBufferSize()), ">abc");
  LogRecord record;
  ASSERT_TRUE(LogCapture::Find("DBG_LV[0]IPCS: Message has no arguments!\n\n", &record));
  EXPECT_EQ(std::tie(record.tag, record.priority, record.logId), std::make_tuple("zunde-provider", 5, 2));
}

// Each thread blocks until its own answer arrives; no call is lost or mixed up.
TEST_F(ConnectionCall, ConcurrentCallsEachGetTheirOwnAnswers) {
  TestService::Reply("GetPersonalUserID", R"({"ret": true, "in_user_id": "shared"})");
  TestService::Reply("SetPersonalUserID", R"({"ret": true})");
  std::atomic<int> succeeded{0};
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([t, &succeeded] {
      std::string user;
      for (int i = 0; i < 25; ++i)
        succeeded += t % 2 ? FCRemoteContentOnTV_Proxy().SetPersonalUserID("thread")
                           : FCRemoteContentOnTV_Proxy().GetPersonalUserID(user) && user == "shared";
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(succeeded.load(), 100);
  int sets = 0;
  for (const auto& call : TestService::TakeCalls()) sets += call.member == "SetPersonalUserID";
  EXPECT_EQ(sets, 50);
}

}  // namespace
