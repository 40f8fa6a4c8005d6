// The one procedure by which every proxy method reaches the service.
//
// A proxy method states only what differs from method to method:
//
//   bool FCRemoteContentOnTV_Proxy::GetRemoteContentEnv(std::string& country, std::string& language) {
//     return zunde::RemoteCall(kLog, "GetRemoteContentEnv")
//         .Entry()
//         .Reads(FCMarshal::JsonToCountryAndLang, country, language)
//         .Run();
//   }
//
// Entry() and Require() act at once, in the order written, so a method says
// whether its entry line comes before or after its checks; an entry line may
// carry numbers of its own: Entry(line, activity). Writers and
// readers run inside Run(): the request root is built from the writers in
// order and written with Json::StyledWriter (no writers: the request buffer
// stays empty); the reply's "ret" is the result, and the readers fill the
// outputs from the reply whenever it parses, whatever "ret" says. Outputs are
// untouched when a check, the transport or the parse failed.
//
// The chain is a temporary: it must be finished within the statement that
// made it, since it holds references to the arguments it was given.
#ifndef ZUNDE_FCREMOTECALL_INTERNAL_H
#define ZUNDE_FCREMOTECALL_INTERNAL_H

#include <json/json.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "FCLog_internal.h"

class FCMessageBuffer;

namespace zunde {

// The lines a proxy family writes around one call; each format names the
// family's class. A family that writes lines of two forms keeps two sets.
struct CallLogLines {
  LogLine called;
  LogLine sendFailed;
  LogLine parseFailed;
};

// The transports of the split call: text in and out, and JSON in and out.
using StringTransport = std::function<bool(const char* member, const std::string& request, std::string& reply)>;
using JsonTransport = std::function<bool(const char* member, const Json::Value& request, Json::Value& reply)>;

class RemoteCall {
 public:
  RemoteCall(const CallLogLines& lines, const char* member, LogSite site = LogSite::Here());
  RemoteCall(const RemoteCall&) = delete;
  RemoteCall& operator=(const RemoteCall&) = delete;

  // Writes the family's entry line now, unless a check has failed already.
  RemoteCall& Entry();
  // Writes `line` as the entry line instead of the family's.
  RemoteCall& Entry(const LogLine& line);
  // Writes `line`, whose own arguments are `args`, as the entry line.
  template <typename... Args>
  RemoteCall& Entry(const LogLine& line, Args... args) {
    if (!rejected_) WriteLogLineWith(line, site_, args...);
    return *this;
  }
  // A failed check makes the call return false at once, sending nothing;
  // `reason` names the check in the call's outcome.
  RemoteCall& Require(bool check, const char* reason = "an argument is outside what the method accepts");
  // Asks the connection to connect before the call.
  RemoteCall& ConnectFirst();
  // Sends through `transport` (the split call) instead of directly.
  RemoteCall& Through(JsonTransport transport);

  // Adds `write(args..., root)` to the request.
  template <typename Write, typename... Args>
  RemoteCall& Writes(Write&& write, Args&&... args) {
    writers_.emplace_back([&write, &args...](Json::Value& root) { write(args..., root); });
    return *this;
  }
  // Adds `read(root, args...)` to the handling of the reply.
  template <typename Read, typename... Args>
  RemoteCall& Reads(Read&& read, Args&&... args) {
    readers_.emplace_back([&read, &args...](Json::Value& root) { read(root, args...); });
    return *this;
  }

  // The typed call: the reply's "ret", or false on failure.
  bool Run();
  // The typed call for replies whose "ret" means nothing: true when the
  // reply parsed, the readers having filled the outputs.
  bool RunIgnoringRet();
  // The call without looking at the reply: true when the service answered.
  bool Send();
  // The pass-through call: the caller's text goes as it stands, and the
  // service's reply text comes back raw; true when the service answered.
  bool PassThrough(const std::string& request, std::string& reply);

 private:
  std::string WriteRequest() const;
  bool Transmit(const std::string& request, FCMessageBuffer& reply);
  bool Parse(FCMessageBuffer& replyBuffer, Json::Value& root);
  // Sends the request and parses the reply into `reply`; false on failure.
  bool Exchange(Json::Value& reply);
  void ReadOutputs(Json::Value& reply);

  const CallLogLines& lines_;
  const char* member_;
  LogSite site_;
  bool rejected_ = false;
  JsonTransport transport_;
  std::vector<std::function<void(Json::Value&)>> writers_;
  std::vector<std::function<void(Json::Value&)>> readers_;
};

// The three steps of the split call, which the virtual channels and broadcast
// proxies keep as private functions of their own; their lines name the member.
//
// The entry line, then the text as it stands to `member`; true when the
// service answered, its reply text in `reply`.
bool CallWithStringArguments(const CallLogLines& lines, const char* member, const std::string& request,
                             std::string& reply, LogSite site = LogSite::Here());
// `request` written with Json::StyledWriter, sent through `stringCall` (the
// proxy's own string step; when empty, the string step runs inline here), and
// the reply parsed into `reply`.
bool CallWithJsonArguments(const CallLogLines& lines, const char* member, const Json::Value& request,
                           Json::Value& reply, const StringTransport& stringCall = StringTransport(),
                           LogSite site = LogSite::Here());
// The "ret" of a reply text; false, with `parseFailed`, when it does not parse.
bool ParseReturnValue(const LogLine& parseFailed, const std::string& text, LogSite site = LogSite::Here());

// Parses the text in [begin, end) exactly as FCMarshal::ParseToJson parses
// a string holding it.
bool ParseJsonText(const char* begin, const char* end, Json::Value& root);

// Sends `request` as it stands to `member` of the service; on success the
// reply's bytes are in `reply`. The transport failure line is written here.
bool TransmitBuffer(const CallLogLines& lines, const LogSite& site, const char* subject, const char* member,
                    const std::string& request, FCMessageBuffer& reply);
// As TransmitBuffer, the reply's bytes becoming the text `reply`.
bool TransmitText(const CallLogLines& lines, const LogSite& site, const char* subject, const char* member,
                  const std::string& request, std::string& reply);

}  // namespace zunde

#endif
