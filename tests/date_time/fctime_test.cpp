#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <tuple>
#include <utility>

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

// A failed parse leaves dst as it was (set here); a successful one stores it.
// The zone "1:2/-62" is the one no parse writes.
TEST(FCTime, ParseSetsTheZoneOnlyWhereTheSuffixIsSought) {
  const std::pair<std::string, const char*> cases[] = {
      {"2016-03-01T20:30:00", "2016-03-01T20:30:00 1:2/-62"},
      // One character after the date is never looked at, even a "Z".
      {"2016-03-01T20:30:00Z", "2016-03-01T20:30:00 1:2/-62"},
      {"2016-03-01T20:30:00ZZ", "2016-03-01T20:30:00 0:0/0"},
      {"2016-03-01T20:30:00+09:00", "2016-03-01T20:30:00 9:0/-540"},
      {"2016-03-01T20:30:00-05:30", "2016-03-01T20:30:00 5:30/330"},
      // The unpadded form this class prints reads back.
      {"2016-03-01T20:30:00+9:0", "2016-03-01T20:30:00 9:0/-540"},
      // Unpadded fields: the suffix is sought at index 19, inside "+09:00".
      {"2016-3-1T8:5:0+09:00", "2016-03-01T08:05:00 1:2/-62"},
      // Any other character there leaves the zone alone.
      {"2016-03-01T20:30:00.250Z", "2016-03-01T20:30:00 1:2/-62"},
      {"2016-03-01T20:30:00+xx", "refused"}, {"2016-03-01T20:30:00+09", "refused"},
      {"2016-03-01T20:30", "refused"}, {"garbage", "refused"},
      // Texts that do not fit the 256-byte work buffer are refused.
      {"2016-03-01T20:30:00Z" + std::string(235, ' '), "2016-03-01T20:30:00 0:0/0"},
      {"2016-03-01T20:30:00Z" + std::string(236, ' '), "refused"}};
  for (const auto& [text, fields] : cases) {
    FCTime time;
    time.tzHour = 1;
    time.tzMinute = 2;
    time.tzOffset = -62;
    time.dst = true;
    const bool parsed = time.from_W3CDateTimeFormat(text, false);
    EXPECT_EQ(parsed ? Fields(time) : "refused", fields) << text;
    EXPECT_EQ(time.dst, !parsed) << text;
  }
}

TEST(FCTime, ParsedOffsetIsSubtractedAndPrintedUnpadded) {
  FCTime time;
  ASSERT_TRUE(time.from_W3CDateTimeFormat("2016-03-01T20:30:00+09:00", false));
  EXPECT_EQ(time.to_UTC(), kMarch2016 + 9 * 3600);  // stored as -540, which the wrapper subtracts
  EXPECT_EQ(time.to_W3CDateTimeFormat(), "2016-03-01T20:30:00+9:0");
}

// One object through all rows: a zero offset keeps the parts that the last
// non-zero one left.
TEST(FCTime, FromUtcShiftsByTheOffsetAndPrintsItUnpadded) {
  const std::tuple<int, bool, const char*, const char*> cases[] = {
      {0, false, "2016-03-01T20:30:00 0:0/0", "2016-03-01T20:30:00Z"},
      {540, true, "2016-03-02T06:30:00 9:0/540 dst", "2016-03-02T06:30:00-9:0"},  // 20:30 + 9:00 + 1:00
      {-645, false, "2016-03-01T09:45:00 10:45/-645", "2016-03-01T09:45:00+10:45"},
      {0, false, "2016-03-01T20:30:00 10:45/0", "2016-03-01T20:30:00Z"}};
  FCTime time;
  for (const auto& [offset, dst, fields, printed] : cases) {
    ASSERT_TRUE(time.from_UTC(kMarch2016, offset, dst));
    EXPECT_EQ(Fields(time), fields);
    EXPECT_EQ(time.to_W3CDateTimeFormat(), printed);
    EXPECT_EQ(time.to_UTC(), kMarch2016) << offset;
  }
}

}  // namespace
