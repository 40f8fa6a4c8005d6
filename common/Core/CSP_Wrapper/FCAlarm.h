// Posts an event to a task after a delay, once or periodically.
//
// Each alarm has a thread of its own that sleeps until the alarm is due, so
// that a task never waits for its alarms. An alarm is destroyed before its
// task.
//
//   FCAlarm heartbeat;
//   heartbeat.Create(&tuner, FCEvent{kHeartbeat});
//   heartbeat.Start(1000, true);   // every second from now
//   ...
//   heartbeat.Cancel();            // nothing more is posted
//   heartbeat.Destroy();
#ifndef ZUNDE_FCALARM_H
#define ZUNDE_FCALARM_H

#include <cstdint>

#include "FCQueue.h"
#include "FCTask.h"
#include "FCThread.h"

class FCAlarm : private FCThread {
 public:
  FCAlarm();
  ~FCAlarm() override;

  // Starts the alarm's thread, unarmed. When due, the alarm sends `event`
  // to `task` at `priority`. False when its thread or locks cannot be made.
  bool Create(FCTask* task, const FCEvent& event, int priority = FCQueue::ePriorityNormal);
  // Cancels the alarm and ends its thread.
  void Destroy() override;
  using FCThread::FlagCreate;

  // Arms the alarm to be due `delayMs` from now; when `periodic`, again
  // every `delayMs` after each post (a period of 0 is a programming error).
  // An armed alarm is armed afresh.
  void Start(unsigned long delayMs, bool periodic = false);
  // Disarms the alarm: once Cancel returns, nothing more is posted until the
  // next Start. An event posted already stays in the task's queue.
  void Cancel();
  bool IsArmed();

 protected:
  // Called on the alarm's thread each time it is due, with the alarm's lock
  // held (Start and Cancel may be called from here). Posts the event.
  virtual void t_OnExpire();
  // Sends `event` to the alarm's task; a full queue loses it with a warning
  // line, a stopping task silently.
  void Post(const FCEvent& event);
  const FCEvent& Event() const { return m_event; }

 private:
  void t_Main() final;
  // Due now: rearms or disarms, then expires.
  void Expire();

  FCTask* m_pTask;
  FCEvent m_event;
  int m_priority;
  FCMutex m_lock;      // guards the fields below and every expiry
  FCSemaphore m_wake;  // given when the thread should look again
  bool m_armed;
  bool m_periodic;
  bool m_quit;
  unsigned long m_periodMs;
  uint32_t m_due;  // monotonic milliseconds
};

#endif
