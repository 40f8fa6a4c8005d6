// A task that notes, on its own thread, the number of every event t_OnEvent
// is handed and gives `handled` after each. An event whose param1 is kHold
// gives `started` and waits for `gate` first. What it noted is read after
// its Destroy.
#ifndef ZUNDE_TESTS_RECORDER_H
#define ZUNDE_TESTS_RECORDER_H

#include <vector>

#include "FCTask.h"

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
    if (event.param1 == kHold) {
      started.Give();
      gate.Take();
    }
    handled.Give();
  }
};

#endif
