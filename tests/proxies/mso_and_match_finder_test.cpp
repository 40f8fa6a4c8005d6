// The operator remote content proxy and the match finder, one row per method.
#include "FCMarshal.h"
#include "FCMatchFinder_Proxy.h"
#include "FCRemoteContentOnTV_MSO_Proxy.h"
#include "json_text.h"
#include "proxy_harness.h"
#include "test_service.h"

// A JSON form without the members left at "", 0 or false: what a reply filled in.
static Json::Value Pruned(const Json::Value& value) {
  Json::Value out = value.isObject() || value.isArray() ? Json::Value(value.type()) : value;
  for (auto it = value.begin(); it != value.end(); ++it) {
    const Json::Value item = Pruned(*it);
    if (value.isArray()) out.append(item);
    else if (item != Json::Value(item.type())) out[it.name()] = item;
  }
  return out;
}

static std::string Text(const Json::Value& value) {
  std::string text = zunde::testing::Compact(Pruned(value));
  return text.erase(text.size() - 1);
}

// Records as the filled part of their JSON form (writing leaves a record as it is).
template <class R, class = decltype(R::FromJson(std::declval<Json::Value&>(), std::declval<R&>()))>
static std::string OutputText(const R& record) {
  Json::Value form;
  R::ToJson(const_cast<R&>(record), form);
  return Text(form);
}

