// The library's log conventions in one place.
//
// Every line goes to the platform log with the tag "zunde-provider" and starts
// with one of two prefixes:
//   "%s: %s(%d) > DBG_LV[%d]"   source file, function, line, debug level
//   "%s: %s(%d) > [%d][%d]"     source file, function, line, module 16, level
// Information lines go to the main log, warning lines to the system log.
//
// A line with arguments of its own is written in one statement:
//   FC_LOG_WARN(0, "[FCAPI::%s] already initialized\n", __func__);
// A fixed line that a shared mechanism writes on behalf of its caller is a
// `LogLine` value, written with `WriteLogLine` at the caller's `LogSite`.
#ifndef ZUNDE_FCLOG_INTERNAL_H
#define ZUNDE_FCLOG_INTERNAL_H

#include <dlog.h>

namespace zunde {

inline constexpr const char* kLogTag = "zunde-provider";
inline constexpr int kLogModuleNumber = 16;

// The source position a line is reported from.
struct LogSite {
  const char* file;
  const char* function;
  int line;

  // The caller's position, when used as a default argument: a shared
  // mechanism then reports the lines it writes as its caller's own.
  static constexpr LogSite Here(const char* file = __builtin_FILE(), const char* function = __builtin_FUNCTION(),
                                int line = __builtin_LINE()) {
    return LogSite{file, function, line};
  }
};

enum class LogPrefix { DebugLevel, Module };

// Debug and information lines go to the main log, warnings to the system log.
enum class LogPriority { Debug, Info, Warning };

// A fixed line whose only argument after the prefix is a name, as in
// "[FCAPI::%s] called\n": the function it is written from, or the subject
// that the writer names instead (a D-Bus member, say).
struct LogLine {
  LogPriority priority;
  LogPrefix prefix;
  int level;
  const char* format;  // the whole format, prefix included
};

void WriteLogLine(const LogLine& line, const LogSite& site, const char* subject = nullptr);

// The log buffer and priority a line goes to.
struct LogTarget {
  log_id_t id;
  int priority;
};
LogTarget TargetOf(LogPriority priority);

// Writes `line` with arguments of its own after the prefix numbers, in place
// of the name: for lines that carry numbers or texts, as in
// "[%d][%d]SetZipCode(), activityId(%d)\n".
template <typename... Args>
void WriteLogLineWith(const LogLine& line, const LogSite& site, Args... args) {
  const LogTarget target = TargetOf(line.priority);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
  if (line.prefix == LogPrefix::DebugLevel) {
    __dlog_print(target.id, target.priority, kLogTag, line.format, site.file, site.function, site.line, line.level,
                 args...);
  } else {
    __dlog_print(target.id, target.priority, kLogTag, line.format, site.file, site.function, site.line,
                 kLogModuleNumber, line.level, args...);
  }
#pragma GCC diagnostic pop
}

// Lines in the two prefix forms, for `LogLine` tables:
//   FC_LINE_LV("[FCAPI::%s] called\n") is the "DBG_LV" form's format.
#define FC_LINE_LV(text) FC_LOG_PREFIX_LV text
#define FC_LINE_MOD(text) FC_LOG_PREFIX_MOD text

}  // namespace zunde

#define FC_LOG_SITE (::zunde::LogSite{__FILE__, __func__, __LINE__})

#define FC_LOG_PREFIX_LV "%s: %s(%d) > DBG_LV[%d]"
#define FC_LOG_PREFIX_MOD "%s: %s(%d) > [%d][%d]"

#define FC_LOG_RAW_LV(id, prio, level, fmt, ...)                                                  \
  __dlog_print((id), (prio), ::zunde::kLogTag, FC_LOG_PREFIX_LV fmt, __FILE__, __func__, __LINE__, \
               static_cast<int>(level), ##__VA_ARGS__)
#define FC_LOG_RAW_MOD(id, prio, level, fmt, ...)                                                  \
  __dlog_print((id), (prio), ::zunde::kLogTag, FC_LOG_PREFIX_MOD fmt, __FILE__, __func__, __LINE__, \
               ::zunde::kLogModuleNumber, static_cast<int>(level), ##__VA_ARGS__)

// "DBG_LV" form: information (main log) and warning (system log).
#define FC_LOG_INFO(level, fmt, ...) FC_LOG_RAW_LV(LOG_ID_MAIN, DLOG_INFO, level, fmt, ##__VA_ARGS__)
#define FC_LOG_WARN(level, fmt, ...) FC_LOG_RAW_LV(LOG_ID_SYSTEM, DLOG_WARN, level, fmt, ##__VA_ARGS__)

// "[16][level]" form.
#define FC_LOG_INFO_MOD(level, fmt, ...) FC_LOG_RAW_MOD(LOG_ID_MAIN, DLOG_INFO, level, fmt, ##__VA_ARGS__)
#define FC_LOG_WARN_MOD(level, fmt, ...) FC_LOG_RAW_MOD(LOG_ID_SYSTEM, DLOG_WARN, level, fmt, ##__VA_ARGS__)

#endif
