// The programme record's lossy text form, and the guard that ends the
// process on a value that does not convert.
#include <gtest/gtest.h>

#include "record_samples.h"

using namespace samples;

namespace {

std::string TextOf(FCRemoteProgram program) {
  std::string text;
  EXPECT_TRUE(program.to_string(text));
  return text;
}

// Only the last of the genres "1" and "2" is carried; desc, EndTime and IsRF
// are not carried at all.
TEST(ProgramText, IsExactlyThisJson) {
  EXPECT_EQ(Compact(Parsed(TextOf(Program()))),
            Compact(Parsed(R"({"activityID": 1, "str_program_source_id": "p1", "str_channel_name": "p2",
                "str_channel_number": "p3", "str_program_id": "p4", "str_lang": "p5", "str_starttime": "p6",
                "utc_starttime": 1456864200, "duration": 1800, "strTitle": "p7", "str_cert_flag": "p8",
                "genre_array": [{"id": "2"}], "str_poster_url": "p9", "str_poster_type": "p10",
                "str_poster_overlay": "p11", "str_poster_index": "p12", "str_short_desc": "p13"})")));
}

// A start beyond the int range is carried as a negative int and read back
// whole; desc, EndTime and IsRF are not read.
TEST(ProgramText, ReadsBackTheFieldsItCarries) {
  FCRemoteProgram original = Program(), read;
  original.utc_starttime = 4000000000u;
  std::string text = TextOf(original);
  ASSERT_TRUE(read.from_string(text));
  FCRemoteProgram expected = original;
  expected.genre_array = {"2"}, expected.desc.clear(), expected.EndTime = 0, expected.IsRF = false;
  EXPECT_EQ(Compact(Written(read)), Compact(Written(expected)));
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

}  // namespace
