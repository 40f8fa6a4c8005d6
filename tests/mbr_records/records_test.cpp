// The set-top-box channel and programme records, their tables, and their
// JSON forms, compared as compact text (key names and number forms at once).
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "FCMarshal.h"
#include "MBRNetworkChannelTable.h"
#include "json_text.h"
#include "log_capture.h"

namespace {

using zunde::testing::Compact;
using zunde::testing::LogCapture;
using zunde::testing::LogRecord;
using zunde::testing::Parsed;

FCMBRNetworkChannel Channel(int major, int minor, int channelId, std::string name = "") {
  FCMBRNetworkChannel channel;
  channel.SetMajor(major);
  channel.SetMinor(minor);
  channel.SetChannelID(channelId);
  channel.SetName(name);
  return channel;
}

// Every field away from its default; the box reported 7 "Movies", the user made it 17 "Movies+".
FCMBRNetworkChannel EditedChannel() {
  FCMBRNetworkChannel channel = Channel(17, 1, 70, "Movies+");
  std::string originName = "Movies", icon = "http://icon/7", index = "7a";
  channel.SetOriginMajor(7);
  channel.SetOriginName(originName);
  channel.SetIconUrl(icon);
  channel.SetUrlIndex(index);
  channel.SetActivityID(2);
  channel.SetacRank(3);
  channel.SetRemembered(true);
  channel.SetDigitalFlag(false);
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite0, true);
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite2, true);
  return channel;
}

FCMBRNetworkProgram Program(std::string id, unsigned long start, int duration = 1800) {
  FCMBRNetworkProgram program;
  program.SetProgramID(id);
  program.SetStartTime(start);
  program.SetDuration(duration);
  return program;
}

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

FCMBRNetworkChannel ReadChannel(Json::Value root) {
  FCMBRNetworkChannel channel;
  FCMarshal::JsonToMBRNetworkChannel(root, channel);
  return channel;
}

// The root that the writers fill: a request's scalar key, a channel's keys flat beside it, both tables.
std::string Write(FCMBRNetworkChannel channel, FCMBRNetworkChannelTable channels, FCMBRNetworkProgramTable programs) {
  Json::Value root;
  root["activityID"] = 2;
  FCMarshal::MBRNetworkChannelToJson(channel, root);
  FCMarshal::MBRNetworkChannelTableToJson(channels, root);
  FCMarshal::MBRProgramTableToJson(programs, root);
  return Compact(root);
}

const std::string kDefaultChannelJson =
    R"({"bit set":"00000","m_acRank":0,"m_activityID":6,"m_bDigital":true,"m_channelID":-1,"m_major":-1,)"
    R"("m_minor":0,"m_name":"","m_originMajor":-1,"m_originName":"","m_remembered":false,)"
    R"("m_str_icon_url":"","m_str_url_index":""})";
const std::string kEditedChannelJson =
    R"({"bit set":"00101","m_acRank":3,"m_activityID":2,"m_bDigital":false,"m_channelID":70,"m_major":17,)"
    R"("m_minor":1,"m_name":"Movies+","m_originMajor":7,"m_originName":"Movies","m_remembered":true,)"
    R"("m_str_icon_url":"http://icon/7","m_str_url_index":"7a"})";
const std::string kDocumentJson =
    R"({"MBR channel table":[)" + kEditedChannelJson + "," + kDefaultChannelJson + R"(],"activityID":2,)" +
    kEditedChannelJson.substr(1, kEditedChannelJson.size() - 2) +
    R"(,"mbrProgramTable":[{"first":100,"m_channelID":-1,"m_duration":1800,"m_programID":"early","m_startTime":100,)"
    R"("m_title":""},{"first":4294967295,"m_channelID":-1,"m_duration":-1,"m_programID":"","m_startTime":4294967295,)"
    R"("m_title":""}]})" "\n";

