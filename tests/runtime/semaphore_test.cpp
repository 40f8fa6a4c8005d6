#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <future>
#include <thread>

#include "FCThread.h"

namespace {

void OnFourThreads(const std::function<void()>& body) {
  std::thread threads[4];
  for (auto& thread : threads) thread = std::thread(body);
  for (auto& thread : threads) thread.join();
}

// All ones is for ever: Try then waits like Take.
TEST(Semaphore, TryTakesAUnitAtOnceWithinItsTimeOrForever) {
  FCSemaphore semaphore;
  ASSERT_TRUE(semaphore.Create(1));
  EXPECT_TRUE(semaphore.Try(0));
  EXPECT_FALSE(semaphore.Try(0));
  EXPECT_FALSE(semaphore.Try(20));
  for (unsigned long ms : {60 * 1000UL, 0xFFFFFFFFUL}) {
    std::thread giver([&] { semaphore.Give(); });
    EXPECT_TRUE(semaphore.Try(ms)) << ms;
    giver.join();
  }
  EXPECT_FALSE(semaphore.Try(0));
  semaphore.Destroy();
}

// Every Take waits for a Give of some thread; a lost count would hang one.
TEST(Semaphore, CountsEveryGiveAndTakeOfConcurrentThreads) {
  FCSemaphore semaphore;
  ASSERT_TRUE(semaphore.Create(0));
  OnFourThreads([&] {
    for (int i = 0; i < 250; ++i) semaphore.Give();
    for (int i = 0; i < 250; ++i) semaphore.Take();
  });
  EXPECT_FALSE(semaphore.Try(0));
  semaphore.Destroy();
}

TEST(SemaphoreDeathTest, CreatingTwiceOrDestructingWithoutDestroyEndsTheProcess) {
  EXPECT_DEATH([] { FCSemaphore s; s.Create(0); s.Create(0); }(), "");
  EXPECT_DEATH([] { FCSemaphore s; s.Create(0); }(), "");
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
  auto other = std::async(std::launch::async, [&] {
    mutex.Lock();
    mutex.Unlock();
  });
  EXPECT_EQ(other.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  mutex.Unlock();
  other.get();

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
