#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "FCTime.h"

namespace {

// 2016-03-01T20:30:00Z
constexpr unsigned long kMarch2016 = 1456864200UL;

// Every field but dst on one line, so that one comparison shows all of them.
std::string Fields(const FCTime& t) {
  char text[96];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d %u:%u/%d", t.year, t.month, t.day, t.hour, t.minute,
                t.second, t.tzHour, t.tzMinute, t.tzOffset);
  return text;
}

struct ParseCase {
  const char* text;
  bool ok;
  const char* fields;  // after the parse; zone "1:2/-62" is the one no parse writes
};

class FCTimeParse : public ::testing::TestWithParam<ParseCase> {};

TEST_P(FCTimeParse, SetsTheZoneOnlyWhereTheSuffixIsSought) {
  FCTime time;
  time.tzHour = 1;
  time.tzMinute = 2;
  time.tzOffset = -62;
  time.dst = true;
  ASSERT_EQ(GetParam().ok, time.from_W3CDateTimeFormat(GetParam().text, false));
  // A failed parse leaves dst as it was; a successful one stores it.
  EXPECT_EQ(!GetParam().ok, time.dst);
  if (!GetParam().ok) return;
  EXPECT_EQ(GetParam().fields, Fields(time));
}

const ParseCase kParseCases[] = {{"2016-03-01T20:30:00", true, "2016-03-01T20:30:00 1:2/-62"},
                                 // One character after the date is never looked at, even a "Z".
                                 {"2016-03-01T20:30:00Z", true, "2016-03-01T20:30:00 1:2/-62"},
                                 {"2016-03-01T20:30:00ZZ", true, "2016-03-01T20:30:00 0:0/0"},
                                 {"2016-03-01T20:30:00+09:00", true, "2016-03-01T20:30:00 9:0/-540"},
                                 {"2016-03-01T20:30:00-05:30", true, "2016-03-01T20:30:00 5:30/330"},
                                 // The unpadded form this class prints reads back.
                                 {"2016-03-01T20:30:00+9:0", true, "2016-03-01T20:30:00 9:0/-540"},
                                 // Unpadded fields: the suffix is sought at index 19, inside "+09:00".
                                 {"2016-3-1T8:5:0+09:00", true, "2016-03-01T08:05:00 1:2/-62"},
                                 {"2016-3-1T8:5:0+09:00xx", true, "2016-03-01T08:05:00 1:2/-62"},
                                 // Any other character there leaves the zone alone.
                                 {"2016-03-01T20:30:00.250Z", true, "2016-03-01T20:30:00 1:2/-62"},
                                 {"2016-03-01T20:30:00+xx", false, ""},
                                 {"2016-03-01T20:30:00+09", false, ""},
                                 {"2016-03-01T20:30", false, ""},
                                 {"garbage", false, ""},
                                 {"", false, ""}};

INSTANTIATE_TEST_SUITE_P(Texts, FCTimeParse, ::testing::ValuesIn(kParseCases));

TEST(FCTime, DefaultsToZero) {
  EXPECT_EQ("0000-00-00T00:00:00 0:0/0", Fields(FCTime()));
  EXPECT_FALSE(FCTime().dst);
}

TEST(FCTime, RefusesTextsThatDoNotFitTheWorkBuffer) {
  const std::string date = "2016-03-01T20:30:00Z";
  FCTime time;
  EXPECT_TRUE(time.from_W3CDateTimeFormat(date + std::string(255 - date.size(), ' '), false));
  EXPECT_FALSE(time.from_W3CDateTimeFormat(date + std::string(256 - date.size(), ' '), false));
}

TEST(FCTime, ParsedTextsConvertAndPrint) {
  const struct {
    const char* text;
    bool dst;
    unsigned long seconds;
    const char* printed;
  } cases[] = {{"2016-03-01T20:30:00ZZ", false, kMarch2016, "2016-03-01T20:30:00Z"},
               // "+09:00" is stored as -540 and the wrapper subtracts it: nine hours later.
               {"2016-03-01T20:30:00+09:00", false, kMarch2016 + 9 * 3600, "2016-03-01T20:30:00+9:0"},
               {"2016-03-01T20:30:00", true, kMarch2016 - 3600, "2016-03-01T20:30:00Z"}};
  for (const auto& c : cases) {
    FCTime time;
    ASSERT_TRUE(time.from_W3CDateTimeFormat(c.text, c.dst));
    EXPECT_EQ(c.seconds, time.to_UTC()) << c.text;
    EXPECT_EQ(c.printed, time.to_W3CDateTimeFormat());
  }
}

TEST(FCTime, FromUtcShiftsByTheOffsetAndPrintsItUnpadded) {
  const struct {
    int offset;
    bool dst;
    const char* fields;
    const char* printed;
  } cases[] = {{0, false, "2016-03-01T20:30:00 0:0/0", "2016-03-01T20:30:00Z"},
               {570, true, "2016-03-02T07:00:00 9:30/570", "2016-03-02T07:00:00-9:30"},  // 20:30 + 9:30 + 1:00
               {-540, false, "2016-03-01T11:30:00 9:0/-540", "2016-03-01T11:30:00+9:0"},
               {-645, false, "2016-03-01T09:45:00 10:45/-645", "2016-03-01T09:45:00+10:45"},
               // A zero offset keeps the parts that the last non-zero one left.
               {0, false, "2016-03-01T20:30:00 10:45/0", "2016-03-01T20:30:00Z"}};
  FCTime time;
  for (const auto& c : cases) {
    ASSERT_TRUE(time.from_UTC(kMarch2016, c.offset, c.dst));
    EXPECT_EQ(c.fields, Fields(time));
    EXPECT_EQ(c.dst, time.dst);
    EXPECT_EQ(c.printed, time.to_W3CDateTimeFormat());
    EXPECT_EQ(kMarch2016, time.to_UTC()) << c.offset;
  }
}

}  // namespace
