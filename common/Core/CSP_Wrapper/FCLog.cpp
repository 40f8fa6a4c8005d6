#include "FCLog_internal.h"

namespace zunde {

LogTarget TargetOf(LogPriority priority) {
  switch (priority) {
    case LogPriority::Warning:
      return {LOG_ID_SYSTEM, DLOG_WARN};
    case LogPriority::Info:
      return {LOG_ID_MAIN, DLOG_INFO};
    case LogPriority::Debug:
      break;
  }
  return {LOG_ID_MAIN, DLOG_DEBUG};
}

void WriteLogLine(const LogLine& line, const LogSite& site, const char* subject) {
  WriteLogLineWith(line, site, subject != nullptr ? subject : site.function);
}

}  // namespace zunde
