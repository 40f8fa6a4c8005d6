#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "mbr_samples.h"

namespace {

using namespace mbrsamples;

const std::string kDefaultChannelJson =
    R"({"bit set":"00000","m_acRank":0,"m_activityID":6,"m_bDigital":true,"m_channelID":-1,"m_major":-1,)"
    R"("m_minor":0,"m_name":"","m_originMajor":-1,"m_originName":"","m_remembered":false,)"
    R"("m_str_icon_url":"","m_str_url_index":""})";
const std::string kEditedChannelJson =
    R"({"bit set":"00101","m_acRank":3,"m_activityID":2,"m_bDigital":false,"m_channelID":70,"m_major":17,)"
    R"("m_minor":1,"m_name":"Movies+","m_originMajor":7,"m_originName":"Movies","m_remembered":true,)"
    R"("m_str_icon_url":"http://icon/7","m_str_url_index":"7a"})";

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

FCMBRNetworkChannel ReadChannel(Json::Value root) {
  FCMBRNetworkChannel channel;
  FCMarshal::JsonToMBRNetworkChannel(root, channel);
  return channel;
}

// A request as the proxy builds it: a scalar key, a channel's keys flat beside it, and both tables.
const std::string kDocumentJson =
    R"({"MBR channel table":[)" + kEditedChannelJson + "," + kDefaultChannelJson + R"(],"activityID":2,)" +
    kEditedChannelJson.substr(1, kEditedChannelJson.size() - 2) +
    R"(,"mbrProgramTable":[{"first":100,"m_channelID":-1,"m_duration":1800,"m_programID":"early","m_startTime":100,)"
    R"("m_title":""},{"first":4294967295,"m_channelID":-1,"m_duration":-1,"m_programID":"","m_startTime":4294967295,)"
    R"("m_title":""}]})"
    "\n";

std::string Write(FCMBRNetworkChannel channel, FCMBRNetworkChannelTable channels, FCMBRNetworkProgramTable programs) {
  Json::Value root;
  root["activityID"] = 2;
  FCMarshal::MBRNetworkChannelToJson(channel, root);
  FCMarshal::MBRNetworkChannelTableToJson(channels, root);
  FCMarshal::MBRProgramTableToJson(programs, root);
  return Compact(root);
}

TEST(MBRJsonForm, WritesEveryKeyAndReadsItBack) {
  FCMBRNetworkChannelTable channels, readChannels;
  channels.AppendNetworkChannel(EditedChannel());
  channels.AppendNetworkChannel(FCMBRNetworkChannel());
  FCMBRNetworkProgramTable programs, readPrograms;
  FCMBRNetworkProgram fresh, early = Program("early", 100);
  programs.AppendNetworkProgram(fresh);
  programs.AppendNetworkProgram(early);
  EXPECT_EQ(Write(EditedChannel(), channels, programs), kDocumentJson);
  EXPECT_EQ(Write(FCMBRNetworkChannel(), FCMBRNetworkChannelTable(), FCMBRNetworkProgramTable()),
            R"({"activityID":2,)" + kDefaultChannelJson.substr(1) + "\n") << "defaults; empty tables write no member";

  // Reading appends to the tables; a document without a table's member leaves it as it was.
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
  EXPECT_EQ(JsonOf(channel) + "\n", Compact(expected));
}

TEST(MBRNetworkChannel, EqualitySeesOnlyTheIdentityFields) {
  // One key of the JSON form changed, and whether the channel still equals the original.
  const struct {
    const char* key;
    Json::Value value;
    bool equal;
  } cases[] = {{"m_acRank", 9, true},      {"m_remembered", false, true}, {"m_activityID", 4, true},
               {"m_str_icon_url", "u", true}, {"m_str_url_index", "i", true}, {"m_major", 6, false},
               {"m_originMajor", 6, false}, {"m_minor", 2, false},         {"m_name", "Movies-", false},
               {"m_originName", "M", false}, {"m_channelID", 71, false},    {"bit set", "00111", false},
               {"m_bDigital", true, false}};
  for (const auto& c : cases) {
    Json::Value root = Parsed(kEditedChannelJson);
    root[c.key] = c.value;
    EXPECT_EQ(EditedChannel() == ReadChannel(root), c.equal) << c.key;
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
    const int converted = channel.m_ConvertEndian(reinterpret_cast<unsigned char*>(dst.data()),
                                                  reinterpret_cast<unsigned char*>(src.data()), length);
    EXPECT_EQ(converted, static_cast<int>(written.size()) - 3);
    EXPECT_EQ(dst.substr(0, written.size()), written) << length;
  }
  std::string bytes = "....";
  EXPECT_EQ(channel.m_ConvertEndian(nullptr, reinterpret_cast<unsigned char*>(bytes.data()), 4), 1);
  EXPECT_EQ(channel.m_ConvertEndian(reinterpret_cast<unsigned char*>(bytes.data()), nullptr, 4), 1);
  EXPECT_EQ(bytes, "....");
}

TEST(MBRNetworkProgram, IdentityIsTheProgramIdAlone) {
  FCMBRNetworkProgram other = Program("p1", 900, 60);
  std::string title = "other";
  other.SetTitle(title);
  other.SetChannelID(3);
  EXPECT_EQ(Program("p1", 100), other);
  EXPECT_FALSE(Program("p1", 100) == Program("p2", 100));
  EXPECT_TRUE(Program("ab", 900) < Program("abc", 100) && Program("Z", 0) < Program("a", 0));
  EXPECT_FALSE(Program("p1", 100) < Program("p1", 900));
}

}  // namespace
