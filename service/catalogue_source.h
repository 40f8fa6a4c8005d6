// The catalogue the command line asks for: the catalogue file (or the data
// folder's, or the built-in set) with the guide files laid over it. Made at
// start and again on SIGHUP.
#ifndef ZUNDE_SERVICE_CATALOGUE_SOURCE_H
#define ZUNDE_SERVICE_CATALOGUE_SOURCE_H

#include <memory>
#include <string>

#include "catalogue.h"
#include "options.h"

namespace zunde::service {

// The catalogue, its guide window starting now; null after writing why
// not to standard error. `language` picks the guide file's texts.
std::unique_ptr<Catalogue> BuildCatalogue(const Options& options, const std::string& language);

}  // namespace zunde::service

#endif
