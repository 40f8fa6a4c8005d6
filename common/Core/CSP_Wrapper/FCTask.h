// A named thread with its own event queue.
//
// The task's thread takes its events one at a time, highest priority first,
// and hands each to the handler registered for its number, or to `t_OnEvent`
// when none is. Stopping closes the queue: the events already queued are
// still handled, later ones are refused, and then the thread ends.
//
//   class Tuner : public FCTask {
//     void t_OnEvent(const FCEvent& event) override { ... }
//   };
//   Tuner tuner;
//   tuner.Create("tuner", 32);
//   tuner.Send(FCEvent{kTune, channel});
//   tuner.Destroy();   // handles what is queued, then ends the thread
#ifndef ZUNDE_FCTASK_H
#define ZUNDE_FCTASK_H

#include "FCHandler.h"
#include "FCList.h"
#include "FCQueue.h"
#include "FCThread.h"

class FCTask : private FCThread {
 public:
  FCTask();
  ~FCTask() override;

  // Starts the thread, named after the first 15 characters of `name`, with
  // a queue of `queueSize` events and a stack of `stackSize` bytes (0: the
  // system's default). False when its queue or locks cannot be made.
  bool Create(const char* name, unsigned long queueSize, unsigned long stackSize = 0);
  // Stops the task and waits until it has handled what was queued. A task
  // may not destroy itself.
  void Destroy() override;
  using FCThread::FlagCreate;
  using FCThread::Id;
  using FCThread::SetPriority;

  // The name given to Create, cut to 15 characters.
  const char* Name() const { return m_name; }

  // Queues `event` for the task; see FCQueue::Send.
  FCQueue::EResult Send(const FCEvent& event, int priority = FCQueue::ePriorityNormal);
  // Closes the queue without waiting: what is queued is still handled, and
  // the thread ends after it.
  void Stop();

  // Hands events numbered `event` to `handler` from now on, in place of any
  // handler before; null hands them back to t_OnEvent. Register right after
  // Create, before anyone sends.
  void SetHandler(int event, FCHandler* handler);

 protected:
  // An event that no handler is registered for. Does nothing by default.
  virtual void t_OnEvent(const FCEvent& event);

 private:
  struct Binding {
    int event;
    FCHandler* handler;
  };

  void t_Main() final;
  FCHandler* HandlerOf(int event);

  FCQueue m_queue;
  FCMutex m_lock;  // guards m_handlers
  FCList<Binding> m_handlers;
  char m_name[16];
};

#endif
