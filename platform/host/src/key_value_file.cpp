#include "key_value_file.h"

#include <cstdlib>
#include <fstream>

namespace zunde::host {
namespace {

std::string Trim(const std::string& text) {
  const char* blanks = " \t\r";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string::npos) return {};
  const auto last = text.find_last_not_of(blanks);
  return text.substr(first, last - first + 1);
}

}  // namespace

std::optional<std::string> LookUpKeyValue(const char* fileVariable, const std::string& key) {
  const char* path = std::getenv(fileVariable);
  if (path == nullptr || *path == '\0') return std::nullopt;
  std::ifstream file(path);
  if (!file) return std::nullopt;

  std::optional<std::string> found;
  std::string line;
  while (std::getline(file, line)) {
    const std::string trimmed = Trim(line);
    if (trimmed.empty() || trimmed[0] == '#') continue;
    const auto equals = trimmed.find('=');
    if (equals == std::string::npos) continue;
    if (Trim(trimmed.substr(0, equals)) == key) found = Trim(trimmed.substr(equals + 1));
  }
  return found;
}

}  // namespace zunde::host
