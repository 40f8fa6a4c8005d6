// zunde-cli call and zunde-cli reset.
#include <ZundeProvider.h>

#include <cstdio>
#include <memory>

#include "direct_commands.h"
#include "session.h"

namespace zcli {
namespace {

struct CallRequest {
  std::string member;
  std::string text;
};

// The text as it stands to MEMBER; the reply's text as it came back.
int PassThrough(const CallRequest& request) {
  std::string reply;
  const bool answered = Timed([&] {
    FCMessageBuffer in, out;
    in.PushConcatenated(request.text.size(), const_cast<char*>(request.text.data()));
    if (FIIPCConnection::GetInstance()->Call("com.velmora.FCCallListener", request.member.c_str(), in, out) == -1)
      return false;
    const char* bytes = out.GetAsCStr(0);
    reply = bytes ? std::string(bytes, out.GetFullBufferSize()) : std::string();
    return true;
  });
  if (!answered) return ReportUnreachable();
  std::printf("%s%s", reply.c_str(), !reply.empty() && reply.back() == '\n' ? "" : "\n");
  Json::Value root;
  std::istringstream text(reply);
  std::string errors;
  const bool parsed = Json::parseFromStream(Json::CharReaderBuilder(), text, &root, &errors);
  return parsed && root.isObject() && root["ret"].isBool() && !root["ret"].asBool() ? kRefused : kOk;
}

}  // namespace

void AddCall(CLI::App& app, Action& action) {
  auto request = std::make_shared<CallRequest>();
  CLI::App* call = app.add_subcommand("call", "Send a request's JSON text to a member as it stands; print the reply");
  call->footer("Example: zunde-cli call GetZipCode '{\"activityID\": 0}'");
  call->add_option("MEMBER", request->member, "the service's member, e.g. GetRemoteContentEnv")->required();
  call->add_option("JSON", request->text, "the request text (default: empty)");
  call->callback([request, &action] { action = [request] { return PassThrough(*request); }; });
}

void AddReset(CLI::App& app, Action& action) {
  CLI::App* reset = app.add_subcommand("reset", "Reset the service's whole state to its defaults");
  reset->footer("Example: zunde-cli reset");
  reset->callback([&action] {
    action = [] {
      if (!Timed([] { return FCAPI::Reset(); })) return ReportFailure("reset");
      if (!GlobalOptions().json) std::printf("ok\n");
      else std::printf("{}\n");
      return static_cast<int>(kOk);
    };
  });
}

}  // namespace zcli
