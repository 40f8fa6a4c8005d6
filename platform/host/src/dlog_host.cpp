#include "dlog.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

// The lowest priority that ZUNDE_LOG lets through; DLOG_SILENT lets nothing.
int ThresholdFromEnvironment() {
  const char* setting = std::getenv("ZUNDE_LOG");
  if (setting == nullptr || *setting == '\0') return DLOG_ERROR;
  if (std::strcmp(setting, "off") == 0) return DLOG_SILENT;
  if (std::strcmp(setting, "error") == 0) return DLOG_ERROR;
  if (std::strcmp(setting, "warn") == 0) return DLOG_WARN;
  if (std::strcmp(setting, "info") == 0) return DLOG_INFO;
  if (std::strcmp(setting, "debug") == 0) return DLOG_VERBOSE;
  return DLOG_ERROR;
}

char PriorityLetter(int prio) {
  static const char letters[] = "??VDIWEFS";
  return (prio >= 0 && prio <= DLOG_SILENT) ? letters[prio] : '?';
}

}  // namespace

extern "C" int __dlog_print(log_id_t /*log_id*/, int prio, const char* tag, const char* fmt, ...) {
  if (fmt == nullptr || prio < ThresholdFromEnvironment() || prio >= DLOG_SILENT) return 0;

  va_list args;
  va_start(args, fmt);
  char stackText[1024];
  va_list copy;
  va_copy(copy, args);
  const int length = std::vsnprintf(stackText, sizeof stackText, fmt, copy);
  va_end(copy);
  std::string message;
  if (length < 0) {
    message = fmt;
  } else if (static_cast<size_t>(length) < sizeof stackText) {
    message.assign(stackText, static_cast<size_t>(length));
  } else {
    message.resize(static_cast<size_t>(length) + 1);
    std::vsnprintf(&message[0], message.size(), fmt, args);
    message.resize(static_cast<size_t>(length));
  }
  va_end(args);

  // One line per call: the platform's messages carry their own newlines.
  while (!message.empty() && message.back() == '\n') message.pop_back();
  for (char& c : message) {
    if (c == '\n') c = ' ';
  }
  const int written = std::fprintf(stderr, "%c/%s: %s\n", PriorityLetter(prio), tag ? tag : "", message.c_str());
  return written < 0 ? 0 : written;
}
