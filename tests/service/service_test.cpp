// zunde-service driven through the library's proxies on the test bus.
#include <glib.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

#include "BrisvelDefine.h"
#include "FCEMSProxy.h"
#include "FCRemoteContentOnTV_Proxy.h"
#include "MBRNetworkChannelManager_Proxy.h"
#include "running_service.h"

namespace {

using zunde::testing::RunningService;
using zunde::testing::Raw;
using Clock = std::chrono::steady_clock;
using Activity = FCMBRNetworkChannelAPI::EActivityID;
using Query = FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery;

FCRemoteContentOnTV_Proxy env;
FCMBRNetworkChannelManager_Proxy mbr;
const auto A0 = static_cast<Activity>(0);

FCMBRNetworkChannel Ch(int major, int minor, int id, int rank = 0, int originMajor = -1) {
  FCMBRNetworkChannel c;
  c.SetMajor(major);
  c.SetMinor(minor);
  c.SetChannelID(id);
  c.SetacRank(rank);
  c.SetOriginMajor(originMajor < 0 ? major : originMajor);
  return c;
}

std::string Text(const FCMBRNetworkChannel& c) { return " " + std::to_string(c.GetMajor()) + "-" + std::to_string(c.GetMinor()); }

std::string Map(Query query) {
  FCMBRNetworkChannelTable table;
  std::string text = std::to_string(mbr.GetMBRNetworkChannelMap(A0, table, query));
  for (const auto& c : table.GetNetworkChannelList()) text += Text(c);
  return text;
}

std::string Titles(FCMBRNetworkProgramTable& table, bool result) {
  std::string text = std::to_string(result);
  for (const auto& entry : table.GetNetworkProgramMap()) text += " " + entry.second.GetTitle();
  return text;
}

// The result, then the outputs as they are after the call.
template <typename Render>
std::string After(bool result, Render render) {
  return std::to_string(result) + render();
}

template <typename Get>
std::string Str(Get get) {
  std::string out;
  const bool result = get(out);
  return std::to_string(result) + " " + out;
}

class Service : public ::testing::Test {
 protected:
  void SetUp() override {
    char dir[] = "/tmp/zunde-service-test-XXXXXX";
    dataDir_ = mkdtemp(dir);
    RunningService::Start(dataDir_, 1500);
  }
  void TearDown() override {
    EXPECT_EQ(RunningService::Stop(), 0);
    std::system(("rm -rf " + dataDir_).c_str());
  }
  std::string dataDir_;
};

struct Step {
  const char* name;
  std::function<std::string()> call;
  std::string expected;
};

TEST_F(Service, EveryMemberAnswersFromTheStateTheOthersLeave) {
  const Step steps[] = {
      {"SetRemoteContentEnv", [] { return std::to_string(env.SetRemoteContentEnv("DE", "de")); }, "1"},
      {"GetRemoteContentEnv", [] { std::string c, l; return After(env.GetRemoteContentEnv(c, l), [&] { return c + l; }); }, "1DEde"},
      {"SetRecommendTypeOption", [] { return std::to_string(env.SetRecommendTypeOption(eRecommendTypeOption(2))); }, "1"},
      {"GetRecommendTypeOption", [] { eRecommendTypeOption o; return After(env.GetRecommendTypeOption(o), [&] { return std::to_string(o); }); }, "12"},
      {"SetPersonalUserID", [] { return std::to_string(env.SetPersonalUserID("u1")); }, "1"},
      {"GetPersonalUserID", [] { return Str([](std::string& s) { return env.GetPersonalUserID(s); }); }, "1 u1"},
      {"SetAToken", [] { return std::to_string(env.SetAToken("token")); }, "1"},
      {"ToggleZundeTimeoutTest", [] { return std::to_string(env.ToggleZundeTimeoutTest(false)); }, "1"},
      {"AllocateActivityIDBySourceID", [] { Activity a; return After(mbr.AllocateActivityIDBySourceID(7, a), [&] { return std::to_string(a); }); }, "10"},
      {"ActivityOfBoundSource", [] { eRemoteContentActivity a; return After(env.GetRemoteContentActivityByTVSourceAndTVMode(7, 0, 0, a), [&] { return std::to_string(a); }); }, "10"},
      {"ActivityOfTunerSource", [] { eRemoteContentActivity a; return After(env.GetRemoteContentActivityByTVSourceAndTVMode(8, 0, 0, a), [&] { return std::to_string(a); }); }, "15"},
      {"SetActivityIDSourceID", [] { return std::to_string(mbr.SetActivityIDSourceID(Activity(1), ESource(8))); }, "1"},
      {"SourceTakenElsewhere", [] { return std::to_string(mbr.SetActivityIDSourceID(Activity(2), ESource(8))); }, "0"},
      {"GetActivityIDBySourceID", [] { Activity a; return After(mbr.GetActivityIDBySourceID(8, a), [&] { return std::to_string(a); }); }, "11"},
      {"DeleteActivityID", [] { return std::to_string(mbr.DeleteActivityID(Activity(1))); }, "1"},
      {"DeletedActivityHasNoSource", [] { Activity a; return After(mbr.GetActivityIDBySourceID(8, a), [&] { return std::to_string(a); }); }, "0-1"},
      {"SetZipCode", [] { std::string z = "12345"; return std::to_string(mbr.SetZipCode(A0, z)); }, "1"},
      {"GetZipCode", [] { return Str([](std::string& s) { return mbr.GetZipCode(A0, s); }); }, "1 12345"},
      {"SetHeadEndID", [] { std::string h = "HE1"; return std::to_string(mbr.SetHeadEndID(A0, h)); }, "1"},
      {"GetHeadEndID", [] { return Str([](std::string& s) { return mbr.GetHeadEndID(A0, s); }); }, "1 HE1"},
      {"SetDeviceType", [] { std::string d = "cable"; return std::to_string(mbr.SetDeviceType(A0, d)); }, "1"},
      {"GetDeviceType", [] { return Str([](std::string& s) { return mbr.GetDeviceType(A0, s); }); }, "1 cable"},
      {"SetLocation", [] { std::string l = "hall"; return std::to_string(mbr.SetLocation(A0, l)); }, "1"},
      {"GetLocation", [] { return Str([](std::string& s) { return mbr.GetLocation(A0, s); }); }, "1 hall"},
      {"SetMBRNetworkChannelMap", [] { FCMBRNetworkChannelTable t; for (auto c : {Ch(7, 0, 70), Ch(2, 0, 20), Ch(5, 1, 51, 1)}) t.AppendNetworkChannel(c); return std::to_string(mbr.SetMBRNetworkChannelMap(A0, t)); }, "1"},
      {"GetMBRNetworkChannelMap", [] { return Map(Query(0)); }, "1 2-0 5-1 7-0"},
      {"ConstructMBRNetworkChannelMap", [] { return std::to_string(mbr.ConstructMBRNetworkChannelMap(A0)); }, "1"},
      {"ConstructMBRNetworkProgramMap", [] { return std::to_string(mbr.ConstructMBRNetworkProgramMap(A0)); }, "1"},
      {"SaveMBRNetworkChannelMap", [] { return std::to_string(mbr.SaveMBRNetworkChannelMap(A0)); }, "1"},
      {"GetMBRNetworkChannelUpWraps", [] { FCMBRNetworkChannel c = Ch(7, 0, 70), o; return After(mbr.GetMBRNetworkChannelUp(A0, c, o), [&] { return Text(o); }); }, "1 2-0"},
      {"GetMBRNetworkChannelDown", [] { FCMBRNetworkChannel c = Ch(7, 0, 70), o; return After(mbr.GetMBRNetworkChannelDown(A0, c, o), [&] { return Text(o); }); }, "1 5-1"},
      {"GetMBRNetworkChannelByMajorMinor", [] { FCMBRNetworkChannel o; return After(mbr.GetMBRNetworkChannelByMajorMinor(A0, 5, 1, o), [&] { return std::to_string(o.GetChannelID()); }); }, "151"},
      {"ExistMBRNetworkChannelByMajorMinor", [] { return After(mbr.ExistMBRNetworkChannelByMajorMinor(A0, 5, 1), [&] { return std::to_string(mbr.ExistMBRNetworkChannelByMajorMinor(A0, 9, 9)); }); }, "10"},
      {"AddNewMBRNetworkChannel", [] { FCMBRNetworkChannel c = Ch(9, 0, 90); return std::to_string(mbr.AddNewMBRNetworkChannel(A0, c)); }, "1"},
      {"GetMaxNumberOfMajorMinor", [] { int a, b; return After(mbr.GetMaxNumberOfMajorMinor(A0, a, b), [&] { return std::to_string(a) + std::to_string(b); }); }, "191"},
      {"AddFavoriteMBRNetworkChannel", [] { FCMBRNetworkChannel c = Ch(5, 1, 51); return std::to_string(mbr.AddFavoriteMBRNetworkChannel(A0, FCMBRNetworkChannel::eFavorite2, c)); }, "1"},
      {"FavoritesQuery", [] { return Map(Query(2)); }, "1 5-1"},
      {"DeleteFavoriteMBRNetworkChannel", [] { FCMBRNetworkChannel c = Ch(5, 1, 51); return std::to_string(mbr.DeleteFavoriteMBRNetworkChannel(A0, FCMBRNetworkChannel::eFavorite2, c)); }, "1"},
      {"ExistChannelInActivityID", [] { return After(mbr.ExistChannelInActivityID(A0, Query(2)), [&] { return std::to_string(mbr.ExistChannelInActivityID(A0, Query(0))); }); }, "01"},
      {"SetRememberMBRNetworkChannel", [] { FCMBRNetworkChannel c = Ch(7, 0, 70); return std::to_string(mbr.SetRememberMBRNetworkChannel(A0, c, true)); }, "1"},
      {"RememberedQuery", [] { return Map(Query(1)); }, "1 7-0"},
      {"SetEditedMBRNetworkChannel", [] { FCMBRNetworkChannel c = Ch(10, 0, 90, 0, 9); return std::to_string(mbr.SetEditedMBRNetworkChannel(A0, c)); }, "1"},
      {"NotifyMBRChannelEditCompleted", [] { return std::to_string(mbr.NotifyMBRChannelEditCompleted(A0)); }, "1"},
      {"GetMBRNetworkChannelByChannelIDOriginMajor", [] { FCMBRNetworkChannel o; return After(mbr.GetMBRNetworkChannelByChannelIDOriginMajor(A0, "90", "9", o), [&] { return Text(o); }); }, "1 10-0"},
      {"RemoveMBRNetworkChannel", [] { FCMBRNetworkChannel c = Ch(10, 0, 90); return After(mbr.RemoveMBRNetworkChannel(A0, c), [&] { return Map(Query(0)); }); }, "11 2-0 5-1 7-0"},
      {"GetFeaturedMBRChannels", [] { FCMBRNetworkChannelTable t; bool r = mbr.GetFeaturedMBRChannels(A0, t); return After(r, [&] { return Text(t.GetNetworkChannelList().front()); }); }, "1 5-1"},
      {"SetMBRNetworkProgramMap", [] { FCMBRNetworkProgram p; std::string title = "News"; p.SetTitle(title); p.SetStartTime(1000); p.SetDuration(100); FCMBRNetworkProgramTable t; t.AppendNetworkProgram(p); return std::to_string(mbr.SetMBRNetworkProgramMap(t, "51")); }, "1"},
      {"GetMBRNetworkProgrmaMap", [] { FCMBRNetworkProgramTable t; bool r = mbr.GetMBRNetworkProgrmaMap(t, "51"); return Titles(t, r); }, "1 News"},
      {"GetCurrentMBRNetworkProgrambyCurrentTime", [] { FCMBRNetworkChannel c = Ch(5, 1, 51); FCMBRNetworkProgram p; bool r = mbr.GetCurrentMBRNetworkProgrambyCurrentTime(A0, 1050, c, p); return After(r, [&] { return p.GetTitle(); }); }, "1News"},
      {"GetCurrentMBRNetworkProgramNothingNow", [] { FCMBRNetworkChannel c = Ch(5, 1, 51); FCMBRNetworkProgram p; return std::to_string(mbr.GetCurrentMBRNetworkProgram(A0, c, p)); }, "0"},
      {"ClearMBRProgramMap", [] { mbr.ClearMBRProgramMap(); FCMBRNetworkProgramTable t; bool r = mbr.GetMBRNetworkProgrmaMap(t, "51"); return Titles(t, r); }, "1"},
      {"FCRemoteContent_Reset", [] { std::string c, l; return After(env.Reset(), [&] { return std::to_string(env.GetRemoteContentEnv(c, l)) + c + l; }); }, "11USen"},
      {"EnvironmentResetKeepsSetTopBoxes", [] { return Str([](std::string& s) { return mbr.GetZipCode(A0, s); }); }, "1 12345"},
      {"Reset", [] { return After(FCAPI::Reset(), [&] { return Map(Query(0)); }); }, "11"},
  };
  for (const Step& step : steps) EXPECT_EQ(step.call(), step.expected) << step.name;
}

TEST_F(Service, StateOutlivesARestart) {
  ASSERT_TRUE(env.SetRemoteContentEnv("FR", "fr"));
  EXPECT_EQ(RunningService::Stop(), 0);
  RunningService::Start(dataDir_);
  std::string country, language;
  EXPECT_TRUE(env.GetRemoteContentEnv(country, language));
  EXPECT_EQ(country + language, "FRfr");
}

TEST_F(Service, KillDuringABurstLosesNoAcknowledgedWrite) {
  std::thread killer([] { std::this_thread::sleep_for(std::chrono::milliseconds(300)); RunningService::Kill(); });
  int acknowledged = 0;
  for (FCMBRNetworkChannel c = Ch(1, 0, 1); acknowledged < 100000 && mbr.AddNewMBRNetworkChannel(A0, c); c = Ch(1, ++acknowledged, 1)) {
  }
  killer.join();
  RunningService::Start(dataDir_);
  int major = 0, minor = -1;
  mbr.GetMaxNumberOfMajorMinor(A0, major, minor);
  EXPECT_GT(acknowledged, 0);
  EXPECT_GE(minor + 1, acknowledged);
}

TEST_F(Service, BadInputIsRefusedWithAnErrorAndTheServiceKeepsServing) {
  const char* const rows[][3] = {
      {"NoSuchMember", "{}", R"({"error":"unknown member \"NoSuchMember\"","ret":false})"},
      {"SetRemoteContentEnv", "not json", R"({"error":"the request is not a JSON object","ret":false})"},
      {"SetRemoteContentEnv", R"({"country": "XX"})", R"({"error":"missing key \"language\"","ret":false})"},
      {"SetRecommendTypeOption", R"({"in_recommend_type": "2"})", R"({"error":"\"in_recommend_type\" must be an integer","ret":false})"},
      {"ConstructMBRNetworkChannelMap", R"({"activityID": 9})", R"({"error":"activity 9 is not 0 to 4","ret":false})"},
      {"AddFavoriteMBRNetworkChannel", R"({"activityID": 0, "favorite": 5, "m_major": 1, "m_minor": 0})", R"({"error":"favourite list 5 is not 0 to 4","ret":false})"},
  };
  for (const auto& row : rows) {
    Json::Value answer;
    Json::Reader().parse(Raw(row[0], row[1]), answer);
    EXPECT_EQ(Json::FastWriter().write(answer), std::string(row[2]) + "\n");
  }
  std::string country, language;
  EXPECT_TRUE(env.GetRemoteContentEnv(country, language));
  EXPECT_EQ(country + language, "USen");
}

