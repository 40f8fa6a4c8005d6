#include <gtest/gtest.h>

#include <json/json.h>

#include <functional>
#include <string>

#include "FCMarshal.h"
#include "FCVirtualProgramData.h"

namespace {

std::string Compact(const Json::Value& value) { return Json::FastWriter().write(value); }

Json::Value Parse(const std::string& text) {
  Json::Value value;
  EXPECT_TRUE(Json::Reader().parse(text, value)) << text;
  return value;
}

// Every record reads and writes through the same pair of static functions.
template <typename Record>
std::string Write(const Record& record) {
  Json::Value out;
  EXPECT_TRUE(Record::ToJson(record, out));
  return Compact(out);
}

template <typename Record>
Record Read(const std::string& text) {
  Json::Value in = Parse(text);
  Record record;
  EXPECT_TRUE(Record::FromJson(in, record));
  return record;
}

// --- FCVirtualProgramId ---

FCVirtualProgramId Id(unsigned long long serviceId, const char* eventId, unsigned int start, unsigned int duration) {
  FCVirtualProgramId id;
  id.SetServiceId(serviceId);
  id.SetEventId(eventId);
  id.SetStartTime(start);
  id.SetDuration(duration);
  return id;
}

TEST(FCVirtualProgramId, WritesOneNestedProgramIdObject) {
  Json::Value out;
  FCVirtualProgramId::ToJson(Id(12345678901234ULL, "ev", 100, 60), out);
  EXPECT_EQ(
      "{\"program_id\":{\"TCServiceId\":\"12345678901234\",\"duration\":60,\"event_id\":\"ev\",\"start_time\":100}}\n",
      Compact(out));
  EXPECT_EQ(Json::uintValue, out["program_id"]["start_time"].type());
  EXPECT_EQ(Json::uintValue, out["program_id"]["duration"].type());
}

TEST(FCVirtualProgramId, ReadsItsOwnForm) {
  EXPECT_TRUE(Id(12345678901234ULL, "ev", 100, 60) ==
              Read<FCVirtualProgramId>(Write(Id(12345678901234ULL, "ev", 100, 60))));
  const FCVirtualProgramId id = Read<FCVirtualProgramId>(Write(Id(7, "ev", 100, 60)));
  EXPECT_EQ(7ULL, id.GetServiceId());
}

struct IdStartCase {
  const char* startTime;
  unsigned int expected;
};

class ProgramIdStartTime : public ::testing::TestWithParam<IdStartCase> {};

TEST_P(ProgramIdStartTime, IsANumberOrADateTimeText) {
  const std::string json = std::string("{\"program_id\":{\"start_time\":") + GetParam().startTime + "}}";
  EXPECT_EQ(GetParam().expected, Read<FCVirtualProgramId>(json).GetStartTime()) << json;
}

INSTANTIATE_TEST_SUITE_P(Values, ProgramIdStartTime,
                         ::testing::Values(IdStartCase{"1456864200", 1456864200U},
                                           IdStartCase{"\"2016-03-01T20:30:00Z\"", 1456864200U},
                                           IdStartCase{"\"1456864200\"", 0U}, IdStartCase{"null", 0U},
                                           IdStartCase{"-1", 0U}));

TEST(FCVirtualProgramId, MissingMembersReadAsZeroAndEmpty) {
  for (const char* json : {"{}", "{\"program_id\":{}}", "{\"program_id\":5}", "[]"}) {
    const FCVirtualProgramId id = Read<FCVirtualProgramId>(json);
    EXPECT_TRUE(Id(0, "", 0, 0) == id) << json;
    EXPECT_EQ(0ULL, id.GetServiceId()) << json;
  }
}

TEST(FCVirtualProgramId, ZeroServiceIdMatchesAnyService) {
  EXPECT_TRUE(Id(0, "e", 100, 60) == Id(7, "e", 100, 60));
  EXPECT_TRUE(Id(7, "e", 100, 60) == Id(0, "e", 100, 60));
  EXPECT_FALSE(Id(8, "e", 100, 60) == Id(7, "e", 100, 60));
  EXPECT_FALSE(Id(7, "f", 100, 60) == Id(7, "e", 100, 60));
  EXPECT_FALSE(Id(7, "e", 101, 60) == Id(7, "e", 100, 60));
  EXPECT_FALSE(Id(7, "e", 100, 61) == Id(7, "e", 100, 60));
}

struct OrderCase {
  FCVirtualProgramId left, right;
  bool less;
};

class ProgramIdOrder : public ::testing::TestWithParam<OrderCase> {};

TEST_P(ProgramIdOrder, ServiceThenStartThenEventId) { EXPECT_EQ(GetParam().less, GetParam().left < GetParam().right); }

INSTANTIATE_TEST_SUITE_P(Pairs, ProgramIdOrder,
                         ::testing::Values(OrderCase{Id(7, "z", 900, 0), Id(8, "a", 100, 0), true},
                                           OrderCase{Id(8, "a", 100, 0), Id(7, "z", 900, 0), false},
                                           // The whole 64 bits take part, unsigned.
                                           OrderCase{Id(0x100000000ULL, "a", 0, 0),
                                                     Id(0xFFFFFFFFFFFFFFFFULL, "a", 0, 0), true},
                                           // An unknown service falls through to the start time.
                                           OrderCase{Id(0, "a", 200, 0), Id(7, "a", 100, 0), false},
                                           OrderCase{Id(7, "a", 100, 0), Id(0, "a", 200, 0), true},
                                           OrderCase{Id(7, "b", 100, 0), Id(7, "a", 100, 0), false},
                                           OrderCase{Id(7, "a", 100, 0), Id(7, "b", 100, 0), true},
                                           // Byte order: "Z" (0x5A) before "a" (0x61), "\xC3" after both.
                                           OrderCase{Id(7, "Z", 100, 0), Id(7, "a", 100, 0), true},
                                           OrderCase{Id(7, "\xC3", 100, 0), Id(7, "a", 100, 0), false},
                                           // Duration takes no part.
                                           OrderCase{Id(7, "a", 100, 1), Id(7, "a", 100, 2), false},
                                           OrderCase{Id(7, "a", 100, 2), Id(7, "a", 100, 1), false}));

TEST(FCVirtualProgramId, ToStringListsTheFourFields) {
  EXPECT_EQ("TCServiceId: 18446744073709551615\nid: ev\nstart_time: 100\nduration: 60\n",
            Id(18446744073709551615ULL, "ev", 100, 60).ToString());
}

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

TEST(FCVirtualPlaylistItem, WireForm) {
  const std::string json =
      "{\"content_uri\":\"http://c/3\",\"duration\":45,\"id\":\"c3\",\"order\":3,\"title\":\"Clip\"}\n";
  EXPECT_EQ(json, Write(Item()));
  EXPECT_TRUE(Item() == Read<FCVirtualPlaylistItem>(json));
  EXPECT_TRUE(FCVirtualPlaylistItem() == Read<FCVirtualPlaylistItem>("{}"));
}

TEST(FCVirtualPlaylistItem, OrderAndDurationMayBeNumericText) {
  const FCVirtualPlaylistItem item = Read<FCVirtualPlaylistItem>("{\"order\":\"0x10\",\"duration\":\"010\"}");
  EXPECT_EQ(16U, item.GetOrder());
  EXPECT_EQ(8U, item.GetDuration());
}

TEST(FCVirtualPlaylistItem, EveryFieldTakesPartInEquality) {
  const std::function<void(FCVirtualPlaylistItem&)> changes[] = {
      [](FCVirtualPlaylistItem& i) { i.SetOrder(4); },
      [](FCVirtualPlaylistItem& i) { i.SetItemId("c4"); },
      [](FCVirtualPlaylistItem& i) { i.SetTitle("Other"); },
      [](FCVirtualPlaylistItem& i) { i.SetContentUri("http://c/4"); },
      [](FCVirtualPlaylistItem& i) { i.SetDuration(46); },
  };
  for (const auto& change : changes) {
    FCVirtualPlaylistItem item = Item();
    change(item);
    EXPECT_FALSE(item == Item()) << item.ToString();
  }
}

TEST(FCVirtualPlaylistItem, ToStringListsTheFiveFields) {
  EXPECT_EQ("order: 3\nid: c3\ntitle: Clip\ncontent_uri: http://c/3\nduration: 45\n", Item().ToString());
}

// --- FCVirtualChannelInfo ---

FCVirtualChannelInfo Channel() {
  FCVirtualChannelInfo info;
  info.SetMajor("101");
  info.SetChannelName("Movies");
  info.SetLogoCollection({{"small.png", 1}, {"big.png", 2}});
  return info;
}

TEST(FCVirtualChannelInfo, WritesLogosInKeyOrder) {
  EXPECT_EQ(
      "{\"channel_name\":\"Movies\",\"logo_collection\":[{\"index\":2,\"logo\":\"big.png\"},"
      "{\"index\":1,\"logo\":\"small.png\"}],\"major\":\"101\"}\n",
      Write(Channel()));
}

TEST(FCVirtualChannelInfo, LeavesOutAnEmptyLogoCollection) {
  FCVirtualChannelInfo info = Channel();
  info.SetLogoCollection({});
  EXPECT_EQ("{\"channel_name\":\"Movies\",\"major\":\"101\"}\n", Write(info));
}

TEST(FCVirtualChannelInfo, ReadsItsOwnForm) {
  const FCVirtualChannelInfo info = Read<FCVirtualChannelInfo>(Write(Channel()));
  EXPECT_EQ("101", info.GetMajor());
  EXPECT_EQ("Movies", info.GetChannelName());
  EXPECT_EQ(Channel().GetLogoCollection(), info.GetLogoCollection());
}

TEST(FCVirtualChannelInfo, MissingMajorReadsAsZeroButMissingNameAsEmpty) {
  const FCVirtualChannelInfo info = Read<FCVirtualChannelInfo>("{}");
  EXPECT_EQ("0", info.GetMajor());
  EXPECT_EQ("", info.GetChannelName());
  EXPECT_TRUE(info.GetLogoCollection().empty());
  EXPECT_EQ("", Read<FCVirtualChannelInfo>("{\"major\":\"\"}").GetMajor());
}

TEST(FCVirtualChannelInfo, LaterDuplicateLogoWinsAndMissingPartsDefault) {
  const FCVirtualChannelInfo info = Read<FCVirtualChannelInfo>(
      "{\"logo_collection\":[{\"logo\":\"a\",\"index\":1},{\"logo\":\"a\",\"index\":5},{\"logo\":\"b\"},{\"index\":9}]"
      "}");
  const std::map<std::string, int> expected = {{"a", 5}, {"b", 0}, {"", 9}};
  EXPECT_EQ(expected, info.GetLogoCollection());
}

TEST(FCVirtualChannelInfo, ToStringRepeatsTheNameLabelForTheMajor) {
  EXPECT_EQ("channel name: Movies\nchannel name: 101\nlogo[big.png]: 2\nlogo[small.png]: 1\n", Channel().ToString());
}

// --- FCVirtualConfig ---

TEST(FCVirtualConfig, WireForm) {
  const std::string json =
      "{\"ch_position\":{\"position\":\"after\",\"type\":\"number\"},"
      "\"vc_banner\":{\"tv_to_vc\":\"Welcome\",\"vc_to_tv\":\"Bye\"}}\n";
  const FCVirtualConfig config = Read<FCVirtualConfig>(json);
  EXPECT_EQ("after", config.GetChPosition());
  EXPECT_EQ("number", config.GetChPositionType());
  EXPECT_EQ("Welcome", config.GetBannerTvToVc());
  EXPECT_EQ("Bye", config.GetBannerVcToTv());
  EXPECT_EQ(json, Write(config));
}

TEST(FCVirtualConfig, MissingMembersReadAsEmpty) {
  EXPECT_EQ("{\"ch_position\":{\"position\":\"\",\"type\":\"\"},\"vc_banner\":{\"tv_to_vc\":\"\",\"vc_to_tv\":\"\"}}\n",
            Write(Read<FCVirtualConfig>("{\"ch_position\":null}")));
}

// --- service id marshalling ---

TEST(FCMarshalVirtualChannels, ServiceIdIsDecimalText) {
  Json::Value root;
  EXPECT_TRUE(FCMarshal::VCServiceIdToJson(18446744073709551615ULL, root));
  EXPECT_EQ("{\"TCServiceId\":\"18446744073709551615\"}\n", Compact(root));

  unsigned long long id = 1;
  EXPECT_TRUE(FCMarshal::VCJsonToServiceId(root, id));
  EXPECT_EQ(18446744073709551615ULL, id);
}

TEST(FCMarshalVirtualChannels, AbsentServiceIdReadsAsZeroWithoutAddingTheKey) {
  Json::Value root = Parse("{\"other\":1}");
  unsigned long long id = 5;
  EXPECT_TRUE(FCMarshal::VCJsonToServiceId(root, id));
  EXPECT_EQ(0ULL, id);
  EXPECT_FALSE(root.isMember("TCServiceId"));
}

}  // namespace
