#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlog.h>
#include <json/json.h>

#include <string>
#include <vector>

#include "FCTimeWapper.h"
#include "FCVirtualProgramData.h"
#include "log_capture.h"
#include "record_json.h"

namespace {

// 2016-03-01T20:30:00Z
constexpr unsigned int kMarch2016 = 1456864200U;

using vcrecords::Parsed;
using vcrecords::Read;
using vcrecords::Write;

// The default record's form with the members of `changed` put over it.
std::string DefaultFormWith(const std::string& changed) {
  return vcrecords::Overlay(Write(FCVirtualProgramData()), changed);
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
  program.SetPlaylist({Read<FCVirtualPlaylistItem>(
      "{\"order\":1,\"id\":\"c1\",\"title\":\"Clip\",\"content_uri\":\"http://c\",\"duration\":60}")});
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
      Write(FCVirtualProgramData()));
}

TEST(FCVirtualProgramDataJson, WireFormRoundTrips) {
  EXPECT_EQ(kSampleJson, Write(SampleProgram()));
  const auto program = Read<FCVirtualProgramData>(kSampleJson);
  EXPECT_EQ(kSampleJson, Write(program));
  EXPECT_EQ("{}\n", program.metadata);
}

struct ReadCase {
  const char* json;
  const char* changed;  // the members in which the record read writes differently from a default one
};

class FCVirtualProgramDataReading : public ::testing::TestWithParam<ReadCase> {};

TEST_P(FCVirtualProgramDataReading, WritesBackAsRead) {
  EXPECT_EQ(DefaultFormWith(GetParam().changed), Write(Read<FCVirtualProgramData>(GetParam().json))) << GetParam().json;
}

const ReadCase kReadCases[] = {
    {"{\"program_data\":{}}", "{}"},
    {"{\"program_data\":{\"id\":\"9\"}}", "{}"},
    {"{\"program_data\":{\"TCServiceId\":\"007\"}}", "{\"program_data\":{\"TCServiceId\":\"7\"}}"},
    // Values of a type that does not convert read as empty, a present index as 0.
    {"{\"program_data\":[1],\"id\":{},\"duration\":[],\"relative_offset\":\"x\",\"poster\":\"p\","
     "\"group_play_list\":{\"order\":1}}",
     "{\"relative_offset\":0}"},
    // A start is a date-time, else epoch seconds as text (with base prefixes) or as a number.
    {"{\"starttime\":\"2016-03-01T20:30:00+00:00\"}", "{\"starttime\":\"2016-03-01T20:30:00Z\"}"},
    {"{\"starttime\":\"2016-03-01T20:30:00\"}", "{\"starttime\":\"2016-03-01T20:30:00Z\"}"},
    {"{\"starttime\":\"1456864200\"}", "{\"starttime\":\"2016-03-01T20:30:00Z\"}"},
    {"{\"starttime\":1456864200}", "{\"starttime\":\"2016-03-01T20:30:00Z\"}"},
    {"{\"starttime\":\"0x10\"}", "{\"starttime\":\"1970-01-01T00:00:16Z\"}"},
    {"{\"starttime\":\"soon\"}", "{}"},
    {"{\"duration\":1800}", "{\"duration\":1800}"},
    {"{\"duration\":\"0x10\"}", "{\"duration\":16}"},
    {"{\"duration\":\"010\"}", "{\"duration\":8}"},
    {"{\"duration\":true}", "{\"duration\":1}"},
    {"{\"duration\":\"\"}", "{}"},
};

INSTANTIATE_TEST_SUITE_P(Texts, FCVirtualProgramDataReading, ::testing::ValuesIn(kReadCases));

TEST(FCVirtualProgramDataJson, ReadingAppendsToThePlaylist) {
  FCVirtualProgramData program = SampleProgram();
  Json::Value in = Parsed("{\"group_play_list\":[{\"id\":\"a\"},{\"id\":\"b\"}]}");
  FCVirtualProgramData::FromJson(in, program);
  ASSERT_EQ(3U, program.GetPlaylist().size());
  EXPECT_EQ("a", program.GetPlaylist()[1].GetItemId());
  EXPECT_EQ("b", program.GetPlaylist()[2].GetItemId());
}

// --- metadata ---

