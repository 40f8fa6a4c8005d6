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

using zunde::testing::LogCapture;
using zunde::testing::Parsed;
using Favorite = FCMBRNetworkChannel::EFavorite;

FCMBRNetworkChannel Channel(int major, int minor, int channelId, std::string name = "", int originMajor = -1) {
  FCMBRNetworkChannel channel;
  channel.SetMajor(major);
  channel.SetMinor(minor);
  channel.SetChannelID(channelId);
  channel.SetName(name);
  channel.SetOriginMajor(originMajor);
  return channel;
}

FCMBRNetworkChannel ReadChannel(Json::Value root) {
  FCMBRNetworkChannel channel;
  FCMarshal::JsonToMBRNetworkChannel(root, channel);
  return channel;
}

FCMBRNetworkProgram Program(std::string id, unsigned long start, int duration = 1800) {
  FCMBRNetworkProgram program;
  program.SetProgramID(id);
  program.SetStartTime(start);
  program.SetDuration(duration);
  return program;
}

FCMBRNetworkChannelTable Channels(const std::vector<FCMBRNetworkChannel>& channels) {
  FCMBRNetworkChannelTable table;
  for (const auto& channel : channels) EXPECT_TRUE(table.AppendNetworkChannel(channel));
  return table;
}

FCMBRNetworkProgramTable Programs(std::vector<FCMBRNetworkProgram> programs) {
  FCMBRNetworkProgramTable table;
  for (auto& program : programs) EXPECT_TRUE(table.AppendNetworkProgram(program));
  return table;
}

// The root that the writers fill: a request's scalar key, a channel's keys flat beside it, both tables.
std::string Write(FCMBRNetworkChannel channel, FCMBRNetworkChannelTable channels, FCMBRNetworkProgramTable programs) {
  Json::Value root;
  root["activityID"] = 2;
  FCMarshal::MBRNetworkChannelToJson(channel, root);
  FCMarshal::MBRNetworkChannelTableToJson(channels, root);
  FCMarshal::MBRProgramTableToJson(programs, root);
  return zunde::testing::Compact(root);
}

// Every field away from its default: the box reported 7 "Movies", the user made it 17 "Movies+".
const std::string kEditedJson =
    R"({"bit set":"00101","m_acRank":3,"m_activityID":2,"m_bDigital":false,"m_channelID":70,"m_major":17,)"
    R"("m_minor":1,"m_name":"Movies+","m_originMajor":7,"m_originName":"Movies","m_remembered":true,)"
    R"("m_str_icon_url":"http://icon/7","m_str_url_index":"7a"})";
const FCMBRNetworkChannel kEdited = ReadChannel(Parsed(kEditedJson));
const std::string kDocumentJson =
    R"({"MBR channel table":[)" + kEditedJson + R"(,{"bit set":"00000","m_acRank":0,"m_activityID":6,)"
    R"("m_bDigital":true,"m_channelID":-1,"m_major":-1,"m_minor":0,"m_name":"","m_originMajor":-1,"m_originName":"",)"
    R"("m_remembered":false,"m_str_icon_url":"","m_str_url_index":""}],"activityID":2,)" +
    kEditedJson.substr(1, kEditedJson.size() - 2) +
    R"(,"mbrProgramTable":[{"first":100,"m_channelID":-1,"m_duration":1800,"m_programID":"early","m_startTime":100,)"
    R"("m_title":""},{"first":4294967295,"m_channelID":-1,"m_duration":-1,"m_programID":"","m_startTime":4294967295,)"
    R"("m_title":""}]})" "\n";

// The edited channel as read, a default one, and programmes of their own and by default; empty tables write
// no member. Reading appends to the tables; a document without a table's member leaves it as it was.
TEST(MBRJsonForm, WritesEveryKeyAndReadsItBack) {
  FCMBRNetworkChannelTable channels = Channels({kEdited, FCMBRNetworkChannel()}), readChannels;
  FCMBRNetworkProgramTable programs = Programs({Program("early", 100), FCMBRNetworkProgram()}), readPrograms;
  EXPECT_EQ(Write(kEdited, channels, programs), kDocumentJson);
  EXPECT_EQ(Write(kEdited, {}, {}), R"({"activityID":2,)" + kEditedJson.substr(1) + "\n");
  for (const char* text : {kDocumentJson.c_str(), R"({"ret": true})", kDocumentJson.c_str()}) {
    Json::Value root = Parsed(text);
    EXPECT_TRUE(FCMarshal::JsonToMBRNetworkChannelTable(root, readChannels));
    EXPECT_TRUE(FCMarshal::JsonToMBRProgramTable(root, readPrograms));
  }
  EXPECT_TRUE(channels.Merge(FCMBRNetworkChannelTable(channels)) && channels.Merge({}));  // appends, keeps twins
  EXPECT_EQ(Write(kEdited, readChannels, readPrograms), Write(kEdited, channels, programs));
}

