// The process's D-Bus connection to the service.
//
// One private connection to the system bus, made once when the connection is
// first asked for, carries the proxies' method calls and receives the
// service's signals. A call blocks only the calling thread, until its own
// reply arrives: a call made while another thread's call is in flight goes
// on a spare connection (see FCIPCCallLane_internal.h).
// Signals reach the registered callbacks only once the connection has been
// attached to a GLib main context (SetGMainLoop): the library runs no dispatch
// thread of its own.
#ifndef ZUNDE_FCIPCCONNECTION_H
#define ZUNDE_FCIPCCONNECTION_H

#include <dbus/dbus.h>
#include <glib.h>
#include <pthread.h>

#include <string>

#include "FCMessageBuffer.h"

// The kinds of signal this library sends and receives.
enum eFCIPCMessageType {
  FC_IPC_EVENT = 0,
  FC_IPC_DATA = 1,
};

// Receives the event number and the payload of one signal.
typedef void (*FCIPCCallback)(int, FCMessageBuffer&);

class FIIPCConnection {
 public:
  // The connection of this process, made at the first call.
  static FIIPCConnection* GetInstance();

  virtual ~FIIPCConnection() {}

  // Does nothing and returns false: the connection is made when it is created.
  virtual bool Connect() = 0;
  // Adds or removes the bus rule that routes "Event" signals whose first
  // argument is `id` to this connection. True on success.
  virtual bool AddMatchRule(int id) = 0;
  virtual bool RemoveMatchRule(int id) = 0;
  // Calls `method` at `destination` with the request's bytes and appends the
  // reply's bytes to `reply`. Returns -1 when the call could not be made or
  // answered, otherwise the status the service returned.
  virtual int Call(std::string const& destination, char const* method, FCMessageBuffer& request,
                   FCMessageBuffer& reply) = 0;
  virtual void SetEventCallbackFunction(void (*callback)(int, FCMessageBuffer&)) = 0;
  virtual void UnSetEventCallbackFunction() = 0;
  virtual void SetDataCallbackFunction(void (*callback)(int, FCMessageBuffer&)) = 0;
  // The connection's unique bus name; empty when not connected.
  virtual std::string& GetConnectionId() = 0;
  // Dispatches signals from `context` (null: the default main context).
  virtual void SetGMainLoop(GMainContext* context) = 0;
};

class FCIPCConnection : public FIIPCConnection {
 public:
  FCIPCConnection();
  ~FCIPCConnection() override;
  FCIPCConnection(const FCIPCConnection&) = delete;
  FCIPCConnection& operator=(const FCIPCConnection&) = delete;

  bool Connect() override;
  bool AddMatchRule(int id) override;
  bool RemoveMatchRule(int id) override;
  int Call(std::string const& destination, char const* method, FCMessageBuffer& request,
           FCMessageBuffer& reply) override;
  void SetEventCallbackFunction(void (*callback)(int, FCMessageBuffer&)) override;
  void UnSetEventCallbackFunction() override;
  void SetDataCallbackFunction(void (*callback)(int, FCMessageBuffer&)) override;
  std::string& GetConnectionId() override;
  void SetGMainLoop(GMainContext* context) override;

  // Opens the private connection to the system bus and installs the filter.
  virtual bool m_Connect();

  // The name of a message type on the bus: "Event", "Data" or "Unknown".
  static const char* m_ConvertMsgTypeToString(int type);

 private:
  static DBusHandlerResult m_MessageHandlerHelper(DBusConnection* connection, DBusMessage* message, void* self);
  DBusHandlerResult m_MessageHandler(DBusMessage* message);
  static int m_GetMessageType(DBusMessage* message);
  static void m_CreateMatchRule(eFCIPCMessageType type, int id, char* out);

  void (*m_eventCallback)(int, FCMessageBuffer&);
  void (*m_dataCallback)(int, FCMessageBuffer&);
  DBusConnection* m_pConnection;
  bool m_isConnected;
  std::string m_connectionId;

  static pthread_mutex_t m_instanceMutex;
};

#endif
