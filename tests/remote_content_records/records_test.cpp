// The JSON forms of the catalogue and guide records: the exact text each one
// travels as, read back whole, and what a read does with missing and
// ill-typed values; the programme's lossy text form, and the guard that ends
// the process on a programme value that does not convert; filtering by
// genre, and where comparisons leave fields out.
#include <gtest/gtest.h>

#include "record_samples.h"

using namespace samples;

namespace {

struct FormCase {
  const char* name;
  std::string (*reread)(Json::Value json);  // read, then written again
  std::string json;
};

template <class Record>
std::string Again(Json::Value json) {
  return Reread<Record>(json);
}

const char kMSOConfigDefault[] = R"({"config": {"strHeadend": "", "strDeviceType": "", "strZipCode": "",
    "source": -1, "antennaMode": -1, "serviceMode": -1, "str_additional_info_with_json_format": ""}})";
const char kChannelKey[] = R"({"channel_key": {"activityID": 2, "str_channel_number": "c3", "str_major": "c5",
    "str_minor": "c6", "str_onid": "c7", "str_tsid": "c8", "str_sid": "c9", "str_frequency": "c10",
    "str_digital_flag": "c15"}})";

const FormCase kForms[] = {
    {"MSOConfig", Again<FCRemoteMSOConfig>, kMSOConfigDefault},
    {"ChannelKey", Again<FCRemoteChannelKey>, kChannelKey},
    {"Channel", Again<FCRemoteChannel>, kChannel},
    {"Program", Again<FCRemoteProgram>, kProgram},
    {"Guide", Again<FCSmartChannelGuide>, kGuide},
    {"FutureGuide", Again<FCSmartChannelGuide_Future>, Replaced(kGuide, "\"timeslot\"", "\"dayslot\"")},
    {"GenreInfo", Again<FCGenreInfo>,
     R"({"str_id": "i1", "str_rep_id": "i2", "rec id": "i3", "str_name": "i4", "str_genre_img_url": "i5",
         "str_genre_img_type": "i6", "str_genre_img_index": "i7"})"},
    {"RepGenreInfo", Again<FCRepGenreInfo>, R"({"str_rep_id": "r1", "str_name": "r2", "str_genre_id_list": "r3"})"},
    {"RecGroup", Again<FCRecGroup>, R"({"rec id": "g1", "avail country": "g2", "name": "g3", "genre id list": "g4"})"},
    {"FilterCriteria", Again<FCFilterCriteria>, R"({"rec id": "f1", "rep id": "f2", "genre id list": "f3"})"},
};

class JsonForm : public ::testing::TestWithParam<FormCase> {};

TEST_P(JsonForm, ReadsAndWritesExactlyThisText) {
  EXPECT_EQ(GetParam().reread(Parsed(GetParam().json)), Compact(Parsed(GetParam().json)));
}

INSTANTIATE_TEST_SUITE_P(Records, JsonForm, ::testing::ValuesIn(kForms),
                         [](const ::testing::TestParamInfo<FormCase>& info) { return std::string(info.param.name); });

// A channel's genre name is read from "genre name", written as "gere name".
TEST(JsonForm, DefaultsKeysAndGenreNames) {
  EXPECT_EQ(Compact(Written(FCRemoteMSOConfig())), Compact(Parsed(kMSOConfigDefault)));
  FCRemoteChannelKey key;
  Read<FCRemoteChannel>(kChannel).GetKey(key);
  EXPECT_EQ(Compact(Written(key)), Compact(Parsed(kChannelKey)));
  EXPECT_FALSE(Written(FCRemoteProgram()).isMember("genre array"));
  EXPECT_EQ(Read<FCRemoteChannel>(R"({"genre name": "Drama", "gere name": "x"})").genre_name, "Drama");
}

// Also a missing "config": its ints read 0, not the default -1.
TEST(JsonRead, MissingKeysReadAsEmptyZeroOrFalseWithoutBeingAdded) {
  Json::Value empty(Json::objectValue);
  FCRemoteProgram program = Program();
  program.genre_array.clear();
  EXPECT_EQ(Reread(empty, program), Compact(Written(FCRemoteProgram())));
  EXPECT_EQ(Reread<FCRemoteMSOConfig>(empty), Replaced(kMSOConfigDefault, "-1", "0"));
  EXPECT_EQ(empty, Json::Value(Json::objectValue));
}

// Records other than the programme hand jsoncpp's type errors to the caller.
TEST(JsonRead, IllTypedValuesThrowToTheCaller) {
  EXPECT_THROW(Reread<FCRemoteChannel>(Parsed(R"({"embed": "five"})")), Json::Exception);
  EXPECT_THROW(Reread<FCSmartChannelGuide>(Parsed(R"({"content_genre_array": {"a": "1"}})")), Json::Exception);
}

std::string TextOf(FCRemoteProgram program) {
  std::string text;
  EXPECT_TRUE(program.to_string(text));
  return text;
}

