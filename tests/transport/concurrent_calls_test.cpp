// Several application threads calling at once share the one connection:
// each blocks until its own answer arrives, and no call is lost or mixed up.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "FCRemoteContentOnTV_Proxy.h"
#include "test_service.h"

namespace {

using zunde::testing::TestService;

using ConcurrentCalls = zunde::testing::ServiceTest;

TEST_F(ConcurrentCalls, EachThreadGetsItsOwnAnswers) {
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
        if (t % 2 ? proxy.SetPersonalUserID("thread-" + std::to_string(t)) : proxy.GetPersonalUserID(user) && user == "shared") ++succeeded;
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
