// The host editions of the settings store and the system information read
// key=value files named by environment variables.
#include <gtest/gtest.h>
#include <system_info.h>
#include <unistd.h>
#include <vconf.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

namespace {

const char kDisclaimer[] = "db/menu/corvina/homedatacontrol/defaultdisclaimeragree";

// The result and the value, which starts as -7 or true so that a failed read
// shows it untouched.
std::string ReadSetting() {
  int value = -7;
  const int result = vconf_get_int(kDisclaimer, &value);
  return std::to_string(result) + " " + std::to_string(value);
}
std::string ReadCapability() {
  bool value = true;
  const int result = system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT, &value);
  return std::to_string(result) + (value ? " true" : " false");
}

// `read` with `contents` in a temporary file named by `variable`.
std::string ReadFrom(const char* variable, const std::string& contents, std::string (*read)()) {
  char path[] = "/tmp/zunde-platform-XXXXXX";
  FILE* file = fdopen(mkstemp(path), "w");
  std::fputs(contents.c_str(), file);
  std::fclose(file);
  setenv(variable, path, 1);
  const std::string result = read();
  unsetenv(variable);
  std::remove(path);
  return result;
}

using Cases = std::pair<std::string, const char*>[];

TEST(HostSetting, ReadsTheLastIntegerOfTheKeyOrFails) {
  const std::string key = std::string(kDisclaimer) + "=";
  for (const auto& c : Cases{{"# a\n\n  " + key + " 42 \n", "0 42"},
                             {key + "1\n" + key + "-3\n", "0 -3"},
                             {"db/menu/other=1\n", "-1 -7"},
                             {key + "yes\n", "-1 -7"},
                             {key + "99999999999\n", "-1 -7"}}) {
    EXPECT_EQ(ReadFrom("ZUNDE_VCONF_FILE", c.first, ReadSetting), c.second) << c.first;
  }
}

TEST(HostCapability, ReadsTheBooleanOrFails) {
  const std::string key = "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=";
  for (const auto& c : Cases{{key + "true\n", "0 true"},
                             {key + "1\n", "0 true"},
                             {key + "false\n", "0 false"},
                             {key + "0\n", "0 false"},
                             {key + "maybe\n", "-5 true"}}) {
    EXPECT_EQ(ReadFrom("ZUNDE_SYSTEM_INFO_FILE", c.first, ReadCapability), c.second) << c.first;
  }
}

TEST(HostSetting, NoFileOrNullArgumentsFail) {
  EXPECT_EQ(ReadSetting(), "-1 -7");
  EXPECT_EQ(ReadCapability(), "-5 true");
  int value = 0;
  EXPECT_EQ(vconf_get_int(nullptr, &value), -1);
  EXPECT_EQ(system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT, nullptr),
            SYSTEM_INFO_ERROR_INVALID_PARAMETER);
}

}  // namespace
