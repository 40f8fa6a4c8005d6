// Reading one value from a file of key=value lines, named by an environment
// variable. This is how the host stands in for the TV's settings store and
// system information.
#ifndef ZUNDE_HOST_KEY_VALUE_FILE_H
#define ZUNDE_HOST_KEY_VALUE_FILE_H

#include <optional>
#include <string>

namespace zunde::host {

// The value of `key` in the file named by the environment variable
// `fileVariable`; nothing when the variable is unset, the file cannot be read
// or no line holds the key. Blank lines and lines starting with '#' are
// skipped; spaces around keys and values are trimmed; the last line wins.
std::optional<std::string> LookUpKeyValue(const char* fileVariable, const std::string& key);

}  // namespace zunde::host

#endif
