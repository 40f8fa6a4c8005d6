#include "bus_service.h"

#include <dlog.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "FCIPCNames_internal.h"

namespace zunde::service {
namespace {

const char kIntrospection[] =
    "<node><interface name='com.velmora.FCCallListener'>"
    "<method name='MethodCall'>"
    "<arg type='s' direction='in'/><arg type='i' direction='in'/><arg type='ay' direction='in'/>"
    "<arg type='i' direction='out'/><arg type='i' direction='out'/><arg type='ay' direction='out'/>"
    "</method></interface></node>";

const char kLogTag[] = "zunde-service";

GVariant* Bytes(const void* data, size_t size) {
  return g_variant_new_fixed_array(G_VARIANT_TYPE_BYTE, data, size, 1);
}

// The answer as the library expects it: status 0, the length, the bytes.
void Return(GDBusMethodInvocation* invocation, const std::string& answer) {
  g_dbus_method_invocation_return_value(
      invocation, g_variant_new("(ii@ay)", 0, static_cast<gint32>(answer.size()), Bytes(answer.data(), answer.size())));
}

}  // namespace

struct BusService::Delayed {
  BusService* owner;
  GDBusMethodInvocation* invocation;
  std::string answer;
  guint source;
};

BusService::BusService(Dispatcher& dispatcher, int slowReplyMs, std::function<void()> onReady,
                       std::function<void()> onLost)
    : dispatcher_(dispatcher), slowReplyMs_(slowReplyMs), onReady_(std::move(onReady)), onLost_(std::move(onLost)) {}

BusService::~BusService() {
  FlushDelayedAnswers();
  if (ownerId_ != 0) g_bus_unown_name(ownerId_);
  if (registrationId_ != 0) g_dbus_connection_unregister_object(connection_, registrationId_);
  if (connection_ != nullptr) {
    g_dbus_connection_flush_sync(connection_, nullptr, nullptr);
    g_object_unref(connection_);
  }
}

bool BusService::Start() {
  GError* error = nullptr;
  connection_ = g_bus_get_sync(G_BUS_TYPE_SYSTEM, nullptr, &error);
  if (connection_ == nullptr) {
    std::fprintf(stderr, "zunde-service: cannot connect to the bus: %s\n", error->message);
    g_error_free(error);
    return false;
  }
  g_dbus_connection_set_exit_on_close(connection_, FALSE);
  GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(kIntrospection, nullptr);
  static const GDBusInterfaceVTable vtable = {OnMethodCall, nullptr, nullptr, {}};
  registrationId_ = g_dbus_connection_register_object(connection_, bus::kCallObjectPath, node->interfaces[0], &vtable,
                                                      this, nullptr, &error);
  g_dbus_node_info_unref(node);
  if (registrationId_ == 0) {
    std::fprintf(stderr, "zunde-service: cannot serve %s: %s\n", bus::kCallObjectPath, error->message);
    g_error_free(error);
    return false;
  }
  ownerId_ = g_bus_own_name_on_connection(
      connection_, bus::kCallListener, G_BUS_NAME_OWNER_FLAGS_DO_NOT_QUEUE,
      [](GDBusConnection*, const gchar*, gpointer self) { static_cast<BusService*>(self)->onReady_(); },
      [](GDBusConnection*, const gchar*, gpointer self) { static_cast<BusService*>(self)->onLost_(); }, this, nullptr);
  return true;
}

void BusService::OnMethodCall(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar* method,
                              GVariant* parameters, GDBusMethodInvocation* invocation, gpointer self) {
  if (std::strcmp(method, bus::kCallMember) != 0) {
    g_dbus_method_invocation_return_dbus_error(invocation, "org.freedesktop.DBus.Error.UnknownMethod", method);
    return;
  }
  static_cast<BusService*>(self)->Handle(parameters, invocation);
}

void BusService::Handle(GVariant* parameters, GDBusMethodInvocation* invocation) {
  const gchar* member = nullptr;
  gint32 length = 0;
  GVariant* bytes = nullptr;
  g_variant_get(parameters, "(&si@ay)", &member, &length, &bytes);
  gsize size = 0;
  const void* data = g_variant_get_fixed_array(bytes, &size, 1);
  const std::string payload(static_cast<const char*>(data), size);
  g_variant_unref(bytes);

  const std::string answer = Answer(member, payload);
  if (!dispatcher_.Runtime().slow || dispatcher_.NeverDelayed(member)) {
    Return(invocation, answer);
    return;
  }
  // Held back on a timer of the main loop, so other callers are answered meanwhile.
  auto* delayed = new Delayed{this, invocation, answer, 0};
  delayed->source = g_timeout_add(static_cast<guint>(slowReplyMs_), OnDelayElapsed, delayed);
  delayed_.insert(delayed);
}

std::string BusService::Answer(const std::string& member, const std::string& payload) {
  const bool wasSlow = Slow();
  std::vector<Event> events;
  const std::string answer = dispatcher_.Answer(member, payload, events);
  __dlog_print(LOG_ID_MAIN, DLOG_DEBUG, kLogTag, "%s request %s answer %s", member.c_str(), payload.c_str(),
               answer.c_str());
  for (const Event& event : events) Emit(event);
  if (Slow() != wasSlow && slowTurned_) slowTurned_(Slow());
  return answer;
}

bool BusService::Knows(const std::string& member) const { return dispatcher_.Find(member) != nullptr; }

bool BusService::ChangesState(const std::string& member) const {
  const Member* found = dispatcher_.Find(member);
  return found != nullptr && (found->flags & (kChanges | kTurnsSwitch)) != 0;
}

gboolean BusService::OnDelayElapsed(gpointer data) {
  auto* delayed = static_cast<Delayed*>(data);
  Return(delayed->invocation, delayed->answer);
  delayed->owner->delayed_.erase(delayed);
  delete delayed;
  return G_SOURCE_REMOVE;
}

void BusService::FlushDelayedAnswers() {
  for (Delayed* delayed : delayed_) {
    g_source_remove(delayed->source);
    Return(delayed->invocation, delayed->answer);
    delete delayed;
  }
  delayed_.clear();
}

void BusService::Emit(const Event& event) {
  const std::string number = std::to_string(event.number);
  const size_t size = sizeof event.params;
  g_dbus_connection_emit_signal(connection_, nullptr, bus::kSignalPath, bus::kSignalInterface, bus::kEventMember,
                                g_variant_new("(si@ay)", number.c_str(), static_cast<gint32>(size),
                                              Bytes(event.params.data(), size)),
                                nullptr);
  __dlog_print(LOG_ID_MAIN, DLOG_DEBUG, kLogTag, "event %d (%d, %d, %d)", event.number, event.params[0],
               event.params[1], event.params[2]);
}

}  // namespace zunde::service
