// The runtime's threads and the semaphore and mutex they synchronise with.
#include <gtest/gtest.h>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <future>
#include <string>
#include <thread>

#include "FCThread.h"

namespace {

void OnFourThreads(const std::function<void()>& body) {
  std::thread threads[4];
  for (auto& thread : threads) thread = std::thread(body);
  for (auto& thread : threads) thread.join();
}

// Every Take waits for a Give of some thread: a lost count would hang one.
// Try takes a unit at once, within its time, or, given all ones, for ever.
TEST(Semaphore, ConcurrentThreadsCountEveryGiveAndTakeAndTryWaitsItsTime) {
  FCSemaphore semaphore;
  ASSERT_TRUE(semaphore.Create(0));
  OnFourThreads([&] {
    for (int i = 0; i < 250; ++i) semaphore.Give();
    for (int i = 0; i < 250; ++i) semaphore.Take();
  });
  EXPECT_FALSE(semaphore.Try(0));
  semaphore.Give();
  EXPECT_TRUE(semaphore.Try(0));
  EXPECT_FALSE(semaphore.Try(20));
  for (unsigned long ms : {60 * 1000UL, 0xFFFFFFFFUL}) {
    std::thread giver([&] { semaphore.Give(); });
    EXPECT_TRUE(semaphore.Try(ms)) << ms;
    giver.join();
  }
  EXPECT_FALSE(semaphore.Try(0));
  semaphore.Destroy();
}

// Locked twice and unlocked once, and unlocked by a thread that does not own
// it, the mutex is still held: another thread waits for the last Unlock.
TEST(Mutex, OwnerLocksAgainOnlyTheOwnerUnlocksAndConcurrentThreadsTakeTurns) {
  FCMutex mutex;
  ASSERT_TRUE(mutex.Create());
  mutex.Lock();
  mutex.Lock();
  mutex.Unlock();
  std::thread([&] { mutex.Unlock(); }).join();
  auto other = std::async(std::launch::async, [&] { mutex.Lock(); mutex.Unlock(); });
  EXPECT_EQ(other.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  mutex.Unlock();
  other.get();
  int counter = 0;
  OnFourThreads([&] {
    for (int i = 0; i < 500; ++i) {
      mutex.Lock();
      ++counter;
      mutex.Unlock();
    }
  });
  EXPECT_EQ(counter, 2000);
  mutex.Destroy();
}

// A thread that runs a given body.
struct BodyThread : FCThread {
  explicit BodyThread(std::function<void(BodyThread&)> run) : body(std::move(run)) {}
  void t_Main() override { body(*this); }
  std::function<void(BodyThread&)> body;
};

// The body waits until its priority is set, then reads its name and its nice
// value; Destroy returns only after the body.
TEST(Thread, RunsItsBodyUnderItsCutNameAtTheSetPriorityAndDestroyWaitsForIt) {
  FCSemaphore prioritySet;
  ASSERT_TRUE(prioritySet.Create(0));
  char name[17] = {0};
  int nice = -100;
  BodyThread thread([&](BodyThread&) {
    prioritySet.Take();
    prctl(PR_GET_NAME, name, 0, 0, 0);
    nice = getpriority(PRIO_PROCESS, static_cast<id_t>(syscall(SYS_gettid)));
  });
  ASSERT_TRUE(thread.Create("abcdefghijklmnopqrst", 64 * 1024));
  EXPECT_TRUE(thread.SetPriority(2));
  EXPECT_FALSE(thread.SetPriority(3));
  EXPECT_FALSE(FCThreadSelf::SetPriority(-1));
  prioritySet.Give();
  thread.Destroy();
  EXPECT_EQ(std::string(name) + ", nice " + std::to_string(nice), "abcdefghijklmno, nice 10");
  EXPECT_EQ(thread.Id(), static_cast<pthread_t>(-1));  // once the body has returned
  prioritySet.Destroy();
}

// The body's own id is the thread's, which the check in Destroy compares.
TEST(ThreadDeathTest, DestroyFromItsOwnBodyEndsTheProcess) {
  BodyThread thread([](BodyThread& self) { self.Destroy(); });
  EXPECT_DEATH(thread.Create("self", 0) && pause(), "");  // pause: wait for the body
}

}  // namespace
