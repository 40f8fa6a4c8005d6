#include "FCIPCWire_internal.h"

namespace zunde::bus {

DBusConnection* ConnectPrivateSystemBus(std::string& uniqueName, LogSite site) {
  DBusError error;
  dbus_error_init(&error);
  DBusConnection* connection = dbus_bus_get_private(DBUS_BUS_SYSTEM, &error);
  if (connection == nullptr) {
    __dlog_print(LOG_ID_SYSTEM, DLOG_WARN, kLogTag, FC_LOG_PREFIX_LV "Failed to connect to the D-BUS daemon: %s\n",
                 site.file, site.function, site.line, 0, error.message ? error.message : "");
    dbus_error_free(&error);
    return nullptr;
  }
  // A lost bus fails the calls; it must not end the application.
  dbus_connection_set_exit_on_disconnect(connection, FALSE);
  const char* name = dbus_bus_get_unique_name(connection);
  uniqueName = name ? name : "";
  return connection;
}

bool AppendTextAndPayload(DBusMessage* message, const char* text, FCMessageBuffer& payload) {
  // libdbus wants a valid pointer even for an empty array.
  static const char kNoBytes = 0;
  const char* bytes = payload.GetAsCStr(0) ? payload.GetAsCStr(0) : &kNoBytes;
  const dbus_int32_t length = static_cast<dbus_int32_t>(payload.GetFullBufferSize() - payload.GetReadOffset());

  DBusMessageIter args;
  DBusMessageIter array;
  dbus_message_iter_init_append(message, &args);
  return dbus_message_iter_append_basic(&args, DBUS_TYPE_STRING, &text) &&
         dbus_message_iter_append_basic(&args, DBUS_TYPE_INT32, &length) &&
         dbus_message_iter_open_container(&args, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE_AS_STRING, &array) &&
         dbus_message_iter_append_fixed_array(&array, DBUS_TYPE_BYTE, &bytes, length) &&
         dbus_message_iter_close_container(&args, &array);
}

void ReadPayload(DBusMessageIter* args, FCMessageBuffer& out) {
  if (dbus_message_iter_get_arg_type(args) != DBUS_TYPE_ARRAY ||
      dbus_message_iter_get_element_type(args) != DBUS_TYPE_BYTE) {
    return;
  }
  DBusMessageIter array;
  dbus_message_iter_recurse(args, &array);
  const unsigned char* data = nullptr;
  int count = 0;
  dbus_message_iter_get_fixed_array(&array, &data, &count);
  out.PushConcatenated(static_cast<unsigned long>(count), const_cast<unsigned char*>(data));
}

}  // namespace zunde::bus
