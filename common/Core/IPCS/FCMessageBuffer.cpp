#include "FCMessageBuffer.h"

#include <cstdio>
#include <cstring>
#include <functional>

#include "FCDebug.h"

namespace {

typedef std::vector<char> Bytes;

// True when `source` points into the content of `bytes`. std::less gives a
// total order even for pointers into unrelated objects.
bool LiesInside(const Bytes& bytes, const void* source) {
  const char* byte = static_cast<const char*>(source);
  const std::less<const char*> before;
  return !bytes.empty() && !before(byte, bytes.data()) && before(byte, bytes.data() + bytes.size());
}

// Inserts `size` bytes at `offset`: those `source` points to, or zeros when
// it is null. Bytes taken from the buffer itself are copied aside first,
// because growing may move the storage they live in.
void InsertBytes(Bytes& bytes, unsigned long offset, const void* source, unsigned long size) {
  const Bytes::iterator at = bytes.begin() + offset;
  if (source == nullptr) {
    bytes.insert(at, size, 0);
    return;
  }
  const char* first = static_cast<const char*>(source);
  if (LiesInside(bytes, source)) {
    const Bytes aside(first, first + size);
    bytes.insert(at, aside.begin(), aside.end());
    return;
  }
  bytes.insert(at, first, first + size);
}

// memcpy with a zero length still wants valid pointers; an empty vector may
// have none.
void CopyBytes(void* out, const void* in, unsigned long size) {
  if (size > 0) std::memcpy(out, in, size);
}

}  // namespace

FCMessageBuffer::FCMessageBuffer() : m_readOffset(0), m_reserved(0) {}

FCMessageBuffer::~FCMessageBuffer() {}

bool FCMessageBuffer::PushChar(char value) {
  m_bufferData.push_back(value);
  return true;
}

bool FCMessageBuffer::PushInt(int value) { return PushConcatenated(sizeof value, &value); }

bool FCMessageBuffer::PushConcatenated(unsigned long size, void* data) {
  if (size == 0) return true;
  // Insertion at the end lets the vector grow its capacity geometrically.
  InsertBytes(m_bufferData, m_bufferData.size(), data, size);
  return true;
}

bool FCMessageBuffer::PushBuffer(FCMessageBuffer* other) {
  return PushConcatenated(other->GetFullBufferSize(), const_cast<char*>(other->GetAsCStr(0)));
}

// The offset checks compare unsigned, so a negative offset (-1 meaning "the
// end" to some callers) is refused rather than taken as the end.
bool FCMessageBuffer::WriteInt(int value, int offset) { return WriteConcatenated(sizeof value, &value, offset); }

bool FCMessageBuffer::WriteConcatenated(unsigned long size, void* data, int offset) {
  if (size == 0) return true;
  FCASSERT((unsigned int)offset <= m_bufferData.size());
  InsertBytes(m_bufferData, static_cast<unsigned int>(offset), data, size);
  return true;
}

char FCMessageBuffer::PopChar() {
  if (BytesLeft() < 1) {
    std::printf("Data buffer is smaller than 1 byte");
    return 0;
  }
  return m_bufferData[static_cast<unsigned int>(m_readOffset++)];
}

int FCMessageBuffer::PopInt() {
  int value = 0;
  if (BytesLeft() < sizeof value) {
    std::printf("Data buffer is smaller than 4 bytes");
    return 0;
  }
  CopyBytes(&value, &m_bufferData[static_cast<unsigned int>(m_readOffset)], sizeof value);
  m_readOffset += static_cast<int>(sizeof value);
  return value;
}

void* FCMessageBuffer::PopConcatenated(unsigned long size) {
  if (BytesLeft() < size) {
    std::printf("Data buffer is smaller than %lu byte(s)", size);
    return nullptr;
  }
  char* out = new char[size];
  CopyBytes(out, m_bufferData.data() + static_cast<unsigned int>(m_readOffset), size);
  m_readOffset += static_cast<int>(size);
  return out;
}

bool FCMessageBuffer::ReadInt(int* out, int offset) {
  FCASSERT(m_bufferData.size() >= (unsigned int)(offset + 4));
  CopyBytes(out, &m_bufferData[static_cast<unsigned int>(offset)], sizeof *out);
  return true;
}

// The check uses `offset` while the bytes come from the read cursor; the two
// agree only when the caller passes the cursor as the offset. With the cursor
// past `offset` the copy can run beyond the content.
bool FCMessageBuffer::ReadConcatenated(unsigned long sizeOfData, void* out, int offset) {
  FCASSERT(m_bufferData.size() >= offset + sizeOfData);
  CopyBytes(out, m_bufferData.data() + static_cast<unsigned int>(m_readOffset), sizeOfData);
  return true;
}

bool FCMessageBuffer::CopyData(void* out, int size, int offset) {
  CopyBytes(out, m_bufferData.data() + offset, static_cast<unsigned int>(size));
  return true;
}

char const* FCMessageBuffer::GetAsCStr(int offset) const {
  if (static_cast<unsigned int>(offset) >= m_bufferData.size()) return nullptr;
  return &m_bufferData[static_cast<unsigned int>(offset)];
}

void* FCMessageBuffer::GetAsVoidFromOffset(int offset) const {
  return const_cast<char*>(m_bufferData.data()) + offset;
}

unsigned long FCMessageBuffer::GetFullBufferSize() { return m_bufferData.size(); }

bool FCMessageBuffer::Reserve(unsigned int size) {
  if (size > m_bufferData.capacity()) m_bufferData.reserve(size);
  return true;
}

bool FCMessageBuffer::Resize(unsigned int size) { return PushConcatenated(size, nullptr); }

bool FCMessageBuffer::Clean() {
  m_bufferData.clear();
  m_readOffset = 0;
  return true;
}

unsigned long FCMessageBuffer::BytesLeft() const {
  return m_bufferData.size() - static_cast<unsigned int>(m_readOffset);
}
