// zunde-service driven through the library's proxies on the test bus.
#include <dbus/dbus.h>
#include <glib.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

#include "BrisvelDefine.h"
#include "FCEMSProxy.h"
#include "FCIPCNames_internal.h"
#include "FCRemoteContentOnTV_Proxy.h"
#include "MBRNetworkChannelManager_Proxy.h"
#include "running_service.h"

namespace {

using zunde::testing::RunningService;
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

// The answer text of a request sent as it stands by another caller: a
// connection of its own, as another application would have.
std::string Raw(const char* member, const std::string& request) {
  static DBusConnection* other = dbus_bus_get_private(DBUS_BUS_SYSTEM, nullptr);
  DBusMessage* call = dbus_message_new_method_call(zunde::bus::kCallListener, zunde::bus::kCallObjectPath,
                                                   zunde::bus::kCallListener, zunde::bus::kCallMember);
  const char* data = request.data();
  const dbus_int32_t length = static_cast<dbus_int32_t>(request.size());
  dbus_message_append_args(call, DBUS_TYPE_STRING, &member, DBUS_TYPE_INT32, &length, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE,
                           &data, length, DBUS_TYPE_INVALID);
  DBusMessage* reply = dbus_connection_send_with_reply_and_block(other, call, 10000, nullptr);
  dbus_message_unref(call);
  if (reply == nullptr) return "no answer";
  dbus_int32_t status = 0;
  const char* bytes = nullptr;
  int count = 0;
  dbus_message_get_args(reply, nullptr, DBUS_TYPE_INT32, &status, DBUS_TYPE_INT32, &length, DBUS_TYPE_ARRAY,
                        DBUS_TYPE_BYTE, &bytes, &count, DBUS_TYPE_INVALID);
  std::string text(bytes, static_cast<size_t>(count));
  dbus_message_unref(reply);
  return text;
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
  // Runs `sql` on the store file; the first column of its rows, each after a space.
  std::string Sql(const char* sql) {
    sqlite3* db = nullptr;
    sqlite3_open((dataDir_ + "/zunde-service.db").c_str(), &db);
    std::string rows;
    sqlite3_exec(db, sql, [](void* out, int, char** values, char**) {
      *static_cast<std::string*>(out) += std::string(" ") + values[0];
      return 0;
    }, &rows, nullptr);
    sqlite3_close(db);
    return rows;
  }
  void Restart(const std::vector<std::string>& options) {
    EXPECT_EQ(RunningService::Stop(), 0);
    RunningService::Start(dataDir_, 3000, options);
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
  EXPECT_EQ(Raw("ToggleZundeTimeoutTest", R"({"ret": false})"), R"({"ret":true})");
  EXPECT_EQ(Raw("GetPersonalUserID", ""), R"({"in_user_id":"","ret":true})");
  EXPECT_FALSE(slowDone);
  slow.join();
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(1400));
}

// --- bounded tables, and a store that cannot be written ---

const std::string kTrue = R"({"ret":true})";
std::string Refused(const std::string& error) { return R"({"error":")" + error + R"(","ret":false})"; }
std::string Kpi(const std::string& name) { return Raw("SendLogKPI", R"({"KPIType": 1, "EventName": ")" + name + "\"}"); }
std::string Env() {
  std::string country, language;
  return std::to_string(env.GetRemoteContentEnv(country, language)) + country + language;
}

TEST_F(Service, GrowingTablesKeepTheirNewestRowsOrRefuseMore) {
  Restart({"--kpi-log-limit", "2", "--program-map-limit", "2", "--channel-map-limit", "2"});
  for (const char* name : {"a", "b", "c"}) EXPECT_EQ(Kpi(name), kTrue);
  EXPECT_EQ(Sql("SELECT json_extract(value, '$.EventName') FROM log ORDER BY id"), " b c");
  for (std::string id : {"1", "2", "1", "3"}) EXPECT_EQ(Raw("SetMBRNetworkProgramMap", R"({"channelID": ")" + id + "\"}"), kTrue);
  EXPECT_EQ(Sql("SELECT key FROM document WHERE key LIKE 'programs/%' ORDER BY key"), " programs/1 programs/3");
  for (std::string major : {"1", "2", "3"}) {
    EXPECT_EQ(Raw("AddNewMBRNetworkChannel", R"({"activityID": 0, "m_minor": 0, "m_major": )" + major + "}"),
              major == "3" ? Refused("a channel map holds at most 2 channels") : kTrue);
  }
}

TEST_F(Service, AnOlderStoreKeepsItsUsageLog) {
  EXPECT_EQ(RunningService::Stop(), 0);
  std::remove((dataDir_ + "/zunde-service.db").c_str());
  Sql("CREATE TABLE document (key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL); PRAGMA user_version=1;"
      "INSERT INTO document VALUES ('vc/kpi', '[{\"EventName\": \"x\"}, {\"EventName\": \"y\"}]')");
  RunningService::Start(dataDir_);
  EXPECT_EQ(Sql("SELECT json_extract(value, '$.EventName') FROM log ORDER BY id"), " x y");
}

TEST_F(Service, AnOlderStoreKeepsItsSetTopBoxesAndTheirMaps) {
  EXPECT_EQ(RunningService::Stop(), 0);
  std::remove((dataDir_ + "/zunde-service.db").c_str());
  Sql("CREATE TABLE document (key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL);"
      "CREATE TABLE log (id INTEGER PRIMARY KEY, name TEXT NOT NULL, value TEXT NOT NULL); PRAGMA user_version=2;"
      "INSERT INTO document VALUES ('activity/0', '{\"source\": 7, \"zip code\": \"12345\","
      " \"MBR channel table\": [{\"m_major\": 2, \"m_minor\": 1}]}')");
  RunningService::Start(dataDir_);
  EXPECT_EQ(Map(Query(0)), "1 2-1");
  EXPECT_EQ(Str([](std::string& s) { return mbr.GetZipCode(A0, s); }), "1 12345");
}

// A store on a read-only medium: its file opened read-only.
TEST_F(Service, AReadOnlyStoreAnswersReadsAndRefusesChanges) {
  ASSERT_TRUE(env.SetRemoteContentEnv("FR", "fr"));
  Restart({"--read-only"});
  EXPECT_EQ(Kpi("a"), Refused("storage failed: attempt to write a readonly database"));
  EXPECT_FALSE(env.SetRemoteContentEnv("DE", "de"));
  EXPECT_EQ(Env(), "1FRfr");
}

// A full disk: the store may not grow beyond its pages.
TEST_F(Service, AFullStoreRefusesTheWholeChangeAndKeepsServing) {
  Restart({"--max-store-pages", "8"});
  EXPECT_EQ(Kpi(std::string(100000, 'x')), Refused("storage failed: database or disk is full"));
  EXPECT_EQ(Sql("SELECT count(*) FROM log"), " 0");
  EXPECT_TRUE(env.SetRemoteContentEnv("FR", "fr"));
  EXPECT_EQ(Env(), "1FRfr");
}

}  // namespace
