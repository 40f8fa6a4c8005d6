// How the page's server answers: every reply carries the same guarding
// headers, and every refusal is a JSON object in the members' own shape.
#ifndef ZUNDE_SERVICE_HTTP_REPLY_H
#define ZUNDE_SERVICE_HTTP_REPLY_H

#include <json/json.h>
#include <libsoup/soup.h>

#include <string>

namespace zunde::service::http {

// Headers that keep the page from being framed, cached, sniffed or made to
// load anything from elsewhere.
void Guard(SoupServerMessage* message);

// Sets the status and the body, with headers that keep the page from being
// framed, cached or read by another origin.
void Send(SoupServerMessage* message, guint status, const char* contentType, const std::string& body);

// One line of JSON, as the members answer.
std::string CompactJson(const Json::Value& value);

void SendJson(SoupServerMessage* message, guint status, const Json::Value& value);

// A refusal: {"error": why, "ret": false} with a 4xx status.
void Refuse(SoupServerMessage* message, guint status, const std::string& why);

}  // namespace zunde::service::http

#endif
