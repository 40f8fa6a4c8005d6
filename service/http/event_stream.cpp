#include "event_stream.h"

#include <cstring>

#include "FCIPCNames_internal.h"
#include "ZundeEvents.h"
#include "http_reply.h"

namespace zunde::service::http {
namespace {

// Browsers and proxies drop a feed that stays silent too long.
constexpr guint kKeepAliveSeconds = 15;

// The signal as `zunde-cli monitor --json` prints it: the number, its name
// ("?" for one the service does not send), then the three parameters (a
// missing one reads -1).
Json::Value EventJson(GVariant* parameters) {
  const gchar* number = nullptr;
  gint32 length = 0;
  GVariant* bytes = nullptr;
  g_variant_get(parameters, "(&si@ay)", &number, &length, &bytes);
  gsize size = 0;
  const auto* data = static_cast<const char*>(g_variant_get_fixed_array(bytes, &size, 1));
  Json::Value event(Json::objectValue);
  event["event"] = static_cast<int>(std::strtol(number, nullptr, 10));
  const char* name = zunde::EventNameOf(event["event"].asInt());
  event["name"] = name ? name : "?";
  for (gsize i = 0; i < 3; ++i) {
    gint32 param = -1;
    if (size >= (i + 1) * sizeof param) std::memcpy(&param, data + i * sizeof param, sizeof param);
    event["param" + std::to_string(i + 1)] = param;
  }
  g_variant_unref(bytes);
  return event;
}

std::string SlowText(bool slow) {
  Json::Value state(Json::objectValue);
  state["slow"] = slow;
  return "event: slow\ndata: " + CompactJson(state) + "\n\n";
}

}  // namespace

EventStream::EventStream(GDBusConnection* connection, bool slow) : connection_(connection), slow_(slow) {
  subscription_ = g_dbus_connection_signal_subscribe(connection_, nullptr, bus::kSignalInterface, bus::kEventMember,
                                                     bus::kSignalPath, nullptr, G_DBUS_SIGNAL_FLAGS_NONE, OnSignal,
                                                     this, nullptr);
  keepAlive_ = g_timeout_add_seconds(kKeepAliveSeconds, OnKeepAlive, this);
}

EventStream::~EventStream() {
  g_dbus_connection_signal_unsubscribe(connection_, subscription_);
  g_source_remove(keepAlive_);
  for (SoupServerMessage* feed : feeds_) g_signal_handlers_disconnect_by_data(feed, this);
}

void EventStream::Join(SoupServerMessage* message) {
  Guard(message);
  soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
  SoupMessageHeaders* headers = soup_server_message_get_response_headers(message);
  soup_message_headers_replace(headers, "Content-Type", "text/event-stream");
  soup_message_headers_set_encoding(headers, SOUP_ENCODING_CHUNKED);
  soup_message_body_set_accumulate(soup_server_message_get_response_body(message), FALSE);
  g_signal_connect(message, "finished", G_CALLBACK(OnFinished), this);
  feeds_.insert(message);
  Write(message, SlowText(slow_));
}

void EventStream::SlowTurned(bool slow) {
  slow_ = slow;
  Broadcast(SlowText(slow));
}

void EventStream::OnSignal(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*,
                           GVariant* parameters, gpointer self) {
  if (!g_variant_is_of_type(parameters, G_VARIANT_TYPE("(siay)"))) return;
  static_cast<EventStream*>(self)->Broadcast("data: " + CompactJson(EventJson(parameters)) + "\n\n");
}

void EventStream::OnFinished(SoupServerMessage* message, gpointer self) {
  static_cast<EventStream*>(self)->feeds_.erase(message);
}

gboolean EventStream::OnKeepAlive(gpointer self) {
  static_cast<EventStream*>(self)->Broadcast(": still here\n\n");
  return G_SOURCE_CONTINUE;
}

void EventStream::Write(SoupServerMessage* message, const std::string& text) {
  soup_message_body_append(soup_server_message_get_response_body(message), SOUP_MEMORY_COPY, text.data(),
                           text.size());
  soup_server_message_unpause(message);
}

void EventStream::Broadcast(const std::string& text) {
  for (SoupServerMessage* feed : feeds_) Write(feed, text);
}

}  // namespace zunde::service::http
