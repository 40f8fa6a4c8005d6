// The sync-call monitor: notices blocking operations that take too long.
//
// A thread marks the start of a blocking operation with a name and a
// threshold, and its end with the ticket it got. An operation still running
// past its threshold gets one warning line in the platform log, written by
// the monitor's own thread while the operation goes on:
//   "[FCSyncDet::Report] <name> still running after <n> ms"
//
//   FCSyncDet monitor;
//   monitor.Create();
//   unsigned long ticket = monitor.Begin("ReadTuner", 200);
//   ReadTuner();   // blocks
//   monitor.End(ticket);
//   monitor.Destroy();
#ifndef ZUNDE_FCSYNCDET_H
#define ZUNDE_FCSYNCDET_H

#include <cstdint>
#include <string>

#include "FCList.h"
#include "FCThread.h"

class FCSyncDet : private FCThread {
 public:
  FCSyncDet();
  ~FCSyncDet() override;

  // Starts the monitor's thread. False when it or its locks cannot be made.
  bool Create();
  // Forgets the operations still running and ends the thread.
  void Destroy() override;
  using FCThread::FlagCreate;

  // Watches the operation `name`, warning once if it runs for longer than
  // `thresholdMs`. The ticket returned is never 0.
  unsigned long Begin(const char* name, unsigned long thresholdMs);
  // The operation of `ticket` has ended; after this no line is written for it.
  void End(unsigned long ticket);

 private:
  struct Operation {
    unsigned long ticket;
    std::string name;
    uint32_t start;  // monotonic milliseconds
    uint32_t due;
  };

  void t_Main() final;
  // Reports every operation past its threshold and stops watching it;
  // returns the milliseconds until the next one is due.
  unsigned long Scan();
  static void Report(const Operation& operation);

  FCMutex m_lock;      // guards the fields below
  FCSemaphore m_wake;  // given when the thread should look again
  FCList<Operation> m_running;
  unsigned long m_lastTicket;
  bool m_quit;
};

#endif
