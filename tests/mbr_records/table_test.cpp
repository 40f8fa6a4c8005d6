#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "MBRNetworkChannelTable.h"
#include "log_capture.h"
#include "mbr_samples.h"

namespace {

using zunde::testing::LogCapture;

using mbrsamples::Channel;
using mbrsamples::Program;

FCMBRNetworkChannelTable Table(const std::vector<FCMBRNetworkChannel>& channels) {
  FCMBRNetworkChannelTable table;
  for (const auto& channel : channels) table.AppendNetworkChannel(channel);
  return table;
}

// The names of the channels, in list order.
std::vector<std::string> Names(const FCMBRNetworkChannelTable& table) {
  std::vector<std::string> names;
  for (const auto& channel : table.GetNetworkChannelList()) names.push_back(channel.GetName());
  return names;
}

TEST(MBRNetworkChannelTable, SortOrdersByKeysAndKeepsTiesInListOrder) {
  FCMBRNetworkChannelTable table = Table(
      {Channel(5, 2, 9, "5.2#9"), Channel(5, 1, 3, "first"), Channel(3, 8, 1, "3.8#1"), Channel(5, 1, 3, "second"),
       Channel(5, 1, 4, "5.1#4"), Channel(5, 1, 3, "third"), Channel(-1, 9, 9, "-1.9#9")});
  table.Sort();
  EXPECT_EQ(Names(table), (std::vector<std::string>{"-1.9#9", "3.8#1", "first", "second", "third", "5.1#4", "5.2#9"}));
}

TEST(MBRNetworkChannelTable, MergeAppendsWithoutDeduplicating) {
  FCMBRNetworkChannelTable table = Table({Channel(1, 0, 1, "one")});
  EXPECT_TRUE(table.Merge(Table({Channel(2, 0, 2, "two"), Channel(1, 0, 1, "one")})));
  EXPECT_TRUE(table.Merge(FCMBRNetworkChannelTable()));
  EXPECT_TRUE(table.Merge(table));
  EXPECT_EQ(Names(table), (std::vector<std::string>{"one", "two", "one", "one", "two", "one"}));
}

TEST(MBRNetworkChannelTable, LookUpsCopyTheFirstMatchOrLeaveTheOutputAlone) {
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

  const FCMBRNetworkChannel sentinel = Channel(99, 99, 99, "sentinel");
  out = sentinel;
  EXPECT_FALSE(Table({edited}).FindNetworkChannelbyMajorMinor(7, 1, out));  // the origin major is not the shown one
  EXPECT_FALSE(table.FindNetworkChannelbyChannelID(43, out));
  EXPECT_FALSE(table.FindNetworkChannelByChannelIDOriginMajor(40, 12, out));
  EXPECT_EQ(out, sentinel);
}

TEST(MBRNetworkChannelTable, MaxTakesEachMaximumSeparatelyFromZero) {
  const struct {
    std::vector<std::pair<int, int>> majorMinor;
    int maxMajor, maxMinor;
  } cases[] = {{{{7, 1}, {3, 9}}, 7, 9}, {{{-1, 4}, {-1, 2}}, 0, 4}, {{{-1, -5}, {-3, -1}}, 0, 0}};
  for (const auto& c : cases) {
    FCMBRNetworkChannelTable table;
    for (const auto& [major, minor] : c.majorMinor) table.AppendNetworkChannel(Channel(major, minor, 1));
    int maxMajor = -7, maxMinor = -7;
    EXPECT_TRUE(table.GetMaxNumberOfMajorMinor(maxMajor, maxMinor));
    EXPECT_EQ(std::make_pair(maxMajor, maxMinor), std::make_pair(c.maxMajor, c.maxMinor));
  }
}

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

TEST(MBRNetworkProgramTable, FindsTheFirstProgrammeRunningAtATime) {
  const FCMBRNetworkProgram news = Program("news", 100, 50);
  const unsigned long top = 0xFFFFFFF0UL;
  const struct {
    std::vector<FCMBRNetworkProgram> programs;
    unsigned long time;
    const char* found;  // null when none
  } cases[] = {{{news}, 100, "news"},
               {{news}, 149, "news"},
               {{news}, 150, nullptr},
               {{news}, 99, nullptr},
               {{Program("empty", 100, 0)}, 100, nullptr},
               {{Program("late", 150, 10), Program("long", 100, 100)}, 155, "long"},  // the earlier start wins
               // The end wraps at 32 bits: past the top, and not over to the start of the range.
               {{Program("wrap", top, 0x20)}, top + 5, nullptr},
               {{Program("wrap", top, 0x20)}, 5, nullptr},
               {{Program("all", 0, -1)}, 0xFFFFFFFEUL, "all"},
               {{news}, static_cast<unsigned long>(0x100000064ULL), "news"}};  // the time keeps 32 bits
  for (const auto& c : cases) {
    FCMBRNetworkProgramTable table;
    for (auto program : c.programs) table.AppendNetworkProgram(program);
    FCMBRNetworkProgram out = Program("untouched", 1, 1);
    const bool found = table.FindNetworkProgrambyStartTime(c.time, out);
    EXPECT_EQ(found, c.found != nullptr) << c.time;
    EXPECT_EQ(out.GetProgramID(), found ? c.found : "untouched");
  }
}

TEST(MBRNetworkProgramTable, AppendAndMergeKeepTheProgrammeAlreadyThere) {
  FCMBRNetworkProgramTable table, other;
  FCMBRNetworkProgram first = Program("first", 100), second = Program("second", 100);
  FCMBRNetworkProgram third = Program("third", 100), earlier = Program("earlier", 50);
  EXPECT_TRUE(table.AppendNetworkProgram(first));
  EXPECT_TRUE(table.AppendNetworkProgram(second));
  other.AppendNetworkProgram(third);
  other.AppendNetworkProgram(earlier);
  EXPECT_TRUE(table.Merge(other));

  const auto& map = table.GetNetworkProgramMap();
  ASSERT_EQ(map.size(), 2U);
  EXPECT_EQ(map.at(100).GetProgramID(), "first");
  EXPECT_EQ(map.begin()->second.GetProgramID(), "earlier");
}

}  // namespace
