// The operator family: configuration per activity, the line-ups, the guide
// and its recommendations, genres, recommendation groups, certification
// rules and VOD providers. The line-ups come from the catalogue; what users
// change (configuration, activations, how far the guide was loaded) is kept
// in the store under "operator/".
#include <algorithm>
#include <ctime>

#include "FCMarshal.h"
#include "FCSmartChannelGuide.h"
#include "member_table.h"
#include "programmes.h"

namespace zunde::service {
namespace {

using T = JsonType;
using Channels = std::vector<FCRemoteChannel>;

const time_t kLoadLimit = 30 * 86400;  // how far past the start the guide may be loaded
const int kTimelineColumns = 5;

std::string Key(const char* what, int activity) { return std::string("operator/") + what + "/" + std::to_string(activity); }

int ActivityOf(Request& request) {
  eRemoteContentActivity activity;
  FCMarshal::JsonToactivityID(request.body, activity);
  return CheckedActivity(activity);
}

const Lineup& LineupOf(Request& request) {
  const int activity = ActivityOf(request);
  const Lineup* lineup = request.catalogue.LineupOf(activity);
  if (lineup == nullptr) throw BadRequest("activity " + std::to_string(activity) + " has no operator line-up");
  return *lineup;
}

template <typename Keep>
Channels ChannelsOf(const Lineup& lineup, Keep keep) {
  Channels channels;
  for (const LineupChannel& entry : lineup.channels) {
    if (keep(entry)) channels.push_back(entry.channel);
  }
  return channels;
}

const FCRemoteChannel* BySource(const Lineup& lineup, const std::string& sourceId) {
  for (const LineupChannel& entry : lineup.channels) {
    if (entry.channel.str_program_source_id == sourceId) return &entry.channel;
  }
  return nullptr;
}

// The end of the guide of an activity: the window, or further where more
// was loaded.
time_t GuideEnd(Request& request, int activity) {
  const Json::Value loaded = request.store.Get(Key("loaded", activity));
  return std::max<time_t>(request.catalogue.WindowEnd(), loaded.isNull() ? 0 : loaded.asInt64());
}

bool SlotOf(Request& request, const FCRemoteChannel& channel, time_t time, Slot& slot) {
  return request.catalogue.SlotAt(channel.str_program_source_id, channel.genre_id, time, GuideEnd(request, channel.activityID),
                                  slot);
}

void ReplyChannels(Channels channels, Json::Value& reply) {
  FCMarshal::ChannelListToJson(channels, reply);
  Succeed(reply);
}

// --- configuration and line-ups ---

void GetConfig(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  Json::Value stored = request.store.Get(Key("config", activity));
  FCRemoteMSOConfig config;
  if (!stored.isNull()) {
    FCMarshal::JsonToFCRemoteMSOConfig(stored, config);
  } else if (const Lineup* lineup = request.catalogue.LineupOf(activity)) {
    config = lineup->config;
  }
  FCMarshal::FCRmoteMSOConfigToJson(config, reply);
  Succeed(reply);
}

void SetConfig(Request& request, Json::Value& reply) {
  FCRemoteMSOConfig config;
  FCMarshal::JsonToFCRemoteMSOConfig(request.body, config);
  Json::Value stored(Json::objectValue);
  FCMarshal::FCRmoteMSOConfigToJson(config, stored);
  request.store.Put(Key("config", ActivityOf(request)), stored);
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

void ProgramMap(Request& request, Json::Value& reply) {
  const Lineup& lineup = LineupOf(request);
  std::vector<std::string> sourceIds;
  int start = 0;
  int duration = 0;
  FCFilterCriteria filter;
  FCMarshal::JsonToSourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteria(request.body, sourceIds, start, duration,
                                                                            filter);
  std::map<std::string, std::vector<FCRemoteProgram>> programs;
  for (const std::string& sourceId : sourceIds) {
    const FCRemoteChannel* channel = BySource(lineup, sourceId);
    if (channel == nullptr) continue;
    std::vector<FCRemoteProgram>& list = programs[sourceId];
    for (const Slot& slot : request.catalogue.SlotsBetween(sourceId, channel->genre_id, start,
                                                           static_cast<time_t>(start) + duration,
                                                           GuideEnd(request, lineup.activity))) {
      FCRemoteProgram program = OperatorProgram(*channel, slot);
      if (PassesFilter(program.genre_array, filter, request.catalogue)) list.push_back(program);
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
  if (end > GuideEnd(request, activity)) request.store.Put(Key("loaded", activity), Json::Int64((end / 86400 + 1) * 86400));
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

// --- activations ---

void SetFlag(Request& request, Json::Value& reply, const char* what, const Json::Value& value) {
  request.store.Put(Key(what, LineupOf(request).activity), value);
  Succeed(reply);
}

void ActivateGuide(Request& request, Json::Value& reply) { SetFlag(request, reply, "guide", true); }
void DeactivateGuide(Request& request, Json::Value& reply) { SetFlag(request, reply, "guide", false); }

void ActivateSmartPersonal(Request& request, Json::Value& reply) {
  unsigned long time = 0;
  FCMarshal::JsonToUtcCurrentTime(request.body, time);
  SetFlag(request, reply, "smart personal", Json::UInt64(time));
}

// --- genres, groups, rules, providers ---

void Genres(Request& request, Json::Value& reply) {
  LineupOf(request);
  std::vector<FCGenreInfo> genres = request.catalogue.genres;
  FCMarshal::GenreListToJson(genres, reply);
  Succeed(reply);
}

void RepGenres(Request& request, Json::Value& reply) {
  LineupOf(request);
  std::vector<FCRepGenreInfo> genres = request.catalogue.repGenres;
  FCMarshal::RepGenreListToJson(genres, reply);
  Succeed(reply);
}

void RecGroups(Request& request, Json::Value& reply) {
  LineupOf(request);
  std::map<std::string, FCRecGroup> groups = request.catalogue.recGroups;
  FCMarshal::RecGroupMapToJson(groups, reply);
  Succeed(reply);
}

void CertRule(Request& request, Json::Value& reply) {
  LineupOf(request);
  CZundeResponse_CertRule rule = request.catalogue.certRule;
  FCMarshal::CertRuleToJson(rule, reply);
  Succeed(reply);
}

void VodProviders(Request& request, Json::Value& reply) {
  LineupOf(request);
  CZundeResponse_VODProviders providers = request.catalogue.vodProviders;
  FCMarshal::VODProviderToJson(providers, reply);
  Succeed(reply);
}

// --- recommendations ---

// A recommendation in either guide record; `slotField` is the timeslot or
// the dayslot.
template <typename Guide>
Guide GuideOf(const FCRemoteChannel& channel, const Slot& slot, int Guide::*slotField, int place, int sequence) {
  const FCRemoteProgram program = OperatorProgram(channel, slot);
  Guide guide;
  guide.activityID = channel.activityID;
  guide.*slotField = place;
  guide.sequence = sequence;
  guide.str_program_source_id = channel.str_program_source_id;
  guide.str_rec_type = "popular";
  guide.str_name = channel.str_channel_name;
  guide.str_number = channel.str_channel_number;
  guide.str_starttime = program.str_starttime;
  guide.utc_starttime = program.utc_starttime;
  guide.duration = program.duration;
  guide.str_content_id = program.str_program_id;
  guide.str_content_lang = program.str_lang;
  guide.str_content_title = program.strTitle;
  guide.str_content_type = "program";
  guide.str_content_missed = "0";
  guide.str_content_cert_flag = program.str_cert_flag;
  guide.content_genre_array = program.genre_array;
  guide.str_content_poster_url = program.str_poster_url;
  guide.str_content_poster_type = program.str_poster_type;
  guide.str_content_poster_index = program.str_poster_index;
  return guide;
}

// The tunable channels' slots that `take` accepts, in line-up order.
template <typename Take>
std::vector<std::pair<const FCRemoteChannel*, Slot>> Slots(Request& request, const Lineup& lineup, time_t time,
                                                           Take take) {
  std::vector<std::pair<const FCRemoteChannel*, Slot>> found;
  for (const LineupChannel& entry : lineup.channels) {
    Slot slot;
    if (entry.tunable && SlotOf(request, entry.channel, time, slot) && take(entry.channel, slot)) {
      found.emplace_back(&entry.channel, slot);
    }
  }
  return found;
}

void OnNow(Request& request, Json::Value& reply) {
  eRemoteContentActivity activity;
  std::string watching;
  unsigned long time = 0;
  int count = 0;
  FCFilterCriteria filter;
  FCMarshal::UnmarshalingForGetRecommendationOnNow(request.body, activity, watching, time, count, filter);
  std::list<FCSmartChannelGuide> guides;
  for (const auto& [channel, slot] : Slots(request, LineupOf(request), time, [&](const FCRemoteChannel& c, const Slot& s) {
         return c.str_program_source_id != watching && PassesFilter({s.genre}, filter, request.catalogue);
       })) {
    if (static_cast<int>(guides.size()) >= count) break;
    guides.push_back(GuideOf(*channel, slot, &FCSmartChannelGuide::timeslot, 0, static_cast<int>(guides.size()) + 1));
  }
  FCMarshal::FCSmartChannelGuideListToJson(guides, reply);
  Succeed(reply);
}

// What starts within the next three hours, soonest first.
void Upcoming(Request& request, Json::Value& reply) {
  eRemoteContentActivity activity;
  unsigned long time = 0;
  int count = 0;
  FCFilterCriteria filter;
  FCMarshal::UnmarshalingForGetRecommendationUpcoming(request.body, activity, time, count, filter);
  const Lineup& lineup = LineupOf(request);
  std::vector<std::pair<const FCRemoteChannel*, Slot>> next;
  for (const LineupChannel& entry : lineup.channels) {
    for (const Slot& slot : request.catalogue.SlotsBetween(entry.channel.str_program_source_id, entry.channel.genre_id,
                                                           time + 1, time + 3 * 3600, GuideEnd(request, lineup.activity))) {
      if (entry.tunable && slot.start > time && PassesFilter({slot.genre}, filter, request.catalogue)) {
        next.emplace_back(&entry.channel, slot);
      }
    }
  }
  std::stable_sort(next.begin(), next.end(), [](const auto& a, const auto& b) { return a.second.start < b.second.start; });
  std::list<FCSmartChannelGuide> guides;
  for (size_t i = 0; i < next.size() && static_cast<int>(i) < count; ++i) {
    guides.push_back(GuideOf(*next[i].first, next[i].second, &FCSmartChannelGuide::timeslot, 0, static_cast<int>(i) + 1));
  }
  FCMarshal::FCSmartChannelGuideListToJson(guides, reply);
  Succeed(reply);
}

// Timeslot n is the hour n hours after the given time.
void Timeline(Request& request, Json::Value& reply) {
  eRemoteContentActivity activity;
  unsigned long time = 0;
  int from = 0;
  int to = 0;
  FCMarshal::UnmarshalingForGetRecommendationTimeline(request.body, activity, time, from, to);
  const Lineup& lineup = LineupOf(request);
  std::map<int, std::map<int, FCSmartChannelGuide>> timeline;
  for (int slotNumber = from; slotNumber <= to && slotNumber - from < 48; ++slotNumber) {
    const auto found = Slots(request, lineup, static_cast<time_t>(time) + slotNumber * 3600,
                             [](const FCRemoteChannel& c, const Slot&) { return !c.ac_rank.empty(); });
    for (size_t i = 0; i < found.size() && i < kTimelineColumns; ++i) {
      timeline[slotNumber][static_cast<int>(i) + 1] =
          GuideOf(*found[i].first, found[i].second, &FCSmartChannelGuide::timeslot, slotNumber, static_cast<int>(i) + 1);
    }
  }
  FCMarshal::TimeLineToJson(timeline, reply);
  Succeed(reply);
}

// Dayslot n is the evening (20:00 UTC) n days after the service started.
void FutureTimeline(Request& request, Json::Value& reply) {
  eRemoteContentActivity activity;
  int from = 0;
  int to = 0;
  FCMarshal::UnmarshalingForGetRecommendationFutureTimeline(request.body, activity, from, to);
  const Lineup& lineup = LineupOf(request);
  std::map<int, std::map<int, FCSmartChannelGuide_Future>> timeline;
  for (int day = std::max(from, 0); day <= to && day <= 7; ++day) {
    const time_t evening = request.catalogue.now / 86400 * 86400 + day * 86400 + 20 * 3600;
    const auto found = Slots(request, lineup, evening, [](const FCRemoteChannel& c, const Slot&) { return !c.ac_rank.empty(); });
    for (size_t i = 0; i < found.size() && i < kTimelineColumns; ++i) {
      timeline[day][static_cast<int>(i) + 1] = GuideOf(*found[i].first, found[i].second,
                                                       &FCSmartChannelGuide_Future::dayslot, day, static_cast<int>(i) + 1);
    }
  }
  FCMarshal::FutureTimeLineToJson(timeline, reply);
  Succeed(reply);
}

const RequiredKey kActivity{"activityID", T::Int};

}  // namespace

const MemberTable& OperatorMembers() {
  static const MemberTable table = {
      {"GetRemoteContentConfig", {kActivity}, GetConfig, false},
      {"SetRemoteContentConfig", {kActivity, {"config", T::Object}}, SetConfig, true},
      {"GetCertRule", {kActivity}, CertRule, false},
      {"GetFullChannelList", {kActivity}, FullList, false},
      {"GetTunableChannelList", {kActivity}, TunableList, false},
      {"GetFeaturedChannels", {kActivity}, Featured, false},
      {"GetTunableProgramSourceIdMap", {kActivity}, SourceIdMap, false},
      {"GetProgramMap", {kActivity, {"utc start time", T::Int}, {"duration", T::Int}}, ProgramMap, false},
      {"ActivateProgramGuide", {kActivity}, ActivateGuide, true},
      {"DeactivateProgramGuide", {kActivity}, DeactivateGuide, true},
      {"LoadAdditionalProgramMapFromServer", {kActivity, {"utc_starttime", T::UInt}, {"duration", T::Int}}, LoadMore,
       true},
      {"GetGenreList", {kActivity}, Genres, false},
      {"GetRepGenreList", {kActivity}, RepGenres, false},
      {"GetVODProviders", {kActivity}, VodProviders, false},
      {"GetRecGroupMap", {kActivity}, RecGroups, false},
      {"ActivateSmartPersonal", {kActivity, {"utc_current_time", T::UInt}}, ActivateSmartPersonal, true},
      {"GetRecommendationOnNow", {kActivity, {"utc_currenttime", T::UInt}, {"number_of_recommendation", T::Int}}, OnNow,
       false},
      {"GetRecommendationUpcomming", {kActivity, {"utc_currenttime", T::UInt}, {"number_of_recommendation", T::Int}},
       Upcoming, false},
      {"GetRecommendationTimeline", {kActivity, {"utc_currenttime", T::UInt}}, Timeline, false},
      {"GetRecommendationFutureTimeline", {kActivity}, FutureTimeline, false},
      {"GetFCRemoteProgramByProgramSourceID", {kActivity, {"program source id", T::String}, {"utc current time", T::UInt}},
       ProgramBySource, false},
      {"GetFCRemoteChannelByProgramSourceID", {kActivity, {"program source id", T::String}}, ChannelBySource, false},
      {"GetSearchKeyStringInRFMode", {kActivity, {"TCServiceId", T::String}, {"utc_current_time", T::UInt}}, SearchKeyRF,
       false},
      {"GetSearchKeyStringInMBRMode", {kActivity, {"mbr ch number", T::String}, {"utc current time", T::UInt}},
       SearchKeyMBR, false},
  };
  return table;
}

}  // namespace zunde::service
