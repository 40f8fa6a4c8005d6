// The host editions of the settings store and the system information read
// key=value files named by environment variables.
#include <gtest/gtest.h>
#include <system_info.h>
#include <vconf.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

namespace {

const char kDisclaimer[] = "db/menu/corvina/homedatacontrol/defaultdisclaimeragree";

// Both readers on `contents` in one temporary file named by both variables
// (none when null): the setting's result and value, then the capability's.
// The values start as -7 and true, so that a failed read shows them untouched.
std::string ReadBoth(const char* contents) {
  char path[] = "/tmp/zunde-platform-XXXXXX";
  FILE* file = fdopen(mkstemp(path), "w");
  std::fputs(contents ? contents : "", file);
  std::fclose(file);
  for (const char* variable : {"ZUNDE_VCONF_FILE", "ZUNDE_SYSTEM_INFO_FILE"}) {
    contents ? setenv(variable, path, 1) : unsetenv(variable);
  }
  int number = -7;
  bool flag = true;
  const int setting = vconf_get_int(kDisclaimer, &number);
  const int capability = system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT, &flag);
  std::remove(path);
  return std::to_string(setting) + " " + std::to_string(number) + " | " + std::to_string(capability) +
         (flag ? " true" : " false");
}

// The setting is the last integer given for its key; the capability is
// true, 1, false or 0.
TEST(HostSetting, ReadsTheLastIntegerOfTheKeyAndTheCapabilityOrFails) {
  const std::string setting = std::string(kDisclaimer) + "=", capability = "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=";
  const std::pair<std::string, const char*> cases[] = {
      {"# a\n\n  " + setting + " 42 \n" + capability + "true\n", "0 42 | 0 true"},
      {setting + "1\n" + setting + "-3\n" + capability + "1\n", "0 -3 | 0 true"},
      {"db/menu/other=1\n" + capability + "false\n", "-1 -7 | 0 false"},
      {setting + "yes\n" + capability + "0\n", "-1 -7 | 0 false"},
      {setting + "99999999999\n" + capability + "maybe\n", "-1 -7 | -5 true"}};
  for (const auto& c : cases) {
    EXPECT_EQ(ReadBoth(c.first.c_str()), c.second) << c.first;
  }
  EXPECT_EQ(ReadBoth(nullptr), "-1 -7 | -5 true");
  int value = 0;
  EXPECT_EQ(vconf_get_int(nullptr, &value), -1);
  EXPECT_EQ(system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT, nullptr),
            SYSTEM_INFO_ERROR_INVALID_PARAMETER);
}

}  // namespace