TEST(MBRJsonForm, WritesEveryKeyAndReadsItBack) {
  FCMBRNetworkProgramTable programs, readPrograms;
  FCMBRNetworkProgram fresh, early = Program("early", 100);
  programs.AppendNetworkProgram(fresh);
  programs.AppendNetworkProgram(early);
  EXPECT_EQ(Write(EditedChannel(), Table({EditedChannel(), FCMBRNetworkChannel()}), programs), kDocumentJson);
  EXPECT_EQ(Write(FCMBRNetworkChannel(), FCMBRNetworkChannelTable(), FCMBRNetworkProgramTable()),
            R"({"activityID":2,)" + kDefaultChannelJson.substr(1) + "\n") << "defaults; empty tables write no member";

  // Reading appends to the tables; a document without a table's member leaves it as it was.
  FCMBRNetworkChannelTable readChannels;
  for (const char* text : {kDocumentJson.c_str(), R"({"ret": true})"}) {
    Json::Value root = Parsed(text);
    EXPECT_TRUE(FCMarshal::JsonToMBRNetworkChannelTable(root, readChannels));
    EXPECT_TRUE(FCMarshal::JsonToMBRProgramTable(root, readPrograms));
  }
  Json::Value root = Parsed(kDocumentJson);
  EXPECT_EQ(Write(ReadChannel(root), readChannels, readPrograms), kDocumentJson);
  FCMarshal::JsonToMBRNetworkChannelTable(root, readChannels);
  EXPECT_EQ(readChannels.GetNetworkChannelList().size(), 4U);
}

TEST(MBRJsonForm, ReadsTheStandardBitSetText) {
  // The favourites as the bit set writes them: the last character is list 0, and at most five count.
  const std::pair<const char*, const char*> cases[] = {
      {"01001", "01001"}, {"1", "00001"}, {"1111111", "11111"}, {"10000x", "10000"}, {"", "00000"}};
  for (const auto& [text, favorites] : cases) {
    EXPECT_EQ(ReadChannel(Parsed(R"({"bit set":")" + std::string(text) + "\"}")).GetFavoriteBitSet().to_string(),
              favorites);
  }
  EXPECT_THROW(ReadChannel(Parsed(R"({"bit set": "0120"})")), std::invalid_argument);
}

TEST(MBRNetworkChannelDeathTest, FavoritesAreFiveSingleBits) {
  FCMBRNetworkChannel channel;
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite3, true);
  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite0, true));
  EXPECT_EQ(channel.GetFavoriteBitSet().to_string(), "01001");
  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite3, false));
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite4, true);
  EXPECT_EQ(channel.GetFavoriteBitSet().to_string(), "10001");
  EXPECT_TRUE(channel.GetFavorite(FCMBRNetworkChannel::eFavorite4));
  EXPECT_FALSE(channel.GetFavorite(FCMBRNetworkChannel::eFavorite3));
  EXPECT_DEATH(channel.SetFavorite(static_cast<FCMBRNetworkChannel::EFavorite>(5), true), "");
  EXPECT_DEATH(channel.GetFavorite(static_cast<FCMBRNetworkChannel::EFavorite>(5)), "");
}

TEST(MBRNetworkChannel, RestoreUndoesMajorAndNameOnly) {
  FCMBRNetworkChannel channel = EditedChannel();
  channel.SetMinor(9);
  EXPECT_TRUE(channel.Restore());
  Json::Value expected = Parsed(kEditedChannelJson);
  expected["m_major"] = 7;
  expected["m_name"] = "Movies";
  expected["m_minor"] = 9;
  EXPECT_EQ(Write(channel, {}, {}), Write(ReadChannel(expected), {}, {}));
}

TEST(MBRNetworkChannel, EqualitySeesOnlyTheIdentityFields) {
  // One key of the JSON form changed, and whether the channel still equals the original.
  const std::tuple<const char*, Json::Value, bool> cases[] = {
      {"m_acRank", 9, true},      {"m_remembered", false, true}, {"m_activityID", 4, true},
      {"m_str_icon_url", "u", true}, {"m_str_url_index", "i", true}, {"m_major", 6, false},
      {"m_originMajor", 6, false}, {"m_minor", 2, false},         {"m_name", "Movies-", false},
      {"m_originName", "M", false}, {"m_channelID", 71, false},    {"bit set", "00111", false},
      {"m_bDigital", true, false}};
  for (const auto& [key, value, equal] : cases) {
    Json::Value root = Parsed(kEditedChannelJson);
    root[key] = value;
    EXPECT_EQ(EditedChannel() == ReadChannel(root), equal) << key;
  }
}

