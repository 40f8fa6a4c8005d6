// The broadcast family: the set's services by genre (its own tuned services
// and the virtual channels), the navigation mode and genre, and the meta
// programmes of a service.
#include <algorithm>
#include <ctime>

#include "FCMarshal.h"
#include "FCRFNetworkChannelTable.h"
#include "handler_helpers.h"
#include "navigation_state.h"
#include "programmes.h"
#include "stations.h"

namespace zunde::service {
namespace {

using T = JsonType;

std::string GenreOf(Request& request) {
  std::string genre;
  FCMarshal::JsonToGenre(request.body, genre);
  return genre;
}

BroadcastChannel StationOf(Request& request, unsigned long long id) {
  const std::optional<BroadcastChannel> station = StationById(request.catalogue, id);
  if (!station) throw BadRequest("no service " + std::to_string(id));
  return *station;
}

void ReplyProgramAt(Request& request, const BroadcastChannel& station, time_t time, Json::Value& reply) {
  Slot slot;
  if (!request.catalogue.SlotAt(ScheduleKey(station), station.genre, time, request.catalogue.WindowEnd(), slot)) {
    throw BadRequest("no programme on service " + std::to_string(station.serviceId) + " at " + std::to_string(time));
  }
  FCMarshal::FCRemoteProgramToJson(BroadcastProgram(station, slot), reply);
  Succeed(reply);
}

// --- navigation ---

void SetMode(Request& request, Json::Value& reply) {
  Navigation navigation = LoadNavigation(request.store);
  FCMarshal::JsonToNavigationMode(request.body, navigation.mode);
  SaveNavigation(request.store, navigation);
  Succeed(reply);
}

void GetMode(Request& request, Json::Value& reply) {
  FCMarshal::NavigationModeToJson(LoadNavigation(request.store).mode, reply);
  Succeed(reply);
}

void SetGenre(Request& request, Json::Value& reply) {
  Navigation navigation = LoadNavigation(request.store);
  navigation.genre = GenreOf(request);
  SaveNavigation(request.store, navigation);
  Succeed(reply);
}

void GetGenre(Request& request, Json::Value& reply) {
  FCMarshal::GenreToJson(LoadNavigation(request.store).genre, reply);
  Succeed(reply);
}

// --- services by genre ---

void MapByGenre(Request& request, Json::Value& reply) {
  const std::string genre = GenreOf(request);
  FCRFNetworkChannelTable table;
  for (unsigned long long id : StationsOfGenre(request.catalogue, genre)) table.AppendRFNetworkChannel(id);
  FCMarshal::GenreToJson(genre, reply);
  FCMarshal::RFNetworkChannelTableToJson(table, reply);
  Succeed(reply);
}

// The next service of the genre after the current one, wrapping round; the
// first (or last) when the current one is not of the genre.
void Step(Request& request, Json::Value& reply, bool up) {
  std::vector<unsigned long long> ids = StationsOfGenre(request.catalogue, GenreOf(request));
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
  FCMarshal::CountToJson(static_cast<int>(StationsOfGenre(request.catalogue, GenreOf(request)).size()), reply);
  Succeed(reply);
}

// Counts per representative genre asked for (by rep id, by its own genre id
// list when it brings one); without any, per genre id of the catalogue.
void CountByGenreList(Request& request, Json::Value& reply) {
  std::vector<FCRepGenreInfo> asked;
  FCMarshal::JsonToRepGenreList(request.body, asked);
  std::map<std::string, int> counts;
  for (const FCGenreInfo& genre : request.catalogue.genres) {
    if (asked.empty()) counts[genre.str_id] = static_cast<int>(StationsOfGenre(request.catalogue, genre.str_id).size());
  }
  for (const FCRepGenreInfo& rep : asked) {
    counts[rep.str_rep_id] = rep.str_genre_id_list.empty()
                                 ? static_cast<int>(StationsOfGenre(request.catalogue, rep.str_rep_id).size())
                                 : CountInGenreList(request.catalogue, rep.str_genre_id_list);
  }
  FCMarshal::CountMapToJson(counts, reply);
  Succeed(reply);
}

// --- meta programmes ---

void Present(Request& request, Json::Value& reply) {
  ReplyProgramAt(request, StationOf(request, ServiceIdOf(request)), std::time(nullptr), reply);
}

// Only the keys that place the programme are read, as the record reads
// them; their types were checked against the row.
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
  ReplyProgramAt(request, StationOf(request, std::stoull(key)), at, reply);
}

void Next(Request& request, Json::Value& reply) { Neighbour(request, reply, true); }
void Previous(Request& request, Json::Value& reply) { Neighbour(request, reply, false); }

void ProgramMap(Request& request, Json::Value& reply) {
  unsigned long start = 0;
  unsigned int duration = 0;
  FCMarshal::JsonToStartTime(request.body, start);
  FCMarshal::JsonToDuration(request.body, duration);
  const BroadcastChannel station = StationOf(request, ServiceIdOf(request));
  std::map<unsigned int, FCRemoteProgram> programs;
  for (const Slot& slot : request.catalogue.SlotsBetween(ScheduleKey(station), station.genre, start,
                                                         static_cast<time_t>(start) + duration,
                                                         request.catalogue.WindowEnd())) {
    programs[slot.start] = BroadcastProgram(station, slot);
  }
  FCMarshal::MetaProgramMapToJson(programs, reply);
  Succeed(reply);
}

void MetaExists(Request& request, Json::Value& reply) { reply["ret"] = !request.catalogue.broadcast.empty(); }

const RequiredKey kGenre{"genre", T::String};
const RequiredKey kServiceId{"TCServiceId", T::String};
const std::vector<RequiredKey> kPlacedProgramme{
    {"program id", T::String}, {"utc start time", T::Int}, {"duration", T::Int}};

}  // namespace

const MemberTable& BroadcastMembers() {
  static const MemberTable table = {
      {"SetNavigationMode", {{"navigation mode", T::Int}}, SetMode, kChanges},
      {"GetNavigationMode", {}, GetMode, kReads},
      {"SetGenreForNavigation", {kGenre}, SetGenre, kChanges},
      {"GetGenreForNavigation", {}, GetGenre, kReads},
      {"GetRFNetworkChannelMapByGenre", {kGenre}, MapByGenre, kKeepsAnswer},
      {"GetRFNetworkChannelUpByGenre", {kGenre, kServiceId}, Up, kReads},
      {"GetRFNetworkChannelDownByGenre", {kGenre, kServiceId}, Down, kReads},
      {"GetRFNetworkChannelCountByGenre", {kGenre}, CountByGenre, kReads},
      {"GetRFNetworkChannelCountByGenreList", {}, CountByGenreList, kReads},
      {"GetPresentMetaProgram", {kServiceId}, Present, kReads},
      {"GetNextMetaProgram", kPlacedProgramme, Next, kReads},
      {"GetPrevMetaProgram", kPlacedProgramme, Previous, kReads},
      {"GetMetaProgramMap", {kServiceId, {"start_time", T::UInt}, {"duration", T::UInt}}, ProgramMap, kKeepsAnswer},
      {"CheckMetaProgramExist", {}, MetaExists, kReads},
  };
  return table;
}

}  // namespace zunde::service
