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

// A key=value file in the temporary directory, named by `variable` while
// the object lives.
class KeyValueFile {
 public:
  KeyValueFile(const char* variable, const std::string& contents) : m_variable(variable) {
    char path[] = "/tmp/zunde-platform-XXXXXX";
    const int fd = mkstemp(path);
    m_path = path;
    FILE* file = fdopen(fd, "w");
    std::fputs(contents.c_str(), file);
    std::fclose(file);
    setenv(m_variable, m_path.c_str(), 1);
  }
  ~KeyValueFile() {
    unsetenv(m_variable);
    std::remove(m_path.c_str());
  }

 private:
  const char* m_variable;
  std::string m_path;
};

const char kDisclaimer[] = "db/menu/corvina/homedatacontrol/defaultdisclaimeragree";

struct SettingCase {
  const char* name;
  const char* contents;
  int result;
  int value;  // when read
};

class HostSetting : public ::testing::TestWithParam<SettingCase> {};

TEST_P(HostSetting, ReadsTheIntegerOrFails) {
  KeyValueFile file("ZUNDE_VCONF_FILE", GetParam().contents);
  int value = -7;
  EXPECT_EQ(vconf_get_int(kDisclaimer, &value), GetParam().result);
  EXPECT_EQ(value, GetParam().result == 0 ? GetParam().value : -7);  // untouched on failure
}

INSTANTIATE_TEST_SUITE_P(
    Files, HostSetting,
    ::testing::Values(
        SettingCase{"Plain", "db/menu/corvina/homedatacontrol/defaultdisclaimeragree=1\n", 0, 1},
        SettingCase{"BlanksAndComments", "# settings\n\n  db/menu/corvina/homedatacontrol/defaultdisclaimeragree = 42 \n", 0,
                    42},
        SettingCase{"LastLineWins",
                    "db/menu/corvina/homedatacontrol/defaultdisclaimeragree=1\n"
                    "db/menu/corvina/homedatacontrol/defaultdisclaimeragree=0\n",
                    0, 0},
        SettingCase{"Negative", "db/menu/corvina/homedatacontrol/defaultdisclaimeragree=-3", 0, -3},
        SettingCase{"MissingKey", "db/menu/other=1\n", -1, 0},
        SettingCase{"NotANumber", "db/menu/corvina/homedatacontrol/defaultdisclaimeragree=yes\n", -1, 0},
        SettingCase{"EmptyValue", "db/menu/corvina/homedatacontrol/defaultdisclaimeragree=\n", -1, 0},
        SettingCase{"TooLarge", "db/menu/corvina/homedatacontrol/defaultdisclaimeragree=99999999999\n", -1, 0}),
    [](const ::testing::TestParamInfo<SettingCase>& info) { return std::string(info.param.name); });

TEST(HostSetting, NoFileIsAFailure) {
  unsetenv("ZUNDE_VCONF_FILE");
  int value = 0;
  EXPECT_EQ(vconf_get_int(kDisclaimer, &value), -1);
  setenv("ZUNDE_VCONF_FILE", "/nonexistent/zunde-settings", 1);
  EXPECT_EQ(vconf_get_int(kDisclaimer, &value), -1);
  unsetenv("ZUNDE_VCONF_FILE");
  EXPECT_EQ(vconf_get_int(nullptr, &value), -1);
}

struct CapabilityCase {
  const char* name;
  const char* contents;
  int result;
  bool value;
};

class HostCapability : public ::testing::TestWithParam<CapabilityCase> {};

TEST_P(HostCapability, ReadsTheBooleanOrFails) {
  KeyValueFile file("ZUNDE_SYSTEM_INFO_FILE", GetParam().contents);
  bool value = false;
  EXPECT_EQ(system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT, &value), GetParam().result);
  if (GetParam().result == SYSTEM_INFO_ERROR_NONE) {
    EXPECT_EQ(value, GetParam().value);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Files, HostCapability,
    ::testing::Values(CapabilityCase{"True", "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=true\n", 0, true},
                      CapabilityCase{"One", "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=1\n", 0, true},
                      CapabilityCase{"False", "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=false\n", 0, false},
                      CapabilityCase{"Zero", "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=0\n", 0, false},
                      CapabilityCase{"Missing", "OTHER=true\n", SYSTEM_INFO_ERROR_IO_ERROR, false},
                      CapabilityCase{"NotABoolean", "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=maybe\n",
                                     SYSTEM_INFO_ERROR_IO_ERROR, false}),
    [](const ::testing::TestParamInfo<CapabilityCase>& info) { return std::string(info.param.name); });

TEST(HostCapability, NoFileOrNoOutputIsAFailure) {
  unsetenv("ZUNDE_SYSTEM_INFO_FILE");
  bool value = false;
  EXPECT_EQ(system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT, &value), SYSTEM_INFO_ERROR_IO_ERROR);
  EXPECT_EQ(system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT, nullptr),
            SYSTEM_INFO_ERROR_INVALID_PARAMETER);
}

}  // namespace
