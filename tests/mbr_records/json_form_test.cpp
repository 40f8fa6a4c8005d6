#include <gtest/gtest.h>

#include <json/json.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "FCMarshal.h"

namespace {

std::string Styled(const Json::Value& value) { return Json::StyledWriter().write(value); }

Json::Value Parse(const std::string& text) {
  Json::Value root;
  EXPECT_TRUE(Json::Reader().parse(text, root)) << text;
  return root;
}

FCMBRNetworkChannel EditedChannel() {
  FCMBRNetworkChannel channel;
  std::string name = "Movies+", originName = "Movies", icon = "http://icon/7", index = "7a";
  int channelId = 70;
  channel.SetActivityID(2);
  channel.SetacRank(3);
  channel.SetIconUrl(icon);
  channel.SetUrlIndex(index);
  channel.SetMajor(17);
  channel.SetOriginMajor(7);
  channel.SetMinor(1);
  channel.SetName(name);
  channel.SetOriginName(originName);
  channel.SetChannelID(channelId);
  channel.SetRemembered(true);
  channel.SetDigitalFlag(false);
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite0, true);
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite2, true);
  return channel;
}

FCMBRNetworkProgram Program(const std::string& id, unsigned long start) {
  FCMBRNetworkProgram program;
  std::string programId = id, title = "Title " + id;
  program.SetProgramID(programId);
  program.SetTitle(title);
  program.SetStartTime(start);
  program.SetDuration(1800);
  program.SetChannelID(70);
  return program;
}

// The writer keeps jsoncpp's member order, so the text is the exact wire form.
TEST(MBRJsonForm, ChannelKeysSitFlatBesideTheRequestKeys) {
  FCMBRNetworkChannel channel = EditedChannel();
  Json::Value root;
  root["activityID"] = 2;
  EXPECT_TRUE(FCMarshal::MBRNetworkChannelToJson(channel, root));
  EXPECT_EQ(Styled(root),
            "{\n"
            "   \"activityID\" : 2,\n"
            "   \"bit set\" : \"00101\",\n"
            "   \"m_acRank\" : 3,\n"
            "   \"m_activityID\" : 2,\n"
            "   \"m_bDigital\" : false,\n"
            "   \"m_channelID\" : 70,\n"
            "   \"m_major\" : 17,\n"
            "   \"m_minor\" : 1,\n"
            "   \"m_name\" : \"Movies+\",\n"
            "   \"m_originMajor\" : 7,\n"
            "   \"m_originName\" : \"Movies\",\n"
            "   \"m_remembered\" : true,\n"
            "   \"m_str_icon_url\" : \"http://icon/7\",\n"
            "   \"m_str_url_index\" : \"7a\"\n"
            "}\n");
}

TEST(MBRJsonForm, DefaultChannelHasNoFavorites) {
  FCMBRNetworkChannel channel;
  Json::Value root;
  FCMBRNetworkChannel::MBRNetworkChannelToJson(channel, root);
  EXPECT_EQ(root["bit set"], Json::Value("00000"));
  EXPECT_EQ(root["m_activityID"], Json::Value(6));
  EXPECT_EQ(root["m_bDigital"], Json::Value(true));
}

TEST(MBRJsonForm, ChannelReadsBackWhatItWrote) {
  FCMBRNetworkChannel written = EditedChannel(), read;
  Json::Value root = Parse(Styled([&] {
    Json::Value value;
    FCMarshal::MBRNetworkChannelToJson(written, value);
    return value;
  }()));
  EXPECT_TRUE(FCMarshal::JsonToMBRNetworkChannel(root, read));
  EXPECT_EQ(read, written);
  // Fields that equality leaves out.
  EXPECT_EQ(read.GetActivityID(), 2);
  EXPECT_EQ(read.GetacRank(), 3);
  EXPECT_EQ(read.GetIconUrl(), "http://icon/7");
  EXPECT_EQ(read.GetUrlIndex(), "7a");
  EXPECT_TRUE(read.GetRemembered());
}

