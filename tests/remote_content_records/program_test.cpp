// The programme record: its lossy text form, ordering, equality, the filter
// test it shares with guide entries, and the guard that ends the process on
// a value that does not convert.
#include <gtest/gtest.h>

#include <functional>

#include "record_samples.h"

namespace {

Json::Value Parsed(const std::string& text) {
  Json::Value value;
  EXPECT_TRUE(Json::Reader().parse(text, value));
  return value;
}

std::string TextOf(FCRemoteProgram program) {
  std::string text;
  EXPECT_TRUE(program.to_string(text));
  return text;
}

TEST(ProgramText, CarriesItsKeysAsIntsAndStringsWithoutTheJsonOnlyFields) {
  Json::Value text = Parsed(TextOf(samples::Program()));
  samples::KeyTypes expected = {{"activityID", Json::intValue},
                                {"utc_starttime", Json::intValue},
                                {"duration", Json::intValue},
                                {"genre_array", Json::arrayValue}};
  for (const char* key : {"str_program_source_id", "str_channel_name", "str_channel_number", "str_program_id",
                          "str_lang", "str_starttime", "strTitle", "str_cert_flag", "str_short_desc", "str_poster_url",
                          "str_poster_type", "str_poster_overlay", "str_poster_index"}) {
    expected[key] = Json::stringValue;
  }
  EXPECT_EQ(samples::TypesOf(text), expected);
}

TEST(ProgramText, KeepsOnlyTheLastGenre) {
  Json::Value text = Parsed(TextOf(samples::Program()));  // genres "1", "2"
  ASSERT_EQ(text["genre_array"].size(), 1u);
  EXPECT_EQ(text["genre_array"][0], Parsed(R"({"id": "2"})"));

  FCRemoteProgram read;
  std::string written = TextOf(samples::Program());
  EXPECT_TRUE(read.from_string(written));
  EXPECT_EQ(read.genre_array, std::vector<std::string>{"2"});
}

TEST(ProgramText, WithoutGenresCarriesOneNullThatReadsAsAnEmptyId) {
  std::string written = TextOf(FCRemoteProgram());
  EXPECT_EQ(Parsed(written)["genre_array"], Parsed("[null]"));
  FCRemoteProgram read;
  EXPECT_TRUE(read.from_string(written));
  EXPECT_EQ(read.genre_array, std::vector<std::string>{""});
}

TEST(ProgramText, RoundTripKeepsTheTextFieldsAndLeavesTheOthers) {
  FCRemoteProgram original = samples::Program();
  original.utc_starttime = 4000000000u;  // carried as a negative int, read back whole
  std::string written = TextOf(original);
  FCRemoteProgram read;
  read.desc = "mine";
  ASSERT_TRUE(read.from_string(written));
  FCRemoteProgram expected = original;
  expected.genre_array = {"2"};
  EXPECT_EQ(read, expected);
  EXPECT_EQ(read.activityID, 1);
  EXPECT_EQ(read.desc, "mine");
  EXPECT_FALSE(read.IsRF);
  EXPECT_EQ(read.EndTime, 0u);
}

TEST(ProgramText, TextThatDoesNotParseReadsNothingAndFails) {
  FCRemoteProgram read;
  std::string garbage = "not a programme";
  EXPECT_FALSE(read.from_string(garbage));
  EXPECT_EQ(read, FCRemoteProgram());
}

TEST(ProgramOrder, BySourceIdThenUnsignedStartTime) {
  FCRemoteProgram a, b;
  a.str_program_source_id = "A";
  b.str_program_source_id = "B";
  a.utc_starttime = 0x90000000u;  // later than any signed start time
  EXPECT_TRUE(a < b);
  b.str_program_source_id = "A";
  b.utc_starttime = 1;
  EXPECT_TRUE(b < a);
  EXPECT_FALSE(a < b);
  b.str_program_source_id = "A\xff";  // bytes compare unsigned; a prefix first
  EXPECT_TRUE(a < b);
}

struct Change {
  const char* name;
  std::function<void(FCRemoteProgram&)> apply;
  bool stillEqual;
};

const Change kChanges[] = {
    {"Activity", [](FCRemoteProgram& p) { p.activityID = 9; }, true},
    {"Desc", [](FCRemoteProgram& p) { p.desc = "other"; }, true},
    {"EndTime", [](FCRemoteProgram& p) { p.EndTime = 1; }, true},
    {"IsRF", [](FCRemoteProgram& p) { p.IsRF = false; }, true},
    {"SourceId", [](FCRemoteProgram& p) { p.str_program_source_id = "x"; }, false},
    {"StartTime", [](FCRemoteProgram& p) { p.utc_starttime += 1; }, false},
    {"StartText", [](FCRemoteProgram& p) { p.str_starttime = "x"; }, false},
    {"GenreOrder",
     [](FCRemoteProgram& p) {
       p.genre_array = {"2", "1"};
     },
     false},
    {"ShortDesc", [](FCRemoteProgram& p) { p.str_short_desc = "x"; }, false},
    {"PosterIndex", [](FCRemoteProgram& p) { p.str_poster_index = "x"; }, false},
};

class ProgramEquality : public ::testing::TestWithParam<Change> {};

TEST_P(ProgramEquality, IgnoresOnlyActivityDescEndTimeAndOrigin) {
  FCRemoteProgram changed = samples::Program();
  GetParam().apply(changed);
  EXPECT_EQ(changed == samples::Program(), GetParam().stillEqual);
}

INSTANTIATE_TEST_SUITE_P(Fields, ProgramEquality, ::testing::ValuesIn(kChanges),
                         [](const ::testing::TestParamInfo<Change>& info) { return std::string(info.param.name); });

// Death: the guard logs its line to the system log at warning priority and
// ends the process (a write to address zero, or the sanitizer's report).
std::string GuardLine(const char* method) {
  return std::string("log\\(2,5\\) zunde-provider: common/Zunde/Common/FCElementData\\.cpp: ") + method +
         "\\([0-9]+\\) > DBG_LV\\[0\\]\\[FCRemoteProgram::" + method + "\\] Exception Caught";
}

TEST(ProgramDeathTest, IllTypedJsonEndsTheProcessAfterLogging) {
  Json::Value value = Parsed(R"({"duration": "long"})");
  FCRemoteProgram program;
  EXPECT_DEATH(FCRemoteProgram::FromJson(value, program), GuardLine("FromJson"));
}

TEST(ProgramDeathTest, JsonStartTimeBeyondTheIntRangeEndsTheProcess) {
  // Written unsigned, read as int: the service's own reading.
  FCRemoteProgram late;
  late.utc_starttime = 4000000000u;
  Json::Value value;
  FCRemoteProgram::ToJson(late, value);
  FCRemoteProgram program;
  EXPECT_DEATH(FCRemoteProgram::FromJson(value, program), GuardLine("FromJson"));
}

TEST(ProgramDeathTest, IllTypedTextEndsTheProcessAfterLogging) {
  FCRemoteProgram program;
  std::string genreAsText = R"({"genre_array": ["drama"]})";
  EXPECT_DEATH(program.from_string(genreAsText), GuardLine("from_string"));
  std::string titleAsObject = R"({"strTitle": {}})";
  EXPECT_DEATH(program.from_string(titleAsObject), GuardLine("from_string"));
}

}  // namespace
