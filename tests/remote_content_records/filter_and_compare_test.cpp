// Filtering by genre, and where the comparisons of the catalogue records
// leave fields out or order by more than one.
#include <gtest/gtest.h>

#include "record_samples.h"

using namespace samples;

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
