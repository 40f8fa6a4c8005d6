// Several application threads calling at once share the one connection:
// each blocks until its own answer arrives, and no call is lost or mixed up.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "FCRemoteContentOnTV_Proxy.h"
#include "test_service.h"

namespace {

using zunde::testing::ServiceTest;
using zunde::testing::TestService;

class ConcurrentCalls : public ServiceTest {};

TEST_F(ConcurrentCalls, EachThreadGetsItsOwnAnswers) {
  TestService::Reply("GetPersonalUserID", R"({"ret": true, "in_user_id": "shared"})");
  TestService::Reply("SetPersonalUserID", R"({"ret": true})");
  constexpr int kThreads = 4;
  constexpr int kCallsPerThread = 25;
  std::atomic<int> succeeded{0};
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([t, &succeeded] {
      FCRemoteContentOnTV_Proxy proxy;
      for (int i = 0; i < kCallsPerThread; ++i) {
        std::string user;
        const bool got = (t % 2 == 0) ? proxy.GetPersonalUserID(user) && user == "shared"
                                      : proxy.SetPersonalUserID("thread-" + std::to_string(t));
        if (got) ++succeeded;
      }
    });
  }
  for (auto& thread : threads) thread.join();

  EXPECT_EQ(succeeded.load(), kThreads * kCallsPerThread);
  const auto calls = TestService::TakeCalls();
  ASSERT_EQ(calls.size(), static_cast<size_t>(kThreads * kCallsPerThread));
  int sets = 0;
  for (const auto& call : calls) {
    if (call.member == "SetPersonalUserID") {
      ++sets;
      EXPECT_NE(call.payload.find("\"thread-"), std::string::npos) << call.payload;
    }
  }
  EXPECT_EQ(sets, kThreads / 2 * kCallsPerThread);
}

}  // namespace
