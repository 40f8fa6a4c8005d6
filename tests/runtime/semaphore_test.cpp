#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <future>
#include <thread>

#include "FCThread.h"

namespace {

// A semaphore made for one test and destroyed with it.
class CountedSemaphore {
 public:
  explicit CountedSemaphore(int count) { EXPECT_TRUE(semaphore.Create(count)); }
  ~CountedSemaphore() { semaphore.Destroy(); }
  FCSemaphore semaphore;
};

void OnFourThreads(const std::function<void()>& body) {
  std::thread threads[4];
  for (auto& thread : threads) thread = std::thread(body);
  for (auto& thread : threads) thread.join();
}

TEST(Semaphore, TryWithoutAUnitGivesUpAtOnceOrAfterItsTime) {
  CountedSemaphore counted(1);
  EXPECT_TRUE(counted.semaphore.Try(0));
  EXPECT_FALSE(counted.semaphore.Try(0));
  EXPECT_FALSE(counted.semaphore.Try(20));
  counted.semaphore.Give();
  EXPECT_TRUE(counted.semaphore.Try(0));
}

// All ones is for ever: Try then waits like Take.
TEST(Semaphore, TryWithATimeOutOrForeverTakesAUnitGivenMeanwhile) {
  for (unsigned long ms : {60 * 1000UL, 0xFFFFFFFFUL}) {
    CountedSemaphore counted(0);
    std::thread giver([&] { counted.semaphore.Give(); });
    EXPECT_TRUE(counted.semaphore.Try(ms)) << ms;
    giver.join();
    EXPECT_FALSE(counted.semaphore.Try(0));
  }
}

// Every Take waits for a Give of some thread; a lost count would hang one.
TEST(Semaphore, CountsEveryGiveAndTakeOfConcurrentThreads) {
  CountedSemaphore counted(0);
  OnFourThreads([&] {
    for (int i = 0; i < 250; ++i) counted.semaphore.Give();
    for (int i = 0; i < 250; ++i) counted.semaphore.Take();
  });
  EXPECT_FALSE(counted.semaphore.Try(0));
}

TEST(SemaphoreDeathTest, CreatingTwiceOrDestructingWithoutDestroyEndsTheProcess) {
  EXPECT_DEATH([] { FCSemaphore s; s.Create(0); s.Create(0); }(), "");
  EXPECT_DEATH([] { FCSemaphore s; s.Create(0); }(), "");
}

// Locked twice and unlocked once, and unlocked by a thread that does not own
// it: the mutex is still held, and another thread waits for the last Unlock.
TEST(Mutex, OwnerLocksAgainAndOnlyTheOwnerUnlocks) {
  FCMutex mutex;
  ASSERT_TRUE(mutex.Create());
  mutex.Lock();
  mutex.Lock();
  mutex.Unlock();
  std::thread([&] { mutex.Unlock(); }).join();
  auto other = std::async(std::launch::async, [&] {
    mutex.Lock();
    mutex.Unlock();
  });
  EXPECT_EQ(other.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  mutex.Unlock();
  other.get();
  mutex.Destroy();
}

TEST(Mutex, KeepsACounterConsistentAcrossConcurrentThreads) {
  FCMutex mutex;
  ASSERT_TRUE(mutex.Create());
  int counter = 0;
  OnFourThreads([&] {
    for (int i = 0; i < 500; ++i) {
      mutex.Lock();
      mutex.Lock();
      ++counter;
      mutex.Unlock();
      mutex.Unlock();
    }
  });
  EXPECT_EQ(counter, 2000);
  mutex.Destroy();
}

}  // namespace
