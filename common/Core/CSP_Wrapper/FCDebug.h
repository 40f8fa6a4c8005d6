// Diagnostics of the task runtime: the counted debug printer and the fatal
// assertion handler.
#ifndef ZUNDE_FCDEBUG_H
#define ZUNDE_FCDEBUG_H

class FCDebug {
 public:
  // Prints "<counter> (<level>): <message>\n" on standard output, only when
  // `level` is 0; any other level prints nothing and leaves the counter.
  static void Print(unsigned long level, const char* format, ...) __attribute__((format(printf, 2, 3)));
  // Always prints "<counter> (0): <message>\n" on standard output.
  static void Print(const char* format, ...) __attribute__((format(printf, 1, 2)));
};

// Ends the process. Without the marker file "/etc/debug" nothing is printed;
// with it, the failed expression, the thread and a call stack go to standard
// error first. The process stops by a write to address zero, so that the
// platform's crash reporter records it.
[[noreturn]] void _FCAssert(const char* expression, const char* file, unsigned long line);
// As above, after writing the formatted message to standard error.
[[noreturn]] void _FCAssert(const char* expression, const char* file, unsigned long line, const char* format, ...)
    __attribute__((format(printf, 4, 5)));

// The runtime's assertion: ends the process through _FCAssert when `condition`
// is false, reporting its text, the source path and the line.
#define FCASSERT(condition) \
  ((condition) ? static_cast<void>(0) : _FCAssert(#condition, __FILE__, __LINE__))
#define FCASSERT_MSG(condition, ...) \
  ((condition) ? static_cast<void>(0) : _FCAssert(#condition, __FILE__, __LINE__, __VA_ARGS__))

#endif
