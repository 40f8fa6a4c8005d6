#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "log_capture.h"
#include "mbr_samples.h"

namespace {

using namespace mbrsamples;
using zunde::testing::LogCapture;
using zunde::testing::LogRecord;

FCMBRNetworkChannelTable Table(const std::vector<FCMBRNetworkChannel>& channels) {
  FCMBRNetworkChannelTable table;
  for (const auto& channel : channels) table.AppendNetworkChannel(channel);
  return table;
}

std::string Names(const FCMBRNetworkChannelTable& table) {
  std::string names;
  for (const auto& channel : table.GetNetworkChannelList()) names += channel.GetName() + " ";
  return names;
}

TEST(MBRNetworkChannelTable, SortOrdersByKeysKeepingTiesAndMergeAppends) {
  FCMBRNetworkChannelTable table = Table({Channel(5, 2, 9, "5.2#9"), Channel(5, 1, 3, "first"), Channel(3, 8, 1, "3.8#1"),
                                          Channel(5, 1, 3, "second"), Channel(5, 1, 4, "5.1#4"), Channel(-1, 9, 9, "-1")});
  table.Sort();
  EXPECT_EQ(Names(table), "-1 3.8#1 first second 5.1#4 5.2#9 ");
  EXPECT_TRUE(table.Merge(Table({Channel(5, 1, 3, "first")})) && table.Merge(FCMBRNetworkChannelTable()));
  EXPECT_EQ(Names(table), "-1 3.8#1 first second 5.1#4 5.2#9 first ");
}

TEST(MBRNetworkChannelTable, LookUpsCopyTheFirstMatchOrLeaveTheOutputAlone) {
  FCMBRNetworkChannel edited = Channel(12, 1, 40, "edited");
  edited.SetOriginMajor(7);
  const FCMBRNetworkChannelTable table = Table({Channel(7, 1, 41, "seven"), edited, Channel(7, 1, 42, "later")});
  FCMBRNetworkChannel out;
  EXPECT_TRUE(table.FindNetworkChannelbyMajorMinor(7, 1, out) && out.GetName() == "seven");
  EXPECT_TRUE(table.FindNetworkChannelbyChannelID(42, out) && out.GetName() == "later");
  EXPECT_TRUE(table.FindNetworkChannelByChannelIDOriginMajor(40, 7, out) && out.GetName() == "edited");
  out = Channel(99, 99, 99, "sentinel");
  EXPECT_FALSE(Table({edited}).FindNetworkChannelbyMajorMinor(7, 1, out));  // the origin major is not the shown one
  EXPECT_FALSE(table.FindNetworkChannelbyChannelID(43, out) || table.FindNetworkChannelByChannelIDOriginMajor(40, 12, out));
  EXPECT_EQ(JsonOf(out), JsonOf(Channel(99, 99, 99, "sentinel")));
}

TEST(MBRNetworkChannelTable, MaxTakesEachMaximumSeparatelyFromZero) {
  // The channels' majors and minors, and the answer as "result major minor".
  const std::pair<std::vector<std::pair<int, int>>, const char*> cases[] = {
      {{{7, 1}, {3, 9}}, "1 7 9"}, {{{-1, 4}, {-1, 2}}, "1 0 4"}, {{{-1, -5}, {-3, -1}}, "1 0 0"}, {{}, "0 0 0"}};
  for (const auto& [channels, expected] : cases) {
    FCMBRNetworkChannelTable table;
    for (const auto& [major, minor] : channels) table.AppendNetworkChannel(Channel(major, minor, 1));
    int maxMajor = -7, maxMinor = -7;
    const bool result = table.GetMaxNumberOfMajorMinor(maxMajor, maxMinor);
    EXPECT_EQ(std::to_string(result) + " " + std::to_string(maxMajor) + " " + std::to_string(maxMinor), expected);
  }
  LogRecord record;
  ASSERT_TRUE(LogCapture::Find("MBRNetworkChannelTable: GetMaxNumberOfMajorMinor(100) > [16][2]FCMBRNetworkChannelDB::"
                               "GetMaxNumberOfMajorMinor(), m_mbrNetworkChannelDB is empty!\n", &record));
  EXPECT_EQ(std::make_tuple(record.logId, record.priority, record.tag), std::make_tuple(0, 5, std::string("zunde-provider")));
}

TEST(MBRNetworkProgramTable, FindsTheFirstProgrammeRunningAtATime) {
  const FCMBRNetworkProgram news = Program("news", 100, 50), wrap = Program("wrap", 0xFFFFFFF0UL, 0x20);
  const struct {
    std::vector<FCMBRNetworkProgram> programs;
    unsigned long time;
    const char* found;  // "" when none
  } cases[] = {{{news}, 100, "news"}, {{news}, 149, "news"}, {{news}, 150, ""}, {{news}, 99, ""},
               {{Program("empty", 100, 0)}, 100, ""},
               {{Program("late", 150, 10), Program("long", 100, 100)}, 155, "long"},  // the earlier start wins
               // The end wraps at 32 bits: past the top, and not over to the start of the range.
               {{wrap}, 0xFFFFFFF5UL, ""}, {{wrap}, 5, ""}, {{Program("all", 0, -1)}, 0xFFFFFFFEUL, "all"},
               {{news}, static_cast<unsigned long>(0x100000064ULL), "news"}};  // the time keeps 32 bits
  for (const auto& c : cases) {
    FCMBRNetworkProgramTable table;
    for (auto program : c.programs) table.AppendNetworkProgram(program);
    FCMBRNetworkProgram out = Program("", 1, 1);
    EXPECT_EQ(table.FindNetworkProgrambyStartTime(c.time, out), *c.found != '\0') << c.time;
    EXPECT_EQ(out.GetProgramID(), c.found) << c.time;
  }
}

// Appending and merging keep the programme already at a start time; reading a table replaces it,
// and stores each element under its "first".
TEST(MBRNetworkProgramTable, AppendAndMergeKeepWhatIsThereReadingReplacesIt) {
  FCMBRNetworkProgramTable table, other;
  FCMBRNetworkProgram first = Program("first", 100), second = Program("second", 100);
  FCMBRNetworkProgram third = Program("third", 100), earlier = Program("earlier", 50);
  EXPECT_TRUE(table.AppendNetworkProgram(first) && table.AppendNetworkProgram(second));
  other.AppendNetworkProgram(third);
  other.AppendNetworkProgram(earlier);
  EXPECT_TRUE(table.Merge(other));
  Json::Value root = Parsed(R"({"mbrProgramTable": [{"first": 300, "m_programID": "one", "m_startTime": 250},
      {"first": 300, "m_programID": "two", "m_startTime": 250}, {"first": 50, "m_programID": "new", "m_startTime": 50}]})");
  FCMarshal::JsonToMBRProgramTable(root, table);
  std::string read;
  for (const auto& [start, program] : table.GetNetworkProgramMap()) {
    read += std::to_string(start) + ":" + program.GetProgramID() + "@" + std::to_string(program.GetStartTime()) + " ";
  }
  EXPECT_EQ(read, "50:new@50 100:first@100 300:two@250 ");
}

}  // namespace
