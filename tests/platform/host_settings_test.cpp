// The host editions of the settings store and the system information read
// key=value files named by environment variables.
#include <gtest/gtest.h>
#include <system_info.h>
#include <unistd.h>
#include <vconf.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

const char kDisclaimer[] = "db/menu/corvina/homedatacontrol/defaultdisclaimeragree";

// The result and the value (as it was before when the read fails).
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

struct FileCase {
  const char* name;
  std::string (*read)();
  std::string contents;
  const char* expected;
};

class HostKeyValueFile : public ::testing::TestWithParam<FileCase> {};

TEST_P(HostKeyValueFile, ReadsTheValueOrFails) {
  const FileCase& c = GetParam();
  const char* variable = c.read == ReadSetting ? "ZUNDE_VCONF_FILE" : "ZUNDE_SYSTEM_INFO_FILE";
  char path[] = "/tmp/zunde-platform-XXXXXX";
  FILE* file = fdopen(mkstemp(path), "w");
  std::fputs(c.contents.c_str(), file);
  std::fclose(file);
  setenv(variable, path, 1);
  EXPECT_EQ(c.read(), c.expected);
  unsetenv(variable);
  std::remove(path);
}

const std::string kKey = std::string(kDisclaimer) + "=";
const std::string kCapability = "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=";

INSTANTIATE_TEST_SUITE_P(
    Files, HostKeyValueFile,
    ::testing::Values(FileCase{"SettingAmidBlanksAndComments", ReadSetting, "# a\n\n  " + kKey + " 42 \n", "0 42"},
                      FileCase{"SettingLastLineWins", ReadSetting, kKey + "1\n" + kKey + "0\n", "0 0"},
                      FileCase{"SettingNegative", ReadSetting, kKey + "-3", "0 -3"},
                      FileCase{"SettingMissingKey", ReadSetting, "db/menu/other=1\n", "-1 -7"},
                      FileCase{"SettingNotANumber", ReadSetting, kKey + "yes\n", "-1 -7"},
                      FileCase{"SettingTooLarge", ReadSetting, kKey + "99999999999\n", "-1 -7"},
                      FileCase{"CapabilityTrue", ReadCapability, kCapability + "true\n", "0 true"},
                      FileCase{"CapabilityOne", ReadCapability, kCapability + "1\n", "0 true"},
                      FileCase{"CapabilityFalse", ReadCapability, kCapability + "false\n", "0 false"},
                      FileCase{"CapabilityZero", ReadCapability, kCapability + "0\n", "0 false"},
                      FileCase{"CapabilityNotABoolean", ReadCapability, kCapability + "maybe\n", "-5 true"}),
    [](const ::testing::TestParamInfo<FileCase>& info) { return std::string(info.param.name); });

TEST(HostKeyValueFile, NoFileVariableOrNullArgumentsFail) {
  EXPECT_EQ(ReadSetting(), "-1 -7");
  EXPECT_EQ(ReadCapability(), "-5 true");
  int value = 0;
  EXPECT_EQ(vconf_get_int(nullptr, &value), -1);
  EXPECT_EQ(system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT, nullptr),
            SYSTEM_INFO_ERROR_INVALID_PARAMETER);
}

}  // namespace
