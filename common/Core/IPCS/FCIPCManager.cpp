#include "FCIPCManager.h"

#include <cstdio>

#include "FCIPCNames_internal.h"
#include "FCIPCWire_internal.h"
#include "FCLog_internal.h"

FIIPCManager* FIIPCManager::GetInstance() {
  static FCIPCManager instance;
  return &instance;
}

FCIPCManager::FCIPCManager() : m_pConnection(nullptr) {
  // Connects before initialising libdbus's threads, the reverse of the call
  // connection's order.
  m_Connect();
  dbus_threads_init_default();
}

FCIPCManager::~FCIPCManager() {
  if (m_pConnection != nullptr) {
    dbus_connection_close(m_pConnection);
    dbus_connection_unref(m_pConnection);
    m_pConnection = nullptr;
  }
}

bool FCIPCManager::m_Connect() {
  m_pConnection = zunde::bus::ConnectPrivateSystemBus(m_connectionId);
  return m_pConnection != nullptr;
}

bool FCIPCManager::Send(int id, FCMessageBuffer& data) {
  return m_Send(FIIPCConnection::GetInstance()->GetConnectionId(), FC_IPC_EVENT, id, data);
}

bool FCIPCManager::m_Send(std::string const& destination, eFCIPCMessageType type, int id, FCMessageBuffer& data) {
  DBusMessage* signal = dbus_message_new_signal(zunde::bus::kSignalPath, zunde::bus::kSignalInterface,
                                                FCIPCConnection::m_ConvertMsgTypeToString(type));
  if (signal == nullptr) {
    FC_LOG_WARN(0, "Out Of Memory!\n\n");
    return false;
  }
  if (!destination.empty()) dbus_message_set_destination(signal, destination.c_str());

  char idText[15];
  std::snprintf(idText, sizeof idText, "%d", id);
  if (!zunde::bus::AppendTextAndPayload(signal, idText, data)) {
    FC_LOG_WARN(0, "Out Of Memory!\n\n");
    dbus_message_unref(signal);
    return false;
  }
  if (m_pConnection != nullptr) {
    dbus_connection_send(m_pConnection, signal, nullptr);
    dbus_connection_flush(m_pConnection);
  }
  dbus_message_unref(signal);
  return true;
}
