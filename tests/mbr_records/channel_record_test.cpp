#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "MBRNetworkChannel.h"

namespace {

using Favorite = FCMBRNetworkChannel::EFavorite;

FCMBRNetworkChannel Channel(int major, int minor, int channelId, std::string name = "") {
  FCMBRNetworkChannel channel;
  channel.SetMajor(major);
  channel.SetMinor(minor);
  channel.SetChannelID(channelId);
  channel.SetName(name);
  return channel;
}

TEST(MBRNetworkChannel, DefaultsBelongToNoActivity) {
  FCMBRNetworkChannel channel;
  EXPECT_EQ(channel.GetMajor(), -1);
  EXPECT_EQ(channel.GetOriginMajor(), -1);
  EXPECT_EQ(channel.GetMinor(), 0);
  EXPECT_EQ(channel.GetChannelID(), -1);
  EXPECT_EQ(channel.GetActivityID(), 6);
  EXPECT_TRUE(channel.IsDigital());
  EXPECT_EQ(channel.GetacRank(), 0);
  EXPECT_FALSE(channel.GetRemembered());
  EXPECT_TRUE(channel.GetFavoriteBitSet().none());
}

TEST(MBRNetworkChannel, InitializeResetsAnEditedChannel) {
  FCMBRNetworkChannel channel = Channel(7, 3, 11, "edited");
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite2, true);
  channel.SetActivityID(1);
  channel.m_Initialize();
  EXPECT_EQ(channel, FCMBRNetworkChannel());
  EXPECT_EQ(channel.GetActivityID(), 6);
}

TEST(MBRNetworkChannel, FavoritesSetAndClearSingleBits) {
  FCMBRNetworkChannel channel;
  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite3, true));
  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite0, true));
  EXPECT_EQ(channel.GetFavoriteBitSet().to_string(), "01001");
  EXPECT_TRUE(channel.GetFavorite(FCMBRNetworkChannel::eFavorite3));
  EXPECT_FALSE(channel.GetFavorite(FCMBRNetworkChannel::eFavorite1));

  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite3, false));
  EXPECT_EQ(channel.GetFavoriteBitSet().to_string(), "00001");
  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite4, true));
  EXPECT_TRUE(channel.GetFavorite(FCMBRNetworkChannel::eFavorite4));
}

TEST(MBRNetworkChannelDeathTest, FavoriteBeyondTheLastListEndsTheProcess) {
  FCMBRNetworkChannel channel;
  EXPECT_DEATH(channel.SetFavorite(static_cast<Favorite>(5), true), "");
  EXPECT_DEATH(channel.GetFavorite(static_cast<Favorite>(5)), "");
}

TEST(MBRNetworkChannel, RestoreUndoesMajorAndNameOnly) {
  FCMBRNetworkChannel channel = Channel(4, 1, 20);
  std::string origin = "origin";
  channel.SetOriginMajor(4);
  channel.SetOriginName(origin);
  std::string edited = "x";
  channel.SetMajor(12);
  channel.SetName(edited);
  channel.SetMinor(9);

  EXPECT_TRUE(channel.Restore());
  EXPECT_EQ(channel.GetMajor(), 4);
  EXPECT_EQ(channel.GetName(), "origin");
  EXPECT_EQ(channel.GetMinor(), 9);
  EXPECT_EQ(channel.GetChannelID(), 20);
}

struct EqualityCase {
  const char* changed;
  std::function<void(FCMBRNetworkChannel&)> change;
  bool stillEqual;
};

class MBRNetworkChannelEquality : public ::testing::TestWithParam<EqualityCase> {};

TEST_P(MBRNetworkChannelEquality, SeesOnlyTheIdentityFields) {
  const FCMBRNetworkChannel base = Channel(5, 1, 30, "name");
  FCMBRNetworkChannel other = base;
  GetParam().change(other);
  EXPECT_EQ(base == other, GetParam().stillEqual);
}

std::string Text(const char* text) { return text; }

