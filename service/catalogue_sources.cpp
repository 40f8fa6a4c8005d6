#include "catalogue_sources.h"

#include <sys/stat.h>

#include <cstdio>

#include "guide_files/guide_loader.h"

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

bool AddGuideFiles(const Options& options, const std::string& language, Catalogue& catalogue) {
  if (options.xmltv.empty() && options.m3u.empty()) return true;
  const guide::GuideFiles files{options.xmltv, options.m3u, options.dataDir + "/guide.db", language};
  std::string warning;
  try {
    guide::LoadGuideFiles(files, catalogue, warning);
  } catch (const std::exception& refused) {
    std::fprintf(stderr, "zunde-service: %s\n", refused.what());
    return false;
  }
  if (!warning.empty()) std::fprintf(stderr, "zunde-service: warning: %s\n", warning.c_str());
  return true;
}

}  // namespace

std::unique_ptr<Catalogue> LoadCatalogueSources(const Options& options, const std::string& language) {
  const std::string path = CataloguePath(options);
  std::unique_ptr<Catalogue> catalogue;
  try {
    catalogue = std::make_unique<Catalogue>(path.empty() ? DefaultCatalogue(options.lineupSize)
                                                         : LoadCatalogue(path, options.lineupSize));
  } catch (const CatalogueError& refused) {
    std::fprintf(stderr, "zunde-service: catalogue %s: %s\n", path.c_str(), refused.what());
    return nullptr;
  }
  if (!AddGuideFiles(options, language, *catalogue)) return nullptr;
  catalogue->now = std::time(nullptr);
  return catalogue;
}

bool ReloadCatalogue(const Options& options, const std::string& language, Catalogue& running) {
  std::unique_ptr<Catalogue> loaded = LoadCatalogueSources(options, language);
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
