// Captures the library's log lines: test executables that link this file
// define __dlog_print themselves, which the library then calls instead of
// the platform's.
#ifndef ZUNDE_TESTS_LOG_CAPTURE_H
#define ZUNDE_TESTS_LOG_CAPTURE_H

#include <string>
#include <vector>

namespace zunde::testing {

struct LogRecord {
  int logId = 0;
  int priority = 0;
  std::string tag;
  std::string format;
  std::string text;  // the formatted line
};

class LogCapture {
 public:
  static void Clear();
  static std::vector<LogRecord> Records();
  // The formatted lines, in order.
  static std::vector<std::string> Lines();
  // The first record whose text ends with `suffix`, or null.
  static bool Find(const std::string& suffix, LogRecord* found = nullptr);
};

}  // namespace zunde::testing

#endif