namespace {

using namespace zunde::testing;
using Mso = FCRemoteContentOnTV_MSO_Proxy;
using Finder = FCMatchFinder_Proxy;
using ProgramMap = std::map<std::string, std::vector<FCRemoteProgram> >;
using Guides = std::list<FCSmartChannelGuide>;
using Timeline = std::map<int, std::map<int, FCSmartChannelGuide> >;
using FutureTimeline = std::map<int, std::map<int, FCSmartChannelGuide_Future> >;
const auto kAct = static_cast<eRemoteContentActivity>(3);
const unsigned long long kMaxId = 18446744073709551615ULL;

// Both families write to the system log at warning priority; the parse
// failure line names the operator proxy in both.
using Family = std::pair<std::string, std::string>;  // class, end of the entry line
const Family kMso{"FCRemoteContentOnTV_MSO_Proxy", "] called\n"};
const Family kFinder{"FCMatchFinder_Proxy", "]  called\n"};

ExpectedLine Line(const std::string& text) { return {2, 5, "DBG_LV[0][" + text}; }

// The request as compact JSON; the member is the method's name (before any
// "_" of the row's name) unless given.
ProxyCase Row(const Family& family, const std::string& name, const std::string& request, const std::string& reply,
              const std::string& outputs, std::function<Observed()> call, const std::string& entry = "",
              const std::string& member = "") {
  const std::string method = name.substr(0, name.find('_'));
  return {name, member.empty() ? method : member, Json::StyledWriter().write(Parsed(request)), reply, true, outputs,
          std::move(call), Line(entry.empty() ? family.first + "::" + method + family.second : entry),
          Line(family.first + "::" + method + "] fail to communicate using d-bus\n"),
          Line("FCRemoteContentOnTV_MSO_Proxy::" + method + "] fail to parse json data\n")};
}

// The shape most operator methods share: the activity alone in, one output.
template <typename Out>
std::function<Observed()> ForAct(bool (Mso::*method)(Mso::Act, Out&)) {
  return Observe<Mso>([method](Mso& p, Out& out) { return (p.*method)(kAct, out); }, Out());
}
#define BY_ACT(method, reply, outputs) Row(kMso, #method, R"({"activityID":3})", reply, outputs, ForAct(&Mso::method))
// `p.call`, with one output `out` starting at `init`, or none.
#define CALL(P, init, ...) Observe<P>([](P& p, auto& out) { return p.__VA_ARGS__; }, init)
#define SEND(...) Observe<Mso>([](Mso& p) { return p.__VA_ARGS__; })

FCFilterCriteria filter;
std::vector<std::string> ids{"p", "q"};
FCRemoteChannel channel;
const char kRet[] = R"({"ret":true})";
const char kGuide[] = R"({"ret":true,"out_list":[{"str_name":"N","sequence":2}]})";
const std::string kSlot = R"(:1,"sequence_map":[{"sequence":0,"smart_channel_guide":{"str_name":"N"}}]}]})";

const ProxyCase kMsoCases[] = {
    BY_ACT(GetRemoteContentConfig, R"({"ret":true,"config":{"strHeadend":"H","source":2}})",
           R"({"config":{"source":2,"strHeadend":"H"}})"),
    Row(kMso, "SetRemoteContentConfig", R"({"activityID":3,"config":{"antennaMode":-1,"serviceMode":-1,"source":-1,
        "strDeviceType":"","strHeadend":"","strZipCode":"","str_additional_info_with_json_format":""}})", kRet, "",
        SEND(SetRemoteContentConfig(kAct, FCRemoteMSOConfig()))),
    BY_ACT(GetCertRule, R"({"ret":true,"out_cert_rule":{"str_bar_mode":"B"}})",
           R"({"out_cert_rule":{"str_bar_mode":"B"}})"),
    BY_ACT(GetFullChannelList, R"({"ret":true,"channel_array":[{"genre name":"G"},{"str_sid":"7"}]})",
           R"([{"gere name":"G"}, {"str_sid":"7"}])"),
    BY_ACT(GetTunableChannelList, R"({"ret":true,"channel_array":[{"str_sid":"7"}]})", R"([{"str_sid":"7"}])"),
    BY_ACT(GetFeaturedChannels, kRet, "[]"),
    BY_ACT(GetTunableProgramSourceIdMap, R"({"ret":true,"out_tunable_program_source_id_map":[{"program_source_id":"p",
           "channel_key":{"str_sid":"7"}},{"program_source_id":"p"}]})", R"({p: {"channel_key":{"str_sid":"7"}}})"),
    Row(kMso, "GetProgramMap", R"({"activityID":3,"sourceIDArray":["p","q"],"utc start time":1700000000,"duration":60,
        "genre id list":"","rep id":"","rec id":""})", R"({"ret":true,"out_mapProgramWithSourceID":[
        {"program_source_id":"p","program_array":[{"title":"A"},{"title":"B"}]},{"program_source_id":"p"}]})",
        R"({p: [{"title":"A"}, {"title":"B"}]})",
        CALL(Mso, ProgramMap(), GetProgramMap(kAct, ids, 1700000000, 60, filter, out))),
    Row(kMso, "ActivateProgramGuide", R"({"activityID":3})", kRet, "", SEND(ActivateProgramGuide(kAct))),
    Row(kMso, "DeactivateProgramGuide", R"({"activityID":3})", kRet, "", SEND(DeactivateProgramGuide(kAct))),
    Row(kMso, "LoadAdditionalProgramMapFromServer", R"({"activityID":3,"utc_starttime":4000000000,"duration":60,
        "sourceIDArray":["p","q"]})", kRet, "", SEND(LoadAdditionalProgramMapFromServer(kAct, ids, 4000000000UL, 60))),
    BY_ACT(GetGenreList, R"({"ret":true,"array_genre":[{"str_id":"4"}]})", R"([{"str_id":"4"}])"),
    BY_ACT(GetRepGenreList, R"({"ret":true,"out_array_rep_genre":[{"str_rep_id":"r"}]})", R"([{"str_rep_id":"r"}])"),
    BY_ACT(GetVODProviders, R"({"ret":true,"out_vod_providers":[{"string":"k","name":"N"}]})",
           R"({"out_vod_providers":[{"name":"N","string":"k"}]})"),
    BY_ACT(GetRecGroupMap, R"({"ret":true,"out_map_rec_group":[{"string":"g","name":"A"},{"string":"g"}]})",
           R"({g: {"name":"A"}})"),
    Row(kMso, "ActivateTimeline", R"({"activityID":3,"utc_current_time":4000000000})", kRet, "",
        SEND(ActivateTimeline(kAct, 4000000000UL)), "", "ActivateSmartPersonal"),
    Row(kMso, "ActivateSmartPersonal", R"({"activityID":3,"utc_current_time":4000000000})", kRet, "",
        SEND(ActivateSmartPersonal(kAct, 4000000000UL))),
    Row(kMso, "GetRecommendationOnNow", R"({"activityID":3,"current_watching_program_source_id":"p",
        "utc_currenttime":3000000000,"number_of_recommendation":5,"genre id list":"","rec id":""})", kGuide,
        R"([{"sequence":2,"str_name":"N"}])",
        CALL(Mso, Guides(), GetRecommendationOnNow(kAct, "p", 3000000000UL, 5, filter, out))),
    Row(kMso, "GetRecommendationUpcomming", R"({"activityID":3,"utc_currenttime":1,"number_of_recommendation":5,
        "genre id list":"","rec id":""})", kGuide, R"([{"sequence":2,"str_name":"N"}])",
        CALL(Mso, Guides(), GetRecommendationUpcomming(kAct, 1, 5, filter, out))),
    Row(kMso, "GetRecommendationTimeline", R"({"activityID":3,"utc_currenttime":1,"from_timeslot":1,"to_timeslot":2})",
        R"({"ret":true,"out_timeline":[{"time_slot")" + kSlot, R"({1: {0: {"str_name":"N"}}})",
        CALL(Mso, Timeline(), GetRecommendationTimeline(kAct, 1, 1, 2, out))),
    Row(kMso, "GetRecommendationFutureTimeline", R"({"activityID":3,"from_dayslot":1,"to_dayslot":2})",
        R"({"ret":true,"out_future_timeline":[{"day_slot")" + kSlot, R"({1: {0: {"str_name":"N"}}})",
        CALL(Mso, FutureTimeline(), GetRecommendationFutureTimeline(kAct, 1, 2, out))),
    Row(kMso, "GetFCRemoteProgramByProgramSourceID", R"({"activityID":3,"program source id":"p","utc current time":1})",
        R"({"ret":true,"title":"T"})", R"({"title":"T"})",
        CALL(Mso, FCRemoteProgram(), GetFCRemoteProgramByProgramSourceID(kAct, "p", 1, out))),
    Row(kMso, "GetFCRemoteChannelByProgramSourceID", R"({"activityID":3,"program source id":"p"})",
        R"({"ret":true,"str_sid":"7"})", R"({"str_sid":"7"})",
        CALL(Mso, FCRemoteChannel(), GetFCRemoteChannelByProgramSourceID(kAct, "p", out))),
    Row(kMso, "GetSearchKeyStringInRFMode", R"({"activityID":3,"TCServiceId":"18446744073709551615",
        "utc_current_time":1})", R"({"ret":true,"search string":"S"})", "18446744073709551615 | S",
        Observe<Mso>([](Mso& p, auto& id, auto& out) { return p.GetSearchKeyStringInRFMode(kAct, id, 1, out); },
                     kMaxId, std::string("-"))),
    Row(kMso, "GetSearchKeyStringInMBRMode", R"({"activityID":3,"mbr ch number":"7-1","utc current time":1})",
        R"({"ret":true,"search string":"S"})", "S",
        CALL(Mso, std::string("-"), GetSearchKeyStringInMBRMode(kAct, "7-1", 1, out))),
};
INSTANTIATE_TEST_SUITE_P(OperatorRemoteContent, ProxyMethod, ::testing::ValuesIn(kMsoCases), CaseName<ProxyCase>);