TEST(MBRNetworkChannel, ConvertEndianSwapsUnitsAndTerminates) {
  // The source, the length, and the bytes written (the last two the terminator) before the filler '.'.
  const std::tuple<std::string, int, std::string> cases[] = {
      {{"A\0B\0C\0", 6}, 3, {"\0A\0B\0\0.", 7}},  // an odd length takes the whole unit
      {{"A\0\0\0B\0", 6}, 6, {"\0A\0\0.", 5}},    // a zero unit ends it
      {{"\0AB\0", 4}, 4, {"A\0\0B\0\0.", 7}},      // a zero high byte does not
      {"AB", 0, {"\0\0.", 3}},
      {"AB", -4, {"\0\0.", 3}}};
  FCMBRNetworkChannel channel;
  for (auto [src, length, written] : cases) {
    std::string dst(8, '.');
    src.resize(8, 'x');
    EXPECT_EQ(channel.m_ConvertEndian(reinterpret_cast<unsigned char*>(dst.data()),
                                      reinterpret_cast<unsigned char*>(src.data()), length),
              static_cast<int>(written.size()) - 3);
    EXPECT_EQ(dst.substr(0, written.size()), written) << length;
  }
  unsigned char bytes[] = "..";
  EXPECT_EQ(channel.m_ConvertEndian(nullptr, bytes, 2) + channel.m_ConvertEndian(bytes, nullptr, 2), 2);
  EXPECT_STREQ(reinterpret_cast<char*>(bytes), "..") << "without either buffer nothing is written";
}

TEST(MBRNetworkProgram, IdentityIsTheProgramIdAlone) {
  FCMBRNetworkProgram other = Program("p1", 900, 60);
  other.SetChannelID(3);
  EXPECT_EQ(Program("p1", 100), other);
  EXPECT_FALSE(Program("p1", 100) == Program("p2", 100) || Program("p1", 100) < Program("p1", 900));
  EXPECT_TRUE(Program("ab", 900) < Program("abc", 100) && Program("Z", 0) < Program("a", 0));
}

TEST(MBRNetworkChannelTable, SortOrdersByKeysKeepingTiesAndMergeAppends) {
  FCMBRNetworkChannelTable table = Table({Channel(5, 2, 9, "5.2#9"), Channel(5, 1, 3, "first"),
                                          Channel(3, 8, 1, "3.8#1"), Channel(5, 1, 3, "second"),
                                          Channel(5, 1, 4, "5.1#4"), Channel(-1, 9, 9, "-1")});
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
  EXPECT_FALSE(Table({edited}).FindNetworkChannelbyMajorMinor(7, 1, out));  // the origin major is not the shown one
  EXPECT_FALSE(table.FindNetworkChannelbyChannelID(43, out));
  EXPECT_FALSE(table.FindNetworkChannelByChannelIDOriginMajor(40, 12, out));
  EXPECT_EQ(out.GetName(), "edited") << "no match leaves the output alone";
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
  EXPECT_EQ(std::tie(record.logId, record.priority, record.tag), std::make_tuple(0, 5, "zunde-provider"));
}

TEST(MBRNetworkProgramTable, FindsTheFirstProgrammeRunningAtATime) {
  const FCMBRNetworkProgram news = Program("news", 100, 50), wrap = Program("wrap", 0xFFFFFFF0UL, 0x20);
  const std::tuple<std::vector<FCMBRNetworkProgram>, unsigned long, const char*> cases[] = {
      {{news}, 100, "news"}, {{news}, 149, "news"}, {{news}, 150, ""}, {{news}, 99, ""},
      {{Program("empty", 100, 0)}, 100, ""},
      {{Program("late", 150, 10), Program("long", 100, 100)}, 155, "long"},  // the earlier start wins
      // The end wraps at 32 bits: past the top, and not over to the start of the range.
      {{wrap}, 0xFFFFFFF5UL, ""}, {{wrap}, 5, ""}, {{Program("all", 0, -1)}, 0xFFFFFFFEUL, "all"},
      {{news}, static_cast<unsigned long>(0x100000064ULL), "news"}};  // the time keeps 32 bits
  for (const auto& [programs, time, found] : cases) {
    FCMBRNetworkProgramTable table;
    for (auto program : programs) table.AppendNetworkProgram(program);
    FCMBRNetworkProgram out = Program("", 1, 1);
    EXPECT_EQ(table.FindNetworkProgrambyStartTime(time, out), *found != '\0') << time;
    EXPECT_EQ(out.GetProgramID(), found) << time;
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
      {"first": 300, "m_programID": "two", "m_startTime": 250},
      {"first": 50, "m_programID": "new", "m_startTime": 50}]})");
  FCMarshal::JsonToMBRProgramTable(root, table);
  std::string read;
  for (const auto& [start, program] : table.GetNetworkProgramMap()) {
    read += std::to_string(start) + ":" + program.GetProgramID() + "@" + std::to_string(program.GetStartTime()) + " ";
  }
  EXPECT_EQ(read, "50:new@50 100:first@100 300:two@250 ");
}

}  // namespace
