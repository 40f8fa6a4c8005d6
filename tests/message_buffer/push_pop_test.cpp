// Appending at the end, popping from the read cursor, and the storage calls.
#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
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

std::string StdoutOf(const std::function<void()>& action) {
  std::fflush(stdout);
  testing::internal::CaptureStdout();
  action();
  std::fflush(stdout);
  return testing::internal::GetCapturedStdout();
}

TEST(MessageBuffer, StartsEmptyWithTheCursorAtZero) {
  FCMessageBuffer buffer;
  EXPECT_EQ(buffer.GetFullBufferSize(), 0u);
  EXPECT_EQ(buffer.GetReadOffset(), 0u);
  EXPECT_EQ(buffer.GetAsCStr(0), nullptr);
}

struct PushCase {
  const char* name;
  std::string initial;
  unsigned long size;
  const char* data;
  std::string expected;
};

class PushConcatenated : public testing::TestWithParam<PushCase> {};

TEST_P(PushConcatenated, AppendsTheBytesOrZerosAndReturnsTrue) {
  const PushCase& c = GetParam();
  FCMessageBuffer buffer;
  Fill(buffer, c.initial);
  EXPECT_TRUE(buffer.PushConcatenated(c.size, const_cast<char*>(c.data)));
  EXPECT_EQ(Contents(buffer), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, PushConcatenated,
    testing::Values(PushCase{"ZeroSizeChangesNothing", "ab", 0, "xyz", "ab"},
                    PushCase{"ZeroSizeWithoutDataChangesNothing", "ab", 0, nullptr, "ab"},
                    PushCase{"NullDataAppendsZeros", "ab", 3, nullptr, std::string("ab\0\0\0", 5)},
                    PushCase{"DataIsCopiedForItsSizeOnly", "ab", 2, "xyz", "abxy"},
                    PushCase{"EmbeddedZerosAreKept", "", 3, "x\0y", std::string("x\0y", 3)}),
    [](const testing::TestParamInfo<PushCase>& info) { return std::string(info.param.name); });

TEST(MessageBuffer, PushIntStoresTheLeastSignificantByteFirst) {
  FCMessageBuffer buffer;
  EXPECT_TRUE(buffer.PushInt(0x01020304));
  EXPECT_EQ(Contents(buffer), "\x04\x03\x02\x01");
}

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
  EXPECT_EQ(std::string(text, 3), "xyz");
  delete[] text;
  EXPECT_EQ(buffer.PopInt(), INT_MIN);
  EXPECT_EQ(buffer.PopChar(), '\xff');
  EXPECT_EQ(buffer.GetReadOffset(), 13u);
}

TEST(MessageBuffer, PushBufferAppendsAllOfTheOtherWhateverItsCursor) {
  FCMessageBuffer source;
  Fill(source, "abc");
  source.PopChar();
  source.PopChar();

  FCMessageBuffer target;
  Fill(target, "12");
  EXPECT_TRUE(target.PushBuffer(&source));
  EXPECT_EQ(Contents(target), "12abc");
  EXPECT_EQ(Contents(source), "abc");
  EXPECT_EQ(source.GetReadOffset(), 2u);
}

TEST(MessageBuffer, PushBufferOfAnEmptyBufferChangesNothing) {
  FCMessageBuffer empty;
  FCMessageBuffer target;
  Fill(target, "ab");
  EXPECT_TRUE(target.PushBuffer(&empty));
  EXPECT_EQ(Contents(target), "ab");
}

// Growing may move the storage the source bytes live in.
TEST(MessageBuffer, BytesTakenFromTheBufferItselfSurviveItsGrowth) {
  FCMessageBuffer buffer;
  Fill(buffer, "abc");
  EXPECT_TRUE(buffer.PushBuffer(&buffer));
  EXPECT_EQ(Contents(buffer), "abcabc");
  EXPECT_TRUE(buffer.PushConcatenated(2, const_cast<char*>(buffer.GetAsCStr(1))));
  EXPECT_EQ(Contents(buffer), "abcabcbc");
}

TEST(MessageBuffer, PopConcatenatedHandsOverACopyTheCallerOwns) {
  FCMessageBuffer buffer;
  Fill(buffer, "hello");
  char* popped = static_cast<char*>(buffer.PopConcatenated(3));
  ASSERT_NE(popped, nullptr);
  EXPECT_EQ(buffer.GetReadOffset(), 3u);

  buffer.Clean();
  Fill(buffer, "zzzzz");
  EXPECT_EQ(std::string(popped, 3), "hel");
  delete[] popped;
}

