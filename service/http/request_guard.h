// Who may use the page's server: a browser that reached it by the address it
// listens on (or localhost), so that a foreign name resolved to this machine
// (DNS rebinding) is refused; and, for changes, only the page this start of
// the service served, which carries its token.
#ifndef ZUNDE_SERVICE_HTTP_REQUEST_GUARD_H
#define ZUNDE_SERVICE_HTTP_REQUEST_GUARD_H

#include <libsoup/soup.h>

#include <string>
#include <vector>

namespace zunde::service::http {

class RequestGuard {
 public:
  RequestGuard(const std::string& address, int port);

  // The header the page sends its token in.
  static constexpr const char* kTokenHeader = "X-Zunde-Token";

  const std::string& Token() const { return token_; }
  // The page's address, e.g. "http://127.0.0.1:8080/".
  std::string Url() const;

  // "" when the request may be served, else why not.
  std::string RefusalOf(SoupServerMessage* message) const;
  // "" when the request may change state, else why not.
  std::string ChangeRefusalOf(SoupServerMessage* message) const;

 private:
  bool KnownHost(const char* host) const;

  std::vector<std::string> hosts_;  // "address:port" forms a browser may name
  std::string token_;               // made anew at each start
};

}  // namespace zunde::service::http

#endif
