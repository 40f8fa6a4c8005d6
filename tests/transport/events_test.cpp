// Event subscription end to end: real signals through the test bus,
// dispatched from the default GLib main context.
#include <glib.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FCEMSProxy.h"
#include "FCIPCConnection.h"
#include "FCIPCManager.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::TestService;
using Texts = std::vector<std::string>;

// What reached the callbacks: "event:param1,param2,param3", or "data id:payload".
Texts received;

int RecordEvent(int event, FSEventData data) {
  received.push_back(std::to_string(event) + ":" + std::to_string(data.param1) + "," + std::to_string(data.param2) +
                     "," + std::to_string(data.param3));
  return 0;
}

// Dispatches until `count` callbacks came (or a generous bound passed), then gives signals that
// should not arrive their chance: after a round trip to the service, all it sent has reached us.
void DispatchUntil(size_t count) {
  const gint64 end = g_get_monotonic_time() + 5 * G_USEC_PER_SEC;
  while (received.size() < count && g_get_monotonic_time() < end) g_main_context_iteration(nullptr, FALSE);
  TestService::TakeCalls();
  for (int i = 0; i < 100; ++i) g_main_context_iteration(nullptr, FALSE);
}

class Events : public zunde::testing::ServiceTest {
 protected:
  void SetUp() override {
    ServiceTest::SetUp();
    received.clear();
    LogCapture::Clear();
  }
  FCEMSProxy* ems_ = FCEMSProxy::GetInstance(FIIPCConnection::GetInstance(), RecordEvent);
};

// Signals addressed to this process need no match rule of their own: the sender's events come back to
// it, each payload as three parameters; "Data" signals go to the data callback, or are dropped without one.
TEST_F(Events, AddressedSignalsReachTheCallbacks) {
  ASSERT_EQ(ems_->SubscribeSignal(4), 0);
  for (const std::vector<int>& ints : std::vector<std::vector<int>>{{}, {9}, {1, -2, 300}, {4, 5, 6, 7}}) {
    FCMessageBuffer data;
    for (int value : ints) data.PushInt(value);
    EXPECT_TRUE(FIIPCManager::GetInstance()->Send(3, data));
  }
  const std::string self = FIIPCConnection::GetInstance()->GetConnectionId();
  TestService::Emit("Data", "3", "dropped", self);
  DispatchUntil(4);
  FIIPCConnection::GetInstance()->SetDataCallbackFunction([](int id, FCMessageBuffer& payload) {
    received.push_back("data " + std::to_string(id) + ":" +
                       std::string(payload.GetAsCStr(0), payload.GetFullBufferSize()));
  });
  TestService::Emit("Data", "5", "kept", self);
  DispatchUntil(5);
  FIIPCConnection::GetInstance()->SetDataCallbackFunction(nullptr);
  EXPECT_EQ(received, (Texts{"3:-1,-1,-1", "3:9,0,0", "3:1,-2,300", "3:4,5,6", "data 5:kept"}));
  EXPECT_EQ(ems_->UnsubscribeSignal(4), 0);
}

TEST_F(Events, MatchRulesLetOnlySubscribedEventsInAndTheLastUnsubscribeDropsTheCallback) {
  ASSERT_EQ(ems_->SubscribeSignal(7) + ems_->SubscribeSignal(8), 0);
  EXPECT_TRUE(LogCapture::Find("DBG_LV[3][FCEMSProxy::SubscribeSignal] Subscribe event : 8\n"));
  EXPECT_EQ(ems_->UnsubscribeSignal(8), 0);
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0][FCEMSProxy::UnsubscribeSignal] Subscribe and UnSubcribe number is different. "
                               "m_eventList.size :1\n"));
  for (const char* event : {"9", "8", "7"}) TestService::Emit("Event", event, "");
  DispatchUntil(1);
  EXPECT_EQ(received, Texts{"7:-1,-1,-1"}) << "the callback stays while an event is subscribed";

  EXPECT_EQ(ems_->UnsubscribeSignal(7), 0);
  EXPECT_TRUE(LogCapture::Find("DBG_LV[3][FCEMSProxy::UnsubscribeSignal] Destroy Call back Function\n"));
  FCEMSProxy* fresh = FCEMSProxy::GetInstance(FIIPCConnection::GetInstance(), RecordEvent);
  EXPECT_NE(fresh, ems_) << "the old instance is abandoned";
  EXPECT_EQ(FCEMSProxy::GetInstance(nullptr, nullptr), fresh) << "later arguments are ignored";

  // With nothing subscribed, unsubscribing takes the same branch; the bus has no such rule to remove.
  LogCapture::Clear();
  EXPECT_EQ(fresh->UnsubscribeSignal(42), -1);
  EXPECT_TRUE(LogCapture::Find("DBG_LV[3][FCEMSProxy::UnsubscribeSignal] Destroy Call back Function\n"));
  EXPECT_NE(testing::PrintToString(LogCapture::Lines()).find("DBG_LV[0]Error while adding match rule: "),
            std::string::npos) << "removal reports with the adding line";
}

TEST(EventsDeathTest, PayloadOverSixteenBytesEndsTheProcess) {
  FCMessageBuffer data;
  data.PushConcatenated(17, nullptr);
  EXPECT_DEATH(FCEMSProxy::OnEventReceived(1, data), "");
}

}  // namespace
