#include "FCIPCCallLane_internal.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <vector>

namespace zunde::bus {
namespace {

// A private connection of its own, quiet on failure: a spare that cannot be
// made only means the call waits on the shared connection.
DBusConnection* OpenSpare() {
  DBusError error;
  dbus_error_init(&error);
  DBusConnection* connection = dbus_bus_get_private(DBUS_BUS_SYSTEM, &error);
  dbus_error_free(&error);
  if (connection != nullptr) dbus_connection_set_exit_on_disconnect(connection, FALSE);
  return connection;
}

void CloseSpare(DBusConnection* connection) {
  dbus_connection_close(connection);
  dbus_connection_unref(connection);
}

// Nothing is ever dispatched on a spare; what arrives besides replies (the
// bus's NameAcquired, a Disconnected) is dropped so that it does not pile up.
void DropUnreadMessages(DBusConnection* connection) {
  while (DBusMessage* message = dbus_connection_pop_message(connection)) dbus_message_unref(message);
}

class SparePool {
 public:
  DBusConnection* Take(DBusConnection* shared) {
    std::unique_lock<std::mutex> lock(mutex_);
    for (;;) {
      if (SharedIsFree(shared)) return UseShared(shared);
      if (!idle_.empty()) {
        DBusConnection* spare = idle_.back();
        idle_.pop_back();
        return spare;
      }
      if (open_ >= kMaxSpareConnections) {
        freed_.wait(lock);
        continue;
      }
      if (DBusConnection* spare = OpenWhileUnlocked(lock)) return spare;
      // No spare can be made now (the bus is going or gone): queue on the
      // shared connection, whose call then reports what libdbus says.
      return UseShared(shared);
    }
  }

  void Give(DBusConnection* shared, DBusConnection* used) {
    if (used == shared) {
      std::lock_guard<std::mutex> lock(mutex_);
      ReleaseShared(shared);
      freed_.notify_all();
      return;
    }
    // libdbus's own locks are never taken under ours.
    const bool usable = dbus_connection_get_is_connected(used);
    if (usable) DropUnreadMessages(used);
    {
      std::lock_guard<std::mutex> lock(mutex_);
      if (usable) {
        idle_.push_back(used);
      } else {
        --open_;
      }
      freed_.notify_all();
    }
    if (!usable) CloseSpare(used);
  }

 private:
  // The shared connection is listed once for each call it carries.
  bool SharedIsFree(DBusConnection* shared) const {
    return std::find(sharedInUse_.begin(), sharedInUse_.end(), shared) == sharedInUse_.end();
  }

  DBusConnection* UseShared(DBusConnection* shared) {
    sharedInUse_.push_back(shared);
    return shared;
  }

  void ReleaseShared(DBusConnection* shared) {
    sharedInUse_.erase(std::find(sharedInUse_.begin(), sharedInUse_.end(), shared));
  }

  // Connecting is a round trip to the bus: other calls go on meanwhile.
  DBusConnection* OpenWhileUnlocked(std::unique_lock<std::mutex>& lock) {
    ++open_;
    lock.unlock();
    DBusConnection* spare = OpenSpare();
    lock.lock();
    if (spare == nullptr) {
      --open_;
      freed_.notify_all();
    }
    return spare;
  }

  std::mutex mutex_;
  std::condition_variable freed_;
  std::vector<DBusConnection*> sharedInUse_;
  std::vector<DBusConnection*> idle_;
  int open_ = 0;
};

// Made on the first call and never destroyed, so that a call made while the
// process exits still finds it.
SparePool& Spares() {
  static SparePool* const pool = new SparePool;
  return *pool;
}

}  // namespace

CallLane::CallLane(DBusConnection* shared) : shared_(shared), connection_(Spares().Take(shared)) {}

CallLane::~CallLane() { Spares().Give(shared_, connection_); }

}  // namespace zunde::bus
