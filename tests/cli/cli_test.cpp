// The real zunde-cli against the real zunde-service on the test bus.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "json_text.h"
#include "running_service.h"

namespace {

using zunde::testing::Compact;
using zunde::testing::Parsed;
using zunde::testing::RunningService;

struct Ran {
  int status = -1;
  std::string out, err;
};

std::string ReadAll(FILE* stream) {
  std::string text;
  char chunk[4096];
  for (size_t n; (n = std::fread(chunk, 1, sizeof chunk, stream)) > 0;) text.append(chunk, n);
  return text;
}

// The service's data, one folder per test process.
std::string DataDir() { return ::testing::TempDir() + "zunde-cli-data-" + std::to_string(getpid()); }

Ran RunShell(const std::string& command) {
  // One file per test process: ctest runs the tests of this suite in parallel.
  const std::string errFile = ::testing::TempDir() + "zunde-cli-stderr-" + std::to_string(getpid());
  FILE* child = popen((command + " 2>" + errFile).c_str(), "r");
  Ran ran;
  ran.out = ReadAll(child);
  const int status = pclose(child);
  ran.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  std::ifstream err(errFile);
  ran.err.assign(std::istreambuf_iterator<char>(err), {});
  return ran;
}

Ran RunCli(const std::string& args) { return RunShell(ZUNDE_CLI_PATH " " + args); }

// `line` run by bash, with zunde-cli on the PATH.
Ran RunExample(const std::string& line) {
  const std::string script = ::testing::TempDir() + "zunde-cli-example-" + std::to_string(getpid());
  std::ofstream(script) << "PATH=" << std::filesystem::path(ZUNDE_CLI_PATH).parent_path().string() << ":$PATH\n"
                        << line << " </dev/null\n";
  return RunShell("bash " + script);
}

class Cli : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { RunningService::Start(DataDir()); }
  static void TearDownTestSuite() {
    RunningService::Stop();
    std::filesystem::remove_all(DataDir());
  }
};

struct StatusCase {
  const char* args;
  int status;
};

TEST_F(Cli, ExitStatusTellsSuccessRefusalAndUsage) {
  const StatusCase cases[] = {
      {"env set DE de", 0},       {"stb allocate 3", 0},     {"call GetRemoteContentEnv", 0},
      {"stb get-zip 9", 1},       {"call NoSuchMember", 1},  {"stb get-zip x", 2},
      {"env set DE", 2},          {"no-such-command", 2},    {"monitor --count 0", 2},
      {"guide --from 25:00", 2},  {"stb add 0 '{not json'", 2},
  };
  for (const StatusCase& row : cases) EXPECT_EQ(RunCli(row.args).status, row.status) << row.args;
}

TEST_F(Cli, UsageErrorNamesTheBadArgumentOnOneLine) {
  const Ran ran = RunCli("stb set-zip x 10001");
  EXPECT_EQ(ran.err, "zunde-cli: ACTIVITY: 'x' is not a whole number (int: -2147483648 to 2147483647) (see zunde-cli --help)\n");
}

TEST_F(Cli, JsonOutputIsOneDocumentPerResult) {
  ASSERT_EQ(RunCli("--json env set FR fr").out, "{}\n");
  EXPECT_EQ(RunCli("--json env get").out, "{\"country\":\"FR\",\"language\":\"fr\"}\n");
  RunCli("stb set-channels 0 '{\"MBR channel table\": [{\"m_major\": 7, \"m_name\": \"News\"}, {\"m_major\": 9}]}'");
  const Json::Value table = Parsed(RunCli("--json stb channels 0 0").out)["MBR channel table"];
  ASSERT_EQ(table.size(), 2u);
  EXPECT_EQ(table[0]["m_name"].asString(), "News");
}

TEST_F(Cli, RepeatReportsWhatACallCosts) {
  const Ran ran = RunCli("--repeat 5 env get");
  EXPECT_EQ(ran.status, 0);
  EXPECT_EQ(ran.err.rfind("5 calls: min ", 0), 0u) << ran.err;
}

TEST_F(Cli, MonitorPrintsAnEventAsItArrives) {
  FILE* monitor = popen(ZUNDE_CLI_PATH " --json monitor --count 1 --timeout 20 2>&1", "r");
  char line[256] = {};
  ASSERT_TRUE(std::fgets(line, sizeof line, monitor));  // subscribed
  EXPECT_EQ(RunCli("stb set-zip 0 10001").status, 0);
  EXPECT_EQ(ReadAll(monitor), "{\"event\":11,\"name\":\"SetTopBoxSetting\",\"param1\":0,\"param2\":1,\"param3\":-1}\n");
  EXPECT_EQ(WEXITSTATUS(pclose(monitor)), 0);
}

TEST_F(Cli, AbsentServiceIsStatusThreeWithHowToStartIt) {
  RunningService::Stop();
  const Ran ran = RunCli("env get");
  RunningService::Start(DataDir());
  EXPECT_EQ(ran.status, 3);
  EXPECT_NE(ran.err.find("zunde-service is not reachable on the bus: "), std::string::npos) << ran.err;
  EXPECT_NE(ran.err.find("start it with `zunde-service --data-dir DIR`"), std::string::npos);
}

// Over a hundred programs in turn: ctest runs it as an entry of its own
// (cli.EveryHelpExampleSucceeds), with a longer time limit.
TEST_F(Cli, DISABLED_EveryHelpExampleSucceedsInTheOrderTheHelpGivesThem) {
  std::istringstream examples(RunCli("--examples").out);
  int count = 0;
  for (std::string line; std::getline(examples, line); ++count) {
    const Ran ran = RunExample(line);
    EXPECT_EQ(ran.status, 0) << line << "\n" << ran.err;
  }
  EXPECT_GT(count, 100);
}

