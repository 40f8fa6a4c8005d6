// The runtime's calendar: every fourth year is a leap year, which agrees
// with the C library's UTC calendar from 1970 to 2099.
#include <gtest/gtest.h>

#include <ctime>

#include "FCTimeWapper.h"

namespace {

constexpr unsigned long kSecondsPerDay = 86400;

tm_struct BrokenDown(unsigned long seconds) {
  tm_struct broken = {};
  DS1371_BinaryToDate(seconds, &broken);
  return broken;
}

void ExpectSameDate(const tm_struct& ours, const std::tm& libc) {
  EXPECT_EQ(ours.tm_sec, libc.tm_sec);
  EXPECT_EQ(ours.tm_min, libc.tm_min);
  EXPECT_EQ(ours.tm_hour, libc.tm_hour);
  EXPECT_EQ(ours.tm_mday, libc.tm_mday);
  EXPECT_EQ(ours.tm_mon, libc.tm_mon);
  EXPECT_EQ(ours.tm_year, libc.tm_year);
  EXPECT_EQ(ours.tm_wday, libc.tm_wday);
  EXPECT_EQ(ours.tm_yday, libc.tm_yday);
}

TEST(Calendar, DaysBeforeEachMonthOfACommonYear) {
  const unsigned int expected[13] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};
  for (int month = 0; month < 13; ++month) EXPECT_EQ(DaysToMonth[month], expected[month]) << month;
}

TEST(Calendar, FirstOfMarch2000CountsTheLeapDay) {
  tm_struct date = {};
  date.tm_mday = 1;
  date.tm_mon = 2;
  date.tm_year = 100;
  EXPECT_EQ(DS1371_DateToBinary(&date), 951868800UL);

  const tm_struct back = BrokenDown(951868800UL);
  EXPECT_EQ(back.tm_mon, 2);
  EXPECT_EQ(back.tm_mday, 1);
  EXPECT_EQ(back.tm_year, 100);
  EXPECT_EQ(back.tm_yday, 60);
  EXPECT_EQ(back.tm_wday, 3);
}

TEST(Calendar, EpochIsThursdayFirstOfJanuary1970) {
  const tm_struct epoch = BrokenDown(0);
  EXPECT_EQ(epoch.tm_year, 70);
  EXPECT_EQ(epoch.tm_mon, 0);
  EXPECT_EQ(epoch.tm_mday, 1);
  EXPECT_EQ(epoch.tm_yday, 0);
  EXPECT_EQ(epoch.tm_wday, 4);
  EXPECT_EQ(epoch.tm_hour + epoch.tm_min + epoch.tm_sec, 0);
}

TEST(Calendar, BreakingDownLeavesTheUnusedFieldAlone) {
  tm_struct broken = {};
  broken.tm_unused = 12345;
  DS1371_BinaryToDate(951868800UL, &broken);
  EXPECT_EQ(broken.tm_unused, 12345);
}

// Every day from 1970 to the end of 2099, at a time of day that moves with
// the day, both ways against the C library.
TEST(Calendar, AgreesWithTheCLibraryEveryDayFrom1970To2099) {
  const unsigned long end = 4102444800UL;  // 2100-01-01
  int failures = 0;
  for (unsigned long day = 0; day * kSecondsPerDay < end && failures < 5; ++day) {
    const unsigned long seconds = day * kSecondsPerDay + (day * 7919) % kSecondsPerDay;
    const std::time_t asTime = static_cast<std::time_t>(seconds);
    std::tm libc = {};
    gmtime_r(&asTime, &libc);
    tm_struct ours = BrokenDown(seconds);
    ExpectSameDate(ours, libc);
    EXPECT_EQ(DS1371_DateToBinary(&ours), seconds);
    if (::testing::Test::HasFailure()) ++failures;
  }
}

