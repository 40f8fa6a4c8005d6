// Sends this library's "Event" signals on a private bus connection of its own.
#ifndef ZUNDE_FCIPCMANAGER_H
#define ZUNDE_FCIPCMANAGER_H

#include <dbus/dbus.h>

#include <string>

#include "FCIPCConnection.h"
#include "FCMessageBuffer.h"

class FIIPCManager {
 public:
  // The sender of this process, made at the first call.
  static FIIPCManager* GetInstance();

  virtual ~FIIPCManager() {}
  // Sends event `id` with `data` to this process's own connection, so that
  // its own subscriptions receive it.
  virtual bool Send(int id, FCMessageBuffer& data) = 0;
};

class FCIPCManager : public FIIPCManager {
 public:
  FCIPCManager();
  ~FCIPCManager() override;
  FCIPCManager(const FCIPCManager&) = delete;
  FCIPCManager& operator=(const FCIPCManager&) = delete;

  bool Send(int id, FCMessageBuffer& data) override;

  // Emits a signal of `type` with `id` and `data`, addressed to `destination`
  // (an empty destination broadcasts). Does not wait for delivery.
  bool m_Send(std::string const& destination, eFCIPCMessageType type, int id, FCMessageBuffer& data);

 private:
  bool m_Connect();

  DBusConnection* m_pConnection;
  std::string m_connectionId;
};

#endif