// A channel's keys sit flat beside "activityID", so its own activity replaces the call's.
const ProxyCase kFinderCases[] = {
    Row(kFinder, "GetFCRemoteChannelByTCServiceId", R"({"activityID":3,"TCServiceId":"42"})",
        R"({"ret":true,"str_sid":"7"})", R"(42 | {"str_sid":"7"})",
        Observe<Finder>([](Finder& p, auto& id, auto& out) { return p.GetFCRemoteChannelByTCServiceId(kAct, id, out); },
                        42ULL, FCRemoteChannel()),
        "FCMatchFinder::GetFCRemoteChannelByTCServiceId]  TCServiceId = 42\n"),
    Row(kFinder, "GetTCServiceIdByFCRemoteChannel", R"({"ac_rank":"","activityID":0,"embed":0,"genre id":"",
        "gere name":"","str_alias":"","str_channel_name":"","str_channel_number":"","str_digital_flag":"","str_dtv":"",
        "str_frequency":"","str_icon_url":"","str_major":"","str_minor":"","str_onid":"","str_program_source_id":"",
        "str_ptc":"","str_qam_flag":"","str_sid":"","str_tsid":"","str_url_index":""})",
        R"({"ret":true,"TCServiceId":"18446744073709551615"})", "18446744073709551615",
        CALL(Finder, 0ULL, GetTCServiceIdByFCRemoteChannel(kAct, channel, out))),
    Row(kFinder, "GetTCServiceIdByProgramSourceID", R"({"activityID":3,"program source id":"p"})",
        R"({"ret":true,"TCServiceId":"12"})", "12",
        CALL(Finder, 0ULL, GetTCServiceIdByProgramSourceID(kAct, "p", out))),
};
INSTANTIATE_TEST_SUITE_P(MatchFinder, ProxyMethod, ::testing::ValuesIn(kFinderCases), CaseName<ProxyCase>);

