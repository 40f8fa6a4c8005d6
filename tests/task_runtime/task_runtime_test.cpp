#include <gtest/gtest.h>

#include <atomic>
#include <vector>

#include "FCAlarm.h"
#include "FCStateAlarm.h"
#include "FCTaskList.h"
#include "FCTimeWapper.h"

namespace {

constexpr unsigned long kLongMs = 60 * 1000;

// The numbers of the events queued now, in the order they are received.
std::vector<int> Drain(FCQueue& queue) {
  std::vector<int> numbers;
  FCEvent event;
  while (queue.Receive(&event, 0) == FCQueue::eOk) numbers.push_back(event.event);
  return numbers;
}

// Notes, on its own thread, the number of every event t_OnEvent is handed and
// gives `handled` after each; an event with param1 kHold gives `started`, then
// waits for `gate`. What it noted is read after its Destroy.
class Recorder : public FCTask {
 public:
  static constexpr int kHold = 1;
  Recorder() {
    for (FCSemaphore* semaphore : {&started, &gate, &handled}) semaphore->Create(0);
  }
  ~Recorder() override {
    for (FCSemaphore* semaphore : {&started, &gate, &handled}) semaphore->Destroy();
  }
  std::vector<int> seen;
  FCEvent last;
  FCSemaphore started, gate, handled;

 protected:
  void t_OnEvent(const FCEvent& event) override {
    seen.push_back(event.event);
    last = event;
    if (event.param1 == kHold) started.Give(), gate.Take();
    handled.Give();
  }
};

// Notes the events it handles in the recorder's list, as their number + 100.
class Handler : public FCHandler {
  void t_OnEvent(FCTask& task, const FCEvent& event) override {
    static_cast<Recorder&>(task).seen.push_back(event.event + 100);
  }
};

// Handles each event slowly, then sends it on to the task "second".
struct Forwarder : FCTask {
  FCTaskList* tasks = nullptr;
  void t_OnEvent(const FCEvent& event) override {
    FCTimeWrapper::Sleep(50);
    tasks->Find("second")->Send(event);
  }
};

struct Watched : FCStateAlarm {
  std::atomic<int> state{0};
  int t_ReadState() override { return state; }
};

// A recorder task and an alarm posting event 5 to it.
template <typename Alarm>
struct AlarmOnTask {
  AlarmOnTask() {
    EXPECT_TRUE(task.Create("alarmed", 16));
    EXPECT_TRUE(alarm.Create(&task, FCEvent{5}));
  }
  void End() {
    alarm.Destroy();
    task.Destroy();
  }
  Recorder task;
  Alarm alarm;
};

TEST(Queue, HighestPriorityFirstThenInTheOrderSentUpToItsCapacity) {
  FCQueue queue;
  ASSERT_TRUE(queue.Create(6));
  const int kSent[][2] = {{1, FCQueue::ePriorityLow}, {2, FCQueue::ePriorityNormal}, {3, FCQueue::ePriorityHigh},
                          {4, FCQueue::ePriorityLow}, {5, FCQueue::ePriorityHigh},   {6, FCQueue::ePriorityNormal}};
  for (const auto& sent : kSent) EXPECT_EQ(queue.Send(FCEvent{sent[0], 10, 20, 30}, sent[1]), FCQueue::eOk);
  EXPECT_EQ(queue.Send(FCEvent{7}, FCQueue::ePriorityHigh), FCQueue::eFull);
  FCEvent event;
  ASSERT_EQ(queue.Receive(&event, 0), FCQueue::eOk);
  EXPECT_EQ(std::vector<int>({event.event, event.param1, event.param2, event.param3}),
            std::vector<int>({3, 10, 20, 30}));
  EXPECT_EQ(queue.Send(FCEvent{7}, FCQueue::ePriorityLow), FCQueue::eOk);
  EXPECT_EQ(Drain(queue), (std::vector<int>{5, 2, 6, 1, 4, 7}));
  queue.Destroy();
}

TEST(Queue, TimesOutWhenEmptyAndOnceClosedHandsOutWhatItHoldsThenAnswersClosed) {
  FCQueue queue;
  ASSERT_TRUE(queue.Create(4));
  FCEvent event;
  EXPECT_EQ(queue.Receive(&event, 20), FCQueue::eTimeOut);
  queue.Send(FCEvent{1});
  queue.Close();
  EXPECT_EQ(queue.Send(FCEvent{2}), FCQueue::eClosed);
  EXPECT_EQ(Drain(queue), std::vector<int>{1});
  EXPECT_EQ(queue.Receive(&event, FCQueue::WAIT_FOREVER), FCQueue::eClosed);
  EXPECT_EQ(queue.Receive(&event, FCQueue::WAIT_FOREVER), FCQueue::eClosed);
  queue.Destroy();
}

TEST(ThreadTask, HandsEachEventToItsHandlerOrElseToOnEvent) {
  Recorder task;
  Handler handler;
  ASSERT_TRUE(task.Create("recorder", 4));
  task.SetHandler(2, &handler);
  for (int number : {1, 2, 3}) task.Send(FCEvent{number});
  task.Destroy();
  EXPECT_EQ(task.seen, (std::vector<int>{1, 102, 3}));
}

TEST(ThreadTask, StoppingHandlesWhatIsQueuedByPriorityAndRefusesMore) {
  Recorder task;
  ASSERT_TRUE(task.Create("recorder", 4));
  task.Send(FCEvent{1, Recorder::kHold});
  task.started.Take();
  task.Send(FCEvent{2}, FCQueue::ePriorityLow);
  task.Send(FCEvent{3}, FCQueue::ePriorityHigh);
  task.Stop();
  EXPECT_EQ(task.Send(FCEvent{4}), FCQueue::eClosed);
  task.gate.Give();
  task.Destroy();
  EXPECT_EQ(task.seen, (std::vector<int>{1, 3, 2}));
}

TEST(ThreadTaskList, FindsTasksByNameAndStopsThemInTheOrderAdded) {
  FCTaskList tasks;
  Forwarder first;
  Recorder second;
  first.tasks = &tasks;
  ASSERT_TRUE(tasks.Create() && first.Create("first", 4) && second.Create("second", 4));
  EXPECT_TRUE(tasks.Add(&first) && tasks.Add(&second));
  EXPECT_FALSE(tasks.Add(&second));
  EXPECT_EQ(tasks.Find("second"), &second);
  EXPECT_EQ(tasks.Find("third"), nullptr);
  first.Send(FCEvent{9});
  tasks.StopAll();  // "first" still finds "second" while it finishes
  EXPECT_FALSE(first.FlagCreate() || second.FlagCreate());
  EXPECT_EQ(tasks.Find("second"), nullptr);
  EXPECT_EQ(second.seen, std::vector<int>{9});
  tasks.Destroy();
}

TEST(ThreadAlarm, OnceAlarmPostsOnceAfterItsDelayUnlessCancelled) {
  AlarmOnTask<FCAlarm> t;
  t.alarm.Start(20);
  t.alarm.Cancel();
  EXPECT_FALSE(t.task.handled.Try(100));
  t.alarm.Start(10);
  EXPECT_TRUE(t.task.handled.Try(kLongMs));
  EXPECT_FALSE(t.task.handled.Try(100));
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
