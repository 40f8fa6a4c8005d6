#include "catalogue_source.h"

#include <sys/stat.h>

#include <cstdio>

#include "guide_files/guide_loader.h"
#include "guide_files/xml_stream.h"

namespace zunde::service {
namespace {

bool Exists(const std::string& path) {
  struct stat info {};
  return stat(path.c_str(), &info) == 0;
}

std::unique_ptr<Catalogue> BaseCatalogue(const Options& options) {
  std::string path = options.catalogue;
  if (path.empty() && Exists(options.dataDir + "/catalogue.json")) path = options.dataDir + "/catalogue.json";
  try {
    return std::make_unique<Catalogue>(path.empty() ? DefaultCatalogue(options.lineupSize) : LoadCatalogue(path));
  } catch (const CatalogueError& refused) {
    std::fprintf(stderr, "zunde-service: catalogue %s: %s\n", path.c_str(), refused.what());
    return nullptr;
  }
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

std::unique_ptr<Catalogue> BuildCatalogue(const Options& options, const std::string& language) {
  std::unique_ptr<Catalogue> catalogue = BaseCatalogue(options);
  if (!catalogue || !AddGuideFiles(options, language, *catalogue)) return nullptr;
  catalogue->now = std::time(nullptr);
  return catalogue;
}

}  // namespace zunde::service
