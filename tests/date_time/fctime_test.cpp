#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

#include "FCTime.h"

namespace {

// 2016-03-01T20:30:00Z
constexpr unsigned long kMarch2016 = 1456864200UL;

// The zone fields on one line: hours:minutes/offset.
std::string Zone(const FCTime& t) {
  return std::to_string(t.tzHour) + ":" + std::to_string(t.tzMinute) + "/" + std::to_string(t.tzOffset);
}

// The zone after a parse. It starts as "1:2/-62", which no parse writes, and
// dst as true, which a failed parse leaves and a successful one stores. The
// suffix is sought at the length of the padded date, and only when at least
// two characters follow it: a lone "Z" is never looked at, and in the unpadded
// "2016-3-1T8:5:0+09:00" index 19 is inside the offset. Any other character
// there leaves the zone alone. The unpadded offset this class prints reads
// back. Texts that do not fit the 256-byte work buffer are refused.
TEST(FCTime, ParseSetsTheZoneOnlyWhereTheSuffixIsSought) {
  const std::string d = "2016-03-01T20:30:00";
  const std::pair<std::string, const char*> cases[] = {
      {d, "1:2/-62"}, {d + "Z", "1:2/-62"}, {d + "ZZ", "0:0/0"}, {d + "+09:00", "9:0/-540"}, {d + "-05:30", "5:30/330"},
      {d + "+9:0", "9:0/-540"}, {"2016-3-1T8:5:0+09:00", "1:2/-62"}, {d + ".250Z", "1:2/-62"}, {d + "+xx", "refused"},
      {d + "+09", "refused"}, {"2016-03-01T20:30", "refused"}, {"garbage", "refused"},
      {d + "Z" + std::string(235, ' '), "0:0/0"}, {d + "Z" + std::string(236, ' '), "refused"}};
  for (const auto& [text, zone] : cases) {
    FCTime time;
    time.tzHour = 1;
    time.tzMinute = 2;
    time.tzOffset = -62;
    time.dst = true;
    const bool parsed = time.from_W3CDateTimeFormat(text, false);
    EXPECT_EQ(parsed ? Zone(time) : "refused", zone) << text;
    EXPECT_EQ(time.dst, !parsed) << text;
  }
}

// One object through all rows: a zero offset keeps the parts that the last
// non-zero one left; dst adds an hour. Then a parsed +09:00, stored as -540,
// which the conversion subtracts, is printed unpadded.
TEST(FCTime, FromUtcShiftsByTheOffsetAndPrintsItUnpadded) {
  const std::tuple<int, bool, const char*, const char*> cases[] = {
      {0, false, "0:0/0", "2016-03-01T20:30:00Z"}, {540, true, "9:0/540", "2016-03-02T06:30:00-9:0"},
      {-645, false, "10:45/-645", "2016-03-01T09:45:00+10:45"}, {0, false, "10:45/0", "2016-03-01T20:30:00Z"}};
  FCTime time;
  for (const auto& [offset, dst, zone, printed] : cases) {
    ASSERT_TRUE(time.from_UTC(kMarch2016, offset, dst));
    EXPECT_EQ(Zone(time) + " " + time.to_W3CDateTimeFormat(), std::string(zone) + " " + printed);
    EXPECT_EQ(time.to_UTC(), kMarch2016) << offset;
  }
  ASSERT_TRUE(time.from_W3CDateTimeFormat("2016-03-01T20:30:00+09:00", false));
  EXPECT_EQ(time.to_UTC(), kMarch2016 + 9 * 3600);
  EXPECT_EQ(time.to_W3CDateTimeFormat(), "2016-03-01T20:30:00+9:0");
}

}  // namespace
