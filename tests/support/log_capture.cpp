#include "log_capture.h"

#include <dlog.h>

#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace zunde::testing {
namespace {

std::mutex& RecordsMutex() {
  static std::mutex mutex;
  return mutex;
}

std::vector<LogRecord>& AllRecords() {
  static std::vector<LogRecord> records;
  return records;
}

bool EndsWith(const std::string& text, const std::string& suffix) {
  return text.size() >= suffix.size() && text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0;
}

}  // namespace

void LogCapture::Clear() {
  std::lock_guard<std::mutex> lock(RecordsMutex());
  AllRecords().clear();
}

std::vector<LogRecord> LogCapture::Records() {
  std::lock_guard<std::mutex> lock(RecordsMutex());
  return AllRecords();
}

std::vector<std::string> LogCapture::Lines() {
  std::vector<std::string> lines;
  for (const auto& record : Records()) lines.push_back(record.text);
  return lines;
}

bool LogCapture::Find(const std::string& suffix, LogRecord* found) {
  for (const auto& record : Records()) {
    if (EndsWith(record.text, suffix)) {
      if (found != nullptr) *found = record;
      return true;
    }
  }
  return false;
}

}  // namespace zunde::testing

extern "C" int __dlog_print(log_id_t log_id, int prio, const char* tag, const char* fmt, ...) {
  va_list args;
  va_start(args, fmt);
  char text[4096];
  std::vsnprintf(text, sizeof text, fmt, args);
  va_end(args);

  zunde::testing::LogRecord record;
  record.logId = log_id;
  record.priority = prio;
  record.tag = tag ? tag : "";
  record.format = fmt ? fmt : "";
  record.text = text;
  std::lock_guard<std::mutex> lock(zunde::testing::RecordsMutex());
  zunde::testing::AllRecords().push_back(record);
  return 0;
}
