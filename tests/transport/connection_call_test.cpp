// The bytes of a call on the bus, and every way a call can fail.
#include <gtest/gtest.h>

#include <string>

#include "FCIPCConnection.h"
#include "FCMessageBuffer.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::ServiceTest;
using zunde::testing::TestService;

const std::string kListener = "com.velmora.FCCallListener";

std::string Contents(FCMessageBuffer& buffer) {
  const char* bytes = buffer.GetAsCStr(0);
  return bytes ? std::string(bytes, buffer.GetFullBufferSize()) : std::string();
}

int CallWith(const std::string& payload, FCMessageBuffer& reply, const char* method = "Member") {
  FCMessageBuffer request;
  request.PushConcatenated(payload.size(), const_cast<char*>(payload.data()));
  return FIIPCConnection::GetInstance()->Call(kListener, method, request, reply);
}

class ConnectionCall : public ServiceTest {
 protected:
  void SetUp() override {
    ServiceTest::SetUp();
    LogCapture::Clear();
  }
};

TEST_F(ConnectionCall, EmptyRequestSendsZeroLengthAndEmptyArray) {
  TestService::Reply("Member", "{}");
  FCMessageBuffer reply;
  EXPECT_EQ(CallWith("", reply), 0);

  const auto call = TestService::TakeOnlyCall();
  EXPECT_EQ(call.member, "Member");
  EXPECT_EQ(call.length, 0);
  EXPECT_EQ(call.payload, "");
}

TEST_F(ConnectionCall, RequestBytesTravelExactlyWithTheirLength) {
  const std::string payload("a\0b\xff", 4);
  TestService::Reply("Member", "");
  FCMessageBuffer reply;
  CallWith(payload, reply);

  const auto call = TestService::TakeOnlyCall();
  EXPECT_EQ(call.length, 4);
  EXPECT_EQ(call.payload, payload);
}

TEST_F(ConnectionCall, ReplyArrayIsTakenByItsElementCountNotItsLengthArgument) {
  TestService::Reply("Member", "abc", /*status=*/0, /*length=*/99);
  FCMessageBuffer reply;
  EXPECT_EQ(CallWith("", reply), 0);
  EXPECT_EQ(Contents(reply), "abc");
}

TEST_F(ConnectionCall, ReplyBytesAreAppendedToWhatTheBufferHolds) {
  TestService::Reply("Member", "tail");
  FCMessageBuffer reply;
  reply.PushChar('>');
  CallWith("", reply);
  EXPECT_EQ(Contents(reply), ">tail");
}

TEST_F(ConnectionCall, ServiceStatusIsReturnedAsItIs) {
  for (int status : {0, 7, -1, 1234}) {
    TestService::Reply("Member", "", status);
    FCMessageBuffer reply;
    EXPECT_EQ(CallWith("", reply), status);
  }
}

struct TransportFailure {
  const char* name;
  void (*script)();
  const char* logLine;
};

// Names the case in test listings.
void PrintTo(const TransportFailure& c, std::ostream* os) { *os << c.name; }

class ConnectionCallFailure : public ConnectionCall, public ::testing::WithParamInterface<TransportFailure> {};

TEST_P(ConnectionCallFailure, ReturnsMinusOneWithItsLogLine) {
  GetParam().script();
  FCMessageBuffer reply;
  EXPECT_EQ(CallWith("{}", reply), -1);
  EXPECT_EQ(reply.GetFullBufferSize(), 0u);

  zunde::testing::LogRecord record;
  ASSERT_TRUE(LogCapture::Find(GetParam().logLine, &record)) << GetParam().name;
  EXPECT_EQ(record.tag, "zunde-provider");
  EXPECT_EQ(record.priority, 5);
  EXPECT_EQ(record.logId, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Transport, ConnectionCallFailure,
    ::testing::Values(
        TransportFailure{"reply without arguments", [] { TestService::ReplyWithoutArguments("Member"); },
                         "DBG_LV[0]IPCS: Message has no arguments!\n\n"},
        TransportFailure{"error reply", [] { TestService::ReplyWithError("Member"); },
                         "DBG_LV[0]dbus_connection_send_with_reply_and_block: scripted error\n"},
        TransportFailure{"service ends without answering", [] { TestService::ExitWithoutAnswer("Member"); },
                         "dbus_connection_send_with_reply_and_block: Message recipient disconnected from message "
                         "bus without replying\n"},
        TransportFailure{"service absent", [] { TestService::Stop(); },
                         "dbus_connection_send_with_reply_and_block: The name com.velmora.FCCallListener was not "
                         "provided by any .service files\n"}),
    [](const auto& info) {
      std::string name = info.param.name;
      for (char& c : name) c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
      return name;
    });

TEST_F(ConnectionCall, ConnectDoesNothingAndTheConnectionHasAUniqueName) {
  FIIPCConnection* connection = FIIPCConnection::GetInstance();
  EXPECT_FALSE(connection->Connect());
  EXPECT_EQ(connection->GetConnectionId().rfind(':', 0), 0u) << connection->GetConnectionId();
  EXPECT_EQ(connection, FIIPCConnection::GetInstance());
}

TEST(ConnectionNames, MessageTypesHaveTheirBusNames) {
  EXPECT_STREQ(FCIPCConnection::m_ConvertMsgTypeToString(FC_IPC_EVENT), "Event");
  EXPECT_STREQ(FCIPCConnection::m_ConvertMsgTypeToString(FC_IPC_DATA), "Data");
  EXPECT_STREQ(FCIPCConnection::m_ConvertMsgTypeToString(2), "Unknown");
  EXPECT_STREQ(FCIPCConnection::m_ConvertMsgTypeToString(-1), "Unknown");
}

}  // namespace
