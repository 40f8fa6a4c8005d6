// The programme record: its lossy text form, ordering, equality, and the
// guard that ends the process on a value that does not convert.
#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "record_samples.h"

using samples::Compact;
using samples::Parsed;

namespace {

std::string TextOf(FCRemoteProgram program) {
  std::string text;
  EXPECT_TRUE(program.to_string(text));
  return text;
}

// Only the last of the genres "1" and "2" is carried; desc, EndTime and IsRF
// are not carried at all.
TEST(ProgramText, IsExactlyThisJson) {
  EXPECT_EQ(Compact(Parsed(TextOf(samples::Program()))),
            Compact(Parsed(R"({"activityID": 1, "str_program_source_id": "p1", "str_channel_name": "p2",
                "str_channel_number": "p3", "str_program_id": "p4", "str_lang": "p5", "str_starttime": "p6",
                "utc_starttime": 1456864200, "duration": 1800, "strTitle": "p7", "str_cert_flag": "p8",
                "genre_array": [{"id": "2"}], "str_poster_url": "p9", "str_poster_type": "p10",
                "str_poster_overlay": "p11", "str_poster_index": "p12", "str_short_desc": "p13"})")));
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

TEST(ProgramText, WithoutGenresCarriesOneNullThatReadsAsAnEmptyId) {
  std::string written = TextOf(FCRemoteProgram());
  EXPECT_EQ(Compact(Parsed(written)["genre_array"]), "[null]\n");
  FCRemoteProgram read;
  EXPECT_TRUE(read.from_string(written));
  EXPECT_EQ(read.genre_array, std::vector<std::string>{""});

  std::string garbage = "not a programme";
  EXPECT_FALSE(read.from_string(garbage));
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
    {"StartTime", [](FCRemoteProgram& p) { p.utc_starttime += 1; }, false},
    {"GenreOrder", [](FCRemoteProgram& p) { std::swap(p.genre_array[0], p.genre_array[1]); }, false},
    {"ShortDesc", [](FCRemoteProgram& p) { p.str_short_desc = "x"; }, false},
};

class ProgramEquality : public ::testing::TestWithParam<Change> {};

TEST_P(ProgramEquality, IgnoresOnlyActivityDescEndTimeAndOrigin) {
  FCRemoteProgram changed = samples::Program();
  GetParam().apply(changed);
  EXPECT_EQ(changed == samples::Program(), GetParam().stillEqual);
}

INSTANTIATE_TEST_SUITE_P(Fields, ProgramEquality, ::testing::ValuesIn(kChanges),
                         [](const ::testing::TestParamInfo<Change>& info) { return std::string(info.param.name); });

// The guard logs its line to the system log at warning priority and ends the
// process (a write to address zero, or the sanitizer's report).
std::string GuardLine(const char* method) {
  return std::string("log\\(2,5\\) zunde-provider: common/Zunde/Common/FCElementData\\.cpp: ") + method +
         "\\([0-9]+\\) > DBG_LV\\[0\\]\\[FCRemoteProgram::" + method + "\\] Exception Caught";
}

TEST(ProgramDeathTest, IllTypedValuesEndTheProcessAfterLogging) {
  FCRemoteProgram program;
  Json::Value durationAsText = Parsed(R"({"duration": "long"})");
  EXPECT_DEATH(FCRemoteProgram::FromJson(durationAsText, program), GuardLine("FromJson"));
  // Written unsigned, read as int: the service's own reading.
  FCRemoteProgram late;
  late.utc_starttime = 4000000000u;
  Json::Value lateStart = samples::Written(late);
  EXPECT_DEATH(FCRemoteProgram::FromJson(lateStart, program), GuardLine("FromJson"));
  std::string genreAsText = R"({"genre_array": ["drama"]})";
  EXPECT_DEATH(program.from_string(genreAsText), GuardLine("from_string"));
}

}  // namespace
