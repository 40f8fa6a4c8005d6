// Threads share the one connection: each gets exactly its own replies, and a
// slow call holds up no other thread's call.
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

// libdbus writes a second thread's call only once the thread waiting for its
// own reply wakes from poll, which incoming messages make it do. With such
// traffic the fast call goes through while the slow one waits; a lock of ours
// around calls would hold it up until the slow reply.
TEST_F(Concurrent, ASlowCallHoldsUpNoOtherThreadsCallOnceTheConnectionHasTraffic) {
  TestService::Reply("GetPersonalUserID", kUserReply, 0, -1, 4000);
  auto slow = std::async(std::launch::async, CallForUser);
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  auto fast = std::async(std::launch::async, [this] { return Echoed(api_, "fast"); });
  const std::string library = FIIPCConnection::GetInstance()->GetConnectionId();
  // Each message wakes the waiting thread once, and the fast call's thread
  // must win the race for the connection then: traffic in quick succession,
  // for as long as the slow call waits at most.
  const auto giveUp = std::chrono::steady_clock::now() + std::chrono::milliseconds(3400);
  while (fast.wait_for(std::chrono::milliseconds(2)) != std::future_status::ready &&
         std::chrono::steady_clock::now() < giveUp)
    TestService::Emit("Event", "7", "", library);
  EXPECT_EQ(fast.wait_for(std::chrono::seconds(0)), std::future_status::ready);
  EXPECT_EQ(slow.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
  EXPECT_TRUE(fast.get());
  EXPECT_TRUE(slow.get());
}

}  // namespace
