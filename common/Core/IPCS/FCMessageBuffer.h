// The byte buffer that carries every request, reply and signal payload.
//
// Writers append raw bytes, chars and ints at the end, or insert them at an
// offset; readers pop them from a read cursor that only moves forward, or read
// at an offset without moving it. Ints are 4 bytes in the processor's byte
// order, unaligned. "Concatenated" data is a run of raw bytes with no length
// and no terminator: the reader must know its length.
#ifndef ZUNDE_FCMESSAGEBUFFER_H
#define ZUNDE_FCMESSAGEBUFFER_H

#include <vector>

class FCMessageBuffer {
 public:
  FCMessageBuffer();
  ~FCMessageBuffer();
  FCMessageBuffer(const FCMessageBuffer&) = delete;
  FCMessageBuffer& operator=(const FCMessageBuffer&) = delete;

  // Appending. All return true.
  bool PushChar(char value);
  bool PushInt(int value);
  // Appends `size` bytes from `data`, or `size` zero bytes when `data` is null.
  bool PushConcatenated(unsigned long size, void* data);
  // Appends all of `other`'s bytes, whatever its read cursor.
  bool PushBuffer(FCMessageBuffer* other);

  // Inserting at `offset`, shifting the bytes from there up. The offset may be
  // at most the content size (an offset equal to it appends); anything else,
  // a negative offset included, ends the process. Return true.
  bool WriteInt(int value, int offset);
  // Inserts `size` bytes from `data`, or zeros when `data` is null. A size of
  // 0 does nothing and checks nothing.
  bool WriteConcatenated(unsigned long size, void* data, int offset);

  // Taking from the read cursor. When too few bytes are left these print a
  // message on standard output, return 0 (or null) and leave the cursor.
  char PopChar();
  int PopInt();
  // A new array the caller frees with delete[].
  void* PopConcatenated(unsigned long size);

  // Reading without moving the cursor; an `offset` whose bytes would run past
  // the end ends the process. ReadInt reads at `offset`; ReadConcatenated
  // checks `offset` but copies from the read cursor.
  bool ReadInt(int* out, int offset);
  bool ReadConcatenated(unsigned long size, void* out, int offset);
  // Copies `size` bytes at `offset`, unchecked.
  bool CopyData(void* out, int size, int offset);

  // The byte at `offset`, or null at or past the end.
  char const* GetAsCStr(int offset) const;
  // The byte at `offset`, unchecked.
  void* GetAsVoidFromOffset(int offset) const;
  // The content size: all bytes, the cursor ignored.
  unsigned long GetFullBufferSize();
  // The read cursor.
  unsigned long GetReadOffset() const { return static_cast<unsigned int>(m_readOffset); }

  // Grows the storage to exactly `size` bytes when it is smaller; never shrinks.
  bool Reserve(unsigned int size);
  // Grows the content by `size` zero bytes: an amount to add, not a new size.
  bool Resize(unsigned int size);
  // Empties the content and rewinds the cursor; the storage is kept.
  bool Clean();

 private:
  // The bytes between the read cursor and the end.
  unsigned long BytesLeft() const;

  std::vector<char> m_bufferData;
  int m_readOffset;
  int m_reserved;
};

#endif
