// The catalogue and guide records: the exact JSON text each travels as, the
// programme's lossy text form and its guard, filtering by genre, and what
// comparisons leave out.
#include <gtest/gtest.h>

#include <cstdlib>

#include "record_samples.h"

using namespace samples;

namespace {

// Each text is read into a default record and written again.
struct FormCase { const char* name; std::string (*reread)(const std::string& json); std::string json; };

const char kMSOConfigDefault[] = R"({"config": {"strHeadend": "", "strDeviceType": "", "strZipCode": "",
    "source": -1, "antennaMode": -1, "serviceMode": -1, "str_additional_info_with_json_format": ""}})";
const char kChannelKey[] = R"({"channel_key": {"activityID": 2, "str_channel_number": "c3", "str_major": "c5",
    "str_minor": "c6", "str_onid": "c7", "str_tsid": "c8", "str_sid": "c9", "str_frequency": "c10",
    "str_digital_flag": "c15"}})";

const FormCase kForms[] = {
    {"MSOConfig", Reread<FCRemoteMSOConfig>, kMSOConfigDefault},
    {"ChannelKey", Reread<FCRemoteChannelKey>, kChannelKey},
    {"Channel", Reread<FCRemoteChannel>, kChannel},
    {"Program", Reread<FCRemoteProgram>, kProgram},
    {"Guide", Reread<FCSmartChannelGuide>, kGuide},
    {"FutureGuide", Reread<FCSmartChannelGuide_Future>, Replaced(kGuide, "\"timeslot\"", "\"dayslot\"")},
    {"GenreInfo", Reread<FCGenreInfo>,
     R"({"str_id": "i1", "str_rep_id": "i2", "rec id": "i3", "str_name": "i4", "str_genre_img_url": "i5",
         "str_genre_img_type": "i6", "str_genre_img_index": "i7"})"},
    {"RepGenreInfo", Reread<FCRepGenreInfo>, R"({"str_rep_id": "r1", "str_name": "r2", "str_genre_id_list": "r3"})"},
    {"RecGroup", Reread<FCRecGroup>, R"({"rec id": "g1", "avail country": "g2", "name": "g3", "genre id list": "g4"})"},
    {"FilterCriteria", Reread<FCFilterCriteria>, R"({"rec id": "f1", "rep id": "f2", "genre id list": "f3"})"},
};

class JsonForm : public ::testing::TestWithParam<FormCase> {};

TEST_P(JsonForm, ReadsAndWritesExactlyThisText) {
  EXPECT_EQ(GetParam().reread(GetParam().json), Compact(Parsed(GetParam().json)));
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

// Also a missing "config": its ints read 0, not the default -1. Records
// other than the programme hand jsoncpp's type errors to the caller.
TEST(JsonRead, MissingKeysReadAsEmptyZeroOrFalseIllTypedOnesThrow) {
  Json::Value empty(Json::objectValue);
  FCRemoteProgram program = Program();
  program.genre_array.clear();
  FCRemoteProgram::FromJson(empty, program);
  EXPECT_EQ(Compact(Written(program)), Compact(Written(FCRemoteProgram())));
  EXPECT_EQ(empty, Json::Value(Json::objectValue));
  EXPECT_EQ(Reread<FCRemoteMSOConfig>("{}"), Replaced(kMSOConfigDefault, "-1", "0"));
  EXPECT_THROW(Reread<FCRemoteChannel>(R"({"embed": "five"})"), Json::Exception);
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

// A start written unsigned beyond the int range is read as int, as the
// service reads it: the guard logs a warning and ends the process.
TEST(ProgramDeathTest, AValueThatDoesNotConvertEndsTheProcessAfterALine) {
  EXPECT_DEATH((setenv("ZUNDE_LOG", "warn", 1), Read<FCRemoteProgram>(R"({"utc start time": 4000000000})")),
               "W/zunde-provider: .*common/Zunde/Common/FCElementData\\.cpp: FromJson\\([0-9]+\\) > "
               "DBG_LV\\[0\\]\\[FCRemoteProgram::FromJson\\] Exception Caught");
}

// The filter's rep id is left empty.
struct FilterCase { const char *name, *recId, *genreIdList; std::vector<std::string> genres; bool satisfied; };

const FilterCase kFilters[] = {
    {"NoFilterTakesAll", "", ",1,", {"9"}, true},
    {"NoFilterTakesOneWithoutGenres", "", "", {}, true},
    {"AnyGenreMatches", "R", ",12,7,", {"3", "7"}, true},
    {"NoPartialIds", "R", ",7,", {"77"}, false},
    {"ListWithoutCommasNeverMatches", "R", "4", {"4"}, false},
};

class GenreFilter : public ::testing::TestWithParam<FilterCase> {};

// Programmes and guide entries share the rule.
TEST_P(GenreFilter, ProgramAndGuideEntry) {
  FCFilterCriteria filter;
  filter.rec_id = GetParam().recId, filter.genre_id_list = GetParam().genreIdList;
  FCRemoteProgram program;
  FCSmartChannelGuide guide;
  program.genre_array = guide.content_genre_array = GetParam().genres;
  EXPECT_EQ(program.IsSatisfyFilterCriteria(filter), GetParam().satisfied);
  EXPECT_EQ(guide.IsSatisfyFilterCriteria(filter), GetParam().satisfied);
}

INSTANTIATE_TEST_SUITE_P(Cases, GenreFilter, ::testing::ValuesIn(kFilters),
                         [](const ::testing::TestParamInfo<FilterCase>& info) { return std::string(info.param.name); });

// Equality leaves out the activity, and for programmes desc, EndTime and
// origin; requests order by source, then start, then duration.
TEST(Comparisons, LeaveOutWhatDoesNotIdentify) {
  EXPECT_TRUE(FCRemoteMSOConfig() == FCRemoteMSOConfig());
  FCRemoteProgram program = Program();
  program.activityID = 9, program.desc = "other", program.EndTime = 1, program.IsRF = false;
  FCSmartChannelGuide guide = Guide(), otherSlot = Guide();
  guide.activityID = 9, otherSlot.timeslot = 4;
  EXPECT_TRUE(program == Program() && guide == Guide());
  EXPECT_FALSE(otherSlot == Guide());
  using R = FCAdditionalProgramRequest;
  EXPECT_TRUE(R("A", 10, 5) < R("A", 10, 6));
  EXPECT_FALSE(R("B", 1, 1) < R("A", 9, 9));
}

}  // namespace
