// The page's live feed (server-sent events): each "Event" signal seen on the
// bus, whoever sent it, and each turn of the slow switch.
#ifndef ZUNDE_SERVICE_HTTP_EVENT_STREAM_H
#define ZUNDE_SERVICE_HTTP_EVENT_STREAM_H

#include <gio/gio.h>
#include <libsoup/soup.h>

#include <set>
#include <string>

namespace zunde::service::http {

class EventStream {
 public:
  // Listens for "Event" signals on `connection`; `slow` is the switch now.
  EventStream(GDBusConnection* connection, bool slow);
  ~EventStream();
  EventStream(const EventStream&) = delete;
  EventStream& operator=(const EventStream&) = delete;

  // Keeps `message` open as a feed; it ends when the browser goes.
  void Join(SoupServerMessage* message);
  void SlowTurned(bool slow);

 private:
  static void OnSignal(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*, GVariant* parameters,
                       gpointer self);
  static void OnFinished(SoupServerMessage* message, gpointer self);
  static gboolean OnKeepAlive(gpointer self);
  void Write(SoupServerMessage* message, const std::string& text);
  void Broadcast(const std::string& text);

  GDBusConnection* connection_;
  guint subscription_ = 0;
  guint keepAlive_ = 0;
  bool slow_;
  std::set<SoupServerMessage*> feeds_;
};

}  // namespace zunde::service::http

#endif
