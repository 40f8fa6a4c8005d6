// The set's services as the broadcast navigation walks them: its own tuned
// services, then the virtual channels, each under its genre. A genre asked
// for may be a genre id, a representative genre's id (standing for its
// genre id list) or "" for all, so that what a count counts, a map lists.
#ifndef ZUNDE_SERVICE_STATIONS_H
#define ZUNDE_SERVICE_STATIONS_H

#include <optional>
#include <string>
#include <vector>

#include "catalogue.h"

namespace zunde::service {

// The service `serviceId`, broadcast or virtual; a virtual channel comes as
// a service no operator lists.
std::optional<BroadcastChannel> StationById(const Catalogue& catalogue, unsigned long long serviceId);

// The service ids of `genre`, in navigation order.
std::vector<unsigned long long> StationsOfGenre(const Catalogue& catalogue, const std::string& genre);

// How many services have a genre in `genreIdList` (",G01,G02," form).
int CountInGenreList(const Catalogue& catalogue, const std::string& genreIdList);

}  // namespace zunde::service

#endif
