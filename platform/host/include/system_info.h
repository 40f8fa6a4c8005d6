/* System information, host edition: the same signature as on the TV. */
#ifndef ZUNDE_HOST_SYSTEM_INFO_H
#define ZUNDE_HOST_SYSTEM_INFO_H

#include <stdbool.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef enum {
  SYSTEM_INFO_ERROR_NONE = 0,
  SYSTEM_INFO_ERROR_INVALID_PARAMETER = -22,
  SYSTEM_INFO_ERROR_IO_ERROR = -5,
  SYSTEM_INFO_ERROR_NOT_SUPPORTED = -134
} system_info_error_e;

/* Keys carry the platform's own numbers. */
typedef enum {
  SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT = 383
} system_info_key_e;

/* Reads a boolean capability. Returns SYSTEM_INFO_ERROR_NONE and sets *value
 * on success. On the host the capabilities are the key=value lines of the
 * file named by ZUNDE_SYSTEM_INFO_FILE, keyed by the enumerator's name
 * (for example SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=true). */
int system_info_get_value_bool(system_info_key_e key, bool *value);

#ifdef __cplusplus
}
#endif

#endif
