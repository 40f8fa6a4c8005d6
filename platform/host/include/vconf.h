/* Settings store, host edition: the same signature as on the TV. */
#ifndef ZUNDE_HOST_VCONF_H
#define ZUNDE_HOST_VCONF_H

#ifdef __cplusplus
extern "C" {
#endif

/* Reads the integer setting `in_key`. Returns 0 and sets *intval on success,
 * -1 when the setting does not exist or is not an integer. On the host the
 * settings are the key=value lines of the file named by ZUNDE_VCONF_FILE. */
int vconf_get_int(const char *in_key, int *intval);

#ifdef __cplusplus
}
#endif

#endif
