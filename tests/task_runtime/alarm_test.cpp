#include <gtest/gtest.h>

#include <atomic>

#include "FCAlarm.h"
#include "FCStateAlarm.h"
#include "FCTimeWapper.h"
#include "recorder.h"

namespace {

constexpr unsigned long kLongMs = 60 * 1000;

class Watched : public FCStateAlarm {
 public:
  std::atomic<int> state{0};

 protected:
  int t_ReadState() override { return state; }
};

// A recorder task and an alarm posting event 5 to it, for one test.
template <typename Alarm>
struct AlarmOnTask {
  AlarmOnTask() {
    EXPECT_TRUE(task.Create("alarmed", 16));
    EXPECT_TRUE(alarm.Create(&task, FCEvent{5}));
  }
  // Ends both; what the task saw can be read afterwards.
  void End() {
    alarm.Destroy();
    task.Destroy();
  }
  Recorder task;
  Alarm alarm;
};

TEST(ThreadAlarm, OnceAlarmPostsOnceAfterItsDelayUnlessCancelled) {
  AlarmOnTask<FCAlarm> t;
  t.alarm.Start(20);
  t.alarm.Cancel();
  EXPECT_FALSE(t.task.handled.Try(100));
  t.alarm.Start(10);
  EXPECT_TRUE(t.alarm.IsArmed());
  EXPECT_TRUE(t.task.handled.Try(kLongMs));
  EXPECT_FALSE(t.task.handled.Try(100));
  EXPECT_FALSE(t.alarm.IsArmed());
  t.End();
  EXPECT_EQ(t.task.seen, std::vector<int>{5});
}

TEST(ThreadAlarm, PeriodicAlarmPostsUntilCancelled) {
  AlarmOnTask<FCAlarm> t;
  t.alarm.Start(5, true);
  for (int i = 0; i < 3; ++i) ASSERT_TRUE(t.task.handled.Try(kLongMs));
  t.alarm.Cancel();
  t.task.Send(FCEvent{99});
  FCTimeWrapper::Sleep(50);  // room for a post that Cancel failed to stop
  t.End();
  EXPECT_GE(t.task.seen.size(), 4u);
  EXPECT_EQ(t.task.seen.back(), 99);
}

TEST(ThreadAlarm, StateAlarmPostsOnlyWhenTheStateChanges) {
  AlarmOnTask<Watched> t;
  t.alarm.Start(5);
  FCTimeWrapper::Sleep(50);  // readings of an unchanged state
  t.alarm.state = 3;
  EXPECT_TRUE(t.task.handled.Try(kLongMs));
  t.End();
  EXPECT_EQ(t.task.seen, std::vector<int>{5});
  EXPECT_EQ(std::vector<int>({t.task.last.param1, t.task.last.param2}), std::vector<int>({3, 0}));
}

}  // namespace
