// The operator family's catalogue: configuration per activity, the
// line-ups, the guide, genres, recommendation groups, certification rules
// and VOD providers.
#include <algorithm>
#include <unordered_map>

#include "FCMarshal.h"
#include "lineups.h"
#include "operator_state.h"
#include "programmes.h"

namespace zunde::service {
namespace {

using T = JsonType;
using Channels = std::vector<FCRemoteChannel>;

const time_t kLoadLimit = 30 * 86400;  // how far past the start the guide may be loaded

template <typename Keep>
Channels ChannelsOf(const Lineup& lineup, Keep keep) {
  Channels channels;
  for (const LineupChannel& entry : lineup.channels) {
    if (keep(entry)) channels.push_back(entry.channel);
  }
  return channels;
}

void ReplyChannels(Channels channels, Json::Value& reply) {
  FCMarshal::ChannelListToJson(channels, reply);
  Succeed(reply);
}

// --- configuration and line-ups ---

void GetConfig(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  FCRemoteMSOConfig config;
  if (const auto stored = LoadOperatorConfig(request.store, activity)) {
    config = *stored;
  } else if (const Lineup* lineup = request.catalogue.LineupOf(activity)) {
    config = lineup->config;
  }
  FCMarshal::FCRmoteMSOConfigToJson(config, reply);
  Succeed(reply);
}

void SetConfig(Request& request, Json::Value& reply) {
  FCRemoteMSOConfig config;
  FCMarshal::JsonToFCRemoteMSOConfig(request.body, config);
  SaveOperatorConfig(request.store, ActivityOf(request), config);
  Succeed(reply);
}

void FullList(Request& request, Json::Value& reply) {
  ReplyChannels(ChannelsOf(LineupOf(request), [](const LineupChannel&) { return true; }), reply);
}

void TunableList(Request& request, Json::Value& reply) {
  ReplyChannels(ChannelsOf(LineupOf(request), [](const LineupChannel& e) { return e.tunable; }), reply);
}

void Featured(Request& request, Json::Value& reply) {
  Channels featured = ChannelsOf(LineupOf(request), [](const LineupChannel& e) { return !e.channel.ac_rank.empty(); });
  std::stable_sort(featured.begin(), featured.end(),
                   [](const auto& a, const auto& b) { return std::stoi(a.ac_rank) < std::stoi(b.ac_rank); });
  ReplyChannels(featured, reply);
}

void SourceIdMap(Request& request, Json::Value& reply) {
  std::map<std::string, FCRemoteChannelKey> keys;
  for (FCRemoteChannel& channel : ChannelsOf(LineupOf(request), [](const LineupChannel& e) { return e.tunable; })) {
    channel.GetKey(keys[channel.str_program_source_id]);
  }
  FCMarshal::ProgramSourceMapToJson(keys, reply);
  Succeed(reply);
}

void ChannelBySource(Request& request, Json::Value& reply) {
  std::string sourceId;
  FCMarshal::JsonToProgramSourceID(request.body, sourceId);
  const FCRemoteChannel* channel = BySource(LineupOf(request), sourceId);
  if (channel == nullptr) throw BadRequest("no channel with program source id \"" + sourceId + "\"");
  FCRemoteChannel copy = *channel;
  FCMarshal::FCRemoteChannelToJson(copy, reply);
  Succeed(reply);
}

// --- the guide ---

// The line-up's channels by program source id, found once for a request
// that names thousands.
std::unordered_map<std::string, const FCRemoteChannel*> SourceIndex(const Lineup& lineup) {
  std::unordered_map<std::string, const FCRemoteChannel*> index;
  for (const LineupChannel& entry : lineup.channels) index.emplace(entry.channel.str_program_source_id, &entry.channel);
  return index;
}

void ProgramMap(Request& request, Json::Value& reply) {
  const Lineup& lineup = LineupOf(request);
  std::vector<std::string> sourceIds;
  int start = 0;
  int duration = 0;
  FCFilterCriteria filter;
  FCMarshal::JsonToSourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteria(request.body, sourceIds, start, duration,
                                                                            filter);
  const auto index = SourceIndex(lineup);
  const time_t end = GuideEnd(request, lineup.activity);
  std::map<std::string, std::vector<FCRemoteProgram>> programs;
  for (const std::string& sourceId : sourceIds) {
    const auto found = index.find(sourceId);
    if (found == index.end()) continue;
    const FCRemoteChannel& channel = *found->second;
    std::vector<FCRemoteProgram>& list = programs[sourceId];
    for (const Slot& slot : request.catalogue.SlotsBetween(sourceId, channel.genre_id, start,
                                                           static_cast<time_t>(start) + duration, end)) {
      if (PassesFilter(slot.listed ? slot.listed->genre_array : std::vector<std::string>{slot.genre}, filter,
                       request.catalogue)) {
        list.push_back(OperatorProgram(channel, slot));
      }
    }
  }
  FCMarshal::ProgramMapToJson(programs, reply);
  Succeed(reply);
}

void LoadMore(Request& request, Json::Value& reply) {
  const int activity = LineupOf(request).activity;
  std::vector<std::string> sourceIds;
  unsigned long start = 0;
  int duration = 0;
  FCMarshal::JsonToSourceIDListAndUtcStartTimeAndDuration(request.body, sourceIds, start, duration);
  const time_t end = static_cast<time_t>(start) + std::max(duration, 0);
  if (end > request.catalogue.now + kLoadLimit) throw BadRequest("the guide reaches 30 days ahead at most");
  if (end > GuideEnd(request, activity)) SaveGuideLoadedUntil(request.store, activity, (end / 86400 + 1) * 86400);
  Succeed(reply);
}

void ProgramBySource(Request& request, Json::Value& reply) {
  std::string sourceId;
  unsigned long time = 0;
  FCMarshal::JsonToProgramSourceIDAndUtcCurrentTime(request.body, sourceId, time);
  const FCRemoteChannel* channel = BySource(LineupOf(request), sourceId);
  Slot slot;
  if (channel == nullptr || !SlotOf(request, *channel, static_cast<time_t>(time), slot)) {
    throw BadRequest("no programme on \"" + sourceId + "\" at " + std::to_string(time));
  }
  FCMarshal::FCRemoteProgramToJson(OperatorProgram(*channel, slot), reply);
  Succeed(reply);
}

void SearchKey(Request& request, Json::Value& reply, const FCRemoteChannel* channel, unsigned long time) {
  Slot slot;
  if (channel == nullptr || !SlotOf(request, *channel, static_cast<time_t>(time), slot)) {
    throw BadRequest("no programme there at " + std::to_string(time));
  }
  FCMarshal::SearchStringToJson(slot.title, reply);
  Succeed(reply);
}

// The RF search goes through the match: service id, station, channel.
void SearchKeyRF(Request& request, Json::Value& reply) {
  unsigned long time = 0;
  FCMarshal::JsonToUtcCurrentTime(request.body, time);
  const BroadcastChannel* station = request.catalogue.BroadcastById(ServiceIdOf(request));
  SearchKey(request, reply, station ? BySource(LineupOf(request), station->sourceId) : nullptr, time);
}

void SearchKeyMBR(Request& request, Json::Value& reply) {
  eRemoteContentActivity activity;
  std::string number;
  unsigned long time = 0;
  FCMarshal::JsonToMBRChannelAndUTCCurrentTime(request.body, activity, number, time);
  const FCRemoteChannel* found = nullptr;
  for (const LineupChannel& entry : LineupOf(request).channels) {
    if (entry.channel.str_channel_number == number) found = &entry.channel;
  }
  SearchKey(request, reply, found, time);
}

// Activations are acknowledged: the guide is always served, whether or not
// an application activated it.
void Acknowledge(Request& request, Json::Value& reply) {
  LineupOf(request);
  Succeed(reply);
}

// --- genres, groups, rules, providers ---

// Answers the catalogue's `Part` with `write`, for an activity with a line-up.
template <typename Part, Part Catalogue::*Field, bool (*Write)(Part&, Json::Value&)>
void CataloguePart(Request& request, Json::Value& reply) {
  LineupOf(request);
  Part part = request.catalogue.*Field;
  Write(part, reply);
  Succeed(reply);
}

using C = Catalogue;
const auto Genres = CataloguePart<std::vector<FCGenreInfo>, &C::genres, FCMarshal::GenreListToJson>;
const auto RepGenres = CataloguePart<std::vector<FCRepGenreInfo>, &C::repGenres, FCMarshal::RepGenreListToJson>;
const auto RecGroups = CataloguePart<std::map<std::string, FCRecGroup>, &C::recGroups, FCMarshal::RecGroupMapToJson>;
const auto CertRule = CataloguePart<CZundeResponse_CertRule, &C::certRule, FCMarshal::CertRuleToJson>;
const auto VodProviders = CataloguePart<CZundeResponse_VODProviders, &C::vodProviders, FCMarshal::VODProviderToJson>;

const RequiredKey kSourceId{"program source id", T::String};

}  // namespace

const MemberTable& OperatorCatalogueMembers() {
  static const MemberTable table = {
      {"GetRemoteContentConfig", {kActivityKey}, GetConfig, kReads},
      {"SetRemoteContentConfig", {kActivityKey, {"config", T::Object}}, SetConfig, kChanges},
      {"GetCertRule", {kActivityKey}, CertRule, kReads},
      {"GetFullChannelList", {kActivityKey}, FullList, kKeepsAnswer},
      {"GetTunableChannelList", {kActivityKey}, TunableList, kKeepsAnswer},
      {"GetFeaturedChannels", {kActivityKey}, Featured, kKeepsAnswer},
      {"GetTunableProgramSourceIdMap", {kActivityKey}, SourceIdMap, kKeepsAnswer},
      {"GetProgramMap", {kActivityKey, {"utc start time", T::Int}, {"duration", T::Int}}, ProgramMap, kKeepsAnswer},
      {"ActivateProgramGuide", {kActivityKey}, Acknowledge, kReads},
      {"DeactivateProgramGuide", {kActivityKey}, Acknowledge, kReads},
      {"LoadAdditionalProgramMapFromServer", {kActivityKey, {"utc_starttime", T::UInt}, {"duration", T::Int}}, LoadMore,
       kChanges},
      {"GetGenreList", {kActivityKey}, Genres, kReads},
      {"GetRepGenreList", {kActivityKey}, RepGenres, kReads},
      {"GetVODProviders", {kActivityKey}, VodProviders, kReads},
      {"GetRecGroupMap", {kActivityKey}, RecGroups, kReads},
      {"ActivateSmartPersonal", {kActivityKey, {"utc_current_time", T::UInt}}, Acknowledge, kReads},
      {"GetFCRemoteProgramByProgramSourceID", {kActivityKey, kSourceId, {"utc current time", T::UInt}}, ProgramBySource,
       kReads},
      {"GetFCRemoteChannelByProgramSourceID", {kActivityKey, kSourceId}, ChannelBySource, kReads},
      {"GetSearchKeyStringInRFMode", {kActivityKey, {"TCServiceId", T::String}, {"utc_current_time", T::UInt}},
       SearchKeyRF, kReads},
      {"GetSearchKeyStringInMBRMode", {kActivityKey, {"mbr ch number", T::String}, {"utc current time", T::UInt}},
       SearchKeyMBR, kReads},
  };
  return table;
}

}  // namespace zunde::service
