#include <gtest/gtest.h>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <functional>
#include <string>

#include "FCThread.h"

namespace {

// A thread that runs a given body.
struct BodyThread : FCThread {
  explicit BodyThread(std::function<void(BodyThread&)> run) : body(std::move(run)) {}
  void t_Main() override { body(*this); }
  std::function<void(BodyThread&)> body;
};

TEST(Thread, RunsItsBodyUnderItsCutNameAndDestroyWaitsForIt) {
  char name[17] = {0};
  bool ownId = false;
  BodyThread thread([&](BodyThread& self) {
    prctl(PR_GET_NAME, name, 0, 0, 0);
    ownId = self.Id() == FCThreadSelf::Id();
  });
  ASSERT_TRUE(thread.Create("abcdefghijklmnopqrst", 64 * 1024));
  thread.Destroy();  // returns only after the body
  EXPECT_STREQ(name, "abcdefghijklmno");
  EXPECT_TRUE(ownId);
  EXPECT_EQ(thread.Id(), static_cast<pthread_t>(-1));  // once the body has returned
}

// The new thread waits until its priority is set, then reads its own.
TEST(Thread, LowPriorityReachesTheNewThreadAndUnknownOnesAreRefused) {
  FCSemaphore prioritySet;
  ASSERT_TRUE(prioritySet.Create(0));
  int nice = -100;
  BodyThread thread([&](BodyThread&) {
    prioritySet.Take();
    nice = getpriority(PRIO_PROCESS, static_cast<id_t>(syscall(SYS_gettid)));
  });
  ASSERT_TRUE(thread.Create("low", 0));
  EXPECT_TRUE(thread.SetPriority(2));
  EXPECT_FALSE(thread.SetPriority(3));
  EXPECT_FALSE(FCThreadSelf::SetPriority(-1));
  prioritySet.Give();
  thread.Destroy();
  EXPECT_EQ(nice, 10);
  prioritySet.Destroy();
}

TEST(ThreadDeathTest, DestroyFromItsOwnBodyEndsTheProcess) {
  BodyThread thread([](BodyThread& self) { self.Destroy(); });
  EXPECT_DEATH(thread.Create("self", 0) && pause(), "");  // pause: wait for the body
}

}  // namespace
