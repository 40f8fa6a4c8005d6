// zunde-service: answers the zunde-provider library the way the TV's
// live-content service does, with its state kept on disk.
//
// One GLib main loop does everything: it owns the name, answers calls, sends
// events and holds back slow answers. SIGTERM and SIGINT end the loop; the
// held-back answers are then sent and the store closed. SIGHUP reloads the
// catalogue.
#include <glib-unix.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include <fstream>

#include "bus_service.h"
#include "catalogue.h"
#include "catalogue_sources.h"
#include "environment_state.h"
#include "options.h"
#include "page_server.h"

namespace {

using namespace zunde::service;

// Makes `dir` and its missing parents.
bool MakeFolder(const std::string& dir) {
  if (g_mkdir_with_parents(dir.c_str(), 0700) == 0) return true;
  std::fprintf(stderr, "zunde-service: cannot make %s: %s\n", dir.c_str(), std::strerror(errno));
  return false;
}

int WriteDefaultCatalogue(const Options& options) {
  std::ofstream file(options.writeDefaultCatalogue);
  file << Json::StyledWriter().write(CatalogueToJson(DefaultCatalogue(options.lineupSize)));
  if (file.flush()) return 0;
  std::fprintf(stderr, "zunde-service: cannot write %s\n", options.writeDefaultCatalogue.c_str());
  return 1;
}

// The dispatcher keeps a reference to the catalogue, which stays valid:
// the reload replaces its contents between two requests, on this loop, and
// the dispatcher is told so that it forgets the answers it kept.
struct Reload {
  const Options& options;
  const Store& store;  // whose language picks a guide file's texts
  Catalogue& catalogue;
  Dispatcher& dispatcher;
};

gboolean OnHangup(gpointer reload) {
  auto* r = static_cast<Reload*>(reload);
  if (ReloadCatalogue(r->options, LoadEnvironment(r->store).language, r->catalogue)) {
    r->dispatcher.ReplaceCatalogue(r->catalogue);
  }
  return G_SOURCE_CONTINUE;
}

gboolean Quit(gpointer loop) {
  g_main_loop_quit(static_cast<GMainLoop*>(loop));
  return G_SOURCE_CONTINUE;
}

// The page, when --http asks for it.
bool StartPage(const Options& options, BusService& service, std::unique_ptr<http::PageServer>& page) {
  if (options.httpPort == 0) return true;
  page = std::make_unique<http::PageServer>(service, options.httpAddress, options.httpPort);
  std::string error;
  if (page->Start(error)) return true;
  std::fprintf(stderr, "zunde-service: cannot serve the page on %s:%d: %s\n", options.httpAddress.c_str(),
               options.httpPort, error.c_str());
  page.reset();
  return false;
}

int Serve(const Options& options) {
  if (!MakeFolder(options.dataDir)) return 1;
  std::unique_ptr<Store> store;
  try {
    store = std::make_unique<Store>(options.dataDir + "/zunde-service.db",
                                    StoreOptions{options.readOnly, options.maxStorePages});
  } catch (const StoreError& failed) {
    std::fprintf(stderr, "zunde-service: %s\n", failed.what());
    return 1;
  }
  if (!store->ReadOnlyReason().empty()) {
    std::fprintf(stderr, "zunde-service: the store is read-only (%s): changes will be refused\n",
                 store->ReadOnlyReason().c_str());
  }
  const std::unique_ptr<Catalogue> catalogue = LoadCatalogueSources(options, LoadEnvironment(*store).language);
  if (!catalogue) return 1;
  Dispatcher dispatcher(*store, *catalogue, options.limits);
  GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
  int status = 0;
  {
    std::unique_ptr<http::PageServer> page;
    BusService service(
        dispatcher, options.slowReplyMs,
        [&] {
          // Scripts and tests wait for this line.
          std::printf("zunde-service ready\n");
          if (page) std::printf("zunde-service page %s\n", page->Url().c_str());
          std::fflush(stdout);
        },
        [&] {
          std::fprintf(stderr, "zunde-service: cannot own the name com.velmora.FCCallListener\n");
          status = 1;
          g_main_loop_quit(loop);
        });
    g_unix_signal_add(SIGTERM, Quit, loop);
    g_unix_signal_add(SIGINT, Quit, loop);
    Reload reload{options, *store, *catalogue, dispatcher};
    g_unix_signal_add(SIGHUP, OnHangup, &reload);
    if (service.Start() && StartPage(options, service, page)) {
      g_main_loop_run(loop);
    } else {
      status = 1;
    }
    // The page listens on the service's connection: it goes first.
    page.reset();
  }
  g_main_loop_unref(loop);
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = ParseOptions(argc, argv);
  if (options.exitNow) return options.exitCode;
  if (!options.writeDefaultCatalogue.empty()) return WriteDefaultCatalogue(options);
  return Serve(options);
}
