// The connection one call travels on.
//
// libdbus lets one thread at a time read and write a connection, and a
// thread blocked waiting for its reply keeps that right until something
// arrives; a second thread's request is queued but not even written. So a
// call that finds the process's shared connection already carrying a call
// takes a spare private connection to the bus instead, and every call waits
// only for its own reply.
//
// Spares are made on first need and kept for the next calls; they end with
// the process, whose exit closes their sockets (closing them in an exit
// handler would race with calls still in flight on other threads). There are
// at most kMaxSpareConnections; past that a call waits until the shared
// connection or a spare is free. A spare that lost the bus is closed and made
// again when next needed; when none can be made, the call goes on the shared
// connection as it would with no spares at all.
//
// The shared connection stays the one that receives signals, carries match
// rules, and sends every call made while no other is in flight.
#ifndef ZUNDE_FCIPCCALLLANE_INTERNAL_H
#define ZUNDE_FCIPCCALLLANE_INTERNAL_H

#include <dbus/dbus.h>

namespace zunde::bus {

inline constexpr int kMaxSpareConnections = 8;

class CallLane {
 public:
  // Blocks only when `shared` and every spare are carrying calls.
  explicit CallLane(DBusConnection* shared);
  ~CallLane();
  CallLane(const CallLane&) = delete;
  CallLane& operator=(const CallLane&) = delete;

  DBusConnection* Connection() const { return connection_; }

 private:
  DBusConnection* shared_;
  DBusConnection* connection_;
};

}  // namespace zunde::bus

#endif
