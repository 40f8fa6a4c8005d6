// What one method names, the others answer for: each row walks one family's
// lists and asks the members that should know each entry.
#include <gtest/gtest.h>

#include <functional>

#include "FCRFNetworkChannelTable.h"
#include "served.h"

namespace {

using zunde::testing::Served;
using Faults = std::vector<std::string>;

Json::Value Activity0() {
  Json::Value request;
  request["activityID"] = 0;
  return request;
}

Json::Value With(Json::Value request, const char* key, const Json::Value& value) {
  request[key] = value;
  return request;
}

Json::Value ServiceIdRequest(unsigned long long id) {
  Json::Value request;
  FCMarshal::VCServiceIdToJson(id, request);
  return request;
}

std::list<unsigned long long> MapOfGenre(Served& served, const std::string& genre) {
  Json::Value answer = served.Ask("GetRFNetworkChannelMapByGenre", With({}, "genre", genre));
  FCRFNetworkChannelTable table;
  FCMarshal::JsonToRFNetworkChannelTable(answer, table);
  return table.GetRFNetworkChannelList();
}

void Expect(Faults& faults, bool held, const std::string& what) {
  if (!held) faults.push_back(what);
}

// Every genre's and representative genre's count is the length of its map.
Faults CountsMatchMaps(Served& served) {
  Faults faults;
  Json::Value all = served.Ask("GetRFNetworkChannelCountByGenreList", {});
  std::map<std::string, int> counts;
  FCMarshal::JsonToCountMap(all, counts);
  Json::Value repList = served.Ask("GetRepGenreList", Activity0());
  std::vector<FCRepGenreInfo> reps;
  FCMarshal::JsonToRepGenreList(repList, reps);
  for (FCRepGenreInfo rep : reps) {
    rep.str_genre_id_list.clear();
    std::vector<FCRepGenreInfo> asked{rep};
    Json::Value request;
    FCMarshal::RepGenreListToJson(asked, request);
    Json::Value answer = served.Ask("GetRFNetworkChannelCountByGenreList", request);
    std::map<std::string, int> one;
    FCMarshal::JsonToCountMap(answer, one);
    counts[rep.str_rep_id] = one[rep.str_rep_id];
  }
  for (const auto& [genre, count] : counts) {
    Expect(faults, MapOfGenre(served, genre).size() == static_cast<size_t>(count), "count of " + genre);
  }
  return faults;
}

// Every service the navigation lists has a present programme and a map.
Faults ListedServicesHaveProgrammes(Served& served) {
  Faults faults;
  for (unsigned long long id : MapOfGenre(served, "")) {
    Json::Value request = ServiceIdRequest(id);
    Expect(faults, served.Ask("GetPresentMetaProgram", request)["ret"].asBool(), "present " + std::to_string(id));
    request["start_time"] = Json::UInt64(served.Catalogue().now);
    request["duration"] = 3600;
    Expect(faults, served.Ask("GetMetaProgramMap", request)["ret"].asBool(), "map " + std::to_string(id));
  }
  return faults;
}

// Every virtual channel is found by its OnTV names, listed by the
// navigation and has its programme list.
Faults VirtualChannelsAreFound(Served& served) {
  Faults faults;
  const auto listed = MapOfGenre(served, "");
  for (const auto& channel : served.Catalogue().virtualChannels) {
    Json::Value request;
    request["onTvProviderId"] = channel.provider;
    request["onTvServiceId"] = channel.service;
    Json::Value answer = served.Ask("GetServiceIdFromOnTVProviderAndService", request);
    unsigned long long found = 0;
    FCMarshal::VCJsonToServiceId(answer, found);
    const std::string name = std::to_string(channel.serviceId);
    Expect(faults, found == channel.serviceId, "OnTV names of " + name);
    Expect(faults, std::find(listed.begin(), listed.end(), channel.serviceId) != listed.end(), "listed " + name);
    Json::Value list = ServiceIdRequest(channel.serviceId);
    list["start_time"] = Json::UInt64(served.Catalogue().now);
    list["duration"] = 3600;
    Expect(faults, served.Ask("GetProgramList", list)["ret"].asBool(), "programme list of " + name);
  }
  return faults;
}

// Every channel of the line-up is found by its program source id, with a
// programme now; where the match finder names a service, it names it back.
Faults LineupChannelsAnswer(Served& served) {
  Faults faults;
  Json::Value list = served.Ask("GetFullChannelList", Activity0());
  std::vector<FCRemoteChannel> channels;
  FCMarshal::JsonToChannelList(list, channels);
  for (const FCRemoteChannel& channel : channels) {
    const Json::Value bySource = With(Activity0(), "program source id", channel.str_program_source_id);
    const std::string name = channel.str_program_source_id;
    Expect(faults, served.Ask("GetFCRemoteChannelByProgramSourceID", bySource)["ret"].asBool(), "channel " + name);
    const Json::Value at = With(bySource, "utc current time", Json::UInt64(served.Catalogue().now));
    Expect(faults, served.Ask("GetFCRemoteProgramByProgramSourceID", at)["ret"].asBool(), "programme " + name);
    Json::Value station = served.Ask("GetTCServiceIdByProgramSourceID", bySource);
    if (!station["ret"].asBool()) continue;
    station["activityID"] = 0;
    Json::Value matched = served.Ask("GetFCRemoteChannelByTCServiceId", station);
    FCRemoteChannel back;
    FCMarshal::JsonToFCRemoteChannel(matched, back);
    Expect(faults, back.str_program_source_id == name, "match of " + name);
  }
  return faults;
}

const std::pair<const char*, std::function<Faults(Served&)>> kWalks[] = {
    {"CountsMatchMaps", CountsMatchMaps},
    {"ListedServicesHaveProgrammes", ListedServicesHaveProgrammes},
    {"VirtualChannelsAreFound", VirtualChannelsAreFound},
    {"LineupChannelsAnswer", LineupChannelsAnswer},
};

TEST(Consistency, EveryFamilyAnswersForWhatTheOthersName) {
  for (int lineupSize : {60, 5000}) {
    Served served(lineupSize);
    for (const auto& [name, walk] : kWalks) {
      const Faults faults = walk(served);
      EXPECT_TRUE(faults.empty()) << name << " at " << lineupSize << ": " << faults.size() << " disagree, first "
                                  << (faults.empty() ? "" : faults.front());
    }
  }
}

}  // namespace
