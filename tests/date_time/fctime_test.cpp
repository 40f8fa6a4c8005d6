#include <gtest/gtest.h>

#include <string>

#include "FCTime.h"

namespace {

// 2016-03-01T20:30:00Z
constexpr unsigned long kMarch2016 = 1456864200UL;

// Zone fields that no parse produces, to see whether a parse touched them.
FCTime TimeWithMarkedZone() {
  FCTime time;
  time.tzHour = 1;
  time.tzMinute = 2;
  time.tzOffset = -62;
  time.dst = true;
  return time;
}

struct ParseCase {
  const char* text;
  bool ok;
  int year, month, day, hour, minute, second;
  bool zoneTouched;
  unsigned int tzHour, tzMinute;
  int tzOffset;
};

class FCTimeParse : public ::testing::TestWithParam<ParseCase> {};

TEST_P(FCTimeParse, SetsFieldsAndZoneOnlyWhereTheSuffixIsSought) {
  const ParseCase& c = GetParam();
  FCTime time = TimeWithMarkedZone();

  ASSERT_EQ(c.ok, time.from_W3CDateTimeFormat(c.text, false));

  // A failed parse leaves dst as it was; a successful one stores it.
  EXPECT_EQ(!c.ok, time.dst);
  if (!c.ok) return;
  EXPECT_EQ(c.year, time.year);
  EXPECT_EQ(c.month, time.month);
  EXPECT_EQ(c.day, time.day);
  EXPECT_EQ(c.hour, time.hour);
  EXPECT_EQ(c.minute, time.minute);
  EXPECT_EQ(c.second, time.second);
  const FCTime marked = TimeWithMarkedZone();
  EXPECT_EQ(c.zoneTouched ? c.tzHour : marked.tzHour, time.tzHour);
  EXPECT_EQ(c.zoneTouched ? c.tzMinute : marked.tzMinute, time.tzMinute);
  EXPECT_EQ(c.zoneTouched ? c.tzOffset : marked.tzOffset, time.tzOffset);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FCTimeParse,
    ::testing::Values(ParseCase{"2016-03-01T20:30:00", true, 2016, 3, 1, 20, 30, 0, false, 0, 0, 0},
                      // One character after the date is never looked at, even a "Z".
                      ParseCase{"2016-03-01T20:30:00Z", true, 2016, 3, 1, 20, 30, 0, false, 0, 0, 0},
                      ParseCase{"2016-03-01T20:30:00ZZ", true, 2016, 3, 1, 20, 30, 0, true, 0, 0, 0},
                      ParseCase{"2016-03-01T20:30:00+09:00", true, 2016, 3, 1, 20, 30, 0, true, 9, 0, -540},
                      ParseCase{"2016-03-01T20:30:00-05:30", true, 2016, 3, 1, 20, 30, 0, true, 5, 30, 330},
                      // The unpadded form this class prints reads back.
                      ParseCase{"2016-03-01T20:30:00+9:0", true, 2016, 3, 1, 20, 30, 0, true, 9, 0, -540},
                      // Unpadded fields: the suffix is sought at index 19, inside "+09:00".
                      ParseCase{"2016-3-1T8:5:0+09:00", true, 2016, 3, 1, 8, 5, 0, false, 0, 0, 0},
                      ParseCase{"2016-3-1T8:5:0+09:00xx", true, 2016, 3, 1, 8, 5, 0, false, 0, 0, 0},
                      // Any other character there leaves the zone alone.
                      ParseCase{"2016-03-01T20:30:00.250Z", true, 2016, 3, 1, 20, 30, 0, false, 0, 0, 0},
                      ParseCase{"2016-03-01T20:30:00+xx", false, 0, 0, 0, 0, 0, 0, false, 0, 0, 0},
                      ParseCase{"2016-03-01T20:30:00+09", false, 0, 0, 0, 0, 0, 0, false, 0, 0, 0},
                      ParseCase{"2016-03-01T20:30", false, 0, 0, 0, 0, 0, 0, false, 0, 0, 0},
                      ParseCase{"garbage", false, 0, 0, 0, 0, 0, 0, false, 0, 0, 0},
                      ParseCase{"", false, 0, 0, 0, 0, 0, 0, false, 0, 0, 0}));

TEST(FCTime, DefaultsToZero) {
  FCTime time;
  EXPECT_EQ(0, time.year + time.month + time.day + time.hour + time.minute + time.second + time.tzOffset);
  EXPECT_EQ(0U, time.tzHour + time.tzMinute);
  EXPECT_FALSE(time.dst);
}

TEST(FCTime, RefusesTextsThatDoNotFitTheWorkBuffer) {
  const std::string date = "2016-03-01T20:30:00Z";
  FCTime time;
  EXPECT_TRUE(time.from_W3CDateTimeFormat(date + std::string(255 - date.size(), ' '), false));
  EXPECT_FALSE(time.from_W3CDateTimeFormat(date + std::string(256 - date.size(), ' '), false));
}

struct FormatCase {
  unsigned int tzHour, tzMinute;
  int tzOffset;
  const char* text;
};

class FCTimeFormat : public ::testing::TestWithParam<FormatCase> {};

TEST_P(FCTimeFormat, WritesTheZoneUnpadded) {
  FCTime time;
  time.year = 2016;
  time.month = 3;
  time.day = 1;
  time.hour = 8;
  time.minute = 5;
  time.tzHour = GetParam().tzHour;
  time.tzMinute = GetParam().tzMinute;
  time.tzOffset = GetParam().tzOffset;
  EXPECT_EQ(GetParam().text, time.to_W3CDateTimeFormat());
}

INSTANTIATE_TEST_SUITE_P(Zones, FCTimeFormat,
                         ::testing::Values(FormatCase{0, 0, 0, "2016-03-01T08:05:00Z"},
                                           FormatCase{7, 7, 0, "2016-03-01T08:05:00Z"},
                                           FormatCase{9, 0, -540, "2016-03-01T08:05:00+9:0"},
                                           FormatCase{5, 30, 330, "2016-03-01T08:05:00-5:30"},
                                           FormatCase{10, 45, -645, "2016-03-01T08:05:00+10:45"}));

TEST(FCTime, ParsedOffsetSurvivesAPrint) {
  FCTime time;
  ASSERT_TRUE(time.from_W3CDateTimeFormat("2016-03-01T20:30:00+09:00", false));
  EXPECT_EQ("2016-03-01T20:30:00+9:0", time.to_W3CDateTimeFormat());
}

TEST(FCTime, UtcRoundTripOnAFreshObjectEndsInZ) {
  FCTime time;
  ASSERT_TRUE(time.from_UTC(kMarch2016, 0, false));
  EXPECT_EQ("2016-03-01T20:30:00Z", time.to_W3CDateTimeFormat());
  EXPECT_EQ(kMarch2016, time.to_UTC());
}

TEST(FCTime, ToUtcHandsTheStoredOffsetOnUnchanged) {
  FCTime utc;
  ASSERT_TRUE(utc.from_W3CDateTimeFormat("2016-03-01T20:30:00ZZ", false));
  EXPECT_EQ(kMarch2016, utc.to_UTC());

  // "+09:00" is stored as -540 and the wrapper subtracts it: nine hours later.
  FCTime ahead;
  ASSERT_TRUE(ahead.from_W3CDateTimeFormat("2016-03-01T20:30:00+09:00", false));
  EXPECT_EQ(kMarch2016 + 9 * 3600, ahead.to_UTC());

  FCTime summer;
  ASSERT_TRUE(summer.from_W3CDateTimeFormat("2016-03-01T20:30:00", true));
  EXPECT_EQ(kMarch2016 - 3600, summer.to_UTC());
}

TEST(FCTime, FromUtcShiftsByTheOffsetAndSplitsIt) {
  FCTime time;
  ASSERT_TRUE(time.from_UTC(kMarch2016, 570, true));
  EXPECT_EQ(2016, time.year);
  EXPECT_EQ(3, time.month);
  EXPECT_EQ(2, time.day);
  EXPECT_EQ(7, time.hour);  // 20:30 + 9:30 + 1:00
  EXPECT_EQ(0, time.minute);
  EXPECT_EQ(9U, time.tzHour);
  EXPECT_EQ(30U, time.tzMinute);
  EXPECT_EQ(570, time.tzOffset);
  EXPECT_TRUE(time.dst);
  EXPECT_EQ("2016-03-02T07:00:00-9:30", time.to_W3CDateTimeFormat());
}

TEST(FCTime, FromUtcWithZeroOffsetKeepsTheOffsetParts) {
  FCTime time;
  time.from_UTC(kMarch2016, -90, false);
  EXPECT_EQ(1U, time.tzHour);
  EXPECT_EQ(30U, time.tzMinute);
  time.from_UTC(kMarch2016, 0, false);
  EXPECT_EQ(0, time.tzOffset);
  EXPECT_EQ(1U, time.tzHour);
  EXPECT_EQ(30U, time.tzMinute);
  EXPECT_EQ("2016-03-01T20:30:00Z", time.to_W3CDateTimeFormat());
}

}  // namespace
