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
using zunde::testing::ServiceTest;
using zunde::testing::TestService;

struct Received {
  int event;
  int param1;
  int param2;
  int param3;
};

std::vector<Received>& ReceivedEvents() {
  static std::vector<Received> events;
  return events;
}

int RecordEvent(int event, FSEventData data) {
  ReceivedEvents().push_back({event, data.param1, data.param2, data.param3});
  return 0;
}

// Runs the default main context until `count` events have arrived, or a
// generous bound has passed (then the expectations below fail).
void DispatchUntil(size_t count) {
  const gint64 end = g_get_monotonic_time() + 5 * G_USEC_PER_SEC;
  while (ReceivedEvents().size() < count && g_get_monotonic_time() < end) g_main_context_iteration(nullptr, FALSE);
}

// Gives signals that should not arrive their chance to.
void DispatchPending() {
  TestService::TakeCalls();  // a round trip: everything sent before it has reached the bus
  for (int i = 0; i < 100; ++i) g_main_context_iteration(nullptr, FALSE);
}

std::string Ints(std::initializer_list<int> values) {
  std::string bytes;
  for (int value : values) bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
  return bytes;
}

class Events : public ServiceTest {
 protected:
  void SetUp() override {
    ServiceTest::SetUp();
    ReceivedEvents().clear();
    LogCapture::Clear();
    ems_ = FCEMSProxy::GetInstance(FIIPCConnection::GetInstance(), RecordEvent);
  }
  void TearDown() override {
    for (int event : subscribed_) ems_->UnsubscribeSignal(event);
    ServiceTest::TearDown();
  }
  void Subscribe(int event) {
    ASSERT_EQ(ems_->SubscribeSignal(event), 0);
    subscribed_.push_back(event);
  }

  FCEMSProxy* ems_ = nullptr;
  std::vector<int> subscribed_;
};

struct PayloadCase {
  const char* name;
  std::string payload;
  Received expected;
};

// Names the case in test listings.
void PrintTo(const PayloadCase& c, std::ostream* os) { *os << c.name; }

class EventPayload : public Events, public ::testing::WithParamInterface<PayloadCase> {};

TEST_P(EventPayload, ReachesTheCallbackAsThreeParameters) {
  Subscribe(9);
  TestService::Emit("Event", "9", GetParam().payload);
  DispatchUntil(1);
  ASSERT_EQ(ReceivedEvents().size(), 1u);
  const Received& got = ReceivedEvents()[0];
  EXPECT_EQ(got.event, 9);
  EXPECT_EQ(got.param1, GetParam().expected.param1);
  EXPECT_EQ(got.param2, GetParam().expected.param2);
  EXPECT_EQ(got.param3, GetParam().expected.param3);
}

