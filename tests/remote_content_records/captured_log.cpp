// The library's log lines, echoed to standard error: the only lines these
// records write come just before the process ends, so a death test reads
// them there.
#include <dlog.h>

#include <cstdarg>
#include <cstdio>

extern "C" int __dlog_print(log_id_t log_id, int prio, const char* tag, const char* fmt, ...) {
  char text[4096];
  va_list args;
  va_start(args, fmt);
  std::vsnprintf(text, sizeof text, fmt, args);
  va_end(args);
  std::fprintf(stderr, "log(%d,%d) %s: %s", static_cast<int>(log_id), prio, tag ? tag : "", text);
  return 0;
}
