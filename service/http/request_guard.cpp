#include "request_guard.h"

#include <sys/random.h>

#include <cstdio>
#include <cstring>

namespace zunde::service::http {
namespace {

std::string NewToken() {
  unsigned char bytes[16] = {};
  size_t filled = 0;
  while (filled < sizeof bytes) {
    const ssize_t got = getrandom(bytes + filled, sizeof bytes - filled, 0);
    if (got > 0) filled += static_cast<size_t>(got);
  }
  std::string token;
  char hex[3];
  for (unsigned char byte : bytes) {
    std::snprintf(hex, sizeof hex, "%02x", byte);
    token += hex;
  }
  return token;
}

std::string HostForm(const std::string& address, int port) {
  const bool ipv6 = address.find(':') != std::string::npos;
  return (ipv6 ? "[" + address + "]" : address) + ":" + std::to_string(port);
}

}  // namespace

RequestGuard::RequestGuard(const std::string& address, int port)
    : hosts_{HostForm(address, port), HostForm("localhost", port)}, token_(NewToken()) {}

std::string RequestGuard::Url() const { return "http://" + hosts_.front() + "/"; }

bool RequestGuard::KnownHost(const char* host) const {
  if (host == nullptr) return false;
  for (const std::string& known : hosts_) {
    if (g_ascii_strcasecmp(host, known.c_str()) == 0) return true;
  }
  return false;
}

std::string RequestGuard::RefusalOf(SoupServerMessage* message) const {
  SoupMessageHeaders* headers = soup_server_message_get_request_headers(message);
  const char* host = soup_message_headers_get_one(headers, "Host");
  if (!KnownHost(host)) {
    return std::string("the Host \"") + (host ? host : "") + "\" is not this server's; open " + Url();
  }
  // A browser names the page that sent a request; only this server's own may.
  const char* origin = soup_message_headers_get_one(headers, "Origin");
  if (origin != nullptr && !(g_str_has_prefix(origin, "http://") && KnownHost(origin + std::strlen("http://")))) {
    return std::string("requests from \"") + origin + "\" are not served";
  }
  return "";
}

std::string RequestGuard::ChangeRefusalOf(SoupServerMessage* message) const {
  if (std::strcmp(soup_server_message_get_method(message), SOUP_METHOD_POST) != 0) {
    return "changes are made by POST";
  }
  const char* token = soup_message_headers_get_one(soup_server_message_get_request_headers(message), kTokenHeader);
  if (token == nullptr || token_ != token) {
    return std::string("a change needs the ") + kTokenHeader + " header of the page this service served";
  }
  return "";
}

}  // namespace zunde::service::http