TEST(Calendar, LastDayOfALeapYearIsTheThreeHundredSixtySixth) {
  const tm_struct last = BrokenDown(1483142400UL);  // 2016-12-31
  EXPECT_EQ(last.tm_yday, 365);
  EXPECT_EQ(last.tm_mon, 11);
  EXPECT_EQ(last.tm_mday, 31);
}

// 2100 is not a leap year, but the runtime's calendar counts it as one: its
// range ends with 2099, and callers rely on the plain four-year rule.
TEST(Calendar, CountsEveryFourthYearAsLeapEvenPast2099) {
  const tm_struct date = BrokenDown(4102444800UL + 59 * kSecondsPerDay);  // 60th day of 2100
  EXPECT_EQ(date.tm_year, 200);
  EXPECT_EQ(date.tm_mon, 1);
  EXPECT_EQ(date.tm_mday, 29);
}

// A month beyond the table, such as the 13 that breaking down gives past the
// calendar or the 0 of a "2016-00-01" text, counts into the adjacent years.
TEST(Calendar, MonthsOutsideTheYearMoveIntoTheAdjacentYears) {
  tm_struct date = {};
  date.tm_mday = 1;
  date.tm_year = 115;
  date.tm_mon = 13;  // February 2016
  EXPECT_EQ(DS1371_DateToBinary(&date), 1454284800UL);
  date.tm_mon = -1;  // December 2014
  EXPECT_EQ(DS1371_DateToBinary(&date), 1417392000UL);
  date.tm_mon = 12;  // January 2016
  EXPECT_EQ(DS1371_DateToBinary(&date), 1451606400UL);
}

struct LocalTimeCase {
  const char* name;
  int offsetMinutes;
  bool dst;
  long shiftSeconds;
};

class LocalTime : public ::testing::TestWithParam<LocalTimeCase> {};

TEST_P(LocalTime, ShiftsByTheOffsetAndTheDaylightHour) {
  const unsigned long utc = 951868800UL;  // 2000-03-01 00:00:00
  FCTimeWrapper::PTTime local = {};
  FCTimeWrapper::ConvertEpochToLocalTime(&local, utc, GetParam().offsetMinutes, GetParam().dst);

  const std::time_t shifted = static_cast<std::time_t>(utc + GetParam().shiftSeconds);
  std::tm expected = {};
  gmtime_r(&shifted, &expected);
  EXPECT_EQ(local.year, expected.tm_year + 1900);
  EXPECT_EQ(local.month, expected.tm_mon + 1);
  EXPECT_EQ(local.day, expected.tm_mday);
  EXPECT_EQ(local.hour, expected.tm_hour);
  EXPECT_EQ(local.minute, expected.tm_min);
  EXPECT_EQ(local.second, expected.tm_sec);

  unsigned long back = 0;
  FCTimeWrapper::ConvertLocalToEpochTime(&back, &local, GetParam().offsetMinutes, GetParam().dst);
  EXPECT_EQ(back, utc);
}

INSTANTIATE_TEST_SUITE_P(
    Offsets, LocalTime,
    ::testing::Values(LocalTimeCase{"Utc", 0, false, 0}, LocalTimeCase{"NineHoursWithDaylightIsTen", 540, true, 36000},
                      LocalTimeCase{"FiveAndAHalfHoursBehind", -330, false, -19800},
                      LocalTimeCase{"DaylightAlone", 0, true, 3600}),
    [](const ::testing::TestParamInfo<LocalTimeCase>& info) { return std::string(info.param.name); });

TEST(LocalTimeDeathTest, NullPointersEndTheProcess) {
  FCTimeWrapper::PTTime local = {};
  unsigned long seconds = 0;
  EXPECT_DEATH(FCTimeWrapper::ConvertEpochToLocalTime(nullptr, 0, 0, false), "");
  EXPECT_DEATH(FCTimeWrapper::ConvertLocalToEpochTime(nullptr, &local, 0, false), "");
  EXPECT_DEATH(FCTimeWrapper::ConvertLocalToEpochTime(&seconds, nullptr, 0, false), "");
}

}  // namespace
