// A bounded event queue between threads, with three priorities.
//
// Receivers get the highest priority first and, within one priority, the
// events in the order they were sent. A full queue refuses an event rather
// than blocking its sender, so that an alarm or a service callback never
// waits on a slow task.
//
//   FCQueue queue;
//   queue.Create(16);
//   queue.Send(FCEvent{7, 1}, FCQueue::ePriorityHigh);
//   FCEvent event;
//   if (queue.Receive(&event, 500) == FCQueue::eOk) { ... }
//   queue.Destroy();
#ifndef ZUNDE_FCQUEUE_H
#define ZUNDE_FCQUEUE_H

#include "FCList.h"
#include "FCThread.h"

// One event: its number and up to three parameters, -1 where one is not
// set, as the service's own events carry them.
struct FCEvent {
  int event = 0;
  int param1 = -1;
  int param2 = -1;
  int param3 = -1;
};

class FCQueue {
 public:
  enum EPriority { ePriorityHigh = 0, ePriorityNormal = 1, ePriorityLow = 2 };
  enum EResult {
    eOk,       // sent, or received into the caller's event
    eFull,     // the queue holds its capacity already; the event was not sent
    eTimeOut,  // no event came within the time given
    eClosed,   // the queue is closed: nothing more is sent, and all is received
  };
  // A time-out that never ends, as for FCSemaphore::Try.
  static constexpr unsigned long WAIT_FOREVER = 0xFFFFFFFFUL;

  FCQueue();
  virtual ~FCQueue();

  // Holds at most `capacity` events (at least one). False when its locks
  // cannot be made.
  bool Create(unsigned long capacity);
  // Drops any events still queued. Nobody may be sending or receiving.
  virtual void Destroy();
  bool FlagCreate() const { return m_lock.FlagCreate(); }

  // Queues a copy of `event` at `priority` (an EPriority; anything else is a
  // programming error). eFull or eClosed when it was not queued.
  EResult Send(const FCEvent& event, int priority = ePriorityNormal);
  // Takes the next event into `*event`, waiting at most `ms` milliseconds
  // (0: not at all; WAIT_FOREVER: until one comes or the queue closes).
  EResult Receive(FCEvent* event, unsigned long ms);
  // Refuses every later Send; the events already queued are still received,
  // after which every Receive answers eClosed at once.
  void Close();

 private:
  static constexpr int kPriorities = 3;

  FCMutex m_lock;
  FCSemaphore m_queued;  // one unit per queued event, and one more once closed
  FCList<FCEvent> m_events[kPriorities];
  unsigned long m_capacity;
  unsigned long m_count;
  bool m_closed;

  FCQueue(const FCQueue&) = delete;
  FCQueue& operator=(const FCQueue&) = delete;
};

#endif
