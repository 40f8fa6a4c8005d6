#include "FCMessageBuffer.h"

#include <cstdio>
#include <cstring>

#include "FCDebug.h"

FCMessageBuffer::FCMessageBuffer() : m_readOffset(0), m_reserved(0) {}

FCMessageBuffer::~FCMessageBuffer() {}

bool FCMessageBuffer::PushChar(char value) {
  m_bufferData.push_back(value);
  return true;
}

bool FCMessageBuffer::PushInt(int value) { return PushConcatenated(sizeof value, &value); }

bool FCMessageBuffer::PushConcatenated(unsigned long size, void* data) {
  if (size == 0) return true;
  const size_t oldSize = m_bufferData.size();
  m_bufferData.insert(m_bufferData.end(), size, 0);
  if (data != nullptr) std::memcpy(&m_bufferData[oldSize], data, size);
  return true;
}

bool FCMessageBuffer::PushBuffer(FCMessageBuffer* other) {
  return PushConcatenated(other->GetFullBufferSize(), const_cast<char*>(other->GetAsCStr(0)));
}

bool FCMessageBuffer::WriteInt(int value, int offset) { return WriteConcatenated(sizeof value, &value, offset); }

bool FCMessageBuffer::WriteConcatenated(unsigned long size, void* data, int offset) {
  if (size == 0) return true;
  FCASSERT((unsigned int)offset <= m_bufferData.size());
  // Insertion moves the tail up; the inserted bytes are those `data` points to.
  const char* bytes = static_cast<const char*>(data);
  m_bufferData.insert(m_bufferData.begin() + offset, bytes, bytes + size);
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
  std::memcpy(&value, &m_bufferData[static_cast<unsigned int>(m_readOffset)], sizeof value);
  m_readOffset += static_cast<int>(sizeof value);
  return value;
}

void* FCMessageBuffer::PopConcatenated(unsigned long size) {
  if (BytesLeft() < size) {
    std::printf("Data buffer is smaller than %lu byte(s)", size);
    return nullptr;
  }
  char* out = new char[size];
  if (size > 0) std::memcpy(out, &m_bufferData[static_cast<unsigned int>(m_readOffset)], size);
  m_readOffset += static_cast<int>(size);
  return out;
}

bool FCMessageBuffer::ReadInt(int* out, int offset) {
  FCASSERT(m_bufferData.size() >= (unsigned int)(offset + 4));
  std::memcpy(out, &m_bufferData[static_cast<unsigned int>(offset)], sizeof *out);
  return true;
}

bool FCMessageBuffer::ReadConcatenated(unsigned long sizeOfData, void* out, int offset) {
  FCASSERT(m_bufferData.size() >= offset + sizeOfData);
  // Checked against `offset`, copied from the read cursor: both kept as published.
  if (sizeOfData > 0) std::memcpy(out, m_bufferData.data() + static_cast<unsigned int>(m_readOffset), sizeOfData);
  return true;
}

bool FCMessageBuffer::CopyData(void* out, int size, int offset) {
  std::memcpy(out, m_bufferData.data() + offset, static_cast<size_t>(size));
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
