// Runs a sequence of buffer operations, chosen by the input, against
// FCMessageBuffer and against a plain vector with a cursor, and stops at the
// first difference. Offsets stay within what each operation accepts: those
// outside end the process by design.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstdlib>
#include <cstring>
#include <vector>

#include "FCMessageBuffer.h"

namespace {

void Expect(bool same) {
  if (!same) std::abort();
}

bool SameBytes(const void* a, const std::vector<char>& model, std::size_t at, std::size_t size) {
  return size == 0 || std::memcmp(a, model.data() + at, size) == 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider in(data, size);
  FCMessageBuffer buffer;
  std::vector<char> model;
  std::size_t cursor = 0;
  while (in.remaining_bytes() > 0) {
    const int op = in.ConsumeIntegralInRange(0, 13);
    const std::size_t count = in.ConsumeIntegralInRange<std::size_t>(0, 64);
    const std::size_t at = in.ConsumeIntegralInRange<std::size_t>(0, model.size());
    std::vector<char> bytes = in.ConsumeBytes<char>(count);
    const bool zeros = bytes.empty();
    bytes.resize(count);  // the input may run out: zeros after its end
    std::vector<char> out(count + 4);
    const std::size_t left = model.size() - cursor;
    switch (op) {
      case 0: buffer.PushChar(static_cast<char>(count)); model.push_back(static_cast<char>(count)); break;
      case 1: buffer.PushInt(static_cast<int>(count)); model.insert(model.end(), 4, 0);
        std::memcpy(model.data() + model.size() - 4, &count, 4); break;
      case 2: buffer.PushConcatenated(count, zeros ? nullptr : bytes.data());
        model.insert(model.end(), bytes.begin(), bytes.end()); break;
      case 3: { FCMessageBuffer other; other.PushConcatenated(count, bytes.data()); other.PopChar();
        buffer.PushBuffer(&other); model.insert(model.end(), bytes.begin(), bytes.end()); break; }
      case 4: buffer.WriteInt(static_cast<int>(count), static_cast<int>(at));
        model.insert(model.begin() + at, 4, 0); std::memcpy(model.data() + at, &count, 4); break;
      case 5: buffer.WriteConcatenated(count, zeros ? nullptr : bytes.data(), static_cast<int>(at));
        model.insert(model.begin() + at, bytes.begin(), bytes.end()); break;
      case 6: Expect(buffer.PopChar() == (left >= 1 ? model[cursor] : 0)); cursor += left >= 1; break;
      case 7: { const int got = buffer.PopInt();
        Expect(left < 4 ? got == 0 : SameBytes(&got, model, cursor, 4)); cursor += left >= 4 ? 4 : 0; break; }
      case 8: { char* got = static_cast<char*>(buffer.PopConcatenated(count));
        Expect(left < count ? got == nullptr : SameBytes(got, model, cursor, count)); cursor += got ? count : 0;
        delete[] got; break; }
      case 9: if (model.size() >= at + 4) { int got = 0; buffer.ReadInt(&got, static_cast<int>(at));
        Expect(SameBytes(&got, model, at, 4)); } break;
      case 10: if (left >= count) { buffer.ReadConcatenated(count, out.data(), static_cast<int>(cursor));
        Expect(SameBytes(out.data(), model, cursor, count)); } break;
      case 11: if (model.size() >= at + count) { buffer.CopyData(out.data(), static_cast<int>(count), static_cast<int>(at));
        Expect(SameBytes(out.data(), model, at, count)); } break;
      case 12: buffer.Resize(count); model.insert(model.end(), count, 0); buffer.Reserve(count * 8); break;
      case 13: buffer.Clean(); model.clear(); cursor = 0; break;
    }
    Expect(buffer.GetFullBufferSize() == model.size() && buffer.GetReadOffset() == cursor);
    const char* whole = buffer.GetAsCStr(0);
    Expect(model.empty() ? whole == nullptr : SameBytes(whole, model, 0, model.size()));
    Expect(buffer.GetAsCStr(static_cast<int>(model.size())) == nullptr);
  }
  return 0;
}
