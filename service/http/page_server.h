// The service in a browser: a page of what the service holds, with live
// events and a few controls, and a JSON API that answers through the same
// handlers as the bus. It runs on the service's GLib main loop.
//
//   GET  /                      the page (it carries this start's token)
//   GET  /api/member/NAME       a member that changes nothing; the request
//                               document in the query as request=JSON
//   POST /api/member/NAME       any member; the request document as the body
//   POST /api/emit              an "Event" signal: {"event": N or "Name", "param1": ...}
//   GET  /api/events            server-sent events: each "Event" signal, and
//                               "slow" when the slow switch turns
//
// POSTs need the X-Zunde-Token header; every request must name this server
// in its Host header.
#ifndef ZUNDE_SERVICE_HTTP_PAGE_SERVER_H
#define ZUNDE_SERVICE_HTTP_PAGE_SERVER_H

#include <libsoup/soup.h>

#include <memory>
#include <string>

#include "bus_service.h"
#include "event_stream.h"
#include "request_guard.h"

namespace zunde::service::http {

class PageServer {
 public:
  PageServer(BusService& service, const std::string& address, int port);
  ~PageServer();
  PageServer(const PageServer&) = delete;
  PageServer& operator=(const PageServer&) = delete;

  // Listens; false, with the reason in `error`, when it cannot.
  bool Start(std::string& error);
  std::string Url() const { return guard_.Url(); }

 private:
  static void OnRequest(SoupServer*, SoupServerMessage* message, const char* path, GHashTable* query, gpointer self);
  void Route(SoupServerMessage* message, const std::string& path, GHashTable* query);
  void ServeAsset(SoupServerMessage* message, const std::string& path);
  void ServeMember(SoupServerMessage* message, const std::string& member, GHashTable* query);
  void ServeEmit(SoupServerMessage* message);

  BusService& service_;
  std::string address_;
  int port_;
  RequestGuard guard_;
  SoupServer* server_ = nullptr;
  std::unique_ptr<EventStream> events_;
};

}  // namespace zunde::service::http

#endif