TEST_F(Cli, HostileCommandLinesAreUsageErrorsNamingTheArgument) {
  const struct {
    const char* args;
    const char* named;
  } cases[] = {
      {"rf present 99999999999999999999999", "SERVICE_ID"},
      {"stb get-zip 2147483648 ", "ACTIVITY"},
      {"virtual programs 1 now -5", "DURATION"},
      {"catalogue program 0 10001 6090469264", "TIME"},
      {"catalogue program 0 10001 now+99999d", "TIME"},
      {"catalogue program 0 10001 24:00", "TIME"},
      {"stb add 0 '{\"m_major\": 7,'", "CHANNEL"},
      {"stb add 0 '[7]'", "CHANNEL"},
      {"stb add 0 '{\"m_major\": \"7\"}'", "CHANNEL"},
      {"stb add 0 '{\"m_major\": 1e12}'", "CHANNEL"},
      {"stb add 0 '{\"m_mojor\": 7}'", "CHANNEL"},
      {"stb add 0 @/no/such/file", "CHANNEL"},
      {"catalogue set-config 0 '{\"config\": {\"nope\": 1}}'", "CONFIG"},
      {"stb find 0 7", "MINOR"},
      {"emit 1 2 3 4 5", "PARAMS"},
      {"emit NoSuchEvent", "EVENT"},
  };
  for (const auto& row : cases) {
    const Ran ran = RunCli(row.args);
    EXPECT_EQ(ran.status, 2) << row.args;
    EXPECT_EQ(std::count(ran.err.begin(), ran.err.end(), '\n'), 1) << ran.err;
    EXPECT_NE(ran.err.find(row.named), std::string::npos) << row.args << ": " << ran.err;
  }
}

TEST_F(Cli, FailureSaysWhyOnOneLine) {
  const struct {
    const char* args;
    int status;
    const char* err;
  } cases[] = {
      {"guide --activity 2", 1, "zunde-cli: guide (GetFullChannelList): the service said no: activity 2 has no operator line-up\n"},
      {"stb channels 5 0", 1, "zunde-cli: stb channels (GetMBRNetworkChannelMap): refused by the library: the activity is not 0 to 4\n"},
      {"stb set-info 0 x", 1, "zunde-cli: stb set-info (SetAdditionalInfo): refused by the library: the library answers this method itself, without the service\n"},
      {"stb exists 0 99 1", 1, ""},
  };
  for (const auto& row : cases) {
    const Ran ran = RunCli(row.args);
    EXPECT_EQ(ran.status, row.status) << row.args;
    EXPECT_EQ(ran.err, row.err) << row.args;
  }
}

TEST_F(Cli, EmittedEventReachesASubscriber) {
  FILE* monitor = popen(ZUNDE_CLI_PATH " --json monitor --count 1 --timeout 20 2>&1", "r");
  char line[512] = {};
  ASSERT_TRUE(std::fgets(line, sizeof line, monitor));  // subscribed
  EXPECT_EQ(RunCli("emit FavoriteChanged 0 1").out, "sent event 13 FavoriteChanged\n");
  EXPECT_EQ(ReadAll(monitor), "{\"event\":13,\"name\":\"FavoriteChanged\",\"param1\":0,\"param2\":1,\"param3\":-1}\n");
  EXPECT_EQ(WEXITSTATUS(pclose(monitor)), 0);
}

TEST_F(Cli, GuideShowsTheDefaultLineUp) {
  const Ran channels = RunCli("--json catalogue channels 0");
  if (channels.status == 1) GTEST_SKIP() << "the service does not serve the operator catalogue";
  const Json::Value lineUp = Parsed(channels.out)["channel_array"];
  ASSERT_FALSE(lineUp.empty());
  const Ran grid = RunCli("guide --hours 1");
  EXPECT_EQ(grid.status, 0) << grid.err;
  EXPECT_EQ(grid.out.find('\033'), std::string::npos) << "colour on a pipe";
  for (const Json::Value& channel : lineUp)
    EXPECT_NE(grid.out.find(channel["str_channel_name"].asString().substr(0, 10)), std::string::npos);
  const Json::Value guide = Parsed(RunCli("--json guide --hours 1").out);
  EXPECT_EQ(guide["channels"].size(), lineUp.size());
}

}  // namespace

namespace {

const char kXmltvDtd[] = "/usr/share/sgml/xmltv/dtd/0.5/xmltv.dtd";  // Debian's libxmltv-perl

// The guide written as XMLTV is valid, and the service reading it back
// writes it out again the same: names, numbers, times, titles, genres and
// programme ids all survive.
TEST_F(Cli, ExportedXmltvIsValidAndReadsBackUnchanged) {
  const std::string from = std::to_string(time(nullptr) / 3600 * 3600);
  const std::string file = DataDir() + "-guide.xml";
  const Ran first = RunCli("catalogue export-xmltv --from " + from + " --hours 3");
  ASSERT_EQ(first.status, 0) << first.err;
  std::ofstream(file) << first.out;
  EXPECT_EQ(std::system(("xmllint --noout --dtdvalid " + std::string(kXmltvDtd) + " " + file + " 2>/dev/null").c_str()), 0);
  EXPECT_NE(first.out.find("<programme start="), std::string::npos);
  RunningService::Stop();
  RunningService::Start(DataDir() + "-xmltv", 3000, {"--xmltv", file});
  EXPECT_EQ(RunCli("catalogue export-xmltv --from " + from + " --hours 3").out, first.out);
  RunningService::Stop();
  std::filesystem::remove_all(DataDir() + "-xmltv");
  std::filesystem::remove(file);
  RunningService::Start(DataDir());
}

}  // namespace
