#include "FCLog_internal.h"

namespace zunde {

void WriteLogLine(const LogLine& line, const LogSite& site, const char* subject) {
  const char* name = subject != nullptr ? subject : site.function;
  const bool warning = line.priority == LogPriority::Warning;
  const log_id_t id = warning ? LOG_ID_SYSTEM : LOG_ID_MAIN;
  const int prio = warning ? DLOG_WARN : line.priority == LogPriority::Info ? DLOG_INFO : DLOG_DEBUG;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
  if (line.prefix == LogPrefix::DebugLevel) {
    __dlog_print(id, prio, kLogTag, line.format, site.file, site.function, site.line, line.level, name);
  } else {
    __dlog_print(id, prio, kLogTag, line.format, site.file, site.function, site.line, kLogModuleNumber, line.level, name);
  }
#pragma GCC diagnostic pop
}

}  // namespace zunde
