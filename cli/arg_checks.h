// The checks an argument passes before any call is made. Each check may
// rewrite the text into the form the command reads (a time given as `now+2h`
// becomes its seconds, `@FILE` the file's text), and names the argument and
// what it accepts when it fails.
#ifndef ZUNDE_CLI_ARG_CHECKS_H
#define ZUNDE_CLI_ARG_CHECKS_H

#include <json/json.h>

#include <string>

namespace zcli {

// An empty result means the text passed.
std::string CheckWhole(std::string& text, long long low, unsigned long long high, const char* type);
// Seconds since the epoch, `now`, `now+90m`, `now-2h` (units s, m, h, d) or
// `HH:MM` today in local time; rewritten as seconds.
std::string CheckTime(std::string& text);
// A JSON object, given as text, `@FILE` or `-` (standard input); rewritten as the text.
// With a non-null `shape` the object may hold only its keys, each of the JSON
// type the shape holds there.
std::string CheckJson(std::string& text, const Json::Value& shape);

}  // namespace zcli

#endif
