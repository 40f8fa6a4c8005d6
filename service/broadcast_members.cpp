// The broadcast family: the set's own services by genre, the navigation
// mode and genre (kept in the store under "broadcast/navigation"), and the
// meta programmes of a service. A genre is a genre id; "" stands for all.
#include <algorithm>
#include <ctime>

#include "FCMarshal.h"
#include "FCRFNetworkChannelTable.h"
#include "member_table.h"
#include "programmes.h"

namespace zunde::service {
namespace {

using T = JsonType;

const char kNavigationKey[] = "broadcast/navigation";

std::string GenreOf(Request& request) {
  std::string genre;
  FCMarshal::JsonToGenre(request.body, genre);
  return genre;
}

std::vector<unsigned long long> ServicesOf(const Catalogue& catalogue, const std::string& genre) {
  std::vector<unsigned long long> ids;
  for (const BroadcastChannel& channel : catalogue.broadcast) {
    if (genre.empty() || channel.genre == genre) ids.push_back(channel.serviceId);
  }
  return ids;
}

const BroadcastChannel& ChannelOf(Request& request, unsigned long long id) {
  const BroadcastChannel* channel = request.catalogue.BroadcastById(id);
  if (channel == nullptr) throw BadRequest("no service " + std::to_string(id));
  return *channel;
}

void ReplyProgramAt(Request& request, const BroadcastChannel& channel, time_t time, Json::Value& reply) {
  Slot slot;
  if (!request.catalogue.SlotAt(ScheduleKey(channel), channel.genre, time, request.catalogue.WindowEnd(), slot)) {
    throw BadRequest("no programme on service " + std::to_string(channel.serviceId) + " at " + std::to_string(time));
  }
  FCMarshal::FCRemoteProgramToJson(BroadcastProgram(channel, slot), reply);
  Succeed(reply);
}

// --- navigation ---

Json::Value Navigation(Request& request) {
  Json::Value doc = request.store.Get(kNavigationKey);
  if (doc.isNull()) {
    FCMarshal::NavigationModeToJson(0, doc);
    FCMarshal::GenreToJson("", doc);
  }
  return doc;
}

void SetMode(Request& request, Json::Value& reply) {
  int mode = 0;
  FCMarshal::JsonToNavigationMode(request.body, mode);
  Json::Value doc = Navigation(request);
  FCMarshal::NavigationModeToJson(mode, doc);
  request.store.Put(kNavigationKey, doc);
  Succeed(reply);
}

void GetMode(Request& request, Json::Value& reply) {
  Json::Value doc = Navigation(request);
  int mode = 0;
  FCMarshal::JsonToNavigationMode(doc, mode);
  FCMarshal::NavigationModeToJson(mode, reply);
  Succeed(reply);
}

void SetGenre(Request& request, Json::Value& reply) {
  Json::Value doc = Navigation(request);
  FCMarshal::GenreToJson(GenreOf(request), doc);
  request.store.Put(kNavigationKey, doc);
  Succeed(reply);
}

void GetGenre(Request& request, Json::Value& reply) {
  Json::Value doc = Navigation(request);
  std::string genre;
  FCMarshal::JsonToGenre(doc, genre);
  FCMarshal::GenreToJson(genre, reply);
  Succeed(reply);
}

// --- services by genre ---

void MapByGenre(Request& request, Json::Value& reply) {
  const std::string genre = GenreOf(request);
  FCRFNetworkChannelTable table;
  for (unsigned long long id : ServicesOf(request.catalogue, genre)) table.AppendRFNetworkChannel(id);
  FCMarshal::GenreToJson(genre, reply);
  FCMarshal::RFNetworkChannelTableToJson(table, reply);
  Succeed(reply);
}

// The next service of the genre after the current one, wrapping round; the
// first (or last) when the current one is not of the genre.
void Step(Request& request, Json::Value& reply, bool up) {
  std::vector<unsigned long long> ids = ServicesOf(request.catalogue, GenreOf(request));
  if (ids.empty()) throw BadRequest("no service of genre \"" + GenreOf(request) + "\"");
  if (!up) std::reverse(ids.begin(), ids.end());
  auto at = std::find(ids.begin(), ids.end(), ServiceIdOf(request));
  const unsigned long long next = at == ids.end() || ++at == ids.end() ? ids.front() : *at;
  FCMarshal::VCServiceIdToJson(next, reply);
  Succeed(reply);
}

void Up(Request& request, Json::Value& reply) { Step(request, reply, true); }
void Down(Request& request, Json::Value& reply) { Step(request, reply, false); }

void CountByGenre(Request& request, Json::Value& reply) {
  FCMarshal::CountToJson(static_cast<int>(ServicesOf(request.catalogue, GenreOf(request)).size()), reply);
  Succeed(reply);
}

// Counts per representative genre asked for (by rep id); without any, per
// genre id of the catalogue.
void CountByGenreList(Request& request, Json::Value& reply) {
  std::vector<FCRepGenreInfo> asked;
  FCMarshal::JsonToRepGenreList(request.body, asked);
  std::map<std::string, int> counts;
  for (const FCGenreInfo& genre : request.catalogue.genres) {
    if (asked.empty()) counts[genre.str_id] = static_cast<int>(ServicesOf(request.catalogue, genre.str_id).size());
  }
  for (const FCRepGenreInfo& rep : asked) {
    std::string list = rep.str_genre_id_list;
    for (const FCRepGenreInfo& known : request.catalogue.repGenres) {
      if (list.empty() && known.str_rep_id == rep.str_rep_id) list = known.str_genre_id_list;
    }
    int& count = counts[rep.str_rep_id];
    for (const BroadcastChannel& channel : request.catalogue.broadcast) {
      count += list.find("," + channel.genre + ",") != std::string::npos;
    }
  }
  FCMarshal::CountMapToJson(counts, reply);
  Succeed(reply);
}

// --- meta programmes ---

void Present(Request& request, Json::Value& reply) {
  ReplyProgramAt(request, ChannelOf(request, ServiceIdOf(request)), std::time(nullptr), reply);
}

// Only the keys that place the programme are read, one by one, as the
// record reads them: the record's own reader ends the process on a value of
// the wrong type, while here jsoncpp's error refuses the request.
void Neighbour(Request& request, Json::Value& reply, bool next) {
  const Json::Value& body = request.body;
  const std::string programId = body["program id"].asString();
  const unsigned int start = static_cast<unsigned int>(body["utc start time"].asInt());
  const int duration = body["duration"].asInt();
  const std::string key = ChannelKeyOfProgramId(programId);
  if (key.empty() || key.find_first_not_of("0123456789") != std::string::npos) {
    throw BadRequest("programme id \"" + programId + "\" names no service");
  }
  const time_t at = next ? static_cast<time_t>(start) + duration : static_cast<time_t>(start) - 1;
  ReplyProgramAt(request, ChannelOf(request, std::stoull(key)), at, reply);
}

void Next(Request& request, Json::Value& reply) { Neighbour(request, reply, true); }
void Previous(Request& request, Json::Value& reply) { Neighbour(request, reply, false); }

void ProgramMap(Request& request, Json::Value& reply) {
  unsigned long start = 0;
  unsigned int duration = 0;
  FCMarshal::JsonToStartTime(request.body, start);
  FCMarshal::JsonToDuration(request.body, duration);
  const BroadcastChannel& channel = ChannelOf(request, ServiceIdOf(request));
  std::map<unsigned int, FCRemoteProgram> programs;
  for (const Slot& slot : request.catalogue.SlotsBetween(ScheduleKey(channel), channel.genre, start,
                                                         static_cast<time_t>(start) + duration,
                                                         request.catalogue.WindowEnd())) {
    programs[slot.start] = BroadcastProgram(channel, slot);
  }
  FCMarshal::MetaProgramMapToJson(programs, reply);
  Succeed(reply);
}

void MetaExists(Request& request, Json::Value& reply) { reply["ret"] = !request.catalogue.broadcast.empty(); }

const RequiredKey kGenre{"genre", T::String};
const RequiredKey kServiceId{"TCServiceId", T::String};

}  // namespace

const MemberTable& BroadcastMembers() {
  static const MemberTable table = {
      {"SetNavigationMode", {{"navigation mode", T::Int}}, SetMode, true},
      {"GetNavigationMode", {}, GetMode, false},
      {"SetGenreForNavigation", {kGenre}, SetGenre, true},
      {"GetGenreForNavigation", {}, GetGenre, false},
      {"GetRFNetworkChannelMapByGenre", {kGenre}, MapByGenre, false},
      {"GetRFNetworkChannelUpByGenre", {kGenre, kServiceId}, Up, false},
      {"GetRFNetworkChannelDownByGenre", {kGenre, kServiceId}, Down, false},
      {"GetRFNetworkChannelCountByGenre", {kGenre}, CountByGenre, false},
      {"GetRFNetworkChannelCountByGenreList", {}, CountByGenreList, false},
      {"GetPresentMetaProgram", {kServiceId}, Present, false},
      {"GetNextMetaProgram", {}, Next, false},
      {"GetPrevMetaProgram", {}, Previous, false},
      {"GetMetaProgramMap", {kServiceId, {"start_time", T::UInt}, {"duration", T::UInt}}, ProgramMap, false},
      {"CheckMetaProgramExist", {}, MetaExists, false},
  };
  return table;
}

}  // namespace zunde::service
