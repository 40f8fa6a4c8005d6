#include "vconf.h"

#include <cerrno>
#include <climits>
#include <cstdlib>

#include "key_value_file.h"

extern "C" int vconf_get_int(const char* in_key, int* intval) {
  if (in_key == nullptr || intval == nullptr) return -1;
  const auto text = zunde::host::LookUpKeyValue("ZUNDE_VCONF_FILE", in_key);
  if (!text || text->empty()) return -1;

  errno = 0;
  char* end = nullptr;
  const long value = std::strtol(text->c_str(), &end, 0);
  if (errno != 0 || *end != '\0' || value < INT_MIN || value > INT_MAX) return -1;
  *intval = static_cast<int>(value);
  return 0;
}
