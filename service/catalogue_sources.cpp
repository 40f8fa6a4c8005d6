#include "catalogue_sources.h"

#include <sys/stat.h>

#include <cstdio>

namespace zunde::service {
namespace {

bool Exists(const std::string& path) {
  struct stat info {};
  return stat(path.c_str(), &info) == 0;
}

std::string CataloguePath(const Options& options) {
  if (!options.catalogue.empty()) return options.catalogue;
  const std::string own = options.dataDir + "/catalogue.json";
  return Exists(own) ? own : "";
}

}  // namespace

std::unique_ptr<Catalogue> LoadCatalogueSources(const Options& options) {
  const std::string path = CataloguePath(options);
  std::unique_ptr<Catalogue> catalogue;
  try {
    catalogue = std::make_unique<Catalogue>(path.empty() ? DefaultCatalogue(options.lineupSize)
                                                         : LoadCatalogue(path, options.lineupSize));
  } catch (const CatalogueError& refused) {
    std::fprintf(stderr, "zunde-service: catalogue %s: %s\n", path.c_str(), refused.what());
    return nullptr;
  }
  catalogue->now = std::time(nullptr);
  return catalogue;
}

bool ReloadCatalogue(const Options& options, Catalogue& running) {
  std::unique_ptr<Catalogue> loaded = LoadCatalogueSources(options);
  if (!loaded) {
    std::fprintf(stderr, "zunde-service: the catalogue was not reloaded; the running one stays\n");
    return false;
  }
  running = std::move(*loaded);
  const std::string path = CataloguePath(options);
  std::printf("zunde-service: catalogue reloaded from %s\n", path.empty() ? "the built-in set" : path.c_str());
  std::fflush(stdout);
  return true;
}

}  // namespace zunde::service
