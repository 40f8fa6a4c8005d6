#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "MBRNetworkChannel.h"
#include "mbr_samples.h"

namespace {

using mbrsamples::Channel;
using mbrsamples::JsonOf;
using mbrsamples::Program;

using mbrsamples::kDefaultChannelJson;

TEST(MBRNetworkChannel, DefaultsBelongToNoActivityAndInitializeRestoresThem) {
  EXPECT_EQ(kDefaultChannelJson, JsonOf(FCMBRNetworkChannel()));
  FCMBRNetworkChannel channel = mbrsamples::EditedChannel();
  channel.m_Initialize();
  EXPECT_EQ(kDefaultChannelJson, JsonOf(channel));
}

TEST(MBRNetworkChannel, FavoritesSetAndClearSingleBits) {
  FCMBRNetworkChannel channel;
  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite3, true));
  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite0, true));
  EXPECT_EQ(channel.GetFavoriteBitSet().to_string(), "01001");
  EXPECT_TRUE(channel.GetFavorite(FCMBRNetworkChannel::eFavorite3));
  EXPECT_FALSE(channel.GetFavorite(FCMBRNetworkChannel::eFavorite1));
  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite3, false));
  EXPECT_TRUE(channel.SetFavorite(FCMBRNetworkChannel::eFavorite4, true));
  EXPECT_EQ(channel.GetFavoriteBitSet().to_string(), "10001");
  EXPECT_TRUE(channel.GetFavorite(FCMBRNetworkChannel::eFavorite4));
}

TEST(MBRNetworkChannelDeathTest, FavoriteBeyondTheLastListEndsTheProcess) {
  FCMBRNetworkChannel channel;
  EXPECT_DEATH(channel.SetFavorite(static_cast<FCMBRNetworkChannel::EFavorite>(5), true), "");
  EXPECT_DEATH(channel.GetFavorite(static_cast<FCMBRNetworkChannel::EFavorite>(5)), "");
}

TEST(MBRNetworkChannel, RestoreUndoesMajorAndNameOnly) {
  FCMBRNetworkChannel channel = mbrsamples::EditedChannel();  // shows 17 "Movies+", was 7 "Movies"
  channel.SetMinor(9);
  EXPECT_TRUE(channel.Restore());
  EXPECT_EQ(channel.GetMajor(), 7);
  EXPECT_EQ(channel.GetName(), "Movies");
  EXPECT_EQ(channel.GetMinor(), 9);
  EXPECT_EQ(channel.GetChannelID(), 70);
}

TEST(MBRNetworkChannel, EqualitySeesOnlyTheIdentityFields) {
  using Change = void (*)(FCMBRNetworkChannel&);
  const std::pair<bool, Change> cases[] = {
      // still equal after the change, the change
      {true, [](FCMBRNetworkChannel& c) { c.SetacRank(3); }},
      {true, [](FCMBRNetworkChannel& c) { c.SetRemembered(true); }},
      {true, [](FCMBRNetworkChannel& c) { c.SetActivityID(2); }},
      {true,
       [](FCMBRNetworkChannel& c) {
         std::string s = "u";
         c.SetIconUrl(s);
       }},
      {true,
       [](FCMBRNetworkChannel& c) {
         std::string s = "i";
         c.SetUrlIndex(s);
       }},
      {false, [](FCMBRNetworkChannel& c) { c.SetMajor(6); }},
      {false, [](FCMBRNetworkChannel& c) { c.SetOriginMajor(6); }},
      {false, [](FCMBRNetworkChannel& c) { c.SetMinor(2); }},
      {false,
       [](FCMBRNetworkChannel& c) {
         std::string s = "namf";
         c.SetName(s);
       }},
      {false,
       [](FCMBRNetworkChannel& c) {
         std::string s = "o";
         c.SetOriginName(s);
       }},
      {false,
       [](FCMBRNetworkChannel& c) {
         int id = 31;
         c.SetChannelID(id);
       }},
      {false, [](FCMBRNetworkChannel& c) { c.SetFavorite(FCMBRNetworkChannel::eFavorite1, true); }},
      {false, [](FCMBRNetworkChannel& c) { c.SetDigitalFlag(false); }}};
  const FCMBRNetworkChannel base = Channel(5, 1, 30, "name");
  for (const auto& [stillEqual, change] : cases) {
    FCMBRNetworkChannel other = base;
    change(other);
    EXPECT_EQ(base == other, stillEqual) << JsonOf(other);
  }
}

TEST(MBRNetworkChannel, ConvertEndianSwapsUnitsAndTerminates) {
  const struct {
    std::vector<unsigned char> src;
    int length;
    std::vector<unsigned char> expected;  // the bytes of dst that are written
    int converted;
  } cases[] = {{{'A', 0, 'B', 0}, 4, {0, 'A', 0, 'B', 0, 0}, 4},
               {{'A', 0, 0, 0, 'B', 0}, 6, {0, 'A', 0, 0}, 2},    // stops at a zero unit
               {{0, 'A', 'B', 0}, 4, {'A', 0, 0, 'B', 0, 0}, 4},  // a zero high byte is no stop
               {{1, 2, 3, 4}, 3, {2, 1, 4, 3, 0, 0}, 4},          // an odd length takes the whole unit
               {{1, 2, 3, 4, 5, 6}, 2, {2, 1, 0, 0}, 2},
               {{1, 2}, 0, {0, 0}, 0},
               {{1, 2}, -4, {0, 0}, 0}};
  FCMBRNetworkChannel channel;
  for (const auto& c : cases) {
    std::vector<unsigned char> src = c.src, dst(16, 0xEE), expected = c.expected;
    src.resize(16, 0xAA);
    expected.resize(16, 0xEE);
    EXPECT_EQ(channel.m_ConvertEndian(dst.data(), src.data(), c.length), c.converted);
    // Without either buffer nothing is written.
    EXPECT_EQ(channel.m_ConvertEndian(nullptr, src.data(), c.length), 1);
    EXPECT_EQ(channel.m_ConvertEndian(dst.data(), nullptr, c.length), 1);
    EXPECT_EQ(dst, expected) << "length " << c.length;
  }
}

TEST(MBRNetworkProgram, IdentityIsTheProgramIdAlone) {
  FCMBRNetworkProgram film = Program("p1", 900, 60);
  std::string title = "film";
  film.SetTitle(title);
  film.SetChannelID(3);
  EXPECT_EQ(Program("p1", 100), film);
  EXPECT_FALSE(Program("p1", 100) == Program("p2", 100));
  EXPECT_TRUE(Program("ab", 900) < Program("abc", 100));
  EXPECT_TRUE(Program("Z", 0) < Program("a", 0));
  EXPECT_FALSE(Program("p1", 100) < Program("p1", 900));
}

}  // namespace
