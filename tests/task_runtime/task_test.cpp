#include <gtest/gtest.h>

#include "FCTaskList.h"
#include "FCTimeWapper.h"
#include "recorder.h"

namespace {

// Notes the events it handles in the recorder's list, as their number + 100.
class Handler : public FCHandler {
  void t_OnEvent(FCTask& task, const FCEvent& event) override {
    static_cast<Recorder&>(task).seen.push_back(event.event + 100);
  }
};

// Handles each event slowly, then sends it on to the task "second".
class Forwarder : public FCTask {
 public:
  FCTaskList* tasks = nullptr;

 protected:
  void t_OnEvent(const FCEvent& event) override {
    FCTimeWrapper::Sleep(50);
    tasks->Find("second")->Send(event);
  }
};

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
  ASSERT_TRUE(tasks.Create());
  Forwarder first;
  Recorder second;
  first.tasks = &tasks;
  ASSERT_TRUE(first.Create("first", 4));
  ASSERT_TRUE(second.Create("second", 4));
  EXPECT_TRUE(tasks.Add(&first));
  EXPECT_TRUE(tasks.Add(&second));
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

TEST(TaskRuntimeDeathTest, UseBeforeCreateEndsTheProcess) {
  EXPECT_DEATH(FCQueue().Close(), "");
  EXPECT_DEATH(FCTask().Stop(), "");
  EXPECT_DEATH(FCTaskList().Find("task"), "");
}

}  // namespace
