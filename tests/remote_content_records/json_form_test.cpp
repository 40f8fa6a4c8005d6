// The JSON forms of the catalogue and guide records: the exact text each one
// travels as, what survives a write and a read, and what a read does with
// missing and ill-typed values.
#include <gtest/gtest.h>

#include <functional>

#include "record_samples.h"

using samples::Compact;
using samples::Parsed;
using samples::Written;

namespace {

struct FormCase {
  const char* name;
  std::function<Json::Value()> write;
  const char* json;
};

// The catalogue records need only their keys and types.
const FormCase kForms[] = {
    {"MSOConfigDefault", [] { return Written(FCRemoteMSOConfig()); },
     R"({"config": {"strHeadend": "", "strDeviceType": "", "strZipCode": "", "source": -1, "antennaMode": -1,
         "serviceMode": -1, "str_additional_info_with_json_format": ""}})"},
    {"ChannelKey", [] { return Written(samples::ChannelKey()); },
     R"({"channel_key": {"activityID": 2, "str_channel_number": "c3", "str_major": "c5", "str_minor": "c6",
         "str_onid": "c7", "str_tsid": "c8", "str_sid": "c9", "str_frequency": "c10", "str_digital_flag": "c15"}})"},
    {"Channel", [] { return Written(samples::Channel()); },
     R"({"activityID": 2, "str_program_source_id": "c1", "str_channel_name": "c2", "str_channel_number": "c3",
         "str_alias": "c4", "str_major": "c5", "str_minor": "c6", "str_onid": "c7", "str_tsid": "c8", "str_sid": "c9",
         "str_frequency": "c10", "str_ptc": "c11", "str_icon_url": "c12", "str_url_index": "c13", "str_dtv": "c14",
         "embed": 5, "str_digital_flag": "c15", "str_qam_flag": "c16", "genre id": "c17", "gere name": "c18",
         "ac_rank": "c19"})"},
    {"Program", [] { return Written(samples::Program()); },
     R"({"activityID": 1, "program source id": "p1", "channel name": "p2", "channel number": "p3",
         "program id": "p4", "lang": "p5", "start time": "p6", "utc start time": 1456864200, "duration": 1800,
         "title": "p7", "cert flag": "p8", "genre array": ["1", "2"], "poster url": "p9", "poster type": "p10",
         "poster overlay": "p11", "poster index": "p12", "short desc": "p13", "EndTime": 4000001800, "IsRF": true,
         "desc": "p14"})"},
    {"Guide", [] { return Written(samples::Guide()); },
     R"({"activityID": 4, "timeslot": 3, "sequence": 1, "str_program_source_id": "g1", "str_rec_type": "g2",
         "str_name": "g3", "str_number": "g4", "str_starttime": "g5", "utc_starttime": 4000000000, "duration": 3600,
         "str_content_id": "g6", "str_content_lang": "g7", "str_content_season_seq": "g8",
         "str_content_episode_seq": "g9", "str_content_title": "g10", "str_content_year": "g11",
         "str_content_type": "g12", "str_content_missed": "g13", "str_content_cert_flag": "g14",
         "content_genre_array": ["4", "9"], "str_content_poster_url": "g15", "str_content_poster_type": "g16",
         "str_content_poster_overlay": "g17", "str_content_poster_index": "g18"})"},
    {"GenreInfo", [] { return Written(FCGenreInfo()); },
     R"({"str_name": "", "str_rep_id": "", "rec id": "", "str_id": "", "str_genre_img_url": "",
         "str_genre_img_type": "", "str_genre_img_index": ""})"},
    {"RepGenreInfo", [] { return Written(FCRepGenreInfo()); },
     R"({"str_rep_id": "", "str_name": "", "str_genre_id_list": ""})"},
    {"RecGroup", [] { return Written(FCRecGroup()); },
     R"({"rec id": "", "avail country": "", "name": "", "genre id list": ""})"},
    {"FilterCriteria", [] { return Written(FCFilterCriteria()); },
     R"({"rec id": "", "rep id": "", "genre id list": ""})"},
};

class JsonForm : public ::testing::TestWithParam<FormCase> {};

TEST_P(JsonForm, IsExactlyThisText) { EXPECT_EQ(Compact(GetParam().write()), Compact(Parsed(GetParam().json))); }

INSTANTIATE_TEST_SUITE_P(Records, JsonForm, ::testing::ValuesIn(kForms),
                         [](const ::testing::TestParamInfo<FormCase>& info) { return std::string(info.param.name); });

