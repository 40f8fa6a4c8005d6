#include "FCIPCConnection.h"

#include <dbus/dbus-glib-lowlevel.h>

#include <cstdio>
#include <cstdlib>

#include "FCDebug.h"
#include "FCIPCCallLane_internal.h"
#include "FCIPCError_internal.h"
#include "FCIPCNames_internal.h"
#include "FCIPCWire_internal.h"
#include "FCLog_internal.h"

namespace {

const int kMatchRuleSize = 256;

}  // namespace

pthread_mutex_t FCIPCConnection::m_instanceMutex = PTHREAD_MUTEX_INITIALIZER;

FIIPCConnection* FIIPCConnection::GetInstance() {
  static FCIPCConnection instance;
  return &instance;
}

FCIPCConnection::FCIPCConnection()
    : m_eventCallback(nullptr), m_dataCallback(nullptr), m_pConnection(nullptr), m_isConnected(false) {
  dbus_threads_init_default();
  m_isConnected = false;
  m_Connect();
}

FCIPCConnection::~FCIPCConnection() {
  m_isConnected = false;
  if (m_pConnection != nullptr) {
    dbus_connection_close(m_pConnection);
    dbus_connection_unref(m_pConnection);
  }
  m_pConnection = nullptr;
  m_connectionId.clear();
}

bool FCIPCConnection::m_Connect() {
  FC_LOG_INFO(3, "[API] FCIPCConnection::m_Connect Called \n\n");
  m_pConnection = zunde::bus::ConnectPrivateSystemBus(m_connectionId);
  if (m_pConnection == nullptr) return false;
  m_isConnected = true;
  dbus_connection_add_filter(m_pConnection, m_MessageHandlerHelper, this, nullptr);
  return true;
}

bool FCIPCConnection::Connect() { return false; }

std::string& FCIPCConnection::GetConnectionId() { return m_connectionId; }

void FCIPCConnection::SetGMainLoop(GMainContext* context) {
  FCASSERT(m_pConnection);
  dbus_connection_setup_with_g_main(m_pConnection, context);
}

void FCIPCConnection::SetEventCallbackFunction(void (*callback)(int, FCMessageBuffer&)) {
  FC_LOG_INFO(3, " FCIPCConnection::SetEventCallbackFunction Called \n\n");
  pthread_mutex_lock(&m_instanceMutex);
  m_eventCallback = callback;
  pthread_mutex_unlock(&m_instanceMutex);
}

void FCIPCConnection::UnSetEventCallbackFunction() {
  FC_LOG_INFO(3, " FCIPCConnection::UnSetEventCallbackFunction Called \n\n");
  pthread_mutex_lock(&m_instanceMutex);
  m_eventCallback = nullptr;
  pthread_mutex_unlock(&m_instanceMutex);
}

void FCIPCConnection::SetDataCallbackFunction(void (*callback)(int, FCMessageBuffer&)) {
  pthread_mutex_lock(&m_instanceMutex);
  m_dataCallback = callback;
  pthread_mutex_unlock(&m_instanceMutex);
}

int FCIPCConnection::Call(std::string const& destination, char const* method, FCMessageBuffer& request,
                          FCMessageBuffer& reply) {
  DBusMessage* message = dbus_message_new_method_call(destination.c_str(), zunde::bus::kCallObjectPath,
                                                      destination.c_str(), zunde::bus::kCallMember);
  if (message == nullptr) {
    FC_LOG_WARN(0, "IPCS: Error at message creation\n");
    zunde::bus::RecordBusError("the method call message could not be made");
    return -1;
  }

  if (!zunde::bus::AppendTextAndPayload(message, method, request)) {
    FC_LOG_WARN(0, "IPCS: Out of memory\n\n");
    zunde::bus::RecordBusError("out of memory while writing the request");
    dbus_message_unref(message);
    return -1;
  }

  if (m_pConnection == nullptr) {
    FC_LOG_WARN(0, "m_pConnection is NULL\n");
    zunde::bus::RecordBusError("there is no connection to the system bus");
    dbus_message_unref(message);
    return -1;
  }

  DBusError error;
  dbus_error_init(&error);
  DBusMessage* answer = nullptr;
  {
    zunde::bus::CallLane lane(m_pConnection);
    answer = dbus_connection_send_with_reply_and_block(lane.Connection(), message, zunde::bus::kInfiniteTimeoutMs,
                                                       &error);
  }
  dbus_message_unref(message);
  if (answer == nullptr) {
    FC_LOG_WARN(0, "dbus_connection_send_with_reply_and_block: %s\n", error.message ? error.message : "");
    zunde::bus::RecordBusError(error);
    dbus_error_free(&error);
    return -1;
  }

  DBusMessageIter results;
  if (!dbus_message_iter_init(answer, &results)) {
    FC_LOG_WARN(0, "IPCS: Message has no arguments!\n\n");
    zunde::bus::RecordBusError("the reply carries no arguments");
    dbus_message_unref(answer);
    return -1;
  }
  dbus_int32_t status = -1;
  if (dbus_message_iter_get_arg_type(&results) == DBUS_TYPE_INT32) dbus_message_iter_get_basic(&results, &status);
  dbus_message_iter_next(&results);  // the length argument is not trusted
  dbus_message_iter_next(&results);
  zunde::bus::ReadPayload(&results, reply);
  dbus_message_unref(answer);
  return status;
}

