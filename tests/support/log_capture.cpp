#include "log_capture.h"

#include <dlog.h>

#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace zunde::testing {
namespace {

// Lines may come from any thread of the library, and from static initialisers.
struct Captured {
  std::mutex mutex;
  std::vector<LogRecord> records;
};
Captured& captured() {
  static Captured all;
  return all;
}

}  // namespace

void LogCapture::Clear() {
  std::lock_guard<std::mutex> lock(captured().mutex);
  captured().records.clear();
}

std::vector<LogRecord> LogCapture::Records() {
  std::lock_guard<std::mutex> lock(captured().mutex);
  return captured().records;
}

std::vector<std::string> LogCapture::Lines() {
  std::vector<std::string> lines;
  for (const auto& record : Records()) lines.push_back(record.text);
  return lines;
}

bool LogCapture::Find(const std::string& suffix, LogRecord* found) {
  for (const auto& record : Records()) {
    const auto& text = record.text;
    if (text.size() >= suffix.size() && text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0) {
      if (found != nullptr) *found = record;
      return true;
    }
  }
  return false;
}

}  // namespace zunde::testing

extern "C" int __dlog_print(log_id_t log_id, int prio, const char* tag, const char* fmt, ...) {
  char text[4096];
  va_list args;
  va_start(args, fmt);
  std::vsnprintf(text, sizeof text, fmt, args);
  va_end(args);
  using zunde::testing::captured;
  std::lock_guard<std::mutex> lock(captured().mutex);
  captured().records.push_back({log_id, prio, tag ? tag : "", fmt ? fmt : "", text});
  return 0;
}