std::string Favorites(const std::string& bitSet) {
  return ReadChannel(Parsed(R"({"bit set":")" + bitSet + "\"}")).GetFavoriteBitSet().to_string();
}

// The favourites as the bit set writes them: the last character is list 0, and at most five count.
TEST(MBRNetworkChannelDeathTest, FavoritesAreFiveSingleBits) {
  FCMBRNetworkChannel channel;
  EXPECT_TRUE(channel.SetFavorite(Favorite::eFavorite3, true) && channel.SetFavorite(Favorite::eFavorite0, true));
  EXPECT_TRUE(channel.SetFavorite(Favorite::eFavorite4, true) && channel.SetFavorite(Favorite::eFavorite0, false));
  EXPECT_TRUE(channel.GetFavorite(Favorite::eFavorite4) && !channel.GetFavorite(Favorite::eFavorite0));
  EXPECT_EQ(channel.GetFavoriteBitSet().to_string() + " " + Favorites("01001") + " " + Favorites("1") + " " +
                Favorites("1111111") + " " + Favorites("10000x") + " " + Favorites(""),
            "11000 01001 00001 11111 10000 00000");
  EXPECT_THROW(Favorites("0120"), std::invalid_argument);
  EXPECT_DEATH(channel.SetFavorite(static_cast<Favorite>(5), true), "");
  EXPECT_DEATH(channel.GetFavorite(static_cast<Favorite>(5)), "");
}

// One key of the edited channel changed, and whether it still equals the original. Restore brings back
// the origin's major and name, and keeps an edited minor.
TEST(MBRNetworkChannel, EqualitySeesOnlyTheIdentityFieldsAndRestoreUndoesMajorAndName) {
  const std::tuple<const char*, Json::Value, bool> cases[] = {
      {"m_acRank", 9, true},         {"m_remembered", false, true},  {"m_activityID", 4, true},
      {"m_str_icon_url", "u", true}, {"m_str_url_index", "i", true}, {"m_major", 6, false},
      {"m_originMajor", 6, false},   {"m_minor", 2, false},           {"m_name", "Movies-", false},
      {"m_originName", "M", false},  {"m_channelID", 71, false},      {"bit set", "00111", false},
      {"m_bDigital", true, false}};
  for (const auto& [key, value, equal] : cases) {
    Json::Value root = Parsed(kEditedJson);
    root[key] = value;
    EXPECT_EQ(kEdited == ReadChannel(root), equal) << key;
  }
  FCMBRNetworkChannel restored = kEdited;
  restored.SetMinor(9);
  EXPECT_TRUE(restored.Restore());
  EXPECT_EQ(std::to_string(restored.GetMajor()) + restored.GetName() + std::to_string(restored.GetMinor()), "7Movies9");
}

std::string Names(const FCMBRNetworkChannelTable& table) {
  std::string names;
  for (const auto& channel : table.GetNetworkChannelList()) names += channel.GetName() + " ";
  return names;
}

// A look-up's result and the output's name after it.
std::string Found(bool result, const FCMBRNetworkChannel& out) { return std::to_string(result) + " " + out.GetName(); }

std::string Max(const FCMBRNetworkChannelTable& table) {
  int maxMajor = -7, maxMinor = -7;
  const bool result = table.GetMaxNumberOfMajorMinor(maxMajor, maxMinor);
  return std::to_string(result) + " " + std::to_string(maxMajor) + " " + std::to_string(maxMinor);
}

