// Watches a state that announces no changes of its own, and posts an event
// to a task when it changes.
//
// The alarm reads the state through `t_ReadState` every period, on its own
// thread; when a reading differs from the one before, it posts its event with
// `param1` the new state and `param2` the one before (`param3` as given).
//
//   class Cable : public FCStateAlarm {
//     int t_ReadState() override { return ReadCableState(); }
//   };
//   cable.Create(&tuner, FCEvent{kCableChanged});
//   cable.Start(100);   // reads now, then every 100 ms
#ifndef ZUNDE_FCSTATEALARM_H
#define ZUNDE_FCSTATEALARM_H

#include "FCAlarm.h"

class FCStateAlarm : public FCAlarm {
 public:
  FCStateAlarm() : m_state(0) {}

  // Takes the state as it is now (read on the calling thread) as the one to
  // compare with, then reads it every `periodMs` (above 0).
  void Start(unsigned long periodMs);

 protected:
  virtual int t_ReadState() = 0;

 private:
  void t_OnExpire() override;

  int m_state;  // the last reading
};

#endif
