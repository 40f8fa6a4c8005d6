// Inserting, reading and pointing at an offset, and the offset checks that
// end the process.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "FCMessageBuffer.h"

namespace {

std::string Contents(FCMessageBuffer& buffer) {
  const char* bytes = buffer.GetAsCStr(0);
  return bytes ? std::string(bytes, buffer.GetFullBufferSize()) : std::string();
}

void Fill(FCMessageBuffer& buffer, const std::string& bytes) {
  buffer.PushConcatenated(bytes.size(), const_cast<char*>(bytes.data()));
}

char kXyz[] = "XYZ";

struct InsertCase {
  const char* name;
  std::string initial;
  std::function<bool(FCMessageBuffer&)> write;
  std::string expected;
};

class Insert : public testing::TestWithParam<InsertCase> {};

TEST_P(Insert, ShiftsTheTailUpAndReturnsTrue) {
  const InsertCase& c = GetParam();
  FCMessageBuffer buffer;
  Fill(buffer, c.initial);
  EXPECT_TRUE(c.write(buffer));
  EXPECT_EQ(Contents(buffer), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Insert,
    testing::Values(
        InsertCase{"IntAtTheStart", "abcd", [](FCMessageBuffer& b) { return b.WriteInt(0x01020304, 0); },
                   "\x04\x03\x02\x01"
                   "abcd"},
        InsertCase{"IntInTheMiddle", "abcd", [](FCMessageBuffer& b) { return b.WriteInt(0x01020304, 2); },
                   "ab\x04\x03\x02\x01"
                   "cd"},
        InsertCase{"IntAtTheSizeAppends", "abcd", [](FCMessageBuffer& b) { return b.WriteInt(0x01020304, 4); },
                   "abcd\x04\x03\x02\x01"},
        InsertCase{"IntIntoAnEmptyBuffer", "", [](FCMessageBuffer& b) { return b.WriteInt(-1, 0); },
                   "\xff\xff\xff\xff"},
        InsertCase{"BytesAtTheStart", "abcd", [](FCMessageBuffer& b) { return b.WriteConcatenated(3, kXyz, 0); },
                   "XYZabcd"},
        InsertCase{"BytesInTheMiddle", "abcd", [](FCMessageBuffer& b) { return b.WriteConcatenated(2, kXyz, 1); },
                   "aXYbcd"},
        InsertCase{"BytesAtTheSizeAppend", "abcd",
                   [](FCMessageBuffer& b) { return b.WriteConcatenated(3, kXyz, 4); }, "abcdXYZ"},
        InsertCase{"NullBytesInsertZeros", "abcd",
                   [](FCMessageBuffer& b) { return b.WriteConcatenated(2, nullptr, 2); },
                   std::string("ab\0\0cd", 6)},
        InsertCase{"ZeroSizeChecksNoOffset", "abcd",
                   [](FCMessageBuffer& b) { return b.WriteConcatenated(0, kXyz, 100); }, "abcd"},
        InsertCase{"BytesOfTheBufferItself", "abcd",
                   [](FCMessageBuffer& b) {
                     return b.WriteConcatenated(2, const_cast<char*>(b.GetAsCStr(0)), 1);
                   },
                   "aabbcd"}),
    [](const testing::TestParamInfo<InsertCase>& info) { return std::string(info.param.name); });

TEST(MessageBuffer, ReadIntReadsAtTheOffsetAndLeavesTheCursor) {
  FCMessageBuffer buffer;
  buffer.PushChar('a');
  buffer.PushInt(7);
  buffer.PushInt(-9);
  buffer.PopChar();

  int value = 0;
  EXPECT_TRUE(buffer.ReadInt(&value, 1));
  EXPECT_EQ(value, 7);
  EXPECT_TRUE(buffer.ReadInt(&value, 5));
  EXPECT_EQ(value, -9);
  EXPECT_EQ(buffer.GetReadOffset(), 1u);
}

TEST(MessageBuffer, ReadConcatenatedChecksTheOffsetButCopiesFromTheCursor) {
  FCMessageBuffer buffer;
  Fill(buffer, "abcdef");
  buffer.PopChar();
  buffer.PopChar();

  char out[4] = {};
  EXPECT_TRUE(buffer.ReadConcatenated(3, out, 0));
  EXPECT_STREQ(out, "cde");
  EXPECT_TRUE(buffer.ReadConcatenated(3, out, 3));
  EXPECT_STREQ(out, "cde");
  EXPECT_EQ(buffer.GetReadOffset(), 2u);
}

TEST(MessageBuffer, CopyDataCopiesAtTheOffsetWhateverTheCursor) {
  FCMessageBuffer buffer;
  Fill(buffer, "abcdef");
  buffer.PopChar();

  char out[4] = {};
  EXPECT_TRUE(buffer.CopyData(out, 3, 3));
  EXPECT_STREQ(out, "def");
  EXPECT_EQ(buffer.GetReadOffset(), 1u);
}

TEST(MessageBuffer, GetAsCStrPointsAtTheByteOrIsNullAtTheEnd) {
  FCMessageBuffer buffer;
  EXPECT_EQ(buffer.GetAsCStr(0), nullptr);

  Fill(buffer, "abc");
  ASSERT_NE(buffer.GetAsCStr(2), nullptr);
  EXPECT_EQ(*buffer.GetAsCStr(2), 'c');
  EXPECT_EQ(buffer.GetAsCStr(3), nullptr);
  EXPECT_EQ(buffer.GetAsCStr(4), nullptr);
}

TEST(MessageBuffer, GetAsVoidFromOffsetPointsAtTheSameByte) {
  FCMessageBuffer buffer;
  Fill(buffer, "abc");
  EXPECT_EQ(buffer.GetAsVoidFromOffset(1), static_cast<const void*>(buffer.GetAsCStr(1)));
}

struct BadOffsetCase {
  const char* name;
  std::function<void(FCMessageBuffer&)> access;
};

class BadOffsetDeathTest : public testing::TestWithParam<BadOffsetCase> {};

// The handler prints nothing unless the debug marker file exists, so only the
// death itself is checked.
TEST_P(BadOffsetDeathTest, EndsTheProcess) {
  FCMessageBuffer buffer;
  Fill(buffer, "abcdef");
  EXPECT_DEATH(GetParam().access(buffer), "");
}

INSTANTIATE_TEST_SUITE_P(
    Cases, BadOffsetDeathTest,
    testing::Values(
        BadOffsetCase{"WriteIntPastTheSize", [](FCMessageBuffer& b) { b.WriteInt(1, 7); }},
        BadOffsetCase{"WriteIntAtMinusOne", [](FCMessageBuffer& b) { b.WriteInt(1, -1); }},
        BadOffsetCase{"WriteConcatenatedPastTheSize",
                      [](FCMessageBuffer& b) { b.WriteConcatenated(3, kXyz, 7); }},
        BadOffsetCase{"WriteConcatenatedAtMinusOne",
                      [](FCMessageBuffer& b) { b.WriteConcatenated(3, kXyz, -1); }},
        BadOffsetCase{"ReadIntRunningPastTheEnd",
                      [](FCMessageBuffer& b) {
                        int value;
                        b.ReadInt(&value, 3);
                      }},
        // The cursor (0) would keep this copy inside; the offset is what counts.
        BadOffsetCase{"ReadConcatenatedOffsetRunningPastTheEnd",
                      [](FCMessageBuffer& b) {
                        char out[4];
                        b.ReadConcatenated(3, out, 4);
                      }}),
    [](const testing::TestParamInfo<BadOffsetCase>& info) { return std::string(info.param.name); });

}  // namespace
