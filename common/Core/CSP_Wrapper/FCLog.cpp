#include "FCLog_internal.h"

namespace zunde {

void WriteLogLine(const LogLine& line, const LogSite& site) {
  const bool info = line.priority == LogPriority::Info;
  const log_id_t id = info ? LOG_ID_MAIN : LOG_ID_SYSTEM;
  const int prio = info ? DLOG_INFO : DLOG_WARN;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
  if (line.prefix == LogPrefix::DebugLevel) {
    __dlog_print(id, prio, kLogTag, line.format, site.file, site.function, site.line, line.level, site.function);
  } else {
    __dlog_print(id, prio, kLogTag, line.format, site.file, site.function, site.line, kLogModuleNumber, line.level,
                 site.function);
  }
#pragma GCC diagnostic pop
}

}  // namespace zunde
