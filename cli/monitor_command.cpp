// zunde-cli monitor: the service's events as they arrive.
#include <ZundeEvents.h>
#include <ZundeProvider.h>
#include <glib-unix.h>
#include <glib.h>

#include <csignal>
#include <cstdio>
#include <memory>

#include "direct_commands.h"
#include "output.h"
#include "session.h"

namespace zcli {
namespace {


struct MonitorOptions {
  int count = 0;    // stop after this many events; 0: never
  int timeout = 0;  // stop after this many seconds; 0: never
};

// The callback of the subscription is a plain function: its state lives here.
struct Watch {
  GMainLoop* loop = nullptr;
  int wanted = 0;
  int seen = 0;
} watch;

const char* NameOf(int event) {
  const char* name = zunde::EventNameOf(event);
  return name ? name : "?";
}

int OnEvent(int event, FSEventData data) {
  if (GlobalOptions().json) {
    Json::Value line(Json::objectValue);
    line["event"] = event;
    line["name"] = NameOf(event);
    line["param1"] = data.param1;
    line["param2"] = data.param2;
    line["param3"] = data.param3;
    std::printf("%s\n", CompactJson(line).c_str());
  } else {
    std::printf("event %-3d %-20s param1 %-6d param2 %-6d param3 %d\n", event, NameOf(event), data.param1,
                data.param2, data.param3);
  }
  std::fflush(stdout);
  if (++watch.seen == watch.wanted) g_main_loop_quit(watch.loop);
  return 0;
}

gboolean Stop(gpointer) {
  g_main_loop_quit(watch.loop);
  return G_SOURCE_REMOVE;
}

int Monitor(const MonitorOptions& options) {
  if (!ServiceAnswers()) return ReportUnreachable();
  watch.loop = g_main_loop_new(nullptr, FALSE);
  watch.wanted = options.count;
  FCEMSProxy* events = FCEMSProxy::GetInstance(FIIPCConnection::GetInstance(), OnEvent);
  std::string numbers;
  for (const zunde::EventName& event : zunde::kEventNames) {
    events->SubscribeSignal(event.number);
    numbers += " " + std::to_string(event.number) + " " + event.name;
  }
  if (options.timeout > 0) g_timeout_add_seconds(options.timeout, Stop, nullptr);
  g_unix_signal_add(SIGINT, Stop, nullptr);
  g_unix_signal_add(SIGTERM, Stop, nullptr);
  std::fprintf(stderr, "zunde-cli: monitoring events%s\n", numbers.c_str());
  g_main_loop_run(watch.loop);
  for (const zunde::EventName& event : zunde::kEventNames) events->UnsubscribeSignal(event.number);
  g_main_loop_unref(watch.loop);
  // Asked for a number of events and the time ran out first.
  return options.count > 0 && watch.seen < options.count ? kRefused : kOk;
}

}  // namespace

void AddMonitor(CLI::App& app, Action& action) {
  auto options = std::make_shared<MonitorOptions>();
  CLI::App* monitor = app.add_subcommand(
      "monitor", "Print the service's events as they arrive (--json: one object per line); Ctrl-C stops");
  std::string events;
  for (const zunde::EventName& event : zunde::kEventNames)
    events += "\n  " + std::to_string(event.number) + " " + event.name;
  monitor->footer(
      "Example: zunde-cli monitor --timeout 1 --json\n"
      "Exit status 1 when --count events did not arrive within --timeout.\nEvents:" + events);
  monitor->add_option("--count", options->count, "stop after N events")->check(CLI::PositiveNumber);
  monitor->add_option("--timeout", options->timeout, "stop after S seconds")->check(CLI::PositiveNumber);
  monitor->callback([options, &action] { action = [options] { return Monitor(*options); }; });
}

}  // namespace zcli