std::string received;
int Record(int event, FSEventData data) {
  received = std::to_string(event) + ":" + std::to_string(data.param1) + "," + std::to_string(data.param2) + "," + std::to_string(data.param3);
  return 0;
}

TEST_F(Service, AChangeSendsItsEvent) {
  FCEMSProxy* ems = FCEMSProxy::GetInstance(FIIPCConnection::GetInstance(), Record);
  ASSERT_EQ(ems->SubscribeSignal(2), 0);
  ASSERT_TRUE(env.SetPersonalUserID("u2"));
  for (const auto end = Clock::now() + std::chrono::seconds(5); received.empty() && Clock::now() < end;) g_main_context_iteration(nullptr, FALSE);
  EXPECT_EQ(received, "2:3,-1,-1");
  EXPECT_EQ(ems->UnsubscribeSignal(2), 0);
}

TEST_F(Service, ASlowAnswerDoesNotHoldUpAnotherCaller) {
  ASSERT_TRUE(env.ToggleZundeTimeoutTest(true));
  std::atomic<bool> slowDone{false};
  const auto start = Clock::now();
  std::thread slow([&] { std::string user; EXPECT_TRUE(env.GetPersonalUserID(user)); slowDone = true; });
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_EQ(Raw("ToggleZundeTimeoutTest", R"({"ret": false})"), "{\n   \"ret\" : true\n}\n");
  EXPECT_EQ(Raw("GetPersonalUserID", ""), "{\n   \"in_user_id\" : \"\",\n   \"ret\" : true\n}\n");
  EXPECT_FALSE(slowDone);
  slow.join();
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(1400));
}

}  // namespace
