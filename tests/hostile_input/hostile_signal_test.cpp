// Hostile "Event" signals through the subscription path: payloads of at most
// 16 bytes reach the callback, longer ones end the process by design, and
// one too large for the bus never arrives.
#include <glib.h>
#include <gtest/gtest.h>

#include "FCEMSProxy.h"
#include "FCIPCConnection.h"
#include "hostile_input.h"
#include "test_service.h"

namespace {

using namespace zunde::testing;

std::vector<std::string> received;  // "event:param1,param2,param3"

int Record(int event, FSEventData data) {
  received.push_back(std::to_string(event) + ":" + std::to_string(data.param1) + "," + std::to_string(data.param2) +
                     "," + std::to_string(data.param3));
  return 0;
}

// Dispatches for at most 5 s, until `done`.
template <typename Done>
void DispatchUntil(Done done) {
  const gint64 end = g_get_monotonic_time() + 5 * G_USEC_PER_SEC;
  while (!done() && g_get_monotonic_time() < end) g_main_context_iteration(nullptr, FALSE);
}

struct SignalRow {
  std::string name, first, payload;
  uint32_t padTo;
  std::string expected;  // what reached the callback; "abort" ends the process
};
const SignalRow kRows[] = {
    {"Empty", "3", "", 0, "3:-1,-1,-1"},
    {"NotUtf8ShorterThanAnInt", "3", "\xff\xfe\xfd", 0, "3:0,0,0"},
    {"SixteenBytes", "3", std::string("\1\0\0\0\2\0\0\0\3\0\0\0\4\0\0\0", 16), 0, "3:1,2,3"},
    {"EventNotANumber", "x9", "", 0, "0:-1,-1,-1"},
    {"TruncatedJson", "3", R"({"ret": true, "title)", 0, "abort"},
    {"Nested100k", "3", std::string(100000, '['), 0, "abort"},
    {"UnderBusLimit", "3", "", kBusLimit - 4096, "abort"},
    {"OverBusLimit", "3", "", kBusLimit + 1, ""},
};

class HostileSignal : public ::testing::TestWithParam<SignalRow> {
 protected:
  static void SetUpTestSuite() {
    TestService::Start();
    FCEMSProxy::GetInstance(FIIPCConnection::GetInstance(), Record)->SubscribeSignal(3);
  }
  static void TearDownTestSuite() { TestService::Stop(); }
};

TEST_P(HostileSignal, ReachesTheCallbackOrEndsAsPinned) {
  const SignalRow& row = GetParam();
  received.clear();
  TestService::PadPayloads(row.padTo);
  TestService::Emit("Event", row.first, row.payload, FIIPCConnection::GetInstance()->GetConnectionId());
  if (row.expected == "abort") {
    EXPECT_DEATH(DispatchUntil([] { return false; }), EndedByDesign());
    TestService::PadPayloads(0);
    return;
  }
  if (row.padTo > kBusLimit) {  // the bus has dropped the service for sending too much
    TestService::Stop();
    TestService::Start();
  }
  TestService::PadPayloads(0);
  // Event 4 follows as a marker: once it is back, everything sent before it is.
  TestService::Emit("Event", "4", "", FIIPCConnection::GetInstance()->GetConnectionId());
  DispatchUntil([] { return !received.empty() && received.back() == "4:-1,-1,-1"; });
  std::vector<std::string> expected{"4:-1,-1,-1"};
  if (!row.expected.empty()) expected.insert(expected.begin(), row.expected);
  EXPECT_EQ(received, expected);
}
INSTANTIATE_TEST_SUITE_P(EventPath, HostileSignal, ::testing::ValuesIn(kRows),
                         [](const auto& info) { return info.param.name; });

}  // namespace
