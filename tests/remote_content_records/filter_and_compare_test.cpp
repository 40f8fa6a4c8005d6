// Filtering by genre, and the comparisons and small operations of the
// catalogue records.
#include <gtest/gtest.h>

#include <functional>

#include "record_samples.h"

namespace {

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
    {"RepIdAloneFilters", "", "P", ",7,", {"8"}, false},
    {"WithoutGenresNothingMatches", "R", "", ",7,", {}, false},
    {"AnyGenreMatches", "R", "", ",12,7,", {"3", "7"}, true},
    {"NoPartialIds", "R", "", ",7,", {"77"}, false},
    {"ListWithoutCommasNeverMatches", "R", "", "4", {"4"}, false},
};

FCFilterCriteria Filter(const FilterCase& c) {
  FCFilterCriteria filter;
  filter.rec_id = c.recId;
  filter.rep_id = c.repId;
  filter.genre_id_list = c.genreIdList;
  return filter;
}

class GenreFilter : public ::testing::TestWithParam<FilterCase> {};

// Programmes and guide entries share the rule.
TEST_P(GenreFilter, ProgramAndGuideEntry) {
  FCRemoteProgram program;
  program.genre_array = GetParam().genres;
  FCSmartChannelGuide guide;
  guide.content_genre_array = GetParam().genres;
  FCFilterCriteria filter = Filter(GetParam());
  EXPECT_EQ(program.IsSatisfyFilterCriteria(filter), GetParam().satisfied);
  EXPECT_EQ(guide.IsSatisfyFilterCriteria(filter), GetParam().satisfied);
}

INSTANTIATE_TEST_SUITE_P(Cases, GenreFilter, ::testing::ValuesIn(kFilters),
                         [](const ::testing::TestParamInfo<FilterCase>& info) { return std::string(info.param.name); });

TEST(MSOConfig, EveryFieldTakesPartInEquality) {
  const std::function<void(FCRemoteMSOConfig&)> changes[] = {
      [](FCRemoteMSOConfig& c) { c.strHeadend = "x"; },
      [](FCRemoteMSOConfig& c) { c.strDeviceType = "x"; },
      [](FCRemoteMSOConfig& c) { c.strZipCode = "x"; },
      [](FCRemoteMSOConfig& c) { c.source = 0; },
      [](FCRemoteMSOConfig& c) { c.antennaMode = 0; },
      [](FCRemoteMSOConfig& c) { c.serviceMode = 0; },
      [](FCRemoteMSOConfig& c) { c.str_additional_info_with_json_format = "x"; },
  };
  EXPECT_TRUE(FCRemoteMSOConfig() == FCRemoteMSOConfig());
  for (const auto& change : changes) {
    FCRemoteMSOConfig config;
    change(config);
    EXPECT_TRUE(config != FCRemoteMSOConfig());
  }
}

TEST(GuideEquality, IgnoresTheActivityOnly) {
  FCSmartChannelGuide other = samples::Guide();
  other.activityID = 99;
  EXPECT_TRUE(other == samples::Guide());
  other.timeslot += 1;
  EXPECT_FALSE(other == samples::Guide());
  other = samples::Guide();
  other.content_genre_array = {"9", "4"};
  EXPECT_FALSE(other == samples::Guide());
}

TEST(ChannelKey, OrdersBySignedActivityThenStringsInFieldOrder) {
  FCRemoteChannelKey a = samples::ChannelKey(), b = samples::ChannelKey();
  EXPECT_FALSE(a < b);
  EXPECT_TRUE(a == b);
  a.activityID = -1;
  EXPECT_TRUE(a < b);
  a = b;
  a.str_channel_number = "z";  // decides before the later fields
  b.str_digital_flag = "zz";   // would make b the later one if it decided
  EXPECT_TRUE(b < a);
  EXPECT_FALSE(a == b);
}

TEST(AdditionalProgramRequest, OrdersBySourceThenStartThenDuration) {
  using R = FCAdditionalProgramRequest;
  EXPECT_TRUE(R("A", 10, 5) < R("A", 10, 6));
  EXPECT_FALSE(R("B", 1, 1) < R("A", 9, 9));
  EXPECT_TRUE(R("A", 10, 9) < R("A", 11, -9));
  EXPECT_TRUE(R("A", 10, -1) < R("A", 10, 0));
  EXPECT_TRUE(R("A", 1, 2) == R("A", 1, 2));
  EXPECT_TRUE(R("A", 1, 2) != R("A", 1, 3));
}

}  // namespace
