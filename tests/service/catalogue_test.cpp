// zunde-service's catalogue families driven through the library's proxies:
// answers that must agree with each other, and catalogue files.
#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>

#include "CZundeResponse.h"
#include "FCMatchFinder_Proxy.h"
#include "FCRFNetworkChannelTable.h"
#include "FCRemoteContentOnTV_MSO_Proxy.h"
#include "FCRemoteContentOnTV_Proxy.h"
#include "FCSmartChannelGuide.h"
#include "FCVirtualProgramData.h"
#include "FCVirtualChannels_Proxy.h"
#include "RFNetworkChannelManager_Proxy.h"
#include "running_service.h"

namespace {

using zunde::testing::RunningService;
using Mode = FCRFNetworkChannelAPI::ENavigationMode;

FCRemoteContentOnTV_MSO_Proxy mso;
FCMatchFinder_Proxy finder;
FCRFNetworkChannelManager_Proxy rf;
FCVirtualChannels_Proxy vc;
FCRemoteContentOnTV_Proxy env;
const auto A0 = static_cast<eRemoteContentActivity>(0);
const unsigned long long kNews = (0x22D4ULL << 32) | (1ULL << 16) | 101;  // station 10002 on the air
const unsigned long long kVirtual = (0xFFFEULL << 32) | (1ULL << 16) | 1;
const time_t kNow = std::time(nullptr);
const unsigned long kEvening = kNow / 86400 * 86400 + 20 * 3600;  // today, 20:00 UTC

std::pair<int, std::string> RunService(const std::string& args) { return RunningService::Run(args); }

class CatalogueService : public ::testing::Test {
 protected:
  void SetUp() override { Start({}); }
  void TearDown() override {
    EXPECT_EQ(RunningService::Stop(), 0);
    std::system(("rm -rf " + dir_).c_str());
  }
  void Start(const std::vector<std::string>& args) {
    char dir[] = "/tmp/zunde-catalogue-test-XXXXXX";
    dir_ = mkdtemp(dir);
    RunningService::Start(dir_, 3000, args);
  }
  void Restart(const std::vector<std::string>& args) {
    EXPECT_EQ(RunningService::Stop(), 0);
    std::system(("rm -rf " + dir_).c_str());
    Start(args);
  }
  std::string dir_;
};

struct Step {
  const char* name;
  std::function<std::string()> call;
  std::string expected;
};

template <typename T>
std::string Size(bool result, const T& container) {
  return std::to_string(result) + " " + std::to_string(container.size());
}

FCVirtualProgramId IdAt(unsigned int start) {
  FCVirtualProgramId id;
  id.SetServiceId(kVirtual);
  id.SetStartTime(start);
  return id;
}

TEST_F(CatalogueService, EveryMemberAnswersFromTheDefaultCatalogue) {
  // Usage events need the disclaimer agreed.
  const std::string settings = dir_ + "/settings";
  std::ofstream(settings) << "db/menu/corvina/homedatacontrol/defaultdisclaimeragree=1\n"
                             "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=true\n";
  setenv("ZUNDE_VCONF_FILE", settings.c_str(), 1);
  setenv("ZUNDE_SYSTEM_INFO_FILE", settings.c_str(), 1);
  const Step steps[] = {
      {"GetRemoteContentConfig", [] { FCRemoteMSOConfig c; bool r = mso.GetRemoteContentConfig(A0, c); return std::to_string(r) + c.strHeadend; }, "1CA-METRO-01"},
      {"SetRemoteContentConfig", [] { FCRemoteMSOConfig c; c.strHeadend = "HE-9"; mso.SetRemoteContentConfig(A0, c); mso.GetRemoteContentConfig(A0, c); return c.strHeadend; }, "HE-9"},
      {"GetCertRule", [] { CZundeResponse_CertRule c; bool r = mso.GetCertRule(A0, c); return std::to_string(r) + c.str_service_cert_type; }, "1TV-PG"},
      {"GetFullChannelList", [] { std::vector<FCRemoteChannel> c; bool r = mso.GetFullChannelList(A0, c); return Size(r, c) + c[1].str_channel_name; }, "1 60Metro News"},
      {"GetTunableChannelList", [] { std::vector<FCRemoteChannel> c; return Size(mso.GetTunableChannelList(A0, c), c); }, "1 54"},
      {"GetFeaturedChannels", [] { std::vector<FCRemoteChannel> c; bool r = mso.GetFeaturedChannels(A0, c); return Size(r, c) + c[0].ac_rank; }, "1 81"},
      {"GetTunableProgramSourceIdMap", [] { std::map<std::string, FCRemoteChannelKey> k; bool r = mso.GetTunableProgramSourceIdMap(A0, k); return Size(r, k) + k["10002"].str_channel_number; }, "1 543"},
      {"ActivateProgramGuide", [] { return std::to_string(mso.ActivateProgramGuide(A0)); }, "1"},
      {"DeactivateProgramGuide", [] { return std::to_string(mso.DeactivateProgramGuide(A0)); }, "1"},
      {"GetGenreList", [] { std::vector<FCGenreInfo> g; return Size(mso.GetGenreList(A0, g), g); }, "1 9"},
      {"GetRepGenreList", [] { std::vector<FCRepGenreInfo> g; return Size(mso.GetRepGenreList(A0, g), g); }, "1 4"},
      {"GetVODProviders", [] { CZundeResponse_VODProviders p; return Size(mso.GetVODProviders(A0, p), p); }, "1 3"},
      {"GetRecGroupMap", [] { std::map<std::string, FCRecGroup> g; return Size(mso.GetRecGroupMap(A0, g), g); }, "1 3"},
      {"ActivateTimeline", [] { return std::to_string(mso.ActivateTimeline(A0, kNow)); }, "1"},
      {"ActivateSmartPersonal", [] { return std::to_string(mso.ActivateSmartPersonal(A0, kNow)); }, "1"},
      {"GetRecommendationTimeline", [] { std::map<int, std::map<int, FCSmartChannelGuide>> t; bool r = mso.GetRecommendationTimeline(A0, kEvening, 0, 2, t); return Size(r, t) + " " + std::to_string(t[2].size()); }, "1 3 5"},
      {"GetRecommendationFutureTimeline", [] { std::map<int, std::map<int, FCSmartChannelGuide_Future>> t; bool r = mso.GetRecommendationFutureTimeline(A0, 1, 3, t); return Size(r, t) + " " + std::to_string(t[3].size()); }, "1 3 5"},
      {"GetFCRemoteChannelByProgramSourceID", [] { FCRemoteChannel c; bool r = mso.GetFCRemoteChannelByProgramSourceID(A0, "10002", c); return std::to_string(r) + c.str_channel_number; }, "13"},
      {"UnknownActivityIsRefused", [] { std::vector<FCRemoteChannel> c; return Size(mso.GetFullChannelList(static_cast<eRemoteContentActivity>(3), c), c); }, "0 0"},
      {"SetNavigationMode", [] { Mode m; rf.SetNavigationMode(Mode(2)); bool r = rf.GetNavigationMode(m); return std::to_string(r) + std::to_string(m); }, "12"},
      {"SetGenreForNavigation", [] { std::string g; rf.SetGenreForNavigation("G02"); bool r = rf.GetGenreForNavigation(g); return std::to_string(r) + g; }, "1G02"},
      {"GetRFNetworkChannelMapByGenre", [] { FCRFNetworkChannelTable t; return Size(rf.GetRFNetworkChannelMapByGenre("", t), t.GetRFNetworkChannelList()); }, "1 66"},
      {"GetRFNetworkChannelCountByGenre", [] { return std::to_string(rf.GetRFNetworkChannelCountByGenre("G01")); }, "9"},
      {"CheckMetaProgramExist", [] { return std::to_string(rf.CheckMetaProgramExist()); }, "1"},
      {"GetChannelLogo", [] { std::string l; bool r = vc.GetChannelLogo(kVirtual, FCVirtualChannelsAPI::EChannelLogoSize(1), l); return std::to_string(r) + l; }, "1https://images.zunde.invalid/vc/1/logo_1.png"},
      {"GetProgramThumbnail", [] { std::string l; bool r = vc.GetProgramThumbnail(IdAt(kEvening), l); return std::to_string(r) + l; }, "1https://images.zunde.invalid/vc/1/thumbnail/" + std::to_string(kEvening) + ".jpg"},
      {"GetProgramBackground", [] { std::string l; bool r = vc.GetProgramBackground(IdAt(kEvening), l); return std::to_string(r) + l; }, "1https://images.zunde.invalid/vc/1/background/" + std::to_string(kEvening) + ".jpg"},
      {"GetProgramImage", [] { std::string p; bool r = vc.GetProgramImage(IdAt(kEvening), FCVirtualChannelsAPI::EProgramLogoType(2), p) > 0; return std::to_string(r) + p.substr(33, 9); }, "1/image_2/"},
      {"GetVCConfig", [] { FCVirtualConfig c; bool r = vc.GetVCConfig(c); return std::to_string(r) + c.GetChPosition(); }, "1after_last"},
      {"GetFeaturedVirtualChannelInfo", [] { FCVirtualChannelInfo i; bool r = vc.GetFeaturedVirtualChannelInfo(kVirtual, i); return std::to_string(r) + i.GetMajor() + i.GetChannelName(); }, "14001Reel Classics"},
      {"GetServiceIdFromOnTVProviderAndService", [] { unsigned long long id = 0; return std::to_string(vc.GetServiceIdFromOnTVProviderAndService("ontv-provider-1", "ontv-movies", id) && id == kVirtual); }, "1"},
      {"SendLogKPI", [] { std::string e = "open", c = "guide", d = "from home"; return std::to_string(vc.SendLogKPI(FCVirtualChannelsAPI::EKPIType(1), e, c, d)); }, "1"},
      {"GetViewingAgreement", [] { return std::to_string(vc.GetViewingAgreement()); }, "1"},
      {"KivoProgramInfoIsAvailable", [] { return std::to_string(vc.KivoProgramInfoIsAvailable()); }, "1"},
      {"VirtualReset", [] { Mode m; bool r = vc.Reset(); rf.GetNavigationMode(m); return std::to_string(r) + std::to_string(m); }, "10"},
      {"ResetRestoresTheConfig", [] { FCRemoteMSOConfig c; mso.GetRemoteContentConfig(A0, c); return c.strHeadend; }, "CA-METRO-01"},
  };
  for (const Step& step : steps) EXPECT_EQ(step.call(), step.expected) << step.name;
}

// Programmes of every kind: the map covers the window without gaps, the
// present covers now, next follows present and previous leads back.
TEST_F(CatalogueService, ProgrammesAgree) {
  std::vector<std::string> ids = {"10002", "10003"};
  FCFilterCriteria none;
  std::map<std::string, std::vector<FCRemoteProgram>> map;
  ASSERT_TRUE(mso.GetProgramMap(A0, ids, kEvening, 6 * 3600, none, map));
  for (const std::string& id : ids) {
    const auto& list = map[id];
    ASSERT_FALSE(list.empty());
    EXPECT_LE(list.front().utc_starttime, kEvening);
    EXPECT_GE(list.back().EndTime, kEvening + 6 * 3600);
    for (size_t i = 1; i < list.size(); ++i) EXPECT_EQ(list[i].utc_starttime, list[i - 1].EndTime) << id;
  }
  FCRemoteProgram present, next, previous;
  ASSERT_TRUE(rf.GetPresentMetaProgram(kNews, present));
  EXPECT_LE(present.utc_starttime, static_cast<unsigned>(std::time(nullptr)));
  EXPECT_GT(present.EndTime, static_cast<unsigned>(kNow));
  ASSERT_TRUE(rf.GetNextMetaProgram(present, next));
  EXPECT_EQ(next.utc_starttime, present.EndTime);
  ASSERT_TRUE(rf.GetPrevMetaProgram(next, previous));
  EXPECT_EQ(previous.str_program_id, present.str_program_id);
  std::map<unsigned int, FCRemoteProgram> meta;
  ASSERT_TRUE(rf.GetMetaProgramMap(kNews, kEvening, 6 * 3600, meta));
  EXPECT_EQ(meta.size(), map["10002"].size());
  EXPECT_EQ(meta.begin()->second.strTitle, map["10002"].front().strTitle);
  FCRemoteProgram bySource;
  std::string rfKey, mboKey;
  ASSERT_TRUE(mso.GetFCRemoteProgramByProgramSourceID(A0, "10002", kEvening, bySource));
  unsigned long long news = kNews;
  ASSERT_TRUE(mso.GetSearchKeyStringInRFMode(A0, news, kEvening, rfKey));
  ASSERT_TRUE(mso.GetSearchKeyStringInMBRMode(A0, "3", kEvening, mboKey));
  EXPECT_EQ(rfKey + "|" + mboKey, bySource.strTitle + "|" + bySource.strTitle);
  EXPECT_LE(bySource.utc_starttime, kEvening);
  EXPECT_GT(bySource.EndTime, kEvening);
}

TEST_F(CatalogueService, RecommendationsFollowTheirCriteria) {
  FCFilterCriteria sports;
  sports.rec_id = "REC2";
  std::list<FCSmartChannelGuide> onNow, upcoming;
  ASSERT_TRUE(mso.GetRecommendationOnNow(A0, "10005", kEvening, 3, sports, onNow));
  ASSERT_EQ(onNow.size(), 3u);
  for (const auto& g : onNow) EXPECT_EQ(g.content_genre_array, std::vector<std::string>{"G02"}) << g.str_program_source_id;
  for (const auto& g : onNow) EXPECT_NE(g.str_program_source_id, "10005");
  FCFilterCriteria none;
  ASSERT_TRUE(mso.GetRecommendationUpcomming(A0, kEvening, 4, none, upcoming));
  ASSERT_EQ(upcoming.size(), 4u);
  for (auto it = std::next(upcoming.begin()); it != upcoming.end(); ++it) EXPECT_GE(it->utc_starttime, std::prev(it)->utc_starttime);
  EXPECT_GT(upcoming.front().utc_starttime, kEvening);
}

TEST_F(CatalogueService, MoreLoadedGuideReachesFurther) {
  std::vector<std::string> ids = {"10002"};
  FCFilterCriteria none;
  std::map<std::string, std::vector<FCRemoteProgram>> before, after;
  const unsigned long later = kEvening + 12 * 86400;
  mso.GetProgramMap(A0, ids, later, 3600, none, before);
  ASSERT_TRUE(mso.LoadAdditionalProgramMapFromServer(A0, ids, later, 86400));
  mso.GetProgramMap(A0, ids, later, 3600, none, after);
  EXPECT_EQ(before["10002"].size(), 0u);
  EXPECT_GT(after["10002"].size(), 0u);
}

TEST_F(CatalogueService, MatchFinderRoundTripsEveryChannel) {
  std::vector<FCRemoteChannel> channels;
  ASSERT_TRUE(mso.GetFullChannelList(A0, channels));
  int matched = 0;
  for (FCRemoteChannel& channel : channels) {
    unsigned long long id = 0, bySource = 0;
    if (!finder.GetTCServiceIdByFCRemoteChannel(A0, channel, id)) continue;
    ++matched;
    FCRemoteChannel back;
    ASSERT_TRUE(finder.GetFCRemoteChannelByTCServiceId(A0, id, back));
    EXPECT_EQ(back.str_program_source_id, channel.str_program_source_id);
    ASSERT_TRUE(finder.GetTCServiceIdByProgramSourceID(A0, channel.str_program_source_id, bySource));
    EXPECT_EQ(std::to_string(bySource & 0xFFFF), back.str_sid);
  }
  EXPECT_EQ(matched, 60 - 60 / 8);
}

TEST_F(CatalogueService, VirtualProgrammesAndOnDemandSlots) {
  std::map<unsigned int, FCVirtualProgramData> list;
  ASSERT_TRUE(vc.GetProgramList(kVirtual, kEvening, 4 * 3600, list));
  ASSERT_GE(list.size(), 2u);
  const FCVirtualProgramData first = list.begin()->second, second = std::next(list.begin())->second;
  EXPECT_EQ(first.GetPlaylist().size(), 3u);
  FCVirtualProgramData next, same, present;
  FCVirtualProgramId firstId = IdAt(first.GetStartTime());
  ASSERT_TRUE(vc.GetProgram(EProgramIndicator(1), firstId, next));
  EXPECT_EQ(next.GetEventId(), second.GetEventId());
  ASSERT_TRUE(vc.GetProgram(firstId, same));
  EXPECT_EQ(same.GetTitle(), first.GetTitle());
  ASSERT_TRUE(vc.GetPresentProgram(kVirtual, present));
  EXPECT_LE(present.GetStartTime(), static_cast<unsigned>(std::time(nullptr)));
  EXPECT_GT(present.GetStartTime() + present.GetDuration(), static_cast<unsigned>(kNow));

  FCVirtualProgramData slot;
  slot.SetEventId("od-7");
  slot.SetTitle("Director's Cut");
  slot.SetStartTime(kEvening);
  FCVirtualProgramId set, found, none;
  ASSERT_TRUE(vc.SetOnDemandProgram(kVirtual, slot, &set));
  ASSERT_TRUE(vc.GetOnDemandIdentifier(kVirtual, found));
  EXPECT_EQ(found.GetEventId() + "|" + set.GetEventId(), "od-7|od-7");
  ASSERT_TRUE(vc.GetProgram(found, same));
  EXPECT_EQ(same.GetTitle(), "Director's Cut");
  RunningService::Stop();
  RunningService::Start(dir_);
  ASSERT_TRUE(vc.GetOnDemandIdentifier(kVirtual, found));
  ASSERT_TRUE(vc.UnsetOnDemandProgram(found));
  EXPECT_FALSE(vc.GetOnDemandIdentifier(kVirtual, none));
}

TEST_F(CatalogueService, AFiveThousandChannelLineupArrivesIntact) {
  Restart({"--lineup-size", "5000"});
  std::vector<FCRemoteChannel> channels;
  ASSERT_TRUE(mso.GetFullChannelList(A0, channels));
  ASSERT_EQ(channels.size(), 5000u);
  for (size_t i = 0; i < channels.size(); ++i) ASSERT_EQ(channels[i].str_program_source_id, std::to_string(10001 + i));
}

TEST_F(CatalogueService, TheWrittenDefaultLoadsBackToTheSameAnswers) {
  const std::string file = dir_ + ".json";
  ASSERT_EQ(RunService("--write-default-catalogue " + file).first, 0);
  std::string fullBefore, fullAfter, mapBefore, mapAfter;
  const std::string mapRequest = R"({"activityID":0,"sourceIDArray":["10001","10009"],"utc start time":)" +
                                 std::to_string(kEvening) + R"(,"duration":7200})";
  mso.GetFullChannelList(R"({"activityID":0})", fullBefore);
  mso.GetProgramMap(mapRequest, mapBefore);
  Restart({"--catalogue", file});
  mso.GetFullChannelList(R"({"activityID":0})", fullAfter);
  mso.GetProgramMap(mapRequest, mapAfter);
  EXPECT_EQ(fullAfter, fullBefore);
  EXPECT_EQ(mapAfter, mapBefore);
  EXPECT_GT(mapAfter.size(), 1000u);
  std::remove(file.c_str());
}

TEST(CatalogueFile, AMalformedFileIsRefusedNamingItsFirstProblem) {
  const std::string file = "/tmp/zunde-catalogue-malformed.json";
  ASSERT_EQ(RunService("--lineup-size 3 --write-default-catalogue " + file).first, 0);
  std::ifstream in(file);
  Json::Value good;
  Json::Reader().parse(in, good);
  const std::pair<std::function<void(Json::Value&)>, std::string> rows[] = {
      {[](Json::Value& d) { d["lineups"][0]["channels"][2].removeMember("str_channel_name"); }, "lineups[0].channels[2]: missing \"str_channel_name\""},
      {[](Json::Value& d) { d["broadcast"][1]["genre"] = 7; }, "broadcast[1].genre: must be a string"},
      {[](Json::Value& d) { d["schedules"][0]["minutes"][0] = 0; }, "schedules[0].minutes: must be 1 to 1440"},
      {[](Json::Value& d) { d["lineups"][1]["activityID"] = 7; }, "lineups[1].activityID: must be 0 to 4"},
      {[](Json::Value& d) { d["virtual channels"][0]["TCServiceId"] = "12x"; }, "virtual channels[0].TCServiceId: must be a decimal service id"},
      {[](Json::Value& d) { d = Json::Value("[1,"); }, "the top level: must be an object"},
  };
  for (const auto& [spoil, problem] : rows) {
    Json::Value doc = good;
    spoil(doc);
    std::ofstream(file) << Json::StyledWriter().write(doc);
    EXPECT_EQ(RunService("--data-dir /tmp/zunde-catalogue-malformed --catalogue " + file),
              std::make_pair(1, "zunde-service: catalogue " + file + ": " + problem + "\n"));
  }
  std::ofstream(file) << "{\"broadcast\": [";
  const std::string notJson = "zunde-service: catalogue " + file + ": not JSON: * Line 1";
  EXPECT_EQ(RunService("--data-dir /tmp/zunde-catalogue-malformed --catalogue " + file).second.substr(0, notJson.size()), notJson);
  std::system("rm -rf /tmp/zunde-catalogue-malformed*");
}

// Name, major and program source id of each channel of activity 0.
std::string Lineup() {
  std::vector<FCRemoteChannel> channels;
  std::string text = mso.GetFullChannelList(A0, channels) ? "" : "refused";
  for (const FCRemoteChannel& c : channels) text += c.str_channel_name + " " + c.str_major + " " + c.str_program_source_id + ";";
  return text;
}

// The reload happens on the service's own time: wait for its answer to change.
std::string LineupOnceChangedFrom(const std::string& before) {
  std::string now = Lineup();
  for (int i = 0; i < 20 && now == before; ++i) {
    usleep(100 * 1000);
    now = Lineup();
  }
  return now;
}

TEST_F(CatalogueService, SighupReloadsTheFileKeepingTheStoredState) {
  const std::string file = dir_ + ".json";
  const auto write = [&](const std::string& text) { std::ofstream(file) << text; };
  write(R"({"lineups": [{"activityID": 0, "channels": [{"str_channel_name": "One", "str_major": "2"}]}]})");
  Restart({"--catalogue", file});
  ASSERT_EQ(Lineup(), "One 2 2-0;");
  ASSERT_TRUE(env.SetRemoteContentEnv("DE", "de"));

  const std::pair<std::string, std::string> reloads[] = {
      {R"({"lineups": [{"activityID": 0, "channels": [{"str_channel_name": "Two", "str_major": "5"},
           {"str_channel_name": "Three", "str_major": "6", "str_minor": "1", "str_program_source_id": "S3"}]}]})",
       "Two 5 5-0;Three 6 S3;"},
      {R"({"lineups": [{"activityID": 0, "channels": [{"str_major": "7"}]}]})", "Two 5 5-0;Three 6 S3;"},
      {"{", "Two 5 5-0;Three 6 S3;"},
  };
  for (const auto& [text, expected] : reloads) {
    const std::string before = Lineup();
    write(text);
    RunningService::Signal(SIGHUP);
    EXPECT_EQ(LineupOnceChangedFrom(before), expected) << text;
  }
  std::string country, language;
  EXPECT_TRUE(env.GetRemoteContentEnv(country, language));
  EXPECT_EQ(country + language, "DEde");
  std::remove(file.c_str());
}

}  // namespace
