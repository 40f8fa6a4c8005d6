#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "MBRNetworkChannelTable.h"
#include "log_capture.h"

namespace {

using zunde::testing::LogCapture;

FCMBRNetworkChannel Channel(int major, int minor, int channelId, std::string name = "") {
  FCMBRNetworkChannel channel;
  channel.SetMajor(major);
  channel.SetMinor(minor);
  channel.SetChannelID(channelId);
  channel.SetName(name);
  return channel;
}

FCMBRNetworkChannelTable Table(const std::vector<FCMBRNetworkChannel>& channels) {
  FCMBRNetworkChannelTable table;
  for (const auto& channel : channels) table.AppendNetworkChannel(channel);
  return table;
}

// (major, minor, channel id, name) of each channel, in list order.
std::vector<std::tuple<int, int, int, std::string>> Keys(const FCMBRNetworkChannelTable& table) {
  std::vector<std::tuple<int, int, int, std::string>> keys;
  for (const auto& c : table.GetNetworkChannelList())
    keys.emplace_back(c.GetMajor(), c.GetMinor(), c.GetChannelID(), c.GetName());
  return keys;
}

TEST(MBRNetworkChannelTable, SortOrdersByKeysAndKeepsTiesInListOrder) {
  FCMBRNetworkChannelTable table = Table({Channel(5, 2, 9), Channel(5, 1, 3, "first"), Channel(3, 8, 1),
                                          Channel(5, 1, 3, "second"), Channel(5, 1, 3, "third"), Channel(-1, 9, 9)});
  table.Sort();
  using K = std::tuple<int, int, int, std::string>;
  EXPECT_EQ(Keys(table), (std::vector<K>{K{-1, 9, 9, ""}, K{3, 8, 1, ""}, K{5, 1, 3, "first"}, K{5, 1, 3, "second"},
                                         K{5, 1, 3, "third"}, K{5, 2, 9, ""}}));
}

TEST(MBRNetworkChannelTable, MergeAppendsWithoutDeduplicating) {
  FCMBRNetworkChannelTable table = Table({Channel(1, 0, 1)});
  EXPECT_TRUE(table.Merge(Table({Channel(2, 0, 2), Channel(1, 0, 1)})));
  EXPECT_TRUE(table.Merge(FCMBRNetworkChannelTable()));
  EXPECT_TRUE(table.Merge(table));
  using K = std::tuple<int, int, int, std::string>;
  const K one{1, 0, 1, ""}, two{2, 0, 2, ""};
  EXPECT_EQ(Keys(table), (std::vector<K>{one, two, one, one, two, one}));
}

TEST(MBRNetworkChannelTable, LookUpsCopyTheFirstMatch) {
  FCMBRNetworkChannel edited = Channel(12, 1, 40, "edited");
  edited.SetOriginMajor(7);
  const FCMBRNetworkChannelTable table =
      Table({Channel(7, 1, 41, "shown seven"), edited, Channel(7, 1, 42, "later seven")});

  FCMBRNetworkChannel out;
  ASSERT_TRUE(table.FindNetworkChannelbyMajorMinor(7, 1, out));
  EXPECT_EQ(out.GetName(), "shown seven");
  ASSERT_TRUE(table.FindNetworkChannelbyMajorMinor(12, 1, out));
  EXPECT_EQ(out.GetChannelID(), 40);
  ASSERT_TRUE(table.FindNetworkChannelbyChannelID(42, out));
  EXPECT_EQ(out.GetName(), "later seven");
  ASSERT_TRUE(table.FindNetworkChannelByChannelIDOriginMajor(40, 7, out));
  EXPECT_EQ(out.GetName(), "edited");
}

TEST(MBRNetworkChannelTable, FailedLookUpsLeaveTheOutputAlone) {
  FCMBRNetworkChannel edited = Channel(12, 1, 40, "edited");
  edited.SetOriginMajor(7);
  const FCMBRNetworkChannelTable table = Table({edited});
  const FCMBRNetworkChannel sentinel = Channel(99, 99, 99, "sentinel");

  FCMBRNetworkChannel out = sentinel;
  EXPECT_FALSE(table.FindNetworkChannelbyMajorMinor(7, 1, out));  // the origin major is not the shown one
  EXPECT_FALSE(table.FindNetworkChannelbyChannelID(41, out));
  EXPECT_FALSE(table.FindNetworkChannelByChannelIDOriginMajor(40, 12, out));
  EXPECT_EQ(out, sentinel);
}

struct MaxCase {
  const char* name;
  std::vector<std::pair<int, int>> majorMinor;
  int maxMajor;
  int maxMinor;
};

class MBRNetworkChannelTableMax : public ::testing::TestWithParam<MaxCase> {};

TEST_P(MBRNetworkChannelTableMax, TakesEachMaximumSeparatelyFromZero) {
  FCMBRNetworkChannelTable table;
  for (const auto& [major, minor] : GetParam().majorMinor) table.AppendNetworkChannel(Channel(major, minor, 1));
  int maxMajor = -7, maxMinor = -7;
  EXPECT_TRUE(table.GetMaxNumberOfMajorMinor(maxMajor, maxMinor));
  EXPECT_EQ(maxMajor, GetParam().maxMajor);
  EXPECT_EQ(maxMinor, GetParam().maxMinor);
}

INSTANTIATE_TEST_SUITE_P(Cases, MBRNetworkChannelTableMax,
                         ::testing::Values(MaxCase{"Separate", {{7, 1}, {3, 9}}, 7, 9},
                                           MaxCase{"NoMajors", {{-1, 4}, {-1, 2}}, 0, 4},
                                           MaxCase{"AllNegative", {{-1, -5}, {-3, -1}}, 0, 0}),
                         [](const ::testing::TestParamInfo<MaxCase>& info) { return std::string(info.param.name); });

TEST(MBRNetworkChannelTable, MaxOfEmptyTableWarnsAndAnswersZero) {
  LogCapture::Clear();
  int maxMajor = 99, maxMinor = 99;
  EXPECT_FALSE(FCMBRNetworkChannelTable().GetMaxNumberOfMajorMinor(maxMajor, maxMinor));
  EXPECT_EQ(maxMajor, 0);
  EXPECT_EQ(maxMinor, 0);

  const auto records = LogCapture::Records();
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].logId, 0);
  EXPECT_EQ(records[0].priority, 5);
  EXPECT_EQ(records[0].tag, "zunde-provider");
  EXPECT_EQ(records[0].text,
            "MBRNetworkChannelTable: GetMaxNumberOfMajorMinor(100) > [16][2]FCMBRNetworkChannelDB::"
            "GetMaxNumberOfMajorMinor(), m_mbrNetworkChannelDB is empty!\n");
}

