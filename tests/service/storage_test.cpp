// The service's bounded tables, and its answers from a store it cannot write.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>

#include "FCRemoteContentOnTV_Proxy.h"
#include "MBRNetworkChannelManager_Proxy.h"
#include "running_service.h"

namespace {

using zunde::testing::Raw;
using zunde::testing::RunningService;

FCRemoteContentOnTV_Proxy env;
FCMBRNetworkChannelManager_Proxy mbr;
const auto A0 = static_cast<FCMBRNetworkChannelAPI::EActivityID>(0);

bool Kpi(const std::string& name) {
  return Raw("SendLogKPI", R"({"KPIType": 1, "EventName": ")" + name + "\"}") == "{\n   \"ret\" : true\n}\n";
}

bool Programs(const char* channelId) {
  FCMBRNetworkProgram program;
  FCMBRNetworkProgramTable table;
  table.AppendNetworkProgram(program);
  return mbr.SetMBRNetworkProgramMap(table, channelId);
}

bool AddChannel(int major) {
  FCMBRNetworkChannel channel;
  channel.SetMajor(major);
  return mbr.AddNewMBRNetworkChannel(A0, channel);
}

std::string Env() {
  std::string country, language;
  return std::to_string(env.GetRemoteContentEnv(country, language)) + country + language;
}

class Storage : public ::testing::Test {
 protected:
  void SetUp() override {
    char dir[] = "/tmp/zunde-storage-test-XXXXXX";
    dataDir_ = mkdtemp(dir);
  }
  void TearDown() override {
    EXPECT_EQ(RunningService::Stop(), 0);
    std::system(("rm -rf " + dataDir_).c_str());
  }
  // The first column of the rows `sql` yields from the store, space-separated.
  std::string Query(const char* sql) {
    sqlite3* db = nullptr;
    sqlite3_open_v2((dataDir_ + "/zunde-service.db").c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    std::string rows;
    sqlite3_exec(db, sql, [](void* out, int, char** values, char**) {
      *static_cast<std::string*>(out) += std::string(" ") + (values[0] ? values[0] : "null");
      return 0;
    }, &rows, nullptr);
    sqlite3_close(db);
    return rows;
  }
  std::string dataDir_;
};

TEST_F(Storage, GrowingTablesKeepTheirNewestRowsOrRefuseMore) {
  RunningService::Start(dataDir_, 3000, {"--kpi-log-limit", "2", "--program-map-limit", "2", "--channel-map-limit", "2"});
  EXPECT_TRUE(Kpi("a") && Kpi("b") && Kpi("c"));
  EXPECT_EQ(Query("SELECT json_extract(value, '$.EventName') FROM log ORDER BY id"), " b c");
  EXPECT_TRUE(Programs("1") && Programs("2") && Programs("1") && Programs("3"));
  EXPECT_EQ(Query("SELECT key FROM document WHERE key LIKE 'programs/%' ORDER BY key"), " programs/1 programs/3");
  EXPECT_TRUE(AddChannel(1) && AddChannel(2));
  EXPECT_FALSE(AddChannel(3));
}

TEST_F(Storage, AnOlderStoreKeepsItsUsageLog) {
  sqlite3* db = nullptr;
  sqlite3_open((dataDir_ + "/zunde-service.db").c_str(), &db);
  sqlite3_exec(db, "CREATE TABLE document (key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL);"
               "INSERT INTO document VALUES ('vc/kpi', '[{\"EventName\":\"x\"},{\"EventName\":\"y\"}]');"
               "PRAGMA user_version=1", nullptr, nullptr, nullptr);
  sqlite3_close(db);
  RunningService::Start(dataDir_);
  EXPECT_EQ(Query("SELECT json_extract(value, '$.EventName') FROM log ORDER BY id"), " x y");
}

// A store on a read-only medium: its file opened read-only.
TEST_F(Storage, AReadOnlyStoreAnswersReadsAndRefusesChanges) {
  RunningService::Start(dataDir_);
  ASSERT_TRUE(env.SetRemoteContentEnv("FR", "fr"));
  EXPECT_EQ(RunningService::Stop(), 0);
  RunningService::Start(dataDir_, 3000, {"--read-only"});
  EXPECT_EQ(Raw("SetRemoteContentEnv", R"({"country": "DE", "language": "de"})"),
            "{\n   \"error\" : \"storage failed: attempt to write a readonly database\",\n   \"ret\" : false\n}\n");
  EXPECT_FALSE(Kpi("a"));
  EXPECT_EQ(Env(), "1FRfr");
}

// A full disk: the store may not grow beyond its pages.
TEST_F(Storage, AFullStoreRefusesTheWholeChangeAndKeepsServing) {
  RunningService::Start(dataDir_, 3000, {"--max-store-pages", "8"});
  EXPECT_EQ(Raw("SendLogKPI", R"({"KPIType": 1, "desc": ")" + std::string(100000, 'x') + "\"}"),
            "{\n   \"error\" : \"storage failed: database or disk is full\",\n   \"ret\" : false\n}\n");
  EXPECT_EQ(Query("SELECT count(*) FROM log"), " 0");
  EXPECT_TRUE(env.SetRemoteContentEnv("FR", "fr"));
  EXPECT_EQ(Env(), "1FRfr");
}

}  // namespace