struct BitSetCase {
  const char* name;
  const char* text;
  const char* favorites;  // as the bit set writes them
};

class MBRJsonFormBitSet : public ::testing::TestWithParam<BitSetCase> {};

TEST_P(MBRJsonFormBitSet, ReadsTheStandardBitSetText) {
  Json::Value root;
  root["bit set"] = GetParam().text;
  FCMBRNetworkChannel channel;
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite1, true);
  FCMBRNetworkChannel::JsonToMBRNetworkChannel(root, channel);
  EXPECT_EQ(channel.GetFavoriteBitSet().to_string(), GetParam().favorites);
}

INSTANTIATE_TEST_SUITE_P(Cases, MBRJsonFormBitSet,
                         ::testing::Values(BitSetCase{"ListsZeroAndThree", "01001", "01001"},
                                           BitSetCase{"ShortFillsLowLists", "1", "00001"},
                                           BitSetCase{"LongUsesFirstFive", "1111111", "11111"},
                                           BitSetCase{"CharactersBeyondFiveUnread", "10000x", "10000"},
                                           BitSetCase{"Empty", "", "00000"}),
                         [](const ::testing::TestParamInfo<BitSetCase>& info) { return std::string(info.param.name); });

TEST(MBRJsonForm, MalformedBitSetThrowsTheStandardError) {
  Json::Value root;
  root["m_major"] = 12;
  root["bit set"] = "0120";
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
  FCMBRNetworkChannel channel = EditedChannel();
  Json::Value root = Parse(R"({"m_major": "12", "m_name": 5, "m_bDigital": "yes"})");
  EXPECT_TRUE(FCMBRNetworkChannel::JsonToMBRNetworkChannel(root, channel));
  EXPECT_EQ(channel.GetMajor(), 0);
  EXPECT_EQ(channel.GetOriginMajor(), 0);
  EXPECT_EQ(channel.GetChannelID(), 0);
  EXPECT_EQ(channel.GetActivityID(), 0);
  EXPECT_EQ(channel.GetName(), "");
  EXPECT_EQ(channel.GetIconUrl(), "");
  EXPECT_FALSE(channel.IsDigital());
  EXPECT_FALSE(channel.GetRemembered());
  EXPECT_TRUE(channel.GetFavoriteBitSet().none());
  EXPECT_EQ(root.size(), 3U);  // reading adds no members

  FCMBRNetworkProgram program = Program("p", 100);
  Json::Value empty;
  EXPECT_TRUE(FCMarshal::JsonToMBRProgram(empty, program));
  EXPECT_EQ(program.GetStartTime(), 0UL);
  EXPECT_EQ(program.GetDuration(), 0);
  EXPECT_EQ(program.GetProgramID(), "");
}

TEST(MBRJsonForm, ProgramKeysAndTypes) {
  FCMBRNetworkProgram program;
  Json::Value root;
  EXPECT_TRUE(FCMarshal::MBRProgramToJson(program, root));
  EXPECT_EQ(Styled(root),
            "{\n"
            "   \"m_channelID\" : -1,\n"
            "   \"m_duration\" : -1,\n"
            "   \"m_programID\" : \"\",\n"
            "   \"m_startTime\" : 4294967295,\n"
            "   \"m_title\" : \"\"\n"
            "}\n");
  EXPECT_EQ(root["m_startTime"].type(), Json::uintValue);

  FCMBRNetworkProgram written = Program("p9", 4000000000UL), read;
  root = Json::Value();
  FCMBRNetworkProgram::MBRNetworkProgramToJson(written, root);
  root = Parse(Styled(root));
  EXPECT_TRUE(FCMBRNetworkProgram::JsonToMBRNetworkProgram(root, read));
  EXPECT_EQ(read.GetStartTime(), 4000000000UL);
  EXPECT_EQ(read.GetDuration(), 1800);
  EXPECT_EQ(read.GetTitle(), "Title p9");
  EXPECT_EQ(read.GetChannelID(), 70);
  EXPECT_EQ(read.GetProgramID(), "p9");
}