FCMBRNetworkProgram Program(const std::string& id, unsigned long start, int duration) {
  FCMBRNetworkProgram program;
  std::string programId = id;
  program.SetProgramID(programId);
  program.SetStartTime(start);
  program.SetDuration(duration);
  return program;
}

struct TimeCase {
  const char* name;
  std::vector<FCMBRNetworkProgram> programs;
  unsigned long time;
  const char* found;  // null when none
};

class MBRNetworkProgramTableTime : public ::testing::TestWithParam<TimeCase> {};

TEST_P(MBRNetworkProgramTableTime, FindsTheFirstRunningProgramme) {
  FCMBRNetworkProgramTable table;
  for (auto program : GetParam().programs) table.AppendNetworkProgram(program);
  FCMBRNetworkProgram out = Program("untouched", 1, 1);
  const bool found = table.FindNetworkProgrambyStartTime(GetParam().time, out);
  EXPECT_EQ(found, GetParam().found != nullptr);
  EXPECT_EQ(out.GetProgramID(), found ? GetParam().found : "untouched");
}

const FCMBRNetworkProgram kNews = Program("news", 100, 50);
const unsigned long kTop = 0xFFFFFFF0UL;

INSTANTIATE_TEST_SUITE_P(
    Cases, MBRNetworkProgramTableTime,
    ::testing::Values(TimeCase{"AtStart", {kNews}, 100, "news"}, TimeCase{"LastSecond", {kNews}, 149, "news"},
                      TimeCase{"AtEnd", {kNews}, 150, nullptr}, TimeCase{"BeforeStart", {kNews}, 99, nullptr},
                      TimeCase{"ZeroDuration", {Program("empty", 100, 0)}, 100, nullptr},
                      TimeCase{"EarlierStartWins", {Program("late", 150, 10), Program("long", 100, 100)}, 155, "long"},
                      TimeCase{"EndWrapsPastTop", {Program("wrap", kTop, 0x20)}, kTop + 5, nullptr},
                      TimeCase{"WrappedEndIsNoStart", {Program("wrap", kTop, 0x20)}, 5, nullptr},
                      TimeCase{"UnknownDurationFromZero", {Program("all", 0, -1)}, 0xFFFFFFFEUL, "all"},
                      TimeCase{"TimeKeepsThirtyTwoBits",
                               {kNews},
                               static_cast<unsigned long>(0x100000064ULL),
                               "news"}),
    [](const ::testing::TestParamInfo<TimeCase>& info) { return std::string(info.param.name); });

TEST(MBRNetworkProgramTable, AppendAndMergeKeepTheProgrammeAlreadyThere) {
  FCMBRNetworkProgramTable table;
  FCMBRNetworkProgram first = Program("first", 100, 10), second = Program("second", 100, 10);
  EXPECT_TRUE(table.AppendNetworkProgram(first));
  EXPECT_TRUE(table.AppendNetworkProgram(second));

  FCMBRNetworkProgramTable other;
  FCMBRNetworkProgram third = Program("third", 100, 10), later = Program("later", 50, 10);
  other.AppendNetworkProgram(third);
  other.AppendNetworkProgram(later);
  EXPECT_TRUE(table.Merge(other));

  const auto& map = table.GetNetworkProgramMap();
  ASSERT_EQ(map.size(), 2U);
  EXPECT_EQ(map.at(100).GetProgramID(), "first");
  EXPECT_EQ(map.begin()->second.GetProgramID(), "later");
}

}  // namespace
