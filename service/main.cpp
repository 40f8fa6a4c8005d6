// zunde-service: answers the zunde-provider library the way the TV's
// live-content service does, with its state kept on disk.
//
// One GLib main loop does everything: it owns the name, answers calls, sends
// events and holds back slow answers. SIGTERM and SIGINT end the loop; the
// held-back answers are then sent and the store closed.
#include <glib-unix.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "bus_service.h"
#include "options.h"

namespace {

using namespace zunde::service;

// Makes `dir` and its missing parents.
bool MakeFolder(const std::string& dir) {
  if (g_mkdir_with_parents(dir.c_str(), 0700) == 0) return true;
  std::fprintf(stderr, "zunde-service: cannot make %s: %s\n", dir.c_str(), std::strerror(errno));
  return false;
}

gboolean Quit(gpointer loop) {
  g_main_loop_quit(static_cast<GMainLoop*>(loop));
  return G_SOURCE_CONTINUE;
}

int Serve(const Options& options) {
  if (!MakeFolder(options.dataDir)) return 1;
  std::unique_ptr<Store> store;
  try {
    store = std::make_unique<Store>(options.dataDir + "/zunde-service.db");
  } catch (const StoreError& failed) {
    std::fprintf(stderr, "zunde-service: %s\n", failed.what());
    return 1;
  }
  Dispatcher dispatcher(*store);
  GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
  int status = 0;
  {
    BusService service(
        dispatcher, options.slowReplyMs,
        [] {
          // Scripts and tests wait for this line.
          std::printf("zunde-service ready\n");
          std::fflush(stdout);
        },
        [&] {
          std::fprintf(stderr, "zunde-service: cannot own the name com.velmora.FCCallListener\n");
          status = 1;
          g_main_loop_quit(loop);
        });
    g_unix_signal_add(SIGTERM, Quit, loop);
    g_unix_signal_add(SIGINT, Quit, loop);
    if (service.Start()) {
      g_main_loop_run(loop);
    } else {
      status = 1;
    }
  }
  g_main_loop_unref(loop);
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = ParseOptions(argc, argv);
  if (options.exitNow) return options.exitCode;
  return Serve(options);
}
