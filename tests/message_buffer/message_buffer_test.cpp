// The payload buffer: appending and inserting bytes, popping them from the
// read cursor, reading at an offset, and the checks that print or abort.
#include <gtest/gtest.h>

#include <string>

#include "FCMessageBuffer.h"

namespace {

using B = FCMessageBuffer;
using Z = std::string;  // for bytes with zeros among them

std::string Contents(B& b) { return b.GetFullBufferSize() ? Z(b.GetAsCStr(0), b.GetFullBufferSize()) : Z(); }

void Fill(B& b, const std::string& bytes) { b.PushConcatenated(bytes.size(), const_cast<char*>(bytes.data())); }

char kXyz[] = "XYZ";
char kXZeroY[] = "X\0Y";
alignas(int) char gOut[4];  // what the reads copy out
int* const gInt = reinterpret_cast<int*>(gOut);
// Bytes of the buffer itself, which its growth may move.
void* Own(B& buffer, int offset) { return const_cast<char*>(buffer.GetAsCStr(offset)); }

// One operation on a buffer holding `initial` of which `skip` bytes were
// popped; the operation returns true when it gave what it should.
struct Case {
  const char* name;
  std::string initial;
  int skip;
  bool (*op)(B&);
  std::string expected;     // content after the operation
  const char* printed = "";  // on standard output; null: the operation ends the process
};

class BufferOperation : public testing::TestWithParam<Case> {};

TEST_P(BufferOperation, GivesTheBytesThePrintoutAndTheCursor) {
  const Case& c = GetParam();
  B buffer;
  Fill(buffer, c.initial);
  for (int i = 0; i < c.skip; ++i) buffer.PopChar();
  // The assertion handler prints nothing without the debug marker file.
  if (c.printed == nullptr) { EXPECT_DEATH(c.op(buffer), ""); return; }
  testing::internal::CaptureStdout();
  EXPECT_TRUE(c.op(buffer));
  std::fflush(stdout);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), c.printed);
  EXPECT_EQ(Contents(buffer), c.expected);
  EXPECT_EQ(buffer.GetReadOffset(), static_cast<unsigned long>(c.skip));  // where each operation found it
}

