// Puts guide files into a catalogue: an XMLTV file becomes the operator
// line-up of activity 0 and its guide, an M3U playlist the virtual
// channels, whose programmes come from the XMLTV channel of the same
// tvg-id. The catalogue's other parts stay as they are.
#ifndef ZUNDE_SERVICE_GUIDE_FILES_GUIDE_LOADER_H
#define ZUNDE_SERVICE_GUIDE_FILES_GUIDE_LOADER_H

#include <string>

#include "catalogue.h"

namespace zunde::service::guide {

struct GuideFiles {
  std::string xmltv;  // "" for none
  std::string m3u;    // "" for none
  std::string guidePath;  // where the programmes are kept (SQLite)
  std::string language;   // whose titles and descriptions are chosen
};

// The provider id under which the playlist's channels are found by
// GetServiceIdFromOnTVProviderAndService.
extern const char kM3uProvider[];

// Reads the files into `catalogue`. Throws GuideFileError (file, line and
// column) when a file cannot be used, leaving `catalogue` untouched.
// Single bad records are skipped; `warning` then says how many and why.
void LoadGuideFiles(const GuideFiles& files, Catalogue& catalogue, std::string& warning);

}  // namespace zunde::service::guide

#endif