TEST(MBRNetworkChannelTable, LookUpsMaximaAndSort) {
  auto table = Channels({Channel(12, 1, 40, "edited", 7), Channel(7, 1, 41, "seven"), Channel(7, 1, 41, "twin"),
                         Channel(7, 1, 3, "low"), Channel(7, 2, 1, "up"), Channel(-1, 0, 9, "neg")});
  // The first match is copied; major and minor are the shown ones; no match leaves the output alone.
  FCMBRNetworkChannel out;
  EXPECT_EQ(Found(table.FindNetworkChannelbyMajorMinor(7, 1, out), out), "1 seven");
  EXPECT_EQ(Found(table.FindNetworkChannelbyChannelID(1, out), out), "1 up");
  EXPECT_EQ(Found(table.FindNetworkChannelbyChannelID(43, out), out), "0 up");
  EXPECT_EQ(Found(table.FindNetworkChannelByChannelIDOriginMajor(40, 7, out), out), "1 edited");
  EXPECT_EQ(Found(table.FindNetworkChannelByChannelIDOriginMajor(40, 12, out), out), "0 edited");

  // Each maximum separately, from zero; an empty table warns.
  EXPECT_EQ(Max(table) + ", " + Max(Channels({Channel(-1, 4, 1), Channel(-3, -1, 1)})) + ", " + Max({}),
            "1 12 2, 1 0 4, 0 0 0");
  zunde::testing::LogRecord record;
  ASSERT_TRUE(LogCapture::Find("MBRNetworkChannelTable: GetMaxNumberOfMajorMinor(100) > [16][2]FCMBRNetworkChannelDB::"
                               "GetMaxNumberOfMajorMinor(), m_mbrNetworkChannelDB is empty!\n", &record));
  EXPECT_EQ(std::tie(record.logId, record.priority, record.tag), std::make_tuple(0, 5, "zunde-provider"));

  table.Sort();  // by major, minor, id; ties keep their order
  EXPECT_EQ(Names(table), "neg low seven twin up edited ");
}

// Whether a programme runs at `time`, and the id in the output after the look-up.
std::string At(std::vector<FCMBRNetworkProgram> programs, unsigned long time) {
  FCMBRNetworkProgram out = Program("-", 1, 1);
  const bool found = Programs(programs).FindNetworkProgrambyStartTime(time, out);
  return std::to_string(found) + out.GetProgramID();
}

TEST(MBRNetworkProgramTable, FindAppendMergeAndRead) {
  const auto news = Program("news", 100, 50), wrap = Program("wrap", 0xFFFFFFF0UL, 0x20);
  EXPECT_EQ(At({news}, 100) + At({news}, 149) + At({news}, 150) + At({news}, 99), "1news1news0-0-");
  EXPECT_EQ(At({Program("empty", 100, 0)}, 100), "0-");
  EXPECT_EQ(At({Program("late", 150, 10), Program("long", 100, 100)}, 155), "1long") << "the earlier start wins";
  // The end wraps at 32 bits: past the top, and not over to the start of the range; the time keeps 32 bits.
  EXPECT_EQ(At({wrap}, 0xFFFFFFF5UL) + At({wrap}, 5) + At({Program("all", 0, -1)}, 0xFFFFFFFEUL), "0-0-1all");
  EXPECT_EQ(At({news}, static_cast<unsigned long>(0x100000064ULL)), "1news");

  // Appending and merging keep the programme already at a start time; reading replaces it, under "first".
  FCMBRNetworkProgramTable table = Programs({Program("first", 100), Program("second", 100)});
  EXPECT_TRUE(table.Merge(Programs({Program("third", 100), Program("earlier", 50)})));
  Json::Value root = Parsed(R"({"mbrProgramTable": [{"first": 300, "m_programID": "one", "m_startTime": 250},
      {"first": 300, "m_programID": "two", "m_startTime": 250}, {"first": 50, "m_programID": "new"}]})");
  FCMarshal::JsonToMBRProgramTable(root, table);
  std::string read;
  for (const auto& [start, program] : table.GetNetworkProgramMap())
    read += std::to_string(start) + ":" + program.GetProgramID() + "@" + std::to_string(program.GetStartTime()) + " ";
  EXPECT_EQ(read, "50:new@0 100:first@100 300:two@250 ");

  // A programme is its id alone: the same id at another time is equal; ids order byte-wise.
  EXPECT_TRUE(Program("p1", 100) == Program("p1", 900, 60) && !(Program("p1", 100) == Program("p2", 100)));
  EXPECT_TRUE(Program("ab", 900) < Program("abc", 100) && Program("Z", 0) < Program("a", 0) &&
              !(Program("p1", 100) < Program("p1", 900)));
}

}  // namespace
