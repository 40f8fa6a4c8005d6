#include "stations.h"

#include <functional>

namespace zunde::service {
namespace {

// Calls `visit` with the id and genre of every service in navigation order.
void EachStation(const Catalogue& catalogue, const std::function<void(unsigned long long, const std::string&)>& visit) {
  for (const BroadcastChannel& channel : catalogue.broadcast) visit(channel.serviceId, channel.genre);
  for (const VirtualChannel& channel : catalogue.virtualChannels) visit(channel.serviceId, channel.genre);
}

bool InList(const std::string& genreIdList, const std::string& genre) {
  return genreIdList.find("," + genre + ",") != std::string::npos;
}

// The genre id list a representative genre stands for; null when `genre` names none.
const std::string* RepresentedGenres(const Catalogue& catalogue, const std::string& genre) {
  for (const FCRepGenreInfo& rep : catalogue.repGenres) {
    if (rep.str_rep_id == genre) return &rep.str_genre_id_list;
  }
  return nullptr;
}

}  // namespace

std::optional<BroadcastChannel> StationById(const Catalogue& catalogue, unsigned long long serviceId) {
  if (const BroadcastChannel* channel = catalogue.BroadcastById(serviceId)) return *channel;
  if (const VirtualChannel* channel = catalogue.VirtualById(serviceId)) {
    return BroadcastChannel{channel->serviceId, channel->name, channel->genre, ""};
  }
  return std::nullopt;
}

std::vector<unsigned long long> StationsOfGenre(const Catalogue& catalogue, const std::string& genre) {
  const std::string* represented = RepresentedGenres(catalogue, genre);
  std::vector<unsigned long long> ids;
  EachStation(catalogue, [&](unsigned long long id, const std::string& of) {
    if (genre.empty() || of == genre || (represented && InList(*represented, of))) ids.push_back(id);
  });
  return ids;
}

int CountInGenreList(const Catalogue& catalogue, const std::string& genreIdList) {
  int count = 0;
  EachStation(catalogue, [&](unsigned long long, const std::string& of) { count += InList(genreIdList, of); });
  return count;
}

}  // namespace zunde::service
