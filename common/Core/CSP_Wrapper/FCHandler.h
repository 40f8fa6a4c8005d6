// Handles events of chosen numbers for a task, on the task's own thread.
//
// One handler may serve several numbers and several tasks; the task it is
// called for is passed along. A handler must outlive its registration.
#ifndef ZUNDE_FCHANDLER_H
#define ZUNDE_FCHANDLER_H

#include "FCQueue.h"

class FCTask;

class FCHandler {
 public:
  virtual ~FCHandler() {}

 protected:
  friend class FCTask;
  // Called by `task`'s thread for each event of a number this handler is
  // registered for.
  virtual void t_OnEvent(FCTask& task, const FCEvent& event) = 0;
};

#endif
