// Threads calling at once: each gets exactly its own replies, and a slow call
// holds up no other thread's call.
#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>
#include <vector>

#include "BrisvelDefine.h"
#include "FCIPCConnection.h"
#include "FCRemoteContent_MSOAPI.h"
#include "fault_fixture.h"

namespace {

using namespace zunde::testing;

const int kThreads = 8;
const int kCallsPerThread = 1500;

// The echoed pass-through call: true when the reply is the request itself.
bool Echoed(FCRemoteContent_MSOAPI* api, const std::string& request) {
  std::string reply;
  return api->GetFullChannelList(request, reply) && reply == request;
}

class Concurrent : public FaultTest {
 protected:
  void SetUp() override {
    FaultTest::SetUp();
    TestService::Start();
    TestService::Echo("GetFullChannelList");
  }
  FCRemoteContent_MSOAPI* api_ = FCAPI::GetRemoteContentMSOAPI();
};

TEST_F(Concurrent, EightThreadsOnTheSharedConnectionEachGetTheirOwnReplies) {
  setenv("ZUNDE_SLOW_CALL_MS", "60000", 1);  // every call is watched too
  std::vector<std::future<int>> wrongReplies;
  for (int t = 0; t < kThreads; ++t) {
    wrongReplies.push_back(std::async(std::launch::async, [this, t] {
      int wrong = 0;
      const std::string padding(t * 100, char('a' + t));  // replies of different sizes interleave
      for (int i = 0; i < kCallsPerThread; ++i)
        wrong += !Echoed(api_, std::to_string(t) + ":" + std::to_string(i) + ":" + padding);
      return wrong;
    }));
  }
  for (auto& wrong : wrongReplies) EXPECT_EQ(wrong.get(), 0);
  unsetenv("ZUNDE_SLOW_CALL_MS");
}

// Waits, bounded by time, until the service has received `count` calls of `member`.
bool ReceivedWithin(const std::string& member, std::size_t count, std::chrono::milliseconds limit) {
  const auto giveUp = std::chrono::steady_clock::now() + limit;
  std::size_t seen = 0;
  while (std::chrono::steady_clock::now() < giveUp) {
    for (const ReceivedCall& call : TestService::TakeCalls()) seen += call.member == member;
    if (seen >= count) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return false;
}

// A call waits only for its own reply: with a slow call in flight and
// nothing else on the bus to wake its thread, another thread's call is
// written and answered at once.
TEST_F(Concurrent, ASlowCallHoldsUpNoOtherThreadsCall) {
  TestService::Reply("GetPersonalUserID", kUserReply, 0, -1, 2000);
  auto slow = std::async(std::launch::async, CallForUser);
  ASSERT_TRUE(ReceivedWithin("GetPersonalUserID", 1, std::chrono::seconds(5)));
  auto fast = std::async(std::launch::async, [this] { return Echoed(api_, "fast"); });
  ASSERT_EQ(fast.wait_for(std::chrono::seconds(10)), std::future_status::ready);
  EXPECT_EQ(slow.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
  EXPECT_TRUE(fast.get());
  EXPECT_TRUE(slow.get());
}

// The process opens at most eight connections besides its own: nine calls
// reach the service at once, and the others wait for a free connection.
TEST_F(Concurrent, CallsPastTheSpareConnectionsWaitForAFreeOne) {
  TestService::Reply("GetPersonalUserID", kUserReply, 0, -1, 3000);
  std::vector<std::future<bool>> calls;
  for (int i = 0; i < 12; ++i) calls.push_back(std::async(std::launch::async, CallForUser));
  ASSERT_TRUE(ReceivedWithin("GetPersonalUserID", 9, std::chrono::milliseconds(2500)));
  EXPECT_FALSE(ReceivedWithin("GetPersonalUserID", 1, std::chrono::milliseconds(300)));
  for (auto& call : calls) EXPECT_TRUE(call.get());
}

}  // namespace
