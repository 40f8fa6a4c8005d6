// A process outlives its bus: once the daemon is gone, calls fail with the
// send error line and the process goes on.
#include <gtest/gtest.h>

#include "FCIPCConnection.h"
#include "FCMessageBuffer.h"
#include "log_capture.h"
#include "test_bus.h"
#include "test_service.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::TestBus;
using zunde::testing::TestService;

int CallOnce() {
  FCMessageBuffer request;
  FCMessageBuffer reply;
  return FIIPCConnection::GetInstance()->Call("com.velmora.FCCallListener", "Member", request, reply);
}

TEST(BusLoss, CallsFailWithMinusOneAfterTheDaemonIsGone) {
  TestService::Start();
  TestService::Reply("Member", "{}", 3);
  ASSERT_EQ(CallOnce(), 3);

  TestBus::Stop();
  TestService::Stop();
  LogCapture::Clear();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(CallOnce(), -1);
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0]dbus_connection_send_with_reply_and_block: Connection was disconnected before "
                               "a reply was received\n"))
      << ::testing::PrintToString(LogCapture::Lines());
}

}  // namespace