TEST(MBRJsonForm, EmptyTablesWriteNoMember) {
  FCMBRNetworkChannelTable channels;
  FCMBRNetworkProgramTable programs;
  Json::Value root;
  EXPECT_TRUE(FCMarshal::MBRNetworkChannelTableToJson(channels, root));
  EXPECT_TRUE(FCMarshal::MBRProgramTableToJson(programs, root));
  EXPECT_TRUE(root.isNull());
}

TEST(MBRJsonForm, ChannelTableIsAnArrayInListOrder) {
  FCMBRNetworkChannelTable table;
  FCMBRNetworkChannel second = EditedChannel();
  table.AppendNetworkChannel(FCMBRNetworkChannel());
  table.AppendNetworkChannel(second);
  Json::Value root;
  FCMarshal::MBRNetworkChannelTableToJson(table, root);

  EXPECT_EQ(root.getMemberNames(), std::vector<std::string>{"MBR channel table"});
  const Json::Value& array = root["MBR channel table"];
  ASSERT_TRUE(array.isArray());
  ASSERT_EQ(array.size(), 2U);
  EXPECT_EQ(array[0]["m_channelID"], Json::Value(-1));
  EXPECT_EQ(array[1]["m_channelID"], Json::Value(70));
  EXPECT_EQ(array[1].size(), 13U);
}

TEST(MBRJsonForm, ReadingAChannelTableAppends) {
  FCMBRNetworkChannelTable written;
  written.AppendNetworkChannel(EditedChannel());
  written.AppendNetworkChannel(FCMBRNetworkChannel());
  Json::Value root;
  FCMarshal::MBRNetworkChannelTableToJson(written, root);
  root = Parse(Styled(root));

  FCMBRNetworkChannelTable table;
  FCMBRNetworkChannel existing;
  existing.SetMajor(1);
  table.AppendNetworkChannel(existing);
  EXPECT_TRUE(FCMarshal::JsonToMBRNetworkChannelTable(root, table));
  std::vector<FCMBRNetworkChannel> read(table.GetNetworkChannelList().begin(), table.GetNetworkChannelList().end());
  ASSERT_EQ(read.size(), 3U);
  EXPECT_EQ(read[0], existing);
  EXPECT_EQ(read[1], EditedChannel());
  EXPECT_EQ(read[2], FCMBRNetworkChannel());  // each element starts from a default channel
}

TEST(MBRJsonForm, ReadingWithoutATableLeavesTheTables) {
  FCMBRNetworkChannelTable channels;
  channels.AppendNetworkChannel(EditedChannel());
  FCMBRNetworkProgramTable programs;
  FCMBRNetworkProgram program = Program("p", 100);
  programs.AppendNetworkProgram(program);

  for (const char* text : {R"({"ret": true})", R"({"MBR channel table": {}, "mbrProgramTable": 3})"}) {
    Json::Value root = Parse(text);
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
  FCMarshal::MBRProgramTableToJson(table, root);

  const Json::Value& array = root["mbrProgramTable"];
  ASSERT_EQ(array.size(), 2U);
  EXPECT_EQ(array[0].getMemberNames(), (std::vector<std::string>{"first", "m_channelID", "m_duration", "m_programID",
                                                                 "m_startTime", "m_title"}));
  EXPECT_EQ(array[0]["first"].type(), Json::uintValue);
  EXPECT_EQ(array[0]["first"].asUInt(), 100U);
  EXPECT_EQ(array[0]["m_programID"], Json::Value("early"));
  EXPECT_EQ(array[1]["first"].asUInt(), 4000000000U);
}

TEST(MBRJsonForm, ReadingAProgramTableLetsTheLaterEntryWin) {
  Json::Value root = Parse(R"({"mbrProgramTable": [
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
