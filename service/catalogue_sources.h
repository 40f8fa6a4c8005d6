// Where the running catalogue comes from, and its reload on SIGHUP.
//
// The sources are read in full before anything is replaced, so a reload
// that fails part-way leaves the running catalogue as it was. The state
// kept in the store is not touched by a reload.
#ifndef ZUNDE_SERVICE_CATALOGUE_SOURCES_H
#define ZUNDE_SERVICE_CATALOGUE_SOURCES_H

#include <memory>
#include <string>

#include "catalogue.h"
#include "options.h"

namespace zunde::service {

// The catalogue the options name, else the data folder's catalogue.json,
// else the built-in set, with the guide files (--xmltv, --m3u) laid over
// it, their texts chosen in `language`; its guide window starts from now.
// Null, after one line on standard error naming the file and its problem,
// when it does not load.
std::unique_ptr<Catalogue> LoadCatalogueSources(const Options& options, const std::string& language);

// Reads the sources again and, when they load, puts them in the place of
// `running`; otherwise logs why and keeps `running`. True when replaced.
bool ReloadCatalogue(const Options& options, const std::string& language, Catalogue& running);

}  // namespace zunde::service

#endif
