// The runtime's calendar: every fourth year is a leap year, which agrees
// with the C library's UTC calendar from 1970 to 2099.
#include <gtest/gtest.h>

#include <cstdio>
#include <ctime>
#include <string>

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

std::string BrokenDown(unsigned long seconds) {
  tm_struct broken = {};
  DS1371_BinaryToDate(seconds, &broken);
  return Text(broken);
}

// Every day up to 2100-01-01, at a time of day that moves with the day, both
// ways against the C library; the field that neither reads stays as it was.
TEST(Calendar, AgreesWithTheCLibraryEveryDayFrom1970To2099) {
  for (unsigned long day = 0; day < 47482; ++day) {
    const unsigned long seconds = day * 86400 + (day * 7919) % 86400;
    const std::time_t asTime = static_cast<std::time_t>(seconds);
    std::tm libc = {};
    gmtime_r(&asTime, &libc);
    tm_struct ours = {};
    ours.tm_unused = 12345;
    DS1371_BinaryToDate(seconds, &ours);
    ASSERT_EQ(Text(ours), Text(libc)) << seconds;
    ASSERT_EQ(ours.tm_unused, 12345);
    ASSERT_EQ(DS1371_DateToBinary(&ours), seconds);
  }
}

// 2100 is not a leap year, but the runtime's calendar counts it as one: its
// range ends with 2099, and callers rely on the plain four-year rule.
TEST(Calendar, NamedDatesIncludingALeapDayPast2099) {
  EXPECT_EQ(BrokenDown(0), "1970-01-01 00:00:00 wday 4 yday 0");
  EXPECT_EQ(BrokenDown(951868800UL), "2000-03-01 00:00:00 wday 3 yday 60");
  EXPECT_EQ(BrokenDown(4102444800UL + 59 * 86400), "2100-02-29 00:00:00 wday 1 yday 59");
}

// A month beyond the table, such as the 13 that breaking down gives past the
// calendar or the 0 of a "2016-00-01" text, counts into the adjacent years.
TEST(Calendar, MonthsOutsideTheYearMoveIntoTheAdjacentYears) {
  tm_struct date = {};
  date.tm_mday = 1;
  date.tm_year = 115;
  // 13: 2016-02-01, -1: 2014-12-01, 12: 2016-01-01.
  for (const auto& c : {std::make_pair(13, 1454284800UL), {-1, 1417392000UL}, {12, 1451606400UL}}) {
    date.tm_mon = c.first;
    EXPECT_EQ(DS1371_DateToBinary(&date), c.second) << c.first;
  }
}

}  // namespace
