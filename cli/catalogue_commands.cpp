// zunde-cli catalogue: the operator's catalogue, per remote content activity.
#include <ZundeProvider.h>

#include "command_table.h"

namespace zcli {
namespace {

using Api = FCRemoteContent_MSOAPI;
Api* Mso() { return FCAPI::GetRemoteContentMSOAPI(); }
eRemoteContentActivity Act(const Args& a) { return static_cast<eRemoteContentActivity>(a.i(0)); }

const Arg kAct{"ACTIVITY", Kind::Int, "remote content activity"};
const Arg kTime{"TIME", Kind::Time, "seconds since the epoch, now, now+90m or HH:MM"};
const Arg kIds{"SOURCE_IDS", Kind::Text, "programme source ids, comma-separated (\"\" for every channel)"};
const Arg kSource{"SOURCE_ID", Kind::Text, "programme source id"};
const std::vector<std::string> kChannelColumns = {"str_channel_number", "str_channel_name", "str_program_source_id",
                                                  "str_major", "str_minor", "genre id"};

// A call on the activity alone.
Command OnActivity(const char* name, const char* help, bool (Api::*method)(Api::Act)) {
  return {name, help, std::string("zunde-cli catalogue ") + name + " 0", {kAct},
          [method](const Args& a, Json::Value&) { return (Mso()->*method)(Act(a)); }};
}

// A list of channels of the activity.
Command Channels(const char* name, const char* help, bool (Api::*method)(Api::Act, std::vector<FCRemoteChannel>&)) {
  return {name, help, std::string("zunde-cli catalogue ") + name + " 0", {kAct},
          [method](const Args& a, Json::Value& out) {
            std::vector<FCRemoteChannel> channels;
            const bool ok = (Mso()->*method)(Act(a), channels);
            FCMarshal::ChannelListToJson(channels, out);
            return ok;
          },
          kChannelColumns};
}

// A call at a time.
Command AtTime(const char* name, const char* help, bool (Api::*method)(Api::Act, unsigned long)) {
  return {name, help, std::string("zunde-cli catalogue ") + name + " 0 now", {kAct, kTime},
          [method](const Args& a, Json::Value&) { return (Mso()->*method)(Act(a), a.u(1)); }};
}

}  // namespace

Family CatalogueFamily() {
  return {"catalogue", "The operator's catalogue: line-up, programme maps, genres, recommendations", {
    {"config", "The operator configuration", "zunde-cli catalogue config 0", {kAct},
     [](const Args& a, Json::Value& out) {
       FCRemoteMSOConfig config;
       const bool ok = Mso()->GetRemoteContentConfig(Act(a), config);
       out = J(config);
       return ok;
     }},
    {"set-config", "Set the operator configuration", "zunde-cli catalogue set-config 0 '{\"config\": {\"strZipCode\": \"10001\"}}'",
     {kAct, {"CONFIG", Kind::Json, "{\"config\": {...}}: only the fields given change", ShapeOf<FCRemoteMSOConfig>()}},
     [](const Args& a, Json::Value&) {
       FCRemoteMSOConfig config;
       if (!Mso()->GetRemoteContentConfig(Act(a), config)) return false;
       Json::Value merged = a.over(1, J(config));
       FCRemoteMSOConfig::FromJson(merged, config);
       return Mso()->SetRemoteContentConfig(Act(a), config);
     }},
    {"cert-rule", "The certification rule", "zunde-cli catalogue cert-rule 0", {kAct},
     [](const Args& a, Json::Value& out) {
       CZundeResponse_CertRule rule;
       const bool ok = Mso()->GetCertRule(Act(a), rule);
       out = J(rule);
       return ok;
     }},
    Channels("channels", "The full channel line-up", &Api::GetFullChannelList),
    Channels("tunable", "The tunable channels", &Api::GetTunableChannelList),
    Channels("featured", "The featured channels", &Api::GetFeaturedChannels),
    {"source-map", "Tunable programme source ids and their channel keys", "zunde-cli catalogue source-map 0", {kAct},
     [](const Args& a, Json::Value& out) {
       std::map<std::string, FCRemoteChannelKey> keys;
       const bool ok = Mso()->GetTunableProgramSourceIdMap(Act(a), keys);
       FCMarshal::ProgramSourceMapToJson(keys, out);
       return ok;
     }},
    {"programs", "The programmes of channels in a time window", "zunde-cli catalogue programs 0 '' now 7200",
     {kAct, kIds, {"START", Kind::Time, "seconds since the epoch, now, now+90m or HH:MM"}, {"DURATION", Kind::Int, "seconds"}},
     [](const Args& a, Json::Value& out) {
       std::vector<std::string> ids = a.list(1);
       FCFilterCriteria filter;
       std::map<std::string, std::vector<FCRemoteProgram> > programs;
       const bool ok = Mso()->GetProgramMap(Act(a), ids, static_cast<int>(a.u(2)), a.i(3), filter, programs);
       out["programs"] = Json::Value(Json::arrayValue);
       for (auto& [id, list] : programs)
         for (FCRemoteProgram& program : list) out["programs"].append(J(program));
       return ok;
     }, {"program source id", "start time", "utc start time", "duration", "title"}},
    OnActivity("activate-guide", "Activate the programme guide", &Api::ActivateProgramGuide),
    OnActivity("deactivate-guide", "Deactivate the programme guide", &Api::DeactivateProgramGuide),
    {"load-more", "Load more programmes from the server", "zunde-cli catalogue load-more 0 '' now 7200",
     {kAct, kIds, {"START", Kind::Time, "seconds since the epoch, now, now+90m or HH:MM"}, {"DURATION", Kind::Int, "seconds"}},
     [](const Args& a, Json::Value&) {
       std::vector<std::string> ids = a.list(1);
       return Mso()->LoadAdditionalProgramMapFromServer(Act(a), ids, a.u(2), a.i(3));
     }},
    {"genres", "The genres", "zunde-cli catalogue genres 0", {kAct},
     [](const Args& a, Json::Value& out) {
       std::vector<FCGenreInfo> genres;
       const bool ok = Mso()->GetGenreList(Act(a), genres);
       FCMarshal::GenreListToJson(genres, out);
       return ok;
     }},
    {"rep-genres", "The representative genres", "zunde-cli catalogue rep-genres 0", {kAct},
     [](const Args& a, Json::Value& out) {
       std::vector<FCRepGenreInfo> genres;
       const bool ok = Mso()->GetRepGenreList(Act(a), genres);
       FCMarshal::RepGenreListToJson(genres, out);
       return ok;
     }},
    {"vod-providers", "The video-on-demand providers", "zunde-cli catalogue vod-providers 0", {kAct},
     [](const Args& a, Json::Value& out) {
       CZundeResponse_VODProviders providers;
       const bool ok = Mso()->GetVODProviders(Act(a), providers);
       FCMarshal::VODProviderToJson(providers, out);
       return ok;
     }},
    {"rec-groups", "The recommendation groups", "zunde-cli catalogue rec-groups 0", {kAct},
     [](const Args& a, Json::Value& out) {
       std::map<std::string, FCRecGroup> groups;
       const bool ok = Mso()->GetRecGroupMap(Act(a), groups);
       FCMarshal::RecGroupMapToJson(groups, out);
       return ok;
     }},
    AtTime("activate-timeline", "Activate the recommendation timeline", &Api::ActivateTimeline),
    AtTime("activate-personal", "Activate smart personal recommendations", &Api::ActivateSmartPersonal),
    {"on-now", "Recommendations on now", "zunde-cli catalogue on-now 0 '' now 5",
     {kAct, {"WATCHING", Kind::Text, "programme source id being watched"}, kTime, {"COUNT", Kind::Int, "how many"}},
     [](const Args& a, Json::Value& out) {
       FCFilterCriteria filter;
       std::list<FCSmartChannelGuide> guide;
       const bool ok = Mso()->GetRecommendationOnNow(Act(a), a.s(1), a.u(2), a.i(3), filter, guide);
       FCMarshal::FCSmartChannelGuideListToJson(guide, out);
       return ok;
     }},
    {"upcoming", "Recommendations coming up", "zunde-cli catalogue upcoming 0 now 5",
     {kAct, kTime, {"COUNT", Kind::Int, "how many"}},
     [](const Args& a, Json::Value& out) {
       FCFilterCriteria filter;
       std::list<FCSmartChannelGuide> guide;
       const bool ok = Mso()->GetRecommendationUpcomming(Act(a), a.u(1), a.i(2), filter, guide);
       FCMarshal::FCSmartChannelGuideListToJson(guide, out);
       return ok;
     }},
    {"timeline", "The recommendation timeline", "zunde-cli catalogue timeline 0 now 0 3",
     {kAct, kTime, {"FROM_SLOT", Kind::Int, "first time slot"}, {"TO_SLOT", Kind::Int, "last time slot"}},
     [](const Args& a, Json::Value& out) {
       std::map<int, std::map<int, FCSmartChannelGuide> > timeline;
       const bool ok = Mso()->GetRecommendationTimeline(Act(a), a.u(1), a.i(2), a.i(3), timeline);
       FCMarshal::TimeLineToJson(timeline, out);
       return ok;
     }},
    {"future-timeline", "The future recommendation timeline", "zunde-cli catalogue future-timeline 0 0 3",
     {kAct, {"FROM_SLOT", Kind::Int, "first day slot"}, {"TO_SLOT", Kind::Int, "last day slot"}},
     [](const Args& a, Json::Value& out) {
       std::map<int, std::map<int, FCSmartChannelGuide_Future> > timeline;
       const bool ok = Mso()->GetRecommendationFutureTimeline(Act(a), a.i(1), a.i(2), timeline);
       FCMarshal::FutureTimeLineToJson(timeline, out);
       return ok;
     }},
    {"program", "The programme of a source id at a time", "zunde-cli catalogue program 0 10001 now",
     {kAct, kSource, kTime},
     [](const Args& a, Json::Value& out) {
       FCRemoteProgram program;
       const bool ok = Mso()->GetFCRemoteProgramByProgramSourceID(Act(a), a.s(1), a.u(2), program);
       out = J(program);
       return ok;
     }},
    {"channel", "The channel of a source id", "zunde-cli catalogue channel 0 10001", {kAct, kSource},
     [](const Args& a, Json::Value& out) {
       FCRemoteChannel channel;
       const bool ok = Mso()->GetFCRemoteChannelByProgramSourceID(Act(a), a.s(1), channel);
       out = J(channel);
       return ok;
     }},
    {"search-key-rf", "The search key of a broadcast service at a time", "zunde-cli catalogue search-key-rf 0 38293928476773 now",
     {kAct, {"SERVICE_ID", Kind::Unsigned64, "broadcast service id"}, kTime},
     [](const Args& a, Json::Value& out) {
       unsigned long long service = a.u(1);
       std::string key;
       const bool ok = Mso()->GetSearchKeyStringInRFMode(Act(a), service, a.u(2), key);
       out["key"] = key;
       return ok;
     }},
    {"search-key-mbr", "The search key of a set-top-box channel at a time",
     "zunde-cli catalogue search-key-mbr 0 7 now", {kAct, {"CHANNEL", Kind::Text, "channel number"}, kTime},
     [](const Args& a, Json::Value& out) {
       std::string key;
       const bool ok = Mso()->GetSearchKeyStringInMBRMode(Act(a), a.s(1), a.u(2), key);
       out["key"] = key;
       return ok;
     }},
  }};
}

}  // namespace zcli