struct ShortPopCase {
  const char* name;
  std::string content;
  int charsPoppedBefore;
  // Performs the pop and tells whether it gave the neutral result.
  std::function<bool(FCMessageBuffer&)> popGivesNeutral;
  std::string message;
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

INSTANTIATE_TEST_SUITE_P(
    Cases, ShortPop,
    testing::Values(
        ShortPopCase{"PopCharOnEmpty", "", 0, [](FCMessageBuffer& b) { return b.PopChar() == 0; },
                     "Data buffer is smaller than 1 byte"},
        ShortPopCase{"PopCharAtTheEnd", "ab", 2, [](FCMessageBuffer& b) { return b.PopChar() == 0; },
                     "Data buffer is smaller than 1 byte"},
        ShortPopCase{"PopIntOnThreeBytes", "abc", 0, [](FCMessageBuffer& b) { return b.PopInt() == 0; },
                     "Data buffer is smaller than 4 bytes"},
        ShortPopCase{"PopIntWithThreeLeft", "abcde", 2, [](FCMessageBuffer& b) { return b.PopInt() == 0; },
                     "Data buffer is smaller than 4 bytes"},
        ShortPopCase{"PopConcatenatedOneTooMany", "abcd", 1,
                     [](FCMessageBuffer& b) { return b.PopConcatenated(4) == nullptr; },
                     "Data buffer is smaller than 4 byte(s)"},
        ShortPopCase{"PopConcatenatedSizeBeyond32Bits", "ab", 0,
                     [](FCMessageBuffer& b) { return b.PopConcatenated(0x100000001UL) == nullptr; },
                     "Data buffer is smaller than 4294967297 byte(s)"}),
    [](const testing::TestParamInfo<ShortPopCase>& info) { return std::string(info.param.name); });

TEST(MessageBuffer, CleanEmptiesRewindsAndKeepsTheStorage) {
  FCMessageBuffer buffer;
  Fill(buffer, std::string(16, 'a'));
  const char* storage = buffer.GetAsCStr(0);
  buffer.PopInt();
  buffer.PopChar();

  EXPECT_TRUE(buffer.Clean());
  EXPECT_EQ(buffer.GetFullBufferSize(), 0u);
  EXPECT_EQ(buffer.GetReadOffset(), 0u);
  EXPECT_EQ(StdoutOf([&] { EXPECT_EQ(buffer.PopChar(), 0); }), "Data buffer is smaller than 1 byte");

  Fill(buffer, std::string(16, 'b'));
  EXPECT_EQ(buffer.GetAsCStr(0), storage);
  EXPECT_EQ(buffer.PopChar(), 'b');
}

TEST(MessageBuffer, ResizeAddsThatManyZeroBytes) {
  FCMessageBuffer buffer;
  Fill(buffer, "abcde");
  EXPECT_TRUE(buffer.Resize(3));
  EXPECT_EQ(Contents(buffer), std::string("abcde\0\0\0", 8));
  EXPECT_TRUE(buffer.Resize(0));
  EXPECT_EQ(buffer.GetFullBufferSize(), 8u);
}

// Storage that does not move while the content grows shows the capacity.
TEST(MessageBuffer, ReserveMakesRoomAndKeepsTheContent) {
  FCMessageBuffer buffer;
  Fill(buffer, "abc");
  EXPECT_TRUE(buffer.Reserve(64));
  EXPECT_EQ(Contents(buffer), "abc");

  const char* storage = buffer.GetAsCStr(0);
  Fill(buffer, std::string(61, 'x'));
  EXPECT_EQ(buffer.GetAsCStr(0), storage);
}

TEST(MessageBuffer, ReserveNeverShrinks) {
  FCMessageBuffer buffer;
  buffer.Reserve(64);
  Fill(buffer, std::string(10, 'a'));
  const char* storage = buffer.GetAsCStr(0);

  EXPECT_TRUE(buffer.Reserve(8));
  EXPECT_TRUE(buffer.Reserve(0));
  EXPECT_EQ(Contents(buffer), std::string(10, 'a'));
  Fill(buffer, std::string(54, 'b'));
  EXPECT_EQ(buffer.GetAsCStr(0), storage);
}

}  // namespace
