#include "page_server.h"

#include <json/json.h>

#include <cstring>

#include "FCIPCManager.h"
#include "ZundeEvents.h"
#include "http_reply.h"
#include "page_assets.h"

namespace zunde::service::http {
namespace {

const char kMemberPrefix[] = "/api/member/";

bool Is(SoupServerMessage* message, const char* method) {
  return std::strcmp(soup_server_message_get_method(message), method) == 0;
}

std::string RequestBody(SoupServerMessage* message) {
  SoupMessageBody* body = soup_server_message_get_request_body(message);
  return body->data == nullptr ? std::string() : std::string(body->data, static_cast<size_t>(body->length));
}

// Empty, or one JSON object: what the dispatcher reads as a request.
bool ReadsAsRequest(const std::string& text, Json::Value& parsed) {
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
    parsed = Json::Value(Json::objectValue);
    return true;
  }
  return Json::Reader().parse(text, parsed, false) && parsed.isObject();
}

// "event" as a number, or as a name that zunde-cli emit also takes; -1 when neither.
int EventOf(const Json::Value& body) {
  const Json::Value& event = body["event"];
  if (event.isInt()) return event.asInt();
  return event.isString() ? zunde::EventNumberOf(event.asCString()) : -1;
}

}  // namespace

PageServer::PageServer(BusService& service, const std::string& address, int port)
    : service_(service), address_(address), port_(port), guard_(address, port) {}

PageServer::~PageServer() {
  service_.OnSlowTurned(nullptr);
  events_.reset();
  if (server_ != nullptr) {
    soup_server_disconnect(server_);
    g_object_unref(server_);
  }
}

bool PageServer::Start(std::string& error) {
  GInetAddress* inet = address_ == "localhost" ? g_inet_address_new_loopback(G_SOCKET_FAMILY_IPV4)
                                               : g_inet_address_new_from_string(address_.c_str());
  if (inet == nullptr) {
    error = "\"" + address_ + "\" is not an IP address (nor localhost)";
    return false;
  }
  GSocketAddress* socket = g_inet_socket_address_new(inet, static_cast<guint16>(port_));
  g_object_unref(inet);
  server_ = soup_server_new("server-header", "zunde-service", nullptr);
  GError* failure = nullptr;
  const bool listening = soup_server_listen(server_, socket, static_cast<SoupServerListenOptions>(0), &failure);
  g_object_unref(socket);
  if (!listening) {
    error = failure->message;
    g_error_free(failure);
    return false;
  }
  events_ = std::make_unique<EventStream>(service_.Connection(), service_.Slow());
  service_.OnSlowTurned([this](bool slow) { events_->SlowTurned(slow); });
  soup_server_add_handler(server_, nullptr, OnRequest, this, nullptr);
  return true;
}

void PageServer::OnRequest(SoupServer*, SoupServerMessage* message, const char* path, GHashTable* query,
                           gpointer self) {
  auto* server = static_cast<PageServer*>(self);
  const std::string refusal = server->guard_.RefusalOf(message);
  if (!refusal.empty()) {
    Refuse(message, SOUP_STATUS_FORBIDDEN, refusal);
    return;
  }
  server->Route(message, path, query);
}

void PageServer::Route(SoupServerMessage* message, const std::string& path, GHashTable* query) {
  if (path.rfind(kMemberPrefix, 0) == 0) return ServeMember(message, path.substr(std::strlen(kMemberPrefix)), query);
  if (path == "/api/emit") return ServeEmit(message);
  if (!Is(message, SOUP_METHOD_GET)) return Refuse(message, SOUP_STATUS_METHOD_NOT_ALLOWED, path + " is only read");
  if (path == "/api/events") return events_->Join(message);
  ServeAsset(message, path);
}

void PageServer::ServeAsset(SoupServerMessage* message, const std::string& path) {
  const PageAsset* asset = FindPageAsset(path);
  if (asset == nullptr) return Refuse(message, SOUP_STATUS_NOT_FOUND, "nothing at " + path);
  Send(message, SOUP_STATUS_OK, asset->contentType, PageAssetText(*asset, guard_.Token()));
}

void PageServer::ServeMember(SoupServerMessage* message, const std::string& member, GHashTable* query) {
  if (!service_.Knows(member)) return Refuse(message, SOUP_STATUS_NOT_FOUND, "unknown member \"" + member + "\"");
  std::string text;
  if (Is(message, SOUP_METHOD_GET)) {
    if (service_.ChangesState(member)) {
      return Refuse(message, SOUP_STATUS_METHOD_NOT_ALLOWED, member + " changes state: POST it with the page's token");
    }
    const char* request = query ? static_cast<const char*>(g_hash_table_lookup(query, "request")) : nullptr;
    text = request ? request : "";
  } else {
    const std::string refusal = guard_.ChangeRefusalOf(message);
    if (!refusal.empty()) return Refuse(message, SOUP_STATUS_FORBIDDEN, refusal);
    text = RequestBody(message);
  }
  Json::Value parsed;
  if (!ReadsAsRequest(text, parsed)) return Refuse(message, SOUP_STATUS_BAD_REQUEST, "the request is not a JSON object");
  Send(message, SOUP_STATUS_OK, "application/json", service_.Answer(member, text));
}

void PageServer::ServeEmit(SoupServerMessage* message) {
  const std::string refusal = guard_.ChangeRefusalOf(message);
  if (!refusal.empty()) return Refuse(message, SOUP_STATUS_FORBIDDEN, refusal);
  Json::Value body;
  if (!ReadsAsRequest(RequestBody(message), body) || EventOf(body) == -1) {
    return Refuse(message, SOUP_STATUS_BAD_REQUEST, "the request needs \"event\": a number or an event's name");
  }
  FCMessageBuffer payload;
  for (int i = 1; i <= 3; ++i) {
    const Json::Value& param = body["param" + std::to_string(i)];
    if (!param.isNull() && !param.isInt()) {
      return Refuse(message, SOUP_STATUS_BAD_REQUEST, "\"param" + std::to_string(i) + "\" must be an integer");
    }
    payload.PushInt(param.isNull() ? -1 : param.asInt());
  }
  // The library's own sender, as zunde-cli emit uses: what the page sends is
  // what an application's test would.
  auto* sender = static_cast<FCIPCManager*>(FIIPCManager::GetInstance());
  if (!sender->m_Send(std::string(), FC_IPC_EVENT, EventOf(body), payload)) {
    return Refuse(message, SOUP_STATUS_SERVICE_UNAVAILABLE, "the signal could not be sent");
  }
  Json::Value reply(Json::objectValue);
  reply["ret"] = true;
  SendJson(message, SOUP_STATUS_OK, reply);
}

}  // namespace zunde::service::http