// Only the last of the genres "1" and "2" is carried, a start beyond the int
// range as a negative int; desc, EndTime and IsRF are not carried at all.
TEST(ProgramText, IsExactlyThisJsonAndReadsBack) {
  FCRemoteProgram program = Program(), read;
  program.utc_starttime = 4000000000u;
  std::string text = TextOf(program);
  EXPECT_EQ(Compact(Parsed(text)),
            Compact(Parsed(R"({"activityID": 1, "str_program_source_id": "p1", "str_channel_name": "p2",
                "str_channel_number": "p3", "str_program_id": "p4", "str_lang": "p5", "str_starttime": "p6",
                "utc_starttime": -294967296, "duration": 1800, "strTitle": "p7", "str_cert_flag": "p8",
                "genre_array": [{"id": "2"}], "str_poster_url": "p9", "str_poster_type": "p10",
                "str_poster_overlay": "p11", "str_poster_index": "p12", "str_short_desc": "p13"})")));
  ASSERT_TRUE(read.from_string(text));
  EXPECT_EQ(TextOf(read), text);
}

TEST(ProgramText, WithoutGenresCarriesOneNullThatReadsAsAnEmptyId) {
  std::string text = TextOf(FCRemoteProgram()), garbage = "not a programme";
  EXPECT_EQ(Compact(Parsed(text)["genre_array"]), "[null]\n");
  FCRemoteProgram read;
  EXPECT_TRUE(read.from_string(text));
  EXPECT_EQ(read.genre_array, std::vector<std::string>{""});
  EXPECT_FALSE(read.from_string(garbage));
}

// The guard logs its line at warning priority and ends the process (a write
// to address zero, or the sanitizer's report).
std::string GuardLine(const char* method) {
  return std::string("log\\(2,5\\) zunde-provider: [./]*common/Zunde/Common/FCElementData\\.cpp: ") + method +
         "\\([0-9]+\\) > DBG_LV\\[0\\]\\[FCRemoteProgram::" + method + "\\] Exception Caught";
}

TEST(ProgramDeathTest, IllTypedValuesEndTheProcessAfterLogging) {
  FCRemoteProgram program;
  Json::Value durationAsText = Parsed(R"({"duration": "long"})");
  EXPECT_DEATH(FCRemoteProgram::FromJson(durationAsText, program), GuardLine("FromJson"));
  // Written unsigned, read as int: the service's own reading.
  Json::Value lateStart = Parsed(R"({"utc start time": 4000000000})");
  EXPECT_DEATH(FCRemoteProgram::FromJson(lateStart, program), GuardLine("FromJson"));
  std::string genreAsText = R"({"genre_array": ["drama"]})";
  EXPECT_DEATH(program.from_string(genreAsText), GuardLine("from_string"));
}

struct FilterCase {
  const char* name;
  const char* recId;
  const char* repId;
  const char* genreIdList;
  std::vector<std::string> genres;
  bool satisfied;
};

const FilterCase kFilters[] = {
    {"NoFilterTakesAll", "", "", ",1,", {"9"}, true},
    {"NoFilterTakesOneWithoutGenres", "", "", "", {}, true},
    {"AnyGenreMatches", "R", "", ",12,7,", {"3", "7"}, true},
    {"NoPartialIds", "R", "", ",7,", {"77"}, false},
    {"ListWithoutCommasNeverMatches", "R", "", "4", {"4"}, false},
};

class GenreFilter : public ::testing::TestWithParam<FilterCase> {};

// Programmes and guide entries share the rule.
TEST_P(GenreFilter, ProgramAndGuideEntry) {
  FCFilterCriteria filter;
  filter.rec_id = GetParam().recId, filter.rep_id = GetParam().repId, filter.genre_id_list = GetParam().genreIdList;
  FCRemoteProgram program;
  program.genre_array = GetParam().genres;
  FCSmartChannelGuide guide;
  guide.content_genre_array = GetParam().genres;
  EXPECT_EQ(program.IsSatisfyFilterCriteria(filter), GetParam().satisfied);
  EXPECT_EQ(guide.IsSatisfyFilterCriteria(filter), GetParam().satisfied);
}

INSTANTIATE_TEST_SUITE_P(Cases, GenreFilter, ::testing::ValuesIn(kFilters),
                         [](const ::testing::TestParamInfo<FilterCase>& info) { return std::string(info.param.name); });

TEST(Equality, LeavesOutActivityAndForProgrammesDescEndTimeAndOrigin) {
  EXPECT_TRUE(FCRemoteMSOConfig() == FCRemoteMSOConfig());
  FCRemoteProgram program = Program();
  program.activityID = 9, program.desc = "other", program.EndTime = 1, program.IsRF = false;
  EXPECT_TRUE(program == Program());
  FCSmartChannelGuide guide = Guide();
  guide.activityID = 9;
  EXPECT_TRUE(guide == Guide());
  guide.timeslot = 4;
  EXPECT_FALSE(guide == Guide());
}

TEST(Order, RequestsBySourceThenStartThenDuration) {
  using R = FCAdditionalProgramRequest;
  EXPECT_TRUE(R("A", 10, 5) < R("A", 10, 6));
  EXPECT_FALSE(R("B", 1, 1) < R("A", 9, 9));
}

}  // namespace
