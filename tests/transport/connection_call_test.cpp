// The bytes of a call on the bus, and every way a call can fail.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "FCIPCConnection.h"
#include "FCMessageBuffer.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::LogRecord;
using zunde::testing::ServiceTest;
using zunde::testing::TestService;

int CallWith(const std::string& payload, FCMessageBuffer& reply) {
  FCMessageBuffer request;
  request.PushConcatenated(payload.size(), const_cast<char*>(payload.data()));
  return FIIPCConnection::GetInstance()->Call("com.velmora.FCCallListener", "Member", request, reply);
}

using ConnectionCall = ServiceTest;

TEST_F(ConnectionCall, RequestBytesTravelExactlyWithTheirLength) {
  for (const std::string& payload : {std::string(), std::string("a\0b\xff", 4)}) {
    TestService::Reply("Member", "");
    FCMessageBuffer reply;
    EXPECT_EQ(CallWith(payload, reply), 0);
    const auto call = TestService::TakeOnlyCall();
    EXPECT_EQ(std::tie(call.member, call.length, call.payload), std::make_tuple("Member", int(payload.size()), payload));
  }
}

TEST_F(ConnectionCall, ReplyArrayIsAppendedByItsElementCountAndTheStatusReturnedAsItIs) {
  TestService::Reply("Member", "abc", /*status=*/7, /*length=*/99);
  FCMessageBuffer reply;
  reply.PushChar('>');
  EXPECT_EQ(CallWith("", reply), 7);
  EXPECT_EQ(std::string(reply.GetAsCStr(0), reply.GetFullBufferSize()), ">abc");
}

TEST_F(ConnectionCall, FailuresReturnMinusOneWithTheirLine) {
  const std::pair<void (*)(), const char*> cases[] = {
      {[] { TestService::ReplyWithoutArguments("Member"); }, "DBG_LV[0]IPCS: Message has no arguments!\n\n"},
      {[] { TestService::ReplyWithError("Member"); },
       "DBG_LV[0]dbus_connection_send_with_reply_and_block: scripted error\n"},
      {[] { TestService::ExitWithoutAnswer("Member"); },
       "dbus_connection_send_with_reply_and_block: Message recipient disconnected from message bus without replying\n"},
      {[] { TestService::Stop(); },  // the service is absent
       "dbus_connection_send_with_reply_and_block: The name com.velmora.FCCallListener was not provided by any "
       ".service files\n"}};
  for (const auto& [script, line] : cases) {
    LogCapture::Clear();
    script();
    FCMessageBuffer reply;
    EXPECT_EQ(CallWith("{}", reply), -1) << line;
    EXPECT_EQ(reply.GetFullBufferSize(), 0u);
    LogRecord record;
    ASSERT_TRUE(LogCapture::Find(line, &record)) << line;
    EXPECT_EQ(std::tie(record.tag, record.priority, record.logId), std::make_tuple("zunde-provider", 5, 2));
  }
}

TEST(Connection, ConnectDoesNothingAndMessageTypesHaveTheirBusNames) {
  EXPECT_FALSE(FIIPCConnection::GetInstance()->Connect());
  EXPECT_STREQ(FCIPCConnection::m_ConvertMsgTypeToString(FC_IPC_DATA), "Data");
  EXPECT_STREQ(FCIPCConnection::m_ConvertMsgTypeToString(2), "Unknown");
}

}  // namespace
