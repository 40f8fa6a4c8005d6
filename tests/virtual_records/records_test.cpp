#include <gtest/gtest.h>

#include <json/json.h>

#include <string>

#include "FCMarshal.h"
#include "FCVirtualProgramData.h"
#include "record_json.h"

namespace {

using vcrecords::Read;
using vcrecords::Write;

// --- FCVirtualProgramId ---

FCVirtualProgramId Id(unsigned long long serviceId, const char* eventId, unsigned int start, unsigned int duration) {
  FCVirtualProgramId id;
  id.SetServiceId(serviceId);
  id.SetEventId(eventId);
  id.SetStartTime(start);
  id.SetDuration(duration);
  return id;
}

TEST(FCVirtualProgramId, WireFormRoundTrips) {
  const std::string json =
      "{\"program_id\":{\"TCServiceId\":\"18446744073709551615\",\"duration\":60,\"event_id\":\"ev\",\"start_time\":"
      "100}}"
      "\n";
  EXPECT_EQ(json, Write(Id(18446744073709551615ULL, "ev", 100, 60)));
  // Through the text form, since equality lets a zero service id pass.
  EXPECT_EQ("TCServiceId: 18446744073709551615\nid: ev\nstart_time: 100\nduration: 60\n",
            Read<FCVirtualProgramId>(json).ToString());
  for (const char* missing : {"{}", "{\"program_id\":{}}", "{\"program_id\":5}", "[]"})
    EXPECT_EQ(FCVirtualProgramId().ToString(), Read<FCVirtualProgramId>(missing).ToString()) << missing;
}

TEST(FCVirtualProgramId, StartTimeIsANumberOrADateTimeText) {
  const std::pair<const char*, unsigned int> cases[] = {
      {"1456864200", 1456864200U}, {"\"2016-03-01T20:30:00Z\"", 1456864200U}, {"\"1456864200\"", 0U}, {"-1", 0U}};
  for (const auto& [startTime, expected] : cases) {
    const std::string json = std::string("{\"program_id\":{\"start_time\":") + startTime + "}}";
    EXPECT_EQ(expected, Read<FCVirtualProgramId>(json).GetStartTime()) << json;
  }
}

// The slot of the same four identity fields, with a title and a playlist,
// which take no part in its comparisons.
FCVirtualProgramData Slot(const FCVirtualProgramId& id, const char* title) {
  FCVirtualProgramData program;
  program.SetServiceId(id.GetServiceId());
  program.SetEventId(id.GetEventId());
  program.SetStartTime(id.GetStartTime());
  program.SetDuration(id.GetDuration());
  program.SetTitle(title);
  if (*title != '\0') program.SetPlaylist({FCVirtualPlaylistItem()});
  return program;
}

struct CompareCase {
  FCVirtualProgramId left, right;
  bool less, equal;
  bool slotsEqual;  // the slots want the exact service id
};

class ProgramIdCompare : public ::testing::TestWithParam<CompareCase> {};

TEST_P(ProgramIdCompare, ServiceThenStartThenEventIdAndZeroServiceIsAny) {
  const CompareCase& c = GetParam();
  EXPECT_EQ(c.less, c.left < c.right);
  EXPECT_EQ(c.equal, c.left == c.right);
  EXPECT_EQ(c.less, Slot(c.left, "a title") < Slot(c.right, ""));
  EXPECT_EQ(c.slotsEqual, Slot(c.left, "a title") == Slot(c.right, ""));
}

const CompareCase kCompareCases[] = {
    {Id(7, "e", 100, 60), Id(7, "e", 100, 60), false, true, true},
    {Id(7, "z", 900, 0), Id(8, "a", 100, 0), true, false, false},
    {Id(8, "a", 100, 0), Id(7, "z", 900, 0), false, false, false},
    // The whole 64 bits take part, unsigned.
    {Id(0x100000000ULL, "a", 0, 0), Id(0xFFFFFFFFFFFFFFFFULL, "a", 0, 0), true, false, false},
    // An unknown service matches any: the start time decides the order.
    {Id(0, "e", 100, 60), Id(7, "e", 100, 60), false, true, false},
    {Id(7, "e", 100, 60), Id(0, "e", 100, 60), false, true, false},
    {Id(0, "a", 200, 0), Id(7, "a", 100, 0), false, false, false},
    {Id(7, "a", 100, 0), Id(0, "a", 200, 0), true, false, false},
    // Byte order: "Z" (0x5A) before "a" (0x61), "\xC3" after both.
    {Id(7, "Z", 100, 0), Id(7, "a", 100, 0), true, false, false},
    {Id(7, "\xC3", 100, 0), Id(7, "a", 100, 0), false, false, false},
    // Duration takes part in equality only.
    {Id(7, "a", 100, 1), Id(7, "a", 100, 2), false, false, false}};

INSTANTIATE_TEST_SUITE_P(Pairs, ProgramIdCompare, ::testing::ValuesIn(kCompareCases));

// --- FCVirtualPlaylistItem ---

FCVirtualPlaylistItem Item() {
  FCVirtualPlaylistItem item;
  item.SetOrder(3);
  item.SetItemId("c3");
  item.SetTitle("Clip");
  item.SetContentUri("http://c/3");
  item.SetDuration(45);
  return item;
}

TEST(FCVirtualPlaylistItem, WireAndTextForms) {
  const std::string json =
      "{\"content_uri\":\"http://c/3\",\"duration\":45,\"id\":\"c3\",\"order\":3,\"title\":\"Clip\"}\n";
  EXPECT_EQ(json, Write(Item()));
  EXPECT_TRUE(Item() == Read<FCVirtualPlaylistItem>(json));
  EXPECT_TRUE(FCVirtualPlaylistItem() == Read<FCVirtualPlaylistItem>("{}"));
  // Order and duration may come as numeric text.
  const auto item = Read<FCVirtualPlaylistItem>("{\"order\":\"0x10\",\"duration\":\"010\"}");
  EXPECT_EQ(16U, item.GetOrder());
  EXPECT_EQ(8U, item.GetDuration());
  EXPECT_EQ("order: 3\nid: c3\ntitle: Clip\ncontent_uri: http://c/3\nduration: 45\n", Item().ToString());
}

TEST(FCVirtualPlaylistItem, EveryFieldTakesPartInEquality) {
  using Change = void (*)(FCVirtualPlaylistItem&);
  for (Change change : {Change([](FCVirtualPlaylistItem& i) { i.SetOrder(4); }),
                        Change([](FCVirtualPlaylistItem& i) { i.SetItemId("c4"); }),
                        Change([](FCVirtualPlaylistItem& i) { i.SetTitle("Other"); }),
                        Change([](FCVirtualPlaylistItem& i) { i.SetContentUri("u"); }),
                        Change([](FCVirtualPlaylistItem& i) { i.SetDuration(46); })}) {
    FCVirtualPlaylistItem item = Item();
    change(item);
    EXPECT_FALSE(item == Item()) << item.ToString();
  }
}

// --- FCVirtualChannelInfo ---

FCVirtualChannelInfo Channel() {
  FCVirtualChannelInfo info;
  info.SetMajor("101");
  info.SetChannelName("Movies");
  info.SetLogoCollection({{"small.png", 1}, {"big.png", 2}});
  return info;
}

TEST(FCVirtualChannelInfo, WireFormHasLogosInKeyOrderAndNoEmptyCollection) {
  const std::string json =
      "{\"channel_name\":\"Movies\",\"logo_collection\":[{\"index\":2,\"logo\":\"big.png\"},"
      "{\"index\":1,\"logo\":\"small.png\"}],\"major\":\"101\"}\n";
  EXPECT_EQ(json, Write(Channel()));
  EXPECT_EQ(json, Write(Read<FCVirtualChannelInfo>(json)));

  FCVirtualChannelInfo info = Channel();
  info.SetLogoCollection({});
  EXPECT_EQ("{\"channel_name\":\"Movies\",\"major\":\"101\"}\n", Write(info));
  // The label is repeated for the major as the service's logs have it.
  EXPECT_EQ("channel name: Movies\nchannel name: 101\nlogo[big.png]: 2\nlogo[small.png]: 1\n", Channel().ToString());
}

TEST(FCVirtualChannelInfo, MissingMajorReadsAsZeroAndALaterDuplicateLogoWins) {
  EXPECT_EQ("{\"channel_name\":\"\",\"major\":\"0\"}\n", Write(Read<FCVirtualChannelInfo>("{}")));
  EXPECT_EQ("", Read<FCVirtualChannelInfo>("{\"major\":\"\"}").GetMajor());
  const std::map<std::string, int> expected = {{"a", 5}, {"b", 0}, {"", 9}};
  EXPECT_EQ(expected, Read<FCVirtualChannelInfo>("{\"logo_collection\":[{\"logo\":\"a\",\"index\":1},{\"logo\":\"a\","
                                                 "\"index\":5},{\"logo\":\"b\"},{\"index\":9}]}")
                          .GetLogoCollection());
}

// --- FCVirtualConfig ---

TEST(FCVirtualConfig, WireForm) {
  const std::string json =
      "{\"ch_position\":{\"position\":\"after\",\"type\":\"number\"},"
      "\"vc_banner\":{\"tv_to_vc\":\"Welcome\",\"vc_to_tv\":\"Bye\"}}\n";
  const FCVirtualConfig config = Read<FCVirtualConfig>(json);
  EXPECT_EQ("after/number/Welcome/Bye", config.GetChPosition() + "/" + config.GetChPositionType() + "/" +
                                            config.GetBannerTvToVc() + "/" + config.GetBannerVcToTv());
  EXPECT_EQ(json, Write(config));
  EXPECT_EQ("{\"ch_position\":{\"position\":\"\",\"type\":\"\"},\"vc_banner\":{\"tv_to_vc\":\"\",\"vc_to_tv\":\"\"}}\n",
            Write(Read<FCVirtualConfig>("{\"ch_position\":null}")));
}

// --- service id marshalling ---

TEST(FCMarshalVirtualChannels, ServiceIdIsDecimalTextAndAbsentReadsAsZero) {
  Json::Value root;
  EXPECT_TRUE(FCMarshal::VCServiceIdToJson(18446744073709551615ULL, root));
  EXPECT_EQ("{\"TCServiceId\":\"18446744073709551615\"}\n", vcrecords::Compact(root));
  unsigned long long id = 1, absent = 5;
  EXPECT_TRUE(FCMarshal::VCJsonToServiceId(root, id));
  EXPECT_EQ(18446744073709551615ULL, id);
  Json::Value other = vcrecords::Parsed("{\"other\":1}");
  EXPECT_TRUE(FCMarshal::VCJsonToServiceId(other, absent));
  EXPECT_EQ(0ULL, absent);
  EXPECT_FALSE(other.isMember("TCServiceId"));
}

}  // namespace
