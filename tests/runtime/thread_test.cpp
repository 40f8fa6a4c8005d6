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
class BodyThread : public FCThread {
 public:
  explicit BodyThread(std::function<void(BodyThread&)> body) : m_body(std::move(body)) {}

 protected:
  void t_Main() override { m_body(*this); }

 private:
  std::function<void(BodyThread&)> m_body;
};

std::string CurrentThreadName() {
  char name[17] = {0};
  prctl(PR_GET_NAME, name, 0, 0, 0);
  return name;
}

int CurrentNice() { return getpriority(PRIO_PROCESS, static_cast<id_t>(syscall(SYS_gettid))); }

TEST(Thread, RunsItsBodyUnderItsNameAndDestroyWaitsForIt) {
  std::string name;
  bool ran = false;
  BodyThread thread([&](BodyThread&) {
    name = CurrentThreadName();
    ran = true;
  });
  ASSERT_TRUE(thread.Create("tuner", 64 * 1024));
  EXPECT_TRUE(thread.FlagCreate());
  thread.Destroy();  // returns only after the body
  EXPECT_TRUE(ran);
  EXPECT_EQ(name, "tuner");
  EXPECT_FALSE(thread.FlagCreate());
}

TEST(Thread, NameIsCutToFifteenCharacters) {
  std::string name;
  BodyThread thread([&](BodyThread&) { name = CurrentThreadName(); });
  ASSERT_TRUE(thread.Create("abcdefghijklmnopqrst", 0));
  thread.Destroy();
  EXPECT_EQ(name, "abcdefghijklmno");
}

TEST(Thread, IdIsTheThreadsOwnWhileRunningAndAllOnesAfter) {
  pthread_t seenInside = 0;
  BodyThread thread([&](BodyThread& self) { seenInside = self.Id() == FCThreadSelf::Id() ? self.Id() : 0; });
  ASSERT_TRUE(thread.Create("id", 0));
  thread.Destroy();
  EXPECT_NE(seenInside, static_cast<pthread_t>(0));
  EXPECT_EQ(thread.Id(), static_cast<pthread_t>(-1));
}

TEST(Thread, LowPriorityReachesTheNewThread) {
  FCSemaphore checked;
  ASSERT_TRUE(checked.Create(0));
  FCSemaphore prioritySet;
  ASSERT_TRUE(prioritySet.Create(0));
  int nice = -100;
  BodyThread thread([&](BodyThread&) {
    prioritySet.Take();
    nice = CurrentNice();
    checked.Give();
  });
  ASSERT_TRUE(thread.Create("low", 0));
  EXPECT_TRUE(thread.SetPriority(2));
  prioritySet.Give();
  checked.Take();
  thread.Destroy();
  EXPECT_EQ(nice, 10);
  checked.Destroy();
  prioritySet.Destroy();
}

TEST(Thread, UnknownPrioritiesAreRefused) {
  bool refused = false;
  BodyThread thread([&](BodyThread&) { refused = !FCThreadSelf::SetPriority(3) && !FCThreadSelf::SetPriority(-1); });
  ASSERT_TRUE(thread.Create("prio", 0));
  EXPECT_FALSE(thread.SetPriority(3));
  thread.Destroy();
  EXPECT_TRUE(refused);
}

TEST(ThreadDeathTest, DestroyFromItsOwnBodyEndsTheProcess) {
  EXPECT_DEATH(
      {
        BodyThread thread([](BodyThread& self) { self.Destroy(); });
        thread.Create("self", 0);
        pause();
      },
      "");
}

TEST(ThreadDeathTest, MisuseEndsTheProcess) {
  EXPECT_DEATH(
      {
        BodyThread thread([](BodyThread&) {});
        thread.Destroy();
      },
      "");
  EXPECT_DEATH(
      {
        BodyThread thread([](BodyThread&) {});
        thread.Create(nullptr, 0);
      },
      "");
}

}  // namespace
