#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "FCQueue.h"

namespace {

constexpr unsigned long kLongMs = 60 * 1000;

// A queue made for one test and destroyed with it.
struct Queue {
  explicit Queue(unsigned long capacity) { EXPECT_TRUE(queue.Create(capacity)); }
  ~Queue() { queue.Destroy(); }
  FCQueue queue;
};

// The numbers of the events queued now, in the order they are received.
std::vector<int> Drain(FCQueue& queue) {
  std::vector<int> numbers;
  FCEvent event;
  while (queue.Receive(&event, 0) == FCQueue::eOk) numbers.push_back(event.event);
  return numbers;
}

TEST(Queue, HighestPriorityFirstThenInTheOrderSent) {
  Queue q(8);
  const int kSent[][2] = {{1, FCQueue::ePriorityLow},  {2, FCQueue::ePriorityNormal}, {3, FCQueue::ePriorityHigh},
                          {4, FCQueue::ePriorityLow},  {5, FCQueue::ePriorityHigh},   {6, FCQueue::ePriorityNormal}};
  for (const auto& sent : kSent) EXPECT_EQ(q.queue.Send(FCEvent{sent[0]}, sent[1]), FCQueue::eOk);
  EXPECT_EQ(Drain(q.queue), (std::vector<int>{3, 5, 2, 6, 1, 4}));
}

TEST(Queue, FullQueueRefusesUntilAnEventIsTaken) {
  Queue q(2);
  EXPECT_EQ(q.queue.Send(FCEvent{1, 10, 20, 30}), FCQueue::eOk);
  EXPECT_EQ(q.queue.Send(FCEvent{2}), FCQueue::eOk);
  EXPECT_EQ(q.queue.Send(FCEvent{3}, FCQueue::ePriorityHigh), FCQueue::eFull);
  FCEvent event;
  ASSERT_EQ(q.queue.Receive(&event, 0), FCQueue::eOk);
  EXPECT_EQ(std::vector<int>({event.event, event.param1, event.param2, event.param3}),
            std::vector<int>({1, 10, 20, 30}));
  EXPECT_EQ(q.queue.Send(FCEvent{3}), FCQueue::eOk);
  EXPECT_EQ(Drain(q.queue), (std::vector<int>{2, 3}));
}

TEST(Queue, ReceiveTimesOutWhenNothingComes) {
  Queue q(1);
  FCEvent event;
  EXPECT_EQ(q.queue.Receive(&event, 0), FCQueue::eTimeOut);
  EXPECT_EQ(q.queue.Receive(&event, 20), FCQueue::eTimeOut);
}

TEST(ThreadQueue, WaitingReceiverGetsAnEventSentMeanwhile) {
  Queue q(1);
  std::thread sender([&] { q.queue.Send(FCEvent{7}); });
  FCEvent event;
  EXPECT_EQ(q.queue.Receive(&event, kLongMs), FCQueue::eOk);
  EXPECT_EQ(event.event, 7);
  sender.join();
}

TEST(Queue, ClosedQueueHandsOutWhatItHoldsThenAnswersClosed) {
  Queue q(4);
  q.queue.Send(FCEvent{1});
  q.queue.Send(FCEvent{2});
  q.queue.Close();
  EXPECT_EQ(q.queue.Send(FCEvent{3}), FCQueue::eClosed);
  EXPECT_EQ(Drain(q.queue), (std::vector<int>{1, 2}));
  FCEvent event;
  EXPECT_EQ(q.queue.Receive(&event, FCQueue::WAIT_FOREVER), FCQueue::eClosed);
  EXPECT_EQ(q.queue.Receive(&event, FCQueue::WAIT_FOREVER), FCQueue::eClosed);
}

TEST(ThreadQueue, CloseWakesAWaitingReceiver) {
  Queue q(1);
  FCQueue::EResult result = FCQueue::eOk;
  std::thread receiver([&] {
    FCEvent event;
    result = q.queue.Receive(&event, FCQueue::WAIT_FOREVER);
  });
  q.queue.Close();
  receiver.join();
  EXPECT_EQ(result, FCQueue::eClosed);
}

}  // namespace