INSTANTIATE_TEST_SUITE_P(
    Fields, MBRNetworkChannelEquality,
    ::testing::Values(
        EqualityCase{"acRank", [](FCMBRNetworkChannel& c) { c.SetacRank(3); }, true},
        EqualityCase{"remembered", [](FCMBRNetworkChannel& c) { c.SetRemembered(true); }, true},
        EqualityCase{"activity", [](FCMBRNetworkChannel& c) { c.SetActivityID(2); }, true},
        EqualityCase{"iconUrl", [](FCMBRNetworkChannel& c) { std::string s = "u"; c.SetIconUrl(s); }, true},
        EqualityCase{"urlIndex", [](FCMBRNetworkChannel& c) { std::string s = "i"; c.SetUrlIndex(s); }, true},
        EqualityCase{"major", [](FCMBRNetworkChannel& c) { c.SetMajor(6); }, false},
        EqualityCase{"originMajor", [](FCMBRNetworkChannel& c) { c.SetOriginMajor(6); }, false},
        EqualityCase{"minor", [](FCMBRNetworkChannel& c) { c.SetMinor(2); }, false},
        EqualityCase{"name", [](FCMBRNetworkChannel& c) { std::string s = "namf"; c.SetName(s); }, false},
        EqualityCase{"originName", [](FCMBRNetworkChannel& c) { std::string s = "o"; c.SetOriginName(s); }, false},
        EqualityCase{"channelId", [](FCMBRNetworkChannel& c) { int id = 31; c.SetChannelID(id); }, false},
        EqualityCase{"favorites", [](FCMBRNetworkChannel& c) { c.SetFavorite(FCMBRNetworkChannel::eFavorite1, true); },
                     false},
        EqualityCase{"digital", [](FCMBRNetworkChannel& c) { c.SetDigitalFlag(false); }, false}),
    [](const ::testing::TestParamInfo<EqualityCase>& info) { return Text(info.param.changed); });

struct EndianCase {
  const char* name;
  std::vector<unsigned char> src;
  int length;
  std::vector<unsigned char> expected;  // the bytes of dst that are written
  int converted;
};

class MBRNetworkChannelConvertEndian : public ::testing::TestWithParam<EndianCase> {};

TEST_P(MBRNetworkChannelConvertEndian, SwapsUnitsAndTerminates) {
  const EndianCase& c = GetParam();
  std::vector<unsigned char> src = c.src;
  src.resize(16, 0xAA);
  std::vector<unsigned char> dst(16, 0xEE);
  FCMBRNetworkChannel channel;
  EXPECT_EQ(channel.m_ConvertEndian(dst.data(), src.data(), c.length), c.converted);
  std::vector<unsigned char> expected = c.expected;
  expected.resize(16, 0xEE);
  EXPECT_EQ(dst, expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MBRNetworkChannelConvertEndian,
    ::testing::Values(EndianCase{"WholeText", {'A', 0, 'B', 0}, 4, {0, 'A', 0, 'B', 0, 0}, 4},
                      EndianCase{"StopsAtZeroUnit", {'A', 0, 0, 0, 'B', 0}, 6, {0, 'A', 0, 0}, 2},
                      EndianCase{"HighByteZeroIsNoStop", {0, 'A', 'B', 0}, 4, {'A', 0, 0, 'B', 0, 0}, 4},
                      EndianCase{"OddLengthTakesWholeUnit", {1, 2, 3, 4}, 3, {2, 1, 4, 3, 0, 0}, 4},
                      EndianCase{"ShortLengthCutsText", {1, 2, 3, 4, 5, 6}, 2, {2, 1, 0, 0}, 2},
                      EndianCase{"ZeroLength", {1, 2}, 0, {0, 0}, 0},
                      EndianCase{"NegativeLength", {1, 2}, -4, {0, 0}, 0}),
    [](const ::testing::TestParamInfo<EndianCase>& info) { return Text(info.param.name); });

TEST(MBRNetworkChannel, ConvertEndianWithNullPointerWritesNothing) {
  unsigned char src[] = {1, 2, 0, 0};
  unsigned char dst[] = {0xEE, 0xEE};
  FCMBRNetworkChannel channel;
  EXPECT_EQ(channel.m_ConvertEndian(nullptr, src, 4), 1);
  EXPECT_EQ(channel.m_ConvertEndian(dst, nullptr, 4), 1);
  EXPECT_EQ(dst[0], 0xEE);
  EXPECT_EQ(dst[1], 0xEE);
}

TEST(MBRNetworkProgram, DefaultsAreUnset) {
  FCMBRNetworkProgram program;
  EXPECT_EQ(program.GetStartTime(), 0xFFFFFFFFUL);
  EXPECT_EQ(program.GetDuration(), -1);
  EXPECT_EQ(program.GetChannelID(), -1);
  EXPECT_EQ(program.GetTitle(), "");
  EXPECT_EQ(program.GetProgramID(), "");
}

FCMBRNetworkProgram Program(const std::string& id, unsigned long start, const std::string& title = "") {
  FCMBRNetworkProgram program;
  std::string programId = id;
  std::string programTitle = title;
  program.SetProgramID(programId);
  program.SetStartTime(start);
  program.SetTitle(programTitle);
  return program;
}

TEST(MBRNetworkProgram, IdentityIsTheProgramIdAlone) {
  EXPECT_EQ(Program("p1", 100, "news"), Program("p1", 900, "film"));
  EXPECT_FALSE(Program("p1", 100) == Program("p2", 100));
  EXPECT_TRUE(Program("ab", 900) < Program("abc", 100));
  EXPECT_TRUE(Program("Z", 0) < Program("a", 0));
  EXPECT_FALSE(Program("p1", 100) < Program("p1", 900));
}

}  // namespace
