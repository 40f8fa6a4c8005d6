#include <gtest/gtest.h>

#include <json/json.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "FCMarshal.h"
#include "mbr_samples.h"

namespace {

using mbrsamples::Compact;
using mbrsamples::EditedChannel;
using mbrsamples::JsonOf;
using mbrsamples::Parsed;
using mbrsamples::Program;

using mbrsamples::kDefaultChannelJson;
using mbrsamples::kEditedChannelJson;

FCMBRNetworkChannel ReadChannel(const std::string& text, FCMBRNetworkChannel channel = FCMBRNetworkChannel()) {
  Json::Value root = Parsed(text);
  EXPECT_TRUE(FCMarshal::JsonToMBRNetworkChannel(root, channel));
  return channel;
}

TEST(MBRJsonForm, ChannelKeysSitFlatBesideTheRequestKeysAndReadBack) {
  FCMBRNetworkChannel channel = EditedChannel();
  Json::Value root;
  root["activityID"] = 2;
  EXPECT_TRUE(FCMarshal::MBRNetworkChannelToJson(channel, root));
  EXPECT_EQ(Compact(root), "{\"activityID\":2," + std::string(kEditedChannelJson + 1) + "\n");
  // Through the JSON form, since equality leaves some fields out.
  EXPECT_EQ(JsonOf(ReadChannel(Compact(root))), kEditedChannelJson);
}

TEST(MBRJsonForm, ReadsTheStandardBitSetText) {
  // The text, and the favourites as the bit set writes them: the last character is list 0, and at most five count.
  const std::pair<const char*, const char*> cases[] = {
      {"01001", "01001"}, {"1", "00001"}, {"1111111", "11111"}, {"10000x", "10000"}, {"", "00000"}};
  for (const auto& [text, favorites] : cases) {
    FCMBRNetworkChannel channel;
    channel.SetFavorite(FCMBRNetworkChannel::eFavorite1, true);
    channel = ReadChannel("{\"bit set\":\"" + std::string(text) + "\"}", channel);
    EXPECT_EQ(channel.GetFavoriteBitSet().to_string(), favorites) << text;
  }
}

TEST(MBRJsonForm, MalformedBitSetThrowsTheStandardError) {
  Json::Value root = Parsed(R"({"m_major": 12, "bit set": "0120"})");
  FCMBRNetworkChannel channel;
  try {
    FCMBRNetworkChannel::JsonToMBRNetworkChannel(root, channel);
    FAIL() << "no exception";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), "bitset::_M_copy_from_ptr");
  }
  EXPECT_EQ(channel.GetMajor(), 12);  // the keys before it are read
}

TEST(MBRJsonForm, MissingOrMistypedKeysReadAsZero) {
  Json::Value root = Parsed(R"({"m_major": "12", "m_name": 5, "m_bDigital": "yes"})");
  FCMBRNetworkChannel channel = EditedChannel();
  EXPECT_TRUE(FCMBRNetworkChannel::JsonToMBRNetworkChannel(root, channel));
  EXPECT_EQ(JsonOf(channel),
            "{\"bit set\":\"00000\",\"m_acRank\":0,\"m_activityID\":0,\"m_bDigital\":false,\"m_channelID\":0,"
            "\"m_major\":0,\"m_minor\":0,\"m_name\":\"\",\"m_originMajor\":0,\"m_originName\":\"\","
            "\"m_remembered\":false,\"m_str_icon_url\":\"\",\"m_str_url_index\":\"\"}");
  EXPECT_EQ(root.size(), 3U);  // reading adds no members

  FCMBRNetworkProgram program = Program("p", 100);
  Json::Value empty;
  EXPECT_TRUE(FCMarshal::JsonToMBRProgram(empty, program));
  EXPECT_EQ(JsonOf(program),
            "{\"m_channelID\":0,\"m_duration\":0,\"m_programID\":\"\",\"m_startTime\":0,\"m_title\":\"\"}");
}

TEST(MBRJsonForm, ProgramKeysAndTypes) {
  FCMBRNetworkProgram program;
  Json::Value root;
  EXPECT_TRUE(FCMarshal::MBRProgramToJson(program, root));
  EXPECT_EQ(
      Compact(root),
      "{\"m_channelID\":-1,\"m_duration\":-1,\"m_programID\":\"\",\"m_startTime\":4294967295,\"m_title\":\"\"}\n");

  const std::string written = JsonOf(Program("p9", 4000000000UL));
  EXPECT_EQ(written,
            "{\"m_channelID\":70,\"m_duration\":1800,\"m_programID\":\"p9\",\"m_startTime\":4000000000,"
            "\"m_title\":\"Title p9\"}");
  root = Parsed(written);
  EXPECT_TRUE(FCMBRNetworkProgram::JsonToMBRNetworkProgram(root, program));
  EXPECT_EQ(JsonOf(program), written);
}