// A pop that finds too few bytes prints without a newline, gives a neutral
// value and leaves the cursor. ReadConcatenated checks the offset but copies
// from the cursor; ReadInt and CopyData read at the offset. -1 would mean the
// end to an insertion, but the unsigned check of the offset refuses it first.
const char kNoChar[] = "Data buffer is smaller than 1 byte";
const char kNoInt[] = "Data buffer is smaller than 4 bytes";
INSTANTIATE_TEST_SUITE_P(
    Cases, BufferOperation,
    testing::Values(
        Case{"PushZeroSize", "ab", 0, [](B& b) { return b.PushConcatenated(0, kXyz); }, "ab"},
        Case{"PushNullAppendsZeros", "ab", 0, [](B& b) { return b.PushConcatenated(3, nullptr); }, Z("ab\0\0\0", 5)},
        Case{"PushCopiesItsSizeOnly", "ab", 0, [](B& b) { return b.PushConcatenated(3, kXZeroY); }, Z("abX\0Y", 5)},
        Case{"PushIntLeastSignificantFirst", "", 0, [](B& b) { return b.PushInt(0x01020304); }, "\4\3\2\1"},
        Case{"PushOwnBytes", "abc", 0, [](B& b) { return b.PushConcatenated(2, Own(b, 1)); }, "abcbc"},
        Case{"PushBuffer", "ab", 0, [](B& b) { B o; Fill(o, "xyz"); o.PopChar(); return b.PushBuffer(&o); }, "abxyz"},
        // Storage that does not move while the content grows shows the capacity.
        Case{"ReserveMakesRoomAndNeverShrinks", "abc", 0, [](B& b) { b.Reserve(16); const char* s = b.GetAsCStr(0);
             b.Reserve(8); Fill(b, "defghijklmnop"); return b.GetAsCStr(0) == s; }, "abcdefghijklmnop"},
        Case{"ResizeAddsZeros", "abcde", 0, [](B& b) { return b.Resize(3); }, Z("abcde\0\0\0", 8)},
        Case{"WriteIntInTheMiddle", "abcd", 0, [](B& b) { return b.WriteInt(0x01020304, 2); }, "ab\4\3\2\1cd"},
        Case{"WriteIntAtTheSizeAppends", "abcd", 0, [](B& b) { return b.WriteInt(-1, 4); }, "abcd\xff\xff\xff\xff"},
        Case{"WriteNullIsZeros", "abcd", 0, [](B& b) { return b.WriteConcatenated(2, nullptr, 2); }, Z("ab\0\0cd", 6)},
        Case{"WriteZeroSizeChecksNoOffset", "abcd", 0, [](B& b) { return b.WriteConcatenated(0, kXyz, 9); }, "abcd"},
        Case{"WriteOwnBytes", "abcd", 0, [](B& b) { return b.WriteConcatenated(2, Own(b, 0), 1); }, "aabbcd"},
        Case{"CleanThenPopChar", "abcd", 0, [](B& b) { return b.PopChar() && b.Clean() && !b.PopChar(); }, "", kNoChar},
        Case{"PopIntWithThreeLeft", "abcde", 2, [](B& b) { return b.PopInt() == 0; }, "abcde", kNoInt},
        Case{"PopConcatenatedOneTooMany", "abcd", 1, [](B& b) { return !b.PopConcatenated(4); }, "abcd",
             "Data buffer is smaller than 4 byte(s)"},
        Case{"PopConcatenatedSizeBeyond32Bits", "ab", 0, [](B& b) { return !b.PopConcatenated(0x100000001UL); }, "ab",
             "Data buffer is smaller than 4294967297 byte(s)"},
        Case{"ReadIntAtOffset", "abcdef", 1, [](B& b) { return b.ReadInt(gInt, 2) && Z(gOut, 4) == "cdef"; }, "abcdef"},
        Case{"CopyAtOffset", "abcdef", 1, [](B& b) { return b.CopyData(gOut, 3, 3) && Z(gOut, 3) == "def"; }, "abcdef"},
        Case{"ReadBytesFromCursor", "abcdef", 1,
             [](B& b) { return b.ReadConcatenated(3, gOut, 3) && Z(gOut, 3) == "bcd"; }, "abcdef"},
        Case{"WriteIntPastTheSize", "abcdef", 0, [](B& b) { return b.WriteInt(1, 7); }, "", nullptr},
        Case{"WriteBytesAtMinusOne", "abcdef", 0, [](B& b) { return b.WriteConcatenated(3, kXyz, -1); }, "", nullptr},
        // The cursor (0) would keep the copy inside; the offset is what counts.
        Case{"ReadBytesPastTheEnd", "abcdef", 0, [](B& b) { return b.ReadConcatenated(3, gOut, 4); }, "", nullptr}),
    [](const testing::TestParamInfo<Case>& info) { return std::string(info.param.name); });

TEST(MessageBuffer, MixedValuesComeBackInOrderWithoutAlignment) {
  B buffer;
  EXPECT_EQ(buffer.GetAsCStr(0), nullptr);
  buffer.PushChar('c');
  buffer.PushInt(-2);
  Fill(buffer, "xyz");
  EXPECT_EQ(buffer.PopChar(), 'c');
  EXPECT_EQ(buffer.PopInt(), -2);
  char* text = static_cast<char*>(buffer.PopConcatenated(3));
  EXPECT_EQ(buffer.GetReadOffset(), 8u);
  EXPECT_EQ(buffer.GetAsCStr(8), nullptr);
  EXPECT_EQ(std::string(text, 3), "xyz");
  delete[] text;  // the caller's own copy, which a pointer into the buffer would not be
}

}  // namespace
