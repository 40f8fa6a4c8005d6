// The service on the bus: owns the listener's name, answers "MethodCall"
// through the dispatcher and sends the events of each change, all from the
// default GLib main context.
#ifndef ZUNDE_SERVICE_BUS_SERVICE_H
#define ZUNDE_SERVICE_BUS_SERVICE_H

#include <gio/gio.h>

#include <functional>
#include <set>

#include "dispatcher.h"

namespace zunde::service {

class BusService {
 public:
  // `onReady` runs once the name is owned; `onLost` when it cannot be.
  BusService(Dispatcher& dispatcher, int slowReplyMs, std::function<void()> onReady, std::function<void()> onLost);
  ~BusService();
  BusService(const BusService&) = delete;
  BusService& operator=(const BusService&) = delete;

  // Connects to the system bus (DBUS_SYSTEM_BUS_ADDRESS when set) and asks
  // for the name; false, with the reason on standard error, if it cannot.
  bool Start();
  // Sends every answer still held back by the slow switch.
  void FlushDelayedAnswers();

  // Answers a request that came by another way than the bus (the page), at
  // once, and sends the events of its change as a bus call's would be.
  std::string Answer(const std::string& member, const std::string& payload);
  // The connection to the bus; null before Start.
  GDBusConnection* Connection() const { return connection_; }
  bool Slow() const { return dispatcher_.Runtime().slow; }
  // Whether `member` changes anything, on disk or in memory.
  bool ChangesState(const std::string& member) const;
  bool Knows(const std::string& member) const;
  // Runs after each answer that turned the slow switch.
  void OnSlowTurned(std::function<void(bool slow)> listener) { slowTurned_ = std::move(listener); }

 private:
  struct Delayed;
  static void OnMethodCall(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar* method,
                           GVariant* parameters, GDBusMethodInvocation* invocation, gpointer self);
  static gboolean OnDelayElapsed(gpointer delayed);
  void Handle(GVariant* parameters, GDBusMethodInvocation* invocation);
  void Emit(const Event& event);

  Dispatcher& dispatcher_;
  int slowReplyMs_;
  std::function<void()> onReady_;
  std::function<void()> onLost_;
  GDBusConnection* connection_ = nullptr;
  guint ownerId_ = 0;
  guint registrationId_ = 0;
  std::set<Delayed*> delayed_;
  std::function<void(bool)> slowTurned_;
};

}  // namespace zunde::service

#endif
