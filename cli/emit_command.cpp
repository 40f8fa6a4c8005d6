// zunde-cli emit: an "Event" signal as zunde-service sends it, so that an
// application's event handler can be tried without changing any state.
#include <ZundeEvents.h>
#include <ZundeProvider.h>

#include <cstdio>
#include <memory>

#include "arg_checks.h"
#include "direct_commands.h"
#include "session.h"

namespace zcli {
namespace {

struct EmitRequest {
  std::string event;
  std::vector<std::string> params;
};

// A number or a name of ZundeEvents.h; the text becomes the number.
std::string CheckEvent(std::string& text) {
  const int number = zunde::EventNumberOf(text.c_str());
  if (number != -1) {
    text = std::to_string(number);
    return "";
  }
  std::string names;
  for (const zunde::EventName& event : zunde::kEventNames) names += std::string(names.empty() ? "" : ", ") + event.name;
  const std::string why = CheckWhole(text, INT32_MIN, INT32_MAX, "int");
  return why.empty() ? "" : why + " and not an event name (" + names + ")";
}

int Emit(const EmitRequest& request) {
  const int number = std::stoi(request.event);
  FCMessageBuffer payload;
  for (size_t n = 0; n < 3; ++n) payload.PushInt(n < request.params.size() ? std::stoi(request.params[n]) : -1);
  // The service broadcasts its events; so does this, through the library's sender.
  auto* sender = static_cast<FCIPCManager*>(FIIPCManager::GetInstance());
  if (!sender->m_Send(std::string(), FC_IPC_EVENT, number, payload)) {
    std::fprintf(stderr, "zunde-cli: emit: the signal could not be sent: out of memory\n");
    return kRefused;
  }
  const char* name = zunde::EventNameOf(number);
  std::printf("sent event %d%s%s\n", number, name ? " " : "", name ? name : "");
  return kOk;
}

}  // namespace

void AddEmit(CLI::App& app, Action& action) {
  auto request = std::make_shared<EmitRequest>();
  CLI::App* emit = app.add_subcommand(
      "emit", "Send an \"Event\" signal as zunde-service does (parameters default to -1); no state changes");
  emit->footer("Example: zunde-cli emit FavoriteChanged 0 1 3");
  emit->add_option("EVENT", request->event, "the event's number or name (see zunde-cli monitor --help)")
      ->required()
      ->transform(CLI::Validator(CheckEvent, ""));
  emit->add_option("PARAMS", request->params, "up to three int parameters: P1 P2 P3")
      ->expected(0, 3)
      ->check(CLI::Validator([](std::string& text) { return CheckWhole(text, INT32_MIN, INT32_MAX, "int"); }, ""));
  emit->callback([request, &action] { action = [request] { return Emit(*request); }; });
}

}  // namespace zcli