INSTANTIATE_TEST_SUITE_P(Payloads, EventPayload,
                         ::testing::Values(PayloadCase{"Empty", "", {9, -1, -1, -1}},
                                           PayloadCase{"OneInt", Ints({9}), {9, 9, 0, 0}},
                                           PayloadCase{"ThreeInts", Ints({1, -2, 300}), {9, 1, -2, 300}},
                                           PayloadCase{"SixteenBytes", Ints({4, 5, 6, 7}), {9, 4, 5, 6}}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(Events, OnlySubscribedEventsArrive) {
  Subscribe(7);
  TestService::Emit("Event", "8", "");
  TestService::Emit("Event", "7", "");
  DispatchUntil(1);
  DispatchPending();
  ASSERT_EQ(ReceivedEvents().size(), 1u);
  EXPECT_EQ(ReceivedEvents()[0].event, 7);
}

TEST_F(Events, UnsubscribedEventNoLongerArrives) {
  Subscribe(7);
  Subscribe(8);
  EXPECT_EQ(ems_->UnsubscribeSignal(7), 0);
  subscribed_ = {8};
  TestService::Emit("Event", "7", "");
  TestService::Emit("Event", "8", "");
  DispatchUntil(1);
  DispatchPending();
  ASSERT_EQ(ReceivedEvents().size(), 1u);
  EXPECT_EQ(ReceivedEvents()[0].event, 8);
}

TEST_F(Events, DataSignalsGoToTheDataCallbackOrAreDropped) {
  static std::vector<std::string> data;
  Subscribe(3);
  TestService::Emit("Data", "3", "dropped", FIIPCConnection::GetInstance()->GetConnectionId());
  DispatchPending();
  EXPECT_TRUE(ReceivedEvents().empty());

  FIIPCConnection::GetInstance()->SetDataCallbackFunction([](int id, FCMessageBuffer& payload) {
    data.push_back(std::to_string(id) + ":" + std::string(payload.GetAsCStr(0), payload.GetFullBufferSize()));
  });
  TestService::Emit("Data", "3", "kept", FIIPCConnection::GetInstance()->GetConnectionId());
  const gint64 end = g_get_monotonic_time() + 5 * G_USEC_PER_SEC;
  while (data.empty() && g_get_monotonic_time() < end) g_main_context_iteration(nullptr, FALSE);
  FIIPCConnection::GetInstance()->SetDataCallbackFunction(nullptr);
  EXPECT_EQ(data, std::vector<std::string>{"3:kept"});
  EXPECT_TRUE(ReceivedEvents().empty());
}

TEST_F(Events, SenderLoopsBackToTheProcesssOwnSubscription) {
  Subscribe(3);
  FCMessageBuffer data;
  data.PushInt(11);
  data.PushInt(12);
  EXPECT_TRUE(FIIPCManager::GetInstance()->Send(3, data));
  DispatchUntil(1);
  ASSERT_EQ(ReceivedEvents().size(), 1u);
  EXPECT_EQ(ReceivedEvents()[0].event, 3);
  EXPECT_EQ(ReceivedEvents()[0].param1, 11);
  EXPECT_EQ(ReceivedEvents()[0].param2, 12);
  EXPECT_EQ(ReceivedEvents()[0].param3, 0);
}

TEST_F(Events, UnsubscribingWhileOthersRemainReportsTheSize) {
  Subscribe(5);
  Subscribe(6);
  EXPECT_EQ(ems_->UnsubscribeSignal(5), 0);
  EXPECT_TRUE(LogCapture::Find(
      "DBG_LV[0][FCEMSProxy::UnsubscribeSignal] Subscribe and UnSubcribe number is different. m_eventList.size :1\n"));
  EXPECT_FALSE(LogCapture::Find("[FCEMSProxy::UnsubscribeSignal] Destroy Call back Function\n"));

  EXPECT_EQ(ems_->UnsubscribeSignal(6), 0);
  subscribed_.clear();
  EXPECT_TRUE(LogCapture::Find("DBG_LV[3][FCEMSProxy::UnsubscribeSignal] Destroy Call back Function\n"));
  EXPECT_TRUE(LogCapture::Find(" FCIPCConnection::UnSetEventCallbackFunction Called \n\n"));
}

TEST_F(Events, LastUnsubscribeDropsTheSubscriptionObject) {
  Subscribe(5);
  EXPECT_EQ(ems_->UnsubscribeSignal(5), 0);
  subscribed_.clear();
  FCEMSProxy* fresh = FCEMSProxy::GetInstance(FIIPCConnection::GetInstance(), RecordEvent);
  EXPECT_NE(fresh, ems_);
  EXPECT_EQ(FCEMSProxy::GetInstance(nullptr, nullptr), fresh) << "later arguments are ignored";
}

TEST_F(Events, UnsubscribingWithNothingSubscribedDestroysTheCallbackAndFailsOnTheBus) {
  EXPECT_EQ(ems_->UnsubscribeSignal(42), -1) << "the bus has no such rule to remove";
  EXPECT_TRUE(LogCapture::Find("[FCEMSProxy::UnsubscribeSignal] Destroy Call back Function\n"));
  bool sharedWording = false;
  for (const auto& line : LogCapture::Lines()) {
    sharedWording = sharedWording || line.find("DBG_LV[0]Error while adding match rule: ") != std::string::npos;
  }
  EXPECT_TRUE(sharedWording) << "removal reports with the adding line";
}

TEST_F(Events, SubscribingLogsTheEvent) {
  Subscribe(12);
  EXPECT_TRUE(LogCapture::Find("DBG_LV[3][FCEMSProxy::SubscribeSignal] Subscribe event : 12\n"));
  EXPECT_TRUE(LogCapture::Find(" FCIPCConnection::SetEventCallbackFunction Called \n\n"));
}

TEST(EventPayloadLimit, SeventeenBytesEndTheProcess) {
  FCMessageBuffer data;
  data.PushConcatenated(17, nullptr);
  EXPECT_DEATH(FCEMSProxy::OnEventReceived(1, data), "");
}

TEST(EventPayloadLimit, SixteenBytesAreAccepted) {
  ReceivedEvents().clear();
  FCEMSProxy::GetInstance(FIIPCConnection::GetInstance(), RecordEvent);
  FCMessageBuffer data;
  data.PushConcatenated(16, nullptr);
  FCEMSProxy::OnEventReceived(2, data);
  ASSERT_FALSE(ReceivedEvents().empty());
  EXPECT_EQ(ReceivedEvents().back().param1, 0);
}

}  // namespace
