/* Platform log, host edition: the same signature as on the TV. */
#ifndef ZUNDE_HOST_DLOG_H
#define ZUNDE_HOST_DLOG_H

#ifdef __cplusplus
extern "C" {
#endif

typedef enum {
  LOG_ID_MAIN = 0,
  LOG_ID_RADIO = 1,
  LOG_ID_SYSTEM = 2,
  LOG_ID_APPS = 3,
  LOG_ID_MAX
} log_id_t;

typedef enum {
  DLOG_UNKNOWN = 0,
  DLOG_DEFAULT,
  DLOG_VERBOSE,
  DLOG_DEBUG,
  DLOG_INFO,
  DLOG_WARN,
  DLOG_ERROR,
  DLOG_FATAL,
  DLOG_SILENT
} log_priority;

/* Writes one log line. On the host: one line on standard error, filtered by
 * the environment variable ZUNDE_LOG (off, error, warn, info, debug). Never
 * fails the caller; returns the number of bytes written, or 0 if filtered. */
int __dlog_print(log_id_t log_id, int prio, const char *tag, const char *fmt, ...)
    __attribute__((format(printf, 4, 5)));

#ifdef __cplusplus
}
#endif

#endif
