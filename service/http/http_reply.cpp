#include "http_reply.h"

namespace zunde::service::http {

void Guard(SoupServerMessage* message) {
  SoupMessageHeaders* headers = soup_server_message_get_response_headers(message);
  soup_message_headers_replace(headers, "Cache-Control", "no-store");
  soup_message_headers_replace(headers, "X-Content-Type-Options", "nosniff");
  // Everything the page needs comes from this server; nothing may frame it.
  soup_message_headers_replace(headers, "Content-Security-Policy", "default-src 'self'; frame-ancestors 'none'");
}

void Send(SoupServerMessage* message, guint status, const char* contentType, const std::string& body) {
  Guard(message);
  soup_server_message_set_status(message, status, nullptr);
  soup_server_message_set_response(message, contentType, SOUP_MEMORY_COPY, body.data(), body.size());
}

std::string CompactJson(const Json::Value& value) {
  Json::StreamWriterBuilder writer;
  writer["indentation"] = "";
  return Json::writeString(writer, value);
}

void SendJson(SoupServerMessage* message, guint status, const Json::Value& value) {
  Send(message, status, "application/json", CompactJson(value));
}

void Refuse(SoupServerMessage* message, guint status, const std::string& why) {
  Json::Value reply(Json::objectValue);
  reply["error"] = why;
  reply["ret"] = false;
  SendJson(message, status, reply);
}

}  // namespace zunde::service::http
