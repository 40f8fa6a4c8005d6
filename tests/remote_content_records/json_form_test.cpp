// The JSON forms of the catalogue and guide records: which keys exist with
// which JSON types, what survives a write and a read, and what a read does
// with missing and ill-typed values.
#include <gtest/gtest.h>

#include <functional>

#include "record_samples.h"

using samples::KeyTypes;
using samples::TypesOf;

namespace {

KeyTypes WithStrings(KeyTypes types, std::initializer_list<const char*> keys) {
  for (const char* key : keys) types[key] = Json::stringValue;
  return types;
}

template <class Record>
Json::Value Written(Record record) {
  Json::Value value;
  Record::ToJson(record, value);
  return value;
}

struct FormCase {
  const char* name;
  std::function<Json::Value()> write;
  const char* subObject;  // the form's one member holding the keys, or null
  KeyTypes keys;
};

KeyTypes GuideKeys(const char* slotKey) {
  return WithStrings(
      {{"activityID", Json::intValue},
       {slotKey, Json::intValue},
       {"sequence", Json::intValue},
       {"utc_starttime", Json::uintValue},
       {"duration", Json::intValue},
       {"content_genre_array", Json::arrayValue}},
      {"str_program_source_id", "str_rec_type", "str_name", "str_number", "str_starttime", "str_content_id",
       "str_content_lang", "str_content_season_seq", "str_content_episode_seq", "str_content_title", "str_content_year",
       "str_content_type", "str_content_missed", "str_content_cert_flag", "str_content_poster_url",
       "str_content_poster_type", "str_content_poster_overlay", "str_content_poster_index"});
}

const FormCase kForms[] = {
    {"MSOConfig", [] { return Written(FCRemoteMSOConfig()); }, "config",
     WithStrings({{"source", Json::intValue}, {"antennaMode", Json::intValue}, {"serviceMode", Json::intValue}},
                 {"strHeadend", "strDeviceType", "strZipCode", "str_additional_info_with_json_format"})},
    {"ChannelKey", [] { return Written(samples::ChannelKey()); }, "channel_key",
     WithStrings({{"activityID", Json::intValue}}, {"str_channel_number", "str_major", "str_minor", "str_onid",
                                                    "str_tsid", "str_sid", "str_frequency", "str_digital_flag"})},
    {"Channel", [] { return Written(samples::Channel()); }, nullptr,
     WithStrings({{"activityID", Json::intValue}, {"embed", Json::intValue}},
                 {"str_program_source_id", "str_channel_name", "str_channel_number", "str_alias", "str_major",
                  "str_minor", "str_onid", "str_tsid", "str_sid", "str_frequency", "str_ptc", "str_icon_url",
                  "str_url_index", "str_dtv", "str_digital_flag", "str_qam_flag", "genre id", "gere name", "ac_rank"})},
    {"Program", [] { return Written(samples::Program()); }, nullptr,
     WithStrings({{"activityID", Json::intValue},
                  {"utc start time", Json::uintValue},
                  {"duration", Json::intValue},
                  {"genre array", Json::arrayValue},
                  {"EndTime", Json::uintValue},
                  {"IsRF", Json::booleanValue}},
                 {"program source id", "channel name", "channel number", "program id", "lang", "start time", "title",
                  "cert flag", "poster url", "poster type", "poster overlay", "poster index", "short desc", "desc"})},
    {"GenreInfo", [] { return Written(FCGenreInfo()); }, nullptr,
     WithStrings({}, {"str_id", "str_rep_id", "rec id", "str_name", "str_genre_img_url", "str_genre_img_type",
                      "str_genre_img_index"})},
    {"RepGenreInfo", [] { return Written(FCRepGenreInfo()); }, nullptr,
     WithStrings({}, {"str_rep_id", "str_name", "str_genre_id_list"})},
    {"RecGroup", [] { return Written(FCRecGroup()); }, nullptr,
     WithStrings({}, {"rec id", "avail country", "name", "genre id list"})},
    {"FilterCriteria", [] { return Written(FCFilterCriteria()); }, nullptr,
     WithStrings({}, {"rec id", "rep id", "genre id list"})},
    {"Guide", [] { return Written(samples::Guide()); }, nullptr, GuideKeys("timeslot")},
    {"FutureGuide", [] { return Written(samples::FutureGuide()); }, nullptr, GuideKeys("dayslot")},
};

class JsonForm : public ::testing::TestWithParam<FormCase> {};

TEST_P(JsonForm, HasExactlyTheKeysWithTheirTypes) {
  const FormCase& form = GetParam();
  Json::Value value = form.write();
  if (form.subObject != nullptr) {
    EXPECT_EQ(value.getMemberNames(), std::vector<std::string>{form.subObject});
    value = value[form.subObject];
  }
  EXPECT_EQ(TypesOf(value), form.keys);
}

INSTANTIATE_TEST_SUITE_P(Records, JsonForm, ::testing::ValuesIn(kForms),
                         [](const ::testing::TestParamInfo<FormCase>& info) { return std::string(info.param.name); });

TEST(JsonForm, GenreArraysKeepTheirOrder) {
  Json::Value program = Written(samples::Program());
  ASSERT_EQ(program["genre array"].size(), 2u);
  EXPECT_EQ(program["genre array"][0], "1");
  EXPECT_EQ(program["genre array"][1], "2");
  Json::Value guide = Written(samples::Guide());
  EXPECT_EQ(guide["content_genre_array"][0], "4");
  EXPECT_EQ(guide["content_genre_array"][1], "9");
  EXPECT_FALSE(Written(FCRemoteProgram()).isMember("genre array"));
  EXPECT_FALSE(Written(FCSmartChannelGuide()).isMember("content_genre_array"));
}

TEST(JsonRoundTrip, ProgramKeepsEveryFieldOfItsJsonForm) {
  FCRemoteProgram original = samples::Program();
  Json::Value value = Written(original);
  FCRemoteProgram read;
  FCRemoteProgram::FromJson(value, read);
  EXPECT_EQ(read, original);
  // Fields outside equality travel too.
  EXPECT_EQ(read.activityID, 1);
  EXPECT_EQ(read.desc, "long");
  EXPECT_EQ(read.EndTime, 1456866000u);
  EXPECT_TRUE(read.IsRF);
}

TEST(JsonRoundTrip, GuidesKeepEveryFieldStartTimesBeyondTheIntRangeIncluded) {
  Json::Value value = Written(samples::Guide());
  FCSmartChannelGuide read;
  FCSmartChannelGuide::FromJson(value, read);
  EXPECT_EQ(read, samples::Guide());
  EXPECT_EQ(read.utc_starttime, 4000000000u);

  Json::Value future = Written(samples::FutureGuide(6, 2));
  FCSmartChannelGuide_Future readFuture;
  FCSmartChannelGuide_Future::FromJson(future, readFuture);
  EXPECT_EQ(Written(readFuture), future);
  EXPECT_EQ(readFuture.dayslot, 6);
}

TEST(JsonRoundTrip, ChannelLosesItsGenreNameOnly) {
  Json::Value written = Written(samples::Channel());
  FCRemoteChannel read;
  FCRemoteChannel::FromJson(written, read);
  EXPECT_EQ(read.genre_name, "");
  Json::Value again = Written(read);
  written["gere name"] = "";
  EXPECT_EQ(again, written);

  Json::Value fromService = written;
  fromService["genre name"] = "Drama";
  FCRemoteChannel::FromJson(fromService, read);
  EXPECT_EQ(read.genre_name, "Drama");
}

TEST(JsonRead, MissingKeysReadAsEmptyZeroOrFalseWithoutBeingAdded) {
  Json::Value empty(Json::objectValue);
  FCRemoteProgram program = samples::Program();
  program.genre_array.clear();
  FCRemoteProgram::FromJson(empty, program);
  EXPECT_EQ(program, FCRemoteProgram());
  EXPECT_EQ(program.activityID, 0);
  EXPECT_FALSE(program.IsRF);
  EXPECT_EQ(program.EndTime, 0u);

  FCFilterCriteria filter;
  filter.rep_id = "old";
  Json::Value noRepId;
  noRepId["rec id"] = "R";
  FCFilterCriteria::FromJson(noRepId, filter);
  EXPECT_EQ(filter.rep_id, "");
  EXPECT_EQ(filter.rec_id, "R");

  FCRemoteMSOConfig config;
  FCRemoteMSOConfig::FromJson(empty, config);
  EXPECT_EQ(config.source, 0);  // the "config" object is missing: 0, not the default -1
  EXPECT_EQ(empty, Json::Value(Json::objectValue));
}

TEST(JsonRead, GenresAreAppendedToThoseAlreadyThere) {
  FCSmartChannelGuide guide;
  guide.content_genre_array = {"1"};
  Json::Value value = Written(samples::Guide());
  FCSmartChannelGuide::FromJson(value, guide);
  EXPECT_EQ(guide.content_genre_array, (std::vector<std::string>{"1", "4", "9"}));
}

// Records other than the programme hand jsoncpp's type errors to the caller.
struct IllTypedCase {
  const char* name;
  const char* json;
  std::function<void(Json::Value&)> read;
};

template <class Record>
std::function<void(Json::Value&)> Reader() {
  return [](Json::Value& value) {
    Record record;
    Record::FromJson(value, record);
  };
}

const IllTypedCase kIllTyped[] = {
    {"ChannelEmbedAsText", R"({"embed": "five"})", Reader<FCRemoteChannel>()},
    {"ChannelKeyAsArray", R"({"channel_key": []})", Reader<FCRemoteChannelKey>()},
    {"ConfigAsText", R"({"config": "none"})", Reader<FCRemoteMSOConfig>()},
    {"GenreIdAsObject", R"({"str_id": {}})", Reader<FCGenreInfo>()},
    {"RepIdAsArray", R"({"rep id": [1]})", Reader<FCFilterCriteria>()},
    {"GuideStartTimeNegative", R"({"utc_starttime": -1})", Reader<FCSmartChannelGuide>()},
    {"FutureGuideGenresAsObject", R"({"content_genre_array": {"a": "1"}})", Reader<FCSmartChannelGuide_Future>()},
};

class IllTypedValue : public ::testing::TestWithParam<IllTypedCase> {};

TEST_P(IllTypedValue, ThrowsToTheCaller) {
  Json::Value value;
  ASSERT_TRUE(Json::Reader().parse(GetParam().json, value));
  EXPECT_THROW(GetParam().read(value), Json::Exception);
}

INSTANTIATE_TEST_SUITE_P(Records, IllTypedValue, ::testing::ValuesIn(kIllTyped),
                         [](const ::testing::TestParamInfo<IllTypedCase>& info) {
                           return std::string(info.param.name);
                         });

}  // namespace
