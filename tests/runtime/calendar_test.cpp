// The runtime's calendar: every fourth year is a leap year, which agrees
// with the C library's UTC calendar from 1970 to 2099.
#include <gtest/gtest.h>

#include <cstdio>
#include <ctime>
#include <string>
#include <tuple>

#include "FCTimeWapper.h"

namespace {

// The fields both broken-down forms share, on one line.
template <typename Tm>
std::string Text(const Tm& t) {
  char text[64];
  std::snprintf(text, sizeof text, "%d-%02d-%02d %02d:%02d:%02d wday %d yday %d", t.tm_year + 1900, t.tm_mon + 1,
                t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec, t.tm_wday, t.tm_yday);
  return text;
}

// Every day up to 2100-01-01 (among them 1970-01-01 and the leap day of
// 2000), at a time of day that moves with the day, both ways against the C
// library; the field that neither reads stays as it was.
TEST(Calendar, AgreesWithTheCLibraryEveryDayFrom1970To2099) {
  for (unsigned long day = 0; day < 47482; ++day) {
    const unsigned long seconds = day * 86400 + (day * 7919) % 86400;
    const std::time_t asTime = static_cast<std::time_t>(seconds);
    std::tm libc = {};
    gmtime_r(&asTime, &libc);
    tm_struct ours = {0, 0, 0, 0, 12345, 0, 0, 0, 0};  // its fifth field is the one that is left alone
    DS1371_BinaryToDate(seconds, &ours);
    ASSERT_EQ(Text(ours), Text(libc)) << seconds;
    ASSERT_EQ(ours.tm_unused, 12345);
    ASSERT_EQ(DS1371_DateToBinary(&ours), seconds);
  }
}

// A month beyond the table, such as the 13 that breaking down gives past the
// calendar or the 0 of a "2016-00-01" text, counts into the adjacent years.
// 2100 is not a leap year, but the runtime's calendar counts it as one: its
// range ends with 2099, and callers rely on the plain four-year rule.
TEST(Calendar, MonthsOutsideTheYearMoveIntoTheAdjacentYearsAndEveryFourthYearLeaps) {
  // 2016-02-01, 2014-12-01, 2016-01-01, and 2100-03-01 after a 29 February.
  for (const auto& [year, month, seconds] :
       {std::tuple(115, 13, 1454284800UL), {115, -1, 1417392000UL}, {115, 12, 1451606400UL}, {200, 2, 4107628800UL}}) {
    tm_struct date = {0, 0, 0, 1, 0, month, year, 0, 0};
    EXPECT_EQ(DS1371_DateToBinary(&date), seconds) << year << " " << month;
  }
}

}  // namespace
