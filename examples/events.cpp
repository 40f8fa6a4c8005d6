// The service's events, received in a GLib main loop.
//   events [SECONDS]   listens that long (default 10), then ends
#include <ZundeProvider.h>
#include <glib.h>

#include <cstdlib>
#include <iostream>

namespace {

GMainLoop* loop = nullptr;

// Called on the thread that runs the default main context, once per event.
int OnEvent(int event, FSEventData data) {
  std::cout << "event " << event << ": " << data.param1 << ", " << data.param2 << ", " << data.param3 << std::endl;
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const int seconds = argc > 1 ? std::atoi(argv[1]) : 10;
  loop = g_main_loop_new(nullptr, FALSE);

  FCEMSProxy* events = FCEMSProxy::GetInstance(FIIPCConnection::GetInstance(), OnEvent);
  const int numbers[] = {1, 2, 10, 11, 12, 13, 14, 15};  // as zunde-service documents them
  for (int event : numbers)
    if (events->SubscribeSignal(event) != 0) std::cerr << "could not subscribe to " << event << "\n";

  g_timeout_add_seconds(seconds, [](gpointer) { g_main_loop_quit(loop); return G_SOURCE_REMOVE; }, nullptr);
  std::cout << "listening for " << seconds << " s" << std::endl;
  g_main_loop_run(loop);

  for (int event : numbers) events->UnsubscribeSignal(event);
  g_main_loop_unref(loop);
  return 0;
}
