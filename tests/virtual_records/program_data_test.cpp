#include <gtest/gtest.h>

#include <dlog.h>
#include <json/json.h>

#include <string>
#include <vector>

#include "FCTimeWapper.h"
#include "FCVirtualProgramData.h"
#include "log_capture.h"

namespace {

// 2016-03-01T20:30:00Z
constexpr unsigned int kMarch2016 = 1456864200U;

std::string Compact(const Json::Value& value) { return Json::FastWriter().write(value); }

Json::Value Parse(const std::string& text) {
  Json::Value value;
  EXPECT_TRUE(Json::Reader().parse(text, value)) << text;
  return value;
}

Json::Value ToJson(const FCVirtualProgramData& program) {
  Json::Value out;
  EXPECT_TRUE(FCVirtualProgramData::ToJson(program, out));
  return out;
}

FCVirtualProgramData FromJson(const std::string& text) {
  Json::Value in = Parse(text);
  FCVirtualProgramData program;
  EXPECT_TRUE(FCVirtualProgramData::FromJson(in, program));
  return program;
}

FCVirtualProgramData SampleProgram() {
  FCVirtualProgramData program;
  program.SetServiceId(18446744073709551615ULL);
  program.SetEventId("ev1");
  program.SetContentType("vod");
  program.SetContentUri("http://a/b");
  program.SetStartTime(kMarch2016);
  program.SetDuration(1800);
  program.SetTitle("News");
  program.SetPosterUrl("http://p");
  program.SetPosterIndex("2");
  program.SetShortDescription("short");
  program.SetRelativeOffset(5);
  program.SetPlaylistItemIndex(0);
  FCVirtualPlaylistItem item;
  item.SetOrder(1);
  item.SetItemId("c1");
  item.SetTitle("Clip");
  item.SetContentUri("http://c");
  item.SetDuration(60);
  program.SetPlaylist({item});
  return program;
}

const char kSampleJson[] =
    "{\"content_type\":\"vod\",\"content_uri\":\"http://a/b\",\"duration\":1800,"
    "\"group_play_list\":[{\"content_uri\":\"http://c\",\"duration\":60,\"id\":\"c1\",\"order\":1,"
    "\"title\":\"Clip\"}],\"id\":\"ev1\",\"playlist_item_index\":0,"
    "\"poster\":{\"index\":\"2\",\"url\":\"http://p\"},"
    "\"program_data\":{\"TCServiceId\":\"18446744073709551615\"},\"relative_offset\":5,"
    "\"short_desc\":\"short\",\"starttime\":\"2016-03-01T20:30:00Z\",\"title\":\"News\"}\n";

TEST(FCVirtualProgramDataJson, DefaultRecordWritesEveryFieldButThePlaylist) {
  EXPECT_EQ(
      "{\"content_type\":\"\",\"content_uri\":\"\",\"duration\":0,\"id\":\"\",\"playlist_item_index\":-1,"
      "\"poster\":{\"index\":\"\",\"url\":\"\"},\"program_data\":{\"TCServiceId\":\"0\"},\"relative_offset\":-1,"
      "\"short_desc\":\"\",\"starttime\":\"1970-01-01T00:00:00Z\",\"title\":\"\"}\n",
      Compact(ToJson(FCVirtualProgramData())));
}

TEST(FCVirtualProgramDataJson, WritesKeysAndTypesOfTheWireForm) {
  const Json::Value out = ToJson(SampleProgram());
  EXPECT_EQ(kSampleJson, Compact(out));
  EXPECT_EQ(Json::stringValue, out["program_data"]["TCServiceId"].type());
  EXPECT_EQ(Json::uintValue, out["duration"].type());
  EXPECT_EQ(Json::intValue, out["relative_offset"].type());
  EXPECT_EQ(Json::intValue, out["playlist_item_index"].type());
  EXPECT_EQ(Json::uintValue, out["group_play_list"][0]["order"].type());
}

TEST(FCVirtualProgramDataJson, ReadsItsOwnWireForm) {
  const FCVirtualProgramData program = FromJson(kSampleJson);
  const FCVirtualProgramData sample = SampleProgram();
  EXPECT_EQ(sample.GetServiceId(), program.GetServiceId());
  EXPECT_EQ(kMarch2016, program.GetStartTime());
  EXPECT_EQ("vod", program.GetContentType());
  EXPECT_EQ("http://a/b", program.GetContentUri());
  EXPECT_EQ("News", program.GetTitle());
  EXPECT_EQ("short", program.GetShortDescription());
  EXPECT_EQ("http://p", program.GetPosterUrl());
  EXPECT_EQ("2", program.GetPosterIndex());
  EXPECT_EQ(5, program.GetRelativeOffset());
  EXPECT_EQ(0, program.GetPlaylistItemIndex());
  EXPECT_EQ(sample.GetPlaylist(), program.GetPlaylist());
  EXPECT_EQ("{}\n", program.metadata);
  EXPECT_EQ(kSampleJson, Compact(ToJson(program)));
}

TEST(FCVirtualProgramDataJson, MissingKeysReadAsDefaults) {
  const FCVirtualProgramData program = FromJson("{\"program_data\":{}}");
  EXPECT_EQ(0ULL, program.GetServiceId());
  EXPECT_EQ("", program.GetEventId());
  EXPECT_EQ(0U, program.GetStartTime());
  EXPECT_EQ(0U, program.GetDuration());
  EXPECT_EQ(-1, program.GetRelativeOffset());
  EXPECT_EQ(-1, program.GetPlaylistItemIndex());
  EXPECT_TRUE(program.GetPlaylist().empty());
}

TEST(FCVirtualProgramDataJson, ValuesOfTheWrongTypeReadAsEmpty) {
  const FCVirtualProgramData program = FromJson(
      "{\"program_data\":[1],\"id\":{},\"duration\":[],\"relative_offset\":\"x\",\"poster\":\"p\","
      "\"group_play_list\":{\"order\":1}}");
  EXPECT_EQ(0ULL, program.GetServiceId());
  EXPECT_EQ("", program.GetEventId());
  EXPECT_EQ(0U, program.GetDuration());
  EXPECT_EQ(0, program.GetRelativeOffset());
  EXPECT_EQ("", program.GetPosterUrl());
  EXPECT_TRUE(program.GetPlaylist().empty());
}

TEST(FCVirtualProgramDataJson, ReadingLeavesTheInputAsItWas) {
  Json::Value in = Parse("{\"id\":\"e\",\"extra\":1}");
  const Json::Value before = in;
  FCVirtualProgramData program;
  FCVirtualProgramData::FromJson(in, program);
  EXPECT_EQ(before, in);
}

TEST(FCVirtualProgramDataJson, ReadingAppendsToThePlaylist) {
  FCVirtualProgramData program = SampleProgram();
  const size_t held = program.GetPlaylist().size();
  Json::Value in = Parse("{\"group_play_list\":[{\"id\":\"a\"},{\"id\":\"b\"}]}");
  FCVirtualProgramData::FromJson(in, program);
  ASSERT_EQ(held + 2, program.GetPlaylist().size());
  EXPECT_EQ("a", program.GetPlaylist()[held].GetItemId());
  EXPECT_EQ("b", program.GetPlaylist()[held + 1].GetItemId());
}

struct NumberCase {
  const char* json;  // the value of the member
  unsigned int expected;
};

class StartTimeReading : public ::testing::TestWithParam<NumberCase> {};

TEST_P(StartTimeReading, AcceptsDateTimeOrEpochText) {
  const std::string json = std::string("{\"starttime\":") + GetParam().json + "}";
  EXPECT_EQ(GetParam().expected, FromJson(json).GetStartTime()) << json;
}

INSTANTIATE_TEST_SUITE_P(Texts, StartTimeReading,
                         ::testing::Values(NumberCase{"\"2016-03-01T20:30:00Z\"", kMarch2016},
                                           NumberCase{"\"2016-03-01T20:30:00\"", kMarch2016},
                                           NumberCase{"\"1456864200\"", kMarch2016},
                                           NumberCase{"1456864200", kMarch2016}, NumberCase{"\"0x10\"", 16U},
                                           NumberCase{"\"soon\"", 0U}, NumberCase{"null", 0U}));

class DurationReading : public ::testing::TestWithParam<NumberCase> {};

TEST_P(DurationReading, AcceptsNumbersAndNumericText) {
  const std::string json = std::string("{\"duration\":") + GetParam().json + "}";
  EXPECT_EQ(GetParam().expected, FromJson(json).GetDuration()) << json;
}

INSTANTIATE_TEST_SUITE_P(Texts, DurationReading,
                         ::testing::Values(NumberCase{"1800", 1800U}, NumberCase{"\"1800\"", 1800U},
                                           NumberCase{"\"0x10\"", 16U}, NumberCase{"\"010\"", 8U},
                                           NumberCase{"true", 1U}, NumberCase{"\"\"", 0U}));

TEST(FCVirtualProgramDataJson, ServiceIdIsDecimalTextUnderProgramData) {
  EXPECT_EQ(0ULL, FromJson("{\"program_data\":{\"id\":\"9\"}}").GetServiceId());
  EXPECT_EQ(7ULL, FromJson("{\"program_data\":{\"TCServiceId\":\"7\"}}").GetServiceId());
  EXPECT_EQ(7ULL, FromJson("{\"program_data\":{\"TCServiceId\":\"007\"}}").GetServiceId());
  EXPECT_EQ(18446744073709551615ULL,
            FromJson("{\"program_data\":{\"TCServiceId\":\"18446744073709551615\"}}").GetServiceId());
}

// --- metadata ---

struct MetadataCase {
  const char* metadata;
  const char* added;  // the members the metadata adds to the default record's form
};

class MetadataWriting : public ::testing::TestWithParam<MetadataCase> {};

TEST_P(MetadataWriting, SpreadsNonEmptyMembersOverTheTopLevel) {
  const Json::Value plain = ToJson(FCVirtualProgramData());
  FCVirtualProgramData program;
  program.metadata = GetParam().metadata;

  Json::Value expected = plain;
  const Json::Value added = Parse(GetParam().added);
  for (const std::string& key : added.getMemberNames()) expected[key] = added[key];
  EXPECT_EQ(Compact(expected), Compact(ToJson(program)));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MetadataWriting,
    ::testing::Values(MetadataCase{"", "{}"}, MetadataCase{"not json", "{}"}, MetadataCase{"{\"a\":", "{}"},
                      MetadataCase{"{\"lang\":\"en\",\"empty\":\"\"}", "{\"lang\":\"en\"}"},
                      MetadataCase{"{\"n\":null,\"arr\":[],\"obj\":{},\"s\":\"\"}", "{}"},
                      MetadataCase{"{\"zero\":0,\"no\":false,\"neg\":-2,\"pi\":1.5}",
                                   "{\"zero\":0,\"no\":false,\"neg\":-2,\"pi\":1.5}"},
                      MetadataCase{"{\"arr\":[null],\"obj\":{\"k\":\"\"}}", "{\"arr\":[null],\"obj\":{\"k\":\"\"}}"},
                      // A member under a field's key wins over the field.
                      MetadataCase{"{\"title\":\"Other\",\"duration\":\"90\"}",
                                   "{\"title\":\"Other\",\"duration\":\"90\"}"},
                      // Only an empty value is skipped, not the field it would hide.
                      MetadataCase{"{\"title\":\"\"}", "{}"},
                      // Parsed but no object: nothing to spread.
                      MetadataCase{"[1,2]", "{}"}, MetadataCase{"5", "{}"}));

TEST(FCVirtualProgramDataJson, ParsedMetadataIsLoggedAsTheServiceParserDoes) {
  using zunde::testing::LogCapture;
  FCVirtualProgramData program;
  LogCapture::Clear();
  ToJson(program);
  EXPECT_TRUE(LogCapture::Records().empty());

  program.metadata = "{}";
  ToJson(program);
  const std::vector<zunde::testing::LogRecord> records = LogCapture::Records();
  ASSERT_EQ(1U, records.size());
  EXPECT_EQ(LOG_ID_MAIN, records[0].logId);
  EXPECT_EQ(DLOG_DEBUG, records[0].priority);
  EXPECT_EQ("zunde-provider", records[0].tag);
  EXPECT_EQ("%s: %s(%d) > DBG_LV[%d][CZundeResponseParser::%s]  reader.parse(metadata) is OK\n", records[0].format);
  const std::string tail = " > DBG_LV[3][CZundeResponseParser::ToJson]  reader.parse(metadata) is OK\n";
  ASSERT_GE(records[0].text.size(), tail.size());
  EXPECT_EQ(tail, records[0].text.substr(records[0].text.size() - tail.size()));
  EXPECT_EQ(0U, records[0].text.find("common/Zunde/Common/FCVirtualProgramData.cpp: ToJson("));
}

TEST(FCVirtualProgramDataJson, UnknownNonEmptyMembersAreGatheredAsMetadata) {
  const FCVirtualProgramData program = FromJson(
      "{\"id\":\"e\",\"ret\":true,\"rating\":{\"age\":12},\"count\":0,\"note\":\"\",\"none\":null,"
      "\"list\":[],\"map\":{},\"tags\":[\"a\"]}");
  EXPECT_EQ("{\"count\":0,\"rating\":{\"age\":12},\"ret\":true,\"tags\":[\"a\"]}\n", program.metadata);
}

TEST(FCVirtualProgramDataJson, DescriptionKeysAreDroppedOnReading) {
  const FCVirtualProgramData program = FromJson(
      "{\"lang\":\"en\",\"mid_desc\":\"m\",\"desc\":\"d\",\"genres\":[\"g\"],\"video_quality\":\"hd\","
      "\"schedule_type\":\"live\",\"trailer_url\":\"t\",\"website\":\"w\",\"kept\":\"k\"}");
  EXPECT_EQ("{\"kept\":\"k\"}\n", program.metadata);
}

TEST(FCVirtualProgramDataJson, GatheredMetadataIsWrittenBackAtTheTopLevel) {
  const FCVirtualProgramData program = FromJson("{\"id\":\"e\",\"rating\":{\"age\":12},\"lang\":\"en\"}");
  const Json::Value out = ToJson(program);
  EXPECT_EQ(Parse("{\"age\":12}"), out["rating"]);
  EXPECT_FALSE(out.isMember("lang"));
}

// --- members ---

TEST(FCVirtualProgramData, ProgramIdCarriesTheIdentityFields) {
  FCVirtualProgramId id;
  EXPECT_TRUE(SampleProgram().GetProgramId(id));
  EXPECT_EQ(18446744073709551615ULL, id.GetServiceId());
  EXPECT_EQ("ev1", id.GetEventId());
  EXPECT_EQ(kMarch2016, id.GetStartTime());
  EXPECT_EQ(1800U, id.GetDuration());
}

TEST(FCVirtualProgramData, SeriesIdIsAlwaysEmpty) { EXPECT_EQ("", SampleProgram().GetSeriesId()); }

TEST(FCVirtualProgramData, TimeOffsetIsZeroBeforeTheStart) {
  FCVirtualProgramData program;
  program.SetStartTime(static_cast<unsigned int>(FCTimeWrapper::EpochTime()) + 3600U);
  EXPECT_EQ(0U, program.GetTimeOffset());
  program.SetStartTime(kMarch2016);
  EXPECT_GT(program.GetTimeOffset(), 0U);
}

FCVirtualProgramData Slot(unsigned long long serviceId, const char* eventId, unsigned int start,
                          unsigned int duration) {
  FCVirtualProgramData program;
  program.SetServiceId(serviceId);
  program.SetEventId(eventId);
  program.SetStartTime(start);
  program.SetDuration(duration);
  return program;
}

TEST(FCVirtualProgramData, EqualityWantsTheExactServiceId) {
  EXPECT_TRUE(Slot(7, "e", 100, 60) == Slot(7, "e", 100, 60));
  EXPECT_FALSE(Slot(0, "e", 100, 60) == Slot(7, "e", 100, 60));
  EXPECT_FALSE(Slot(7, "e", 100, 60) == Slot(7, "e", 100, 61));

  FCVirtualProgramData other = Slot(7, "e", 100, 60);
  other.SetTitle("different");
  other.SetPlaylist({FCVirtualPlaylistItem()});
  EXPECT_TRUE(Slot(7, "e", 100, 60) == other);
}

TEST(FCVirtualProgramData, OrderTreatsServiceIdZeroAsAnyService) {
  // By the id alone 0 would come first; as a wildcard the start time decides.
  EXPECT_TRUE(Slot(7, "e", 100, 60) < Slot(0, "e", 200, 60));
  EXPECT_FALSE(Slot(0, "e", 200, 60) < Slot(7, "e", 100, 60));
  EXPECT_TRUE(Slot(7, "e", 200, 60) < Slot(8, "e", 100, 60));
}

}  // namespace