TEST(FCVirtualProgramDataJson, MetadataSpreadsItsNonEmptyMembersOverTheTopLevel) {
  const std::pair<const char*, const char*> cases[] = {
      // metadata, and what it adds to the default form
      {"not json", "{}"},
      // Parsed but no object: nothing to spread.
      {"[1,2]", "{}"},
      // Only an empty value is skipped, not the field it would hide.
      {"{\"lang\":\"en\",\"n\":null,\"arr\":[],\"obj\":{},\"s\":\"\",\"title\":\"\"}", "{\"lang\":\"en\"}"},
      // A member under a field's key wins over the field.
      {"{\"zero\":0,\"no\":false,\"neg\":-2,\"pi\":1.5,\"arr\":[null],\"obj\":{\"k\":\"\"},\"title\":\"Other\","
       "\"duration\":\"90\"}",
       "{\"zero\":0,\"no\":false,\"neg\":-2,\"pi\":1.5,\"arr\":[null],\"obj\":{\"k\":\"\"},\"title\":\"Other\","
       "\"duration\":\"90\"}"}};
  for (const auto& [metadata, added] : cases) {
    FCVirtualProgramData program;
    program.metadata = metadata;
    EXPECT_EQ(DefaultFormWith(added), Write(program)) << metadata;
  }
}

TEST(FCVirtualProgramDataJson, ParsedMetadataIsLoggedAsTheServiceParserDoes) {
  using zunde::testing::LogCapture;
  FCVirtualProgramData program;
  LogCapture::Clear();
  Write(program);
  EXPECT_TRUE(LogCapture::Records().empty());

  program.metadata = "{}";
  Write(program);
  const std::vector<zunde::testing::LogRecord> records = LogCapture::Records();
  ASSERT_EQ(1U, records.size());
  EXPECT_EQ(LOG_ID_MAIN, records[0].logId);
  EXPECT_EQ(DLOG_DEBUG, records[0].priority);
  EXPECT_EQ("zunde-provider", records[0].tag);
  EXPECT_EQ("%s: %s(%d) > DBG_LV[%d][CZundeResponseParser::%s]  reader.parse(metadata) is OK\n", records[0].format);
  EXPECT_THAT(records[0].text,
              ::testing::AllOf(
                  ::testing::StartsWith("common/Zunde/Common/FCVirtualProgramData.cpp: ToJson("),
                  ::testing::EndsWith(" > DBG_LV[3][CZundeResponseParser::ToJson]  reader.parse(metadata) is OK\n")));
}

TEST(FCVirtualProgramDataJson, UnknownNonEmptyMembersAreCarriedAsMetadataAndDescriptionsDropped) {
  Json::Value in = Parsed(
      "{\"id\":\"e\",\"ret\":true,\"rating\":{\"age\":12},\"count\":0,\"note\":\"\",\"none\":null,\"list\":[],"
      "\"map\":{},\"tags\":[\"a\"],\"lang\":\"en\",\"mid_desc\":\"m\",\"desc\":\"d\",\"genres\":[\"g\"],"
      "\"video_quality\":\"hd\",\"schedule_type\":\"live\",\"trailer_url\":\"t\",\"website\":\"w\"}");
  const Json::Value before = in;
  FCVirtualProgramData program;
  FCVirtualProgramData::FromJson(in, program);
  EXPECT_EQ(before, in);
  EXPECT_EQ("{\"count\":0,\"rating\":{\"age\":12},\"ret\":true,\"tags\":[\"a\"]}\n", program.metadata);

  const Json::Value out = Parsed(Write(program));
  EXPECT_EQ(Parsed("{\"age\":12}"), out["rating"]);
  EXPECT_FALSE(out.isMember("lang"));
}

// --- members ---

TEST(FCVirtualProgramData, ProgramIdCarriesTheIdentityAndTheSeriesIdIsEmpty) {
  FCVirtualProgramId id;
  EXPECT_TRUE(SampleProgram().GetProgramId(id));
  EXPECT_EQ("TCServiceId: 18446744073709551615\nid: ev1\nstart_time: 1456864200\nduration: 1800\n", id.ToString());
  EXPECT_EQ("", SampleProgram().GetSeriesId());
}

TEST(FCVirtualProgramData, TimeOffsetIsZeroBeforeTheStart) {
  FCVirtualProgramData program;
  program.SetStartTime(static_cast<unsigned int>(FCTimeWrapper::EpochTime()) + 3600U);
  EXPECT_EQ(0U, program.GetTimeOffset());
  program.SetStartTime(kMarch2016);
  EXPECT_GT(program.GetTimeOffset(), 0U);
}

}  // namespace