TEST(JsonForm, FutureGuideDiffersOnlyInItsDaySlot) {
  Json::Value expected = Written(samples::Guide(6, 2));
  expected.removeMember("timeslot");
  expected["dayslot"] = 6;
  EXPECT_EQ(Compact(Written(samples::FutureGuide(6, 2))), Compact(expected));
}

TEST(JsonForm, WithoutGenresTheArrayIsLeftOut) {
  EXPECT_FALSE(Written(FCRemoteProgram()).isMember("genre array"));
  EXPECT_FALSE(Written(FCSmartChannelGuide()).isMember("content_genre_array"));
}

// Written, read into `read`, and written again.
template <class Record>
std::string RoundTripped(Record record, Record read = Record()) {
  Json::Value value = Written(record);
  Record::FromJson(value, read);
  return Compact(Written(read));
}

TEST(JsonRoundTrip, KeepsEveryFieldFieldsOutsideEqualityIncluded) {
  EXPECT_EQ(RoundTripped(samples::Program()), Compact(Written(samples::Program())));
  EXPECT_EQ(RoundTripped(samples::Guide()), Compact(Written(samples::Guide())));
  EXPECT_EQ(RoundTripped(samples::FutureGuide()), Compact(Written(samples::FutureGuide())));
  EXPECT_EQ(RoundTripped(samples::ChannelKey()), Compact(Written(samples::ChannelKey())));
  EXPECT_EQ(RoundTripped(FCRemoteMSOConfig()), Compact(Written(FCRemoteMSOConfig())));
}

TEST(JsonRoundTrip, GenresAreAppendedToThoseAlreadyThere) {
  FCSmartChannelGuide before;
  before.content_genre_array = {"1"};
  Json::Value read = Parsed(RoundTripped(samples::Guide(), before));
  EXPECT_EQ(Compact(read["content_genre_array"]), Compact(Parsed(R"(["1", "4", "9"])")));
}

TEST(JsonRoundTrip, ChannelLosesItsGenreNameOnly) {
  Json::Value written = Written(samples::Channel());
  written["gere name"] = "";
  EXPECT_EQ(RoundTripped(samples::Channel()), Compact(written));

  FCRemoteChannel read;
  Json::Value fromService = Parsed(R"({"genre name": "Drama"})");
  FCRemoteChannel::FromJson(fromService, read);
  EXPECT_EQ(read.genre_name, "Drama");
}

TEST(JsonRead, MissingKeysReadAsEmptyZeroOrFalseWithoutBeingAdded) {
  Json::Value empty(Json::objectValue);
  FCRemoteProgram program = samples::Program();
  program.genre_array.clear();
  FCRemoteProgram::FromJson(empty, program);
  EXPECT_EQ(Compact(Written(program)), Compact(Written(FCRemoteProgram())));

  FCFilterCriteria filter;
  filter.rep_id = "old";
  Json::Value noRepId = Parsed(R"({"rec id": "R"})");
  FCFilterCriteria::FromJson(noRepId, filter);
  EXPECT_EQ(filter.rep_id, "");
  EXPECT_EQ(filter.rec_id, "R");

  FCRemoteMSOConfig config;
  FCRemoteMSOConfig::FromJson(empty, config);
  EXPECT_EQ(config.source, 0);  // the "config" object is missing: 0, not the default -1
  EXPECT_EQ(empty, Json::Value(Json::objectValue));
}

// Records other than the programme hand jsoncpp's type errors to the caller.
template <class Record>
void ExpectThrowOnReading(const char* json) {
  Json::Value value = Parsed(json);
  Record record;
  EXPECT_THROW(Record::FromJson(value, record), Json::Exception) << json;
}

TEST(JsonRead, IllTypedValuesThrowToTheCaller) {
  ExpectThrowOnReading<FCRemoteChannel>(R"({"embed": "five"})");
  ExpectThrowOnReading<FCRemoteChannelKey>(R"({"channel_key": []})");
  ExpectThrowOnReading<FCRemoteMSOConfig>(R"({"config": "none"})");
  ExpectThrowOnReading<FCFilterCriteria>(R"({"rep id": [1]})");
  ExpectThrowOnReading<FCSmartChannelGuide>(R"({"utc_starttime": -1})");
  ExpectThrowOnReading<FCSmartChannelGuide_Future>(R"({"content_genre_array": {"a": "1"}})");
}

}  // namespace
