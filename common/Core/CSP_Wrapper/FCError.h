// Error numbers of the task runtime, kept in the calling thread's errno.
//
// Numbers below 10000 are the Linux errno values. Two pairs share a value
// and always have: ERROR_AGAIN / ERROR_WOULD_BLOCK, and ERROR_UNINITIALIZED /
// ERROR_INITIALIZED_BEFORE.
#ifndef ZUNDE_FCERROR_H
#define ZUNDE_FCERROR_H

class FCError {
 public:
  static constexpr int ERROR_NO_ENTRY = 2;
  static constexpr int ERROR_INTERRUPTED = 4;
  static constexpr int ERROR_INVALID = 9;
  static constexpr int ERROR_AGAIN = 11;
  static constexpr int ERROR_WOULD_BLOCK = 11;
  static constexpr int ERROR_NO_MEM = 12;
  static constexpr int ERROR_ACCESS = 13;
  static constexpr int ERROR_FAULT = 14;
  static constexpr int ERROR_IN_USE = 16;
  static constexpr int ERROR_EXIST = 17;
  static constexpr int ERROR_EXIST_INVALID = 21;
  static constexpr int ERROR_INVALID_ARG = 22;
  static constexpr int ERROR_NO_SPACE = 28;
  static constexpr int ERROR_OVERFLOW = 36;
  static constexpr int ERROR_UNSUPPORTED = 95;
  static constexpr int ERROR_ADDR_IN_USE = 98;
  static constexpr int ERROR_CONN_RESET = 104;
  static constexpr int ERROR_IN_PROGRESS = 115;
  static constexpr int ERROR_INVALID_FORMAT = 10000;
  static constexpr int ERROR_UNKNOWN_FORMAT = 10001;
  static constexpr int ERROR_UNINITIALIZED = 20000;
  static constexpr int ERROR_INITIALIZED_BEFORE = 20000;
  static constexpr int ERROR_UNKNOWN = 30000;

  // Stores `number` in the calling thread's errno.
  static void Set(int number);
  // The calling thread's errno.
  static int Num();
};

#endif
