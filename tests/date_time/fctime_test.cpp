#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "FCTime.h"

namespace {

// 2016-03-01T20:30:00Z
constexpr unsigned long kMarch2016 = 1456864200UL;

// Every field on one line, so that one comparison shows all of them.
std::string Fields(const FCTime& t) {
  char text[96];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d %u:%u/%d%s", t.year, t.month, t.day, t.hour, t.minute,
                t.second, t.tzHour, t.tzMinute, t.tzOffset, t.dst ? " dst" : "");
  return text;
}

struct ParseCase {
  std::string text;
  const char* fields;  // after the parse; zone "1:2/-62" is the one no parse writes
};

class FCTimeParse : public ::testing::TestWithParam<ParseCase> {};

// A failed parse leaves dst as it was (set here); a successful one stores it.
TEST_P(FCTimeParse, SetsTheZoneOnlyWhereTheSuffixIsSought) {
  FCTime time;
  time.tzHour = 1;
  time.tzMinute = 2;
  time.tzOffset = -62;
  time.dst = true;
  const bool parsed = time.from_W3CDateTimeFormat(GetParam().text, false);
  EXPECT_EQ(parsed ? Fields(time) : "refused", GetParam().fields);
  EXPECT_EQ(time.dst, !parsed);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FCTimeParse,
    ::testing::Values(ParseCase{"2016-03-01T20:30:00", "2016-03-01T20:30:00 1:2/-62"},
                      // One character after the date is never looked at, even a "Z".
                      ParseCase{"2016-03-01T20:30:00Z", "2016-03-01T20:30:00 1:2/-62"},
                      ParseCase{"2016-03-01T20:30:00ZZ", "2016-03-01T20:30:00 0:0/0"},
                      ParseCase{"2016-03-01T20:30:00+09:00", "2016-03-01T20:30:00 9:0/-540"},
                      ParseCase{"2016-03-01T20:30:00-05:30", "2016-03-01T20:30:00 5:30/330"},
                      // The unpadded form this class prints reads back.
                      ParseCase{"2016-03-01T20:30:00+9:0", "2016-03-01T20:30:00 9:0/-540"},
                      // Unpadded fields: the suffix is sought at index 19, inside "+09:00".
                      ParseCase{"2016-3-1T8:5:0+09:00", "2016-03-01T08:05:00 1:2/-62"},
                      // Any other character there leaves the zone alone.
                      ParseCase{"2016-03-01T20:30:00.250Z", "2016-03-01T20:30:00 1:2/-62"},
                      ParseCase{"2016-03-01T20:30:00+xx", "refused"}, ParseCase{"2016-03-01T20:30:00+09", "refused"},
                      ParseCase{"2016-03-01T20:30", "refused"}, ParseCase{"garbage", "refused"},
                      // Texts that do not fit the 256-byte work buffer are refused.
                      ParseCase{"2016-03-01T20:30:00Z" + std::string(235, ' '), "2016-03-01T20:30:00 0:0/0"},
                      ParseCase{"2016-03-01T20:30:00Z" + std::string(236, ' '), "refused"}));

TEST(FCTime, ParsedOffsetIsSubtractedAndPrintedUnpadded) {
  FCTime time;
  ASSERT_TRUE(time.from_W3CDateTimeFormat("2016-03-01T20:30:00+09:00", false));
  EXPECT_EQ(time.to_UTC(), kMarch2016 + 9 * 3600);  // stored as -540, which the wrapper subtracts
  EXPECT_EQ(time.to_W3CDateTimeFormat(), "2016-03-01T20:30:00+9:0");
}

// One object through all rows: a zero offset keeps the parts that the last
// non-zero one left.
TEST(FCTime, FromUtcShiftsByTheOffsetAndPrintsItUnpadded) {
  const struct {
    int offset;
    bool dst;
    const char* fields;
    const char* printed;
  } cases[] = {{0, false, "2016-03-01T20:30:00 0:0/0", "2016-03-01T20:30:00Z"},
               {540, true, "2016-03-02T06:30:00 9:0/540 dst", "2016-03-02T06:30:00-9:0"},  // 20:30 + 9:00 + 1:00
               {-645, false, "2016-03-01T09:45:00 10:45/-645", "2016-03-01T09:45:00+10:45"},
               {0, false, "2016-03-01T20:30:00 10:45/0", "2016-03-01T20:30:00Z"}};
  FCTime time;
  for (const auto& c : cases) {
    ASSERT_TRUE(time.from_UTC(kMarch2016, c.offset, c.dst));
    EXPECT_EQ(Fields(time), c.fields);
    EXPECT_EQ(time.to_W3CDateTimeFormat(), c.printed);
    EXPECT_EQ(time.to_UTC(), kMarch2016) << c.offset;
  }
}

}  // namespace