const char* FCIPCConnection::m_ConvertMsgTypeToString(int type) {
  switch (type) {
    case FC_IPC_EVENT:
      return zunde::bus::kEventMember;
    case FC_IPC_DATA:
      return zunde::bus::kDataMember;
    default:
      return "Unknown";
  }
}

void FCIPCConnection::m_CreateMatchRule(eFCIPCMessageType type, int id, char* out) {
  std::snprintf(out, kMatchRuleSize,
                "path='%s', type='signal', interface='%s', member='%s', arg0='%d'", zunde::bus::kSignalPath,
                zunde::bus::kSignalInterface, m_ConvertMsgTypeToString(type), id);
}

bool FCIPCConnection::AddMatchRule(int id) {
  FCASSERT(m_pConnection);
  char rule[kMatchRuleSize];
  m_CreateMatchRule(FC_IPC_EVENT, id, rule);
  DBusError error;
  dbus_error_init(&error);
  dbus_bus_add_match(m_pConnection, rule, &error);
  if (dbus_error_is_set(&error)) {
    FC_LOG_WARN(0, "Error while adding match rule: %s\n\n", error.message);
    dbus_error_free(&error);
    return false;
  }
  return true;
}

bool FCIPCConnection::RemoveMatchRule(int id) {
  FCASSERT(m_pConnection);
  char rule[kMatchRuleSize];
  m_CreateMatchRule(FC_IPC_EVENT, id, rule);
  DBusError error;
  dbus_error_init(&error);
  dbus_bus_remove_match(m_pConnection, rule, &error);
  if (dbus_error_is_set(&error)) {
    // Removal shares the adding line on purpose.
    FC_LOG_WARN(0, "Error while adding match rule: %s\n\n", error.message);
    dbus_error_free(&error);
    return false;
  }
  return true;
}

int FCIPCConnection::m_GetMessageType(DBusMessage* message) {
  if (dbus_message_is_signal(message, zunde::bus::kSignalInterface, zunde::bus::kEventMember)) return FC_IPC_EVENT;
  if (dbus_message_is_signal(message, zunde::bus::kSignalInterface, zunde::bus::kDataMember)) return FC_IPC_DATA;
  return -1;
}

DBusHandlerResult FCIPCConnection::m_MessageHandlerHelper(DBusConnection*, DBusMessage* message, void* self) {
  return static_cast<FCIPCConnection*>(self)->m_MessageHandler(message);
}

DBusHandlerResult FCIPCConnection::m_MessageHandler(DBusMessage* message) {
  if (dbus_message_is_signal(message, DBUS_INTERFACE_LOCAL, "Disconnected")) {
    m_isConnected = false;
    return DBUS_HANDLER_RESULT_HANDLED;
  }
  const int type = m_GetMessageType(message);
  if (type == -1) return DBUS_HANDLER_RESULT_NOT_YET_HANDLED;

  DBusMessageIter args;
  if (!dbus_message_iter_init(message, &args)) {
    std::printf("Message has no arguments!");
    FCASSERT(0);
  }
  const char* eventText = "";
  if (dbus_message_iter_get_arg_type(&args) == DBUS_TYPE_STRING) dbus_message_iter_get_basic(&args, &eventText);
  const int event = static_cast<int>(std::strtol(eventText, nullptr, 10));
  dbus_message_iter_next(&args);  // the length argument
  dbus_message_iter_next(&args);
  FCMessageBuffer payload;
  zunde::bus::ReadPayload(&args, payload);

  void (*callback)(int, FCMessageBuffer&) = type == FC_IPC_EVENT ? m_eventCallback : m_dataCallback;
  if (callback != nullptr) callback(event, payload);
  return DBUS_HANDLER_RESULT_HANDLED;
}