Mso mso;
Finder finder;
#define PASS(family, object, m)                                                               \
  PassThroughCase{#m, #m, [](auto& in, auto& out) { return object.m(in, out); }, true, false, \
                  Line(family.first + "::" #m + family.second),                               \
                  Line(family.first + "::" #m "] fail to communicate using d-bus\n")}
#define MSO(m) PASS(kMso, mso, m)
#define FINDER(m) PASS(kFinder, finder, m)
const PassThroughCase kPassThroughs[] = {
    MSO(GetRemoteContentConfig), MSO(SetRemoteContentConfig), MSO(GetCertRule), MSO(GetFullChannelList),
    MSO(GetTunableChannelList), MSO(GetProgramMap), MSO(ActivateProgramGuide), MSO(DeactivateProgramGuide),
    MSO(LoadAdditionalProgramMapFromServer), MSO(GetGenreList), MSO(GetRepGenreList), MSO(GetVODProviders),
    MSO(GetRecGroupMap), MSO(ActivateSmartPersonal), MSO(GetRecommendationOnNow), MSO(GetRecommendationUpcomming),
    MSO(GetFCRemoteProgramByProgramSourceID), MSO(GetFCRemoteChannelByProgramSourceID),
    FINDER(GetFCRemoteChannelByTCServiceId), FINDER(GetTCServiceIdByFCRemoteChannel),
    FINDER(GetTCServiceIdByProgramSourceID)};
INSTANTIATE_TEST_SUITE_P(OperatorAndMatchFinder, ProxyPassThrough, ::testing::ValuesIn(kPassThroughs),
                         CaseName<PassThroughCase>);

TEST(MatchFinderServiceId, WritingConsumesTheIdAndReadingChecksNoDigit) {
  Json::Value max, zero, text12a = Parsed(R"({"TCServiceId":"12a"})"), absent = Parsed("{}");
  unsigned long long maxId = kMaxId, zeroId = 0, read12a = 7, readAbsent = 7;
  EXPECT_TRUE(FCMarshal::TCServiceIdToJson(maxId, max) && FCMarshal::TCServiceIdToJson(zeroId, zero));
  EXPECT_EQ(Compact(max) + Compact(zero), "{\"TCServiceId\":\"18446744073709551615\"}\nnull\n");
  EXPECT_EQ(maxId + zeroId, 0u);
  EXPECT_TRUE(FCMarshal::JsonToTCServiceId(text12a, read12a) && FCMarshal::JsonToTCServiceId(absent, readAbsent));
  EXPECT_EQ(read12a, 169u);
  EXPECT_EQ(readAbsent, 0u);
}

// 5,000 channels and 100 sources of 100 programmes each in one reply to both
// calls, read back whole.
using OperatorBulk = ServiceTest;
TEST_F(OperatorBulk, LargeRepliesComeThroughIntact) {
  Json::Value sent, back;
  for (int i = 0; i < 10000; ++i) {
    if (i < 5000) sent["channel_array"][i]["str_sid"] = std::to_string(i);
    sent["out_mapProgramWithSourceID"][i / 100]["program_source_id"] = std::to_string(1000 + i / 100);
    sent["out_mapProgramWithSourceID"][i / 100]["program_array"][i % 100]["title"] = std::to_string(i);
  }
  TestService::Reply("*", Compact(sent));
  std::vector<FCRemoteChannel> list;
  ProgramMap map;
  mso.GetFullChannelList(kAct, list);
  mso.GetProgramMap(kAct, ids, 0, 0, filter, map);
  FCMarshal::ChannelListToJson(list, back);
  FCMarshal::ProgramMapToJson(map, back);
  EXPECT_EQ(Text(back), Text(sent));
}

}  // namespace
