#include "system_info.h"

#include "key_value_file.h"

namespace {

// Keys are the platform's numbers; the capability file names them.
const char* KeyName(system_info_key_e key) {
  switch (key) {
    case SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT:
      return "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT";
  }
  return nullptr;
}

}  // namespace

extern "C" int system_info_get_value_bool(system_info_key_e key, bool* value) {
  const char* name = KeyName(key);
  if (name == nullptr || value == nullptr) return SYSTEM_INFO_ERROR_INVALID_PARAMETER;
  const auto text = zunde::host::LookUpKeyValue("ZUNDE_SYSTEM_INFO_FILE", name);
  if (!text) return SYSTEM_INFO_ERROR_IO_ERROR;
  if (*text == "true" || *text == "1") {
    *value = true;
  } else if (*text == "false" || *text == "0") {
    *value = false;
  } else {
    return SYSTEM_INFO_ERROR_IO_ERROR;
  }
  return SYSTEM_INFO_ERROR_NONE;
}