TEST(MBRJsonForm, ChannelTableIsAnArrayInListOrderAndReadingAppends) {
  FCMBRNetworkChannelTable written;
  written.AppendNetworkChannel(EditedChannel());
  written.AppendNetworkChannel(FCMBRNetworkChannel());
  Json::Value root;
  EXPECT_TRUE(FCMarshal::MBRNetworkChannelTableToJson(written, root));
  EXPECT_EQ(Compact(root),
            "{\"MBR channel table\":[" + std::string(kEditedChannelJson) + "," + kDefaultChannelJson + "]}\n");

  FCMBRNetworkChannelTable table;
  table.AppendNetworkChannel(mbrsamples::Channel(1, 0, 1));
  root = Parsed(Compact(root));
  EXPECT_TRUE(FCMarshal::JsonToMBRNetworkChannelTable(root, table));
  std::vector<std::string> read;
  for (const auto& channel : table.GetNetworkChannelList()) read.push_back(JsonOf(channel));
  // Each element starts from a default channel.
  EXPECT_EQ(read,
            (std::vector<std::string>{JsonOf(mbrsamples::Channel(1, 0, 1)), kEditedChannelJson, kDefaultChannelJson}));
}

TEST(MBRJsonForm, EmptyTablesWriteNoMemberAndNoMemberLeavesTheTables) {
  FCMBRNetworkChannelTable channels;
  FCMBRNetworkProgramTable programs;
  Json::Value root;
  EXPECT_TRUE(FCMarshal::MBRNetworkChannelTableToJson(channels, root));
  EXPECT_TRUE(FCMarshal::MBRProgramTableToJson(programs, root));
  EXPECT_TRUE(root.isNull());

  channels.AppendNetworkChannel(EditedChannel());
  FCMBRNetworkProgram program = Program("p", 100);
  programs.AppendNetworkProgram(program);
  for (const char* text : {R"({"ret": true})", R"({"MBR channel table": {}, "mbrProgramTable": 3})"}) {
    root = Parsed(text);
    EXPECT_TRUE(FCMarshal::JsonToMBRNetworkChannelTable(root, channels));
    EXPECT_TRUE(FCMarshal::JsonToMBRProgramTable(root, programs));
  }
  EXPECT_EQ(channels.GetNetworkChannelList().size(), 1U);
  EXPECT_EQ(programs.GetNetworkProgramMap().size(), 1U);
}

TEST(MBRJsonForm, ProgramTableCarriesItsKeyAsFirst) {
  FCMBRNetworkProgramTable table;
  FCMBRNetworkProgram late = Program("late", 4000000000UL), early = Program("early", 100);
  table.AppendNetworkProgram(late);
  table.AppendNetworkProgram(early);
  Json::Value root;
  EXPECT_TRUE(FCMarshal::MBRProgramTableToJson(table, root));
  EXPECT_EQ(Compact(root),
            "{\"mbrProgramTable\":[{\"first\":100,\"m_channelID\":70,\"m_duration\":1800,\"m_programID\":\"early\","
            "\"m_startTime\":100,\"m_title\":\"Title early\"},{\"first\":4000000000,\"m_channelID\":70,"
            "\"m_duration\":1800,\"m_programID\":\"late\",\"m_startTime\":4000000000,\"m_title\":\"Title late\"}]}\n");
}

TEST(MBRJsonForm, ReadingAProgramTableLetsTheLaterEntryWin) {
  Json::Value root = Parsed(R"({"mbrProgramTable": [
      {"first": 100, "m_programID": "one", "m_startTime": 100},
      {"first": 100, "m_programID": "two", "m_startTime": 100},
      {"first": 300, "m_programID": "three", "m_startTime": 250}]})");
  FCMBRNetworkProgramTable table;
  FCMBRNetworkProgram kept = Program("kept", 50), replaced = Program("replaced", 300);
  table.AppendNetworkProgram(kept);
  table.AppendNetworkProgram(replaced);

  EXPECT_TRUE(FCMarshal::JsonToMBRProgramTable(root, table));
  const auto& map = table.GetNetworkProgramMap();
  ASSERT_EQ(map.size(), 3U);
  EXPECT_EQ(map.at(50).GetProgramID(), "kept");
  EXPECT_EQ(map.at(100).GetProgramID(), "two");
  EXPECT_EQ(map.at(300).GetProgramID(), "three");  // stored under "first", not its own start
  EXPECT_EQ(map.at(300).GetStartTime(), 250UL);
}

}  // namespace
