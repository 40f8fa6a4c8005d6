// The payload buffer: appending and inserting bytes, popping them from the
// read cursor, reading at an offset, and the checks that print or abort.
#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <functional>
#include <string>

#include "FCMessageBuffer.h"

namespace {

using B = FCMessageBuffer;
using Op = std::function<bool(B&)>;
using Z = std::string;  // for bytes with zeros among them

std::string Contents(FCMessageBuffer& buffer) {
  const char* bytes = buffer.GetAsCStr(0);
  return bytes ? std::string(bytes, buffer.GetFullBufferSize()) : std::string();
}

void Fill(FCMessageBuffer& buffer, const std::string& bytes) {
  buffer.PushConcatenated(bytes.size(), const_cast<char*>(bytes.data()));
}

std::string StdoutOf(const std::function<void()>& action) {
  std::fflush(stdout);
  testing::internal::CaptureStdout();
  action();
  std::fflush(stdout);
  return testing::internal::GetCapturedStdout();
}

template <class Case>
std::string NameOf(const testing::TestParamInfo<Case>& info) {
  return info.param.name;
}

char kXyz[] = "XYZ";
char kXZeroY[] = "X\0Y";
FCMessageBuffer gEmpty;

// A buffer partly read still hands over all its bytes.
bool PushPartlyReadBuffer(B& b) {
  FCMessageBuffer other;
  Fill(other, "xyz");
  other.PopChar();
  return b.PushBuffer(&other);
}

// Bytes of the buffer itself, which its growth may move.
void* Own(B& buffer, int offset) { return const_cast<char*>(buffer.GetAsCStr(offset)); }

struct EditCase {
  const char* name;
  std::string initial;
  Op edit;
  std::string expected;
};

class Edit : public testing::TestWithParam<EditCase> {};

TEST_P(Edit, GivesTheBytesAndReturnsTrue) {
  FCMessageBuffer buffer;
  Fill(buffer, GetParam().initial);
  EXPECT_TRUE(GetParam().edit(buffer));
  EXPECT_EQ(Contents(buffer), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Edit,
    testing::Values(
        EditCase{"PushZeroSize", "ab", [](B& b) { return b.PushConcatenated(0, kXyz); }, "ab"},
        EditCase{"PushNullAppendsZeros", "ab", [](B& b) { return b.PushConcatenated(3, nullptr); }, Z("ab\0\0\0", 5)},
        EditCase{"PushCopiesItsSizeOnly", "ab", [](B& b) { return b.PushConcatenated(2, kXyz); }, "abXY"},
        EditCase{"PushKeepsEmbeddedZeros", "", [](B& b) { return b.PushConcatenated(3, kXZeroY); }, Z("X\0Y", 3)},
        EditCase{"PushIntLeastSignificantFirst", "", [](B& b) { return b.PushInt(0x01020304); }, "\4\3\2\1"},
        EditCase{"PushOwnBytes", "abc", [](B& b) { return b.PushConcatenated(2, Own(b, 1)); }, "abcbc"},
        EditCase{"PushBufferItself", "abc", [](B& b) { return b.PushBuffer(&b); }, "abcabc"},
        EditCase{"PushBufferWhateverItsCursor", "ab", PushPartlyReadBuffer, "abxyz"},
        EditCase{"PushEmptyBuffer", "ab", [](B& b) { return b.PushBuffer(&gEmpty); }, "ab"},
        EditCase{"ResizeAddsZeros", "abcde", [](B& b) { return b.Resize(3); }, Z("abcde\0\0\0", 8)},
        EditCase{"WriteIntAtTheStart", "abcd", [](B& b) { return b.WriteInt(0x01020304, 0); }, "\4\3\2\1abcd"},
        EditCase{"WriteIntInTheMiddle", "abcd", [](B& b) { return b.WriteInt(0x01020304, 2); }, "ab\4\3\2\1cd"},
        EditCase{"WriteIntAtTheSizeAppends", "abcd", [](B& b) { return b.WriteInt(-1, 4); }, "abcd\xff\xff\xff\xff"},
        EditCase{"WriteBytesInTheMiddle", "abcd", [](B& b) { return b.WriteConcatenated(2, kXyz, 1); }, "aXYbcd"},
        EditCase{"WriteBytesAtTheSize", "abcd", [](B& b) { return b.WriteConcatenated(3, kXyz, 4); }, "abcdXYZ"},
        EditCase{"WriteNullInsertsZeros", "abcd", [](B& b) { return b.WriteConcatenated(2, nullptr, 2); },
                 Z("ab\0\0cd", 6)},
        EditCase{"WriteZeroSizeChecksNoOffset", "abcd", [](B& b) { return b.WriteConcatenated(0, kXyz, 100); }, "abcd"},
        EditCase{"WriteOwnBytes", "abcd", [](B& b) { return b.WriteConcatenated(2, Own(b, 0), 1); }, "aabbcd"}),
    NameOf<EditCase>);

TEST(MessageBuffer, MixedValuesComeBackInOrderWithoutAlignment) {
  FCMessageBuffer buffer;
  EXPECT_TRUE(buffer.PushChar('c'));
  buffer.PushInt(-2);
  Fill(buffer, "xyz");
  buffer.PushInt(INT_MIN);
  buffer.PushChar('\xff');
  ASSERT_EQ(buffer.GetFullBufferSize(), 13u);

  EXPECT_EQ(buffer.PopChar(), 'c');
  EXPECT_EQ(buffer.PopInt(), -2);
  char* text = static_cast<char*>(buffer.PopConcatenated(3));
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(buffer.PopInt(), INT_MIN);
  EXPECT_EQ(buffer.PopChar(), '\xff');
  EXPECT_EQ(buffer.GetReadOffset(), 13u);

  // The popped bytes are the caller's own copy.
  buffer.Clean();
  Fill(buffer, "zzzzz");
  EXPECT_EQ(std::string(text, 3), "xyz");
  delete[] text;
}

struct ShortPopCase {
  const char* name;
  std::string content;
  int charsPoppedBefore;
  std::string message;
  Op popGivesNeutral;
};

class ShortPop : public testing::TestWithParam<ShortPopCase> {};

TEST_P(ShortPop, PrintsWithoutNewlineGivesNeutralAndLeavesTheCursor) {
  const ShortPopCase& c = GetParam();
  FCMessageBuffer buffer;
  Fill(buffer, c.content);
  for (int i = 0; i < c.charsPoppedBefore; ++i) buffer.PopChar();

  bool neutral = false;
  EXPECT_EQ(StdoutOf([&] { neutral = c.popGivesNeutral(buffer); }), c.message);
  EXPECT_TRUE(neutral);
  EXPECT_EQ(buffer.GetReadOffset(), static_cast<unsigned long>(c.charsPoppedBefore));
  EXPECT_EQ(Contents(buffer), c.content);
}

const char kNoChar[] = "Data buffer is smaller than 1 byte";
const char kNoInt[] = "Data buffer is smaller than 4 bytes";

INSTANTIATE_TEST_SUITE_P(
    Cases, ShortPop,
    testing::Values(ShortPopCase{"PopCharAtTheEnd", "ab", 2, kNoChar, [](B& b) { return b.PopChar() == 0; }},
                    ShortPopCase{"PopIntOnThreeBytes", "abc", 0, kNoInt, [](B& b) { return b.PopInt() == 0; }},
                    ShortPopCase{"PopIntWithThreeLeft", "abcde", 2, kNoInt, [](B& b) { return b.PopInt() == 0; }},
                    ShortPopCase{"PopConcatenatedOneTooMany", "abcd", 1, "Data buffer is smaller than 4 byte(s)",
                                 [](B& b) { return b.PopConcatenated(4) == nullptr; }},
                    ShortPopCase{"PopConcatenatedSizeBeyond32Bits", "ab", 0,
                                 "Data buffer is smaller than 4294967297 byte(s)",
                                 [](B& b) { return b.PopConcatenated(0x100000001UL) == nullptr; }}),
    NameOf<ShortPopCase>);

TEST(MessageBuffer, CleanEmptiesRewindsAndKeepsTheStorage) {
  FCMessageBuffer buffer;
  Fill(buffer, std::string(16, 'a'));
  const char* storage = buffer.GetAsCStr(0);
  buffer.PopInt();
  buffer.PopChar();

  EXPECT_TRUE(buffer.Clean());
  EXPECT_EQ(buffer.GetFullBufferSize(), 0u);
  EXPECT_EQ(buffer.GetReadOffset(), 0u);
  EXPECT_EQ(StdoutOf([&] { EXPECT_EQ(buffer.PopChar(), 0); }), kNoChar);

  Fill(buffer, std::string(16, 'b'));
  EXPECT_EQ(buffer.GetAsCStr(0), storage);
  EXPECT_EQ(buffer.PopChar(), 'b');
}

// Storage that does not move while the content grows shows the capacity.
TEST(MessageBuffer, ReserveMakesRoomKeepsTheContentAndNeverShrinks) {
  FCMessageBuffer buffer;
  Fill(buffer, "abc");
  EXPECT_TRUE(buffer.Reserve(64));
  const char* storage = buffer.GetAsCStr(0);
  EXPECT_TRUE(buffer.Reserve(8));
  EXPECT_EQ(Contents(buffer), "abc");

  Fill(buffer, std::string(61, 'x'));
  EXPECT_EQ(buffer.GetAsCStr(0), storage);
}

// ReadInt and CopyData read at the offset; ReadConcatenated checks the
// offset but copies from the cursor.
TEST(MessageBuffer, ReadsWithoutMovingTheCursor) {
  FCMessageBuffer buffer;
  Fill(buffer, "abcdefgh");
  buffer.PopChar();
  buffer.PopChar();

  int value = 0;
  EXPECT_TRUE(buffer.ReadInt(&value, 4));
  EXPECT_EQ(std::string(reinterpret_cast<char*>(&value), 4), "efgh");
  char out[4] = {};
  EXPECT_TRUE(buffer.CopyData(out, 3, 5));
  EXPECT_STREQ(out, "fgh");
  EXPECT_TRUE(buffer.ReadConcatenated(3, out, 0));
  EXPECT_STREQ(out, "cde");
  EXPECT_TRUE(buffer.ReadConcatenated(3, out, 5));
  EXPECT_STREQ(out, "cde");
  EXPECT_EQ(buffer.GetReadOffset(), 2u);
}

TEST(MessageBuffer, GetAsCStrPointsAtTheByteOrIsNullAtTheEnd) {
  FCMessageBuffer buffer;
  EXPECT_EQ(buffer.GetAsCStr(0), nullptr);

  Fill(buffer, "abc");
  ASSERT_NE(buffer.GetAsCStr(2), nullptr);
  EXPECT_EQ(*buffer.GetAsCStr(2), 'c');
  EXPECT_EQ(buffer.GetAsVoidFromOffset(2), static_cast<const void*>(buffer.GetAsCStr(2)));
  EXPECT_EQ(buffer.GetAsCStr(3), nullptr);
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

int gSink;
char gOut[4];

// The last case's cursor (0) would keep the copy inside; the offset is what
// counts.
INSTANTIATE_TEST_SUITE_P(
    Cases, BadOffsetDeathTest,
    testing::Values(BadOffsetCase{"WriteIntPastTheSize", [](B& b) { b.WriteInt(1, 7); }},
                    BadOffsetCase{"WriteIntAtMinusOne", [](B& b) { b.WriteInt(1, -1); }},
                    BadOffsetCase{"WriteBytesPastTheSize", [](B& b) { b.WriteConcatenated(3, kXyz, 7); }},
                    BadOffsetCase{"WriteBytesAtMinusOne", [](B& b) { b.WriteConcatenated(3, kXyz, -1); }},
                    BadOffsetCase{"ReadIntPastTheEnd", [](B& b) { b.ReadInt(&gSink, 3); }},
                    BadOffsetCase{"ReadBytesPastTheEnd", [](B& b) { b.ReadConcatenated(3, gOut, 4); }}),
    NameOf<BadOffsetCase>);

}  // namespace
