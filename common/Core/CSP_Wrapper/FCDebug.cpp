#include "FCDebug.h"

#include <execinfo.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

// One counter for the whole process, unguarded: interleaved lines may
// repeat or skip a number.
unsigned int debugLineCounter = 0;

const char kDebugMarker[] = "/etc/debug";
const int kMaxFrames = 100;

void PrintCounted(unsigned long level, const char* format, va_list args) {
  std::printf("%lu (%lu): ", static_cast<unsigned long>(debugLineCounter), level);
  std::vprintf(format, args);
  std::printf("\n");
  ++debugLineCounter;
}

void SleepBriefly() {
  timespec pause = {0, 100 * 1000 * 1000};
  nanosleep(&pause, nullptr);
}

// Stops the process by a write to address zero, so that the platform's
// crash reporter records the failure.
[[noreturn]] void Crash() {
  SleepBriefly();
  *static_cast<volatile int*>(nullptr) = 0;
  std::abort();
}

void PrintThreadAndStack(const char* expression, const char* file, unsigned long line) {
  char threadName[17] = {0};
  prctl(PR_GET_NAME, threadName, 0, 0, 0);
  const long threadId = syscall(SYS_gettid);
  std::fprintf(stderr, "Assertion failed: %s (%lu) - %s\n", file, line, expression);
  std::fprintf(stderr, "Debug information:\n");
  std::fprintf(stderr, "    Posix Thread ID: 0x%08x\n", static_cast<unsigned int>(pthread_self()));
  std::fprintf(stderr, "    Linux Thread ID:   %8d (%s)\n", static_cast<int>(threadId), threadName);

  void* frames[kMaxFrames];
  const int count = backtrace(frames, kMaxFrames);
  char** symbols = backtrace_symbols(frames, count);
  if (symbols == nullptr) Crash();
  std::fprintf(stderr, "Callstack:\n");
  for (int i = 1; i < count; ++i) std::fprintf(stderr, "%s\n", symbols[i]);
  std::free(symbols);
}

}  // namespace

void FCDebug::Print(unsigned long level, const char* format, ...) {
  FCASSERT(format != NULL);
  if (level != 0) return;
  va_list args;
  va_start(args, format);
  PrintCounted(level, format, args);
  va_end(args);
}

void FCDebug::Print(const char* format, ...) {
  FCASSERT(format != NULL);
  va_list args;
  va_start(args, format);
  PrintCounted(0, format, args);
  va_end(args);
}

void _FCAssert(const char* expression, const char* file, unsigned long line) {
  struct stat marker;
  if (stat(kDebugMarker, &marker) != 0) Crash();
  PrintThreadAndStack(expression, file, line);
  Crash();
}

void _FCAssert(const char* expression, const char* file, unsigned long line, const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::vfprintf(stderr, format, args);
  va_end(args);
  _FCAssert(expression, file, line);
}
