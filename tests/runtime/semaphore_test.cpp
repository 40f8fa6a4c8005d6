#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "FCThread.h"

namespace {

// A semaphore made for one test and destroyed with it.
class CountedSemaphore {
 public:
  explicit CountedSemaphore(int count) { EXPECT_TRUE(semaphore.Create(count)); }
  ~CountedSemaphore() {
    if (semaphore.FlagCreate()) semaphore.Destroy();
  }
  FCSemaphore semaphore;
};

constexpr unsigned long kForever = 0xFFFFFFFFUL;

TEST(Semaphore, CreateAndDestroySetTheFlag) {
  FCSemaphore semaphore;
  EXPECT_FALSE(semaphore.FlagCreate());
  ASSERT_TRUE(semaphore.Create(0));
  EXPECT_TRUE(semaphore.FlagCreate());
  semaphore.Destroy();
  EXPECT_FALSE(semaphore.FlagCreate());
}

TEST(Semaphore, TryZeroAnswersAtOnce) {
  CountedSemaphore counted(1);
  EXPECT_TRUE(counted.semaphore.Try(0));
  EXPECT_FALSE(counted.semaphore.Try(0));
  counted.semaphore.Give();
  EXPECT_TRUE(counted.semaphore.Try(0));
}

TEST(Semaphore, TryWithATimeOutGivesUpWhenNoUnitComes) {
  CountedSemaphore counted(0);
  EXPECT_FALSE(counted.semaphore.Try(20));
}

TEST(Semaphore, TryWithATimeOutTakesAUnitGivenMeanwhile) {
  CountedSemaphore counted(0);
  std::thread giver([&] { counted.semaphore.Give(); });
  EXPECT_TRUE(counted.semaphore.Try(60 * 1000));
  giver.join();
}

TEST(Semaphore, TryForeverWaitsLikeTake) {
  CountedSemaphore counted(0);
  std::atomic<bool> taken{false};
  std::thread taker([&] { taken = counted.semaphore.Try(kForever); });
  counted.semaphore.Give();
  taker.join();
  EXPECT_TRUE(taken);
  EXPECT_FALSE(counted.semaphore.Try(0));
}

TEST(Semaphore, CountsEveryGive) {
  CountedSemaphore counted(0);
  const int kThreads = 4;
  const int kGivesEach = 250;
  std::thread givers[kThreads];
  for (auto& giver : givers) {
    giver = std::thread([&] {
      for (int i = 0; i < kGivesEach; ++i) counted.semaphore.Give();
    });
  }
  for (int i = 0; i < kThreads * kGivesEach; ++i) counted.semaphore.Take();
  for (auto& giver : givers) giver.join();
  EXPECT_FALSE(counted.semaphore.Try(0));
}

TEST(SemaphoreDeathTest, MisuseEndsTheProcess) {
  EXPECT_DEATH(
      {
        FCSemaphore semaphore;
        semaphore.Take();
      },
      "");
  EXPECT_DEATH(
      {
        FCSemaphore semaphore;
        semaphore.Create(0);
        semaphore.Create(0);
      },
      "");
  EXPECT_DEATH(
      {
        FCSemaphore semaphore;
        semaphore.Create(0);
      },  // destructed without Destroy
      "");
}

// With `mutex` held once by the caller: another thread must wait for the
// caller's last Unlock before it gets the lock.
void ExpectOtherThreadWaitsForTheLastUnlock(FCMutex& mutex) {
  std::atomic<bool> acquired{false};
  std::thread other([&] {
    mutex.Lock();
    acquired = true;
    mutex.Unlock();
  });
  EXPECT_FALSE(acquired);
  mutex.Unlock();
  other.join();
  EXPECT_TRUE(acquired);
}

TEST(Mutex, OwnerMayLockAgainAndMustUnlockAsOften) {
  FCMutex mutex;
  ASSERT_TRUE(mutex.Create());
  mutex.Lock();
  mutex.Lock();
  mutex.Unlock();
  ExpectOtherThreadWaitsForTheLastUnlock(mutex);
  mutex.Destroy();
}

TEST(Mutex, UnlockByAnotherThreadDoesNothing) {
  FCMutex mutex;
  ASSERT_TRUE(mutex.Create());
  mutex.Lock();
  std::thread([&] { mutex.Unlock(); }).join();
  ExpectOtherThreadWaitsForTheLastUnlock(mutex);
  mutex.Destroy();
}

TEST(Mutex, KeepsACounterConsistentAcrossThreads) {
  FCMutex mutex;
  ASSERT_TRUE(mutex.Create());
  int counter = 0;
  std::thread workers[4];
  for (auto& worker : workers) {
    worker = std::thread([&] {
      for (int i = 0; i < 500; ++i) {
        mutex.Lock();
        mutex.Lock();
        ++counter;
        mutex.Unlock();
        mutex.Unlock();
      }
    });
  }
  for (auto& worker : workers) worker.join();
  EXPECT_EQ(counter, 2000);
  mutex.Destroy();
}

TEST(MutexDeathTest, LockBeforeCreateEndsTheProcess) {
  EXPECT_DEATH(
      {
        FCMutex mutex;
        mutex.Lock();
      },
      "");
}

}  // namespace
