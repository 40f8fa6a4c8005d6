// The host edition of the platform log: one line on standard error per
// call, filtered by ZUNDE_LOG.
#include <dlog.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

std::string LoggedWith(const char* setting, int priority, const char* text = "tuner locked") {
  if (setting == nullptr) {
    unsetenv("ZUNDE_LOG");
  } else {
    setenv("ZUNDE_LOG", setting, 1);
  }
  CaptureStderr();
  __dlog_print(LOG_ID_MAIN, priority, "zunde-provider", "%s", text);
  std::string written = GetCapturedStderr();
  unsetenv("ZUNDE_LOG");
  return written;
}

struct FilterCase {
  const char* name;
  const char* setting;  // null: unset
  int priority;
  bool written;
};

class HostLogFilter : public ::testing::TestWithParam<FilterCase> {};

TEST_P(HostLogFilter, WritesOnlyWhatTheSettingLetsThrough) {
  const auto& c = GetParam();
  EXPECT_EQ(!LoggedWith(c.setting, c.priority).empty(), c.written);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, HostLogFilter,
    ::testing::Values(FilterCase{"UnsetKeepsWarningsQuiet", nullptr, DLOG_WARN, false},
                      FilterCase{"UnsetShowsErrors", nullptr, DLOG_ERROR, true},
                      FilterCase{"OffSilencesErrors", "off", DLOG_ERROR, false},
                      FilterCase{"OffSilencesFatal", "off", DLOG_FATAL, false},
                      FilterCase{"WarnShowsWarnings", "warn", DLOG_WARN, true},
                      FilterCase{"WarnHidesInformation", "warn", DLOG_INFO, false},
                      FilterCase{"InfoShowsInformation", "info", DLOG_INFO, true},
                      FilterCase{"InfoHidesDebug", "info", DLOG_DEBUG, false},
                      FilterCase{"DebugShowsVerbose", "debug", DLOG_VERBOSE, true},
                      FilterCase{"UnknownSettingActsAsError", "chatty", DLOG_WARN, false},
                      FilterCase{"SilentPriorityIsNeverWritten", "debug", DLOG_SILENT, false}),
    [](const ::testing::TestParamInfo<FilterCase>& info) { return std::string(info.param.name); });

TEST(HostLog, LineCarriesThePriorityLetterAndTheTag) {
  EXPECT_EQ(LoggedWith("debug", DLOG_WARN), "W/zunde-provider: tuner locked\n");
  EXPECT_EQ(LoggedWith("debug", DLOG_INFO), "I/zunde-provider: tuner locked\n");
  EXPECT_EQ(LoggedWith("debug", DLOG_ERROR), "E/zunde-provider: tuner locked\n");
}

TEST(HostLog, OneLinePerCallWhateverTheMessageHolds) {
  EXPECT_EQ(LoggedWith("debug", DLOG_WARN, "first\nsecond\n\n"), "W/zunde-provider: first second\n");
}

TEST(HostLog, LongMessagesAreWrittenWhole) {
  const std::string longText(5000, 'x');
  EXPECT_EQ(LoggedWith("debug", DLOG_WARN, longText.c_str()), "W/zunde-provider: " + longText + "\n");
}

TEST(HostLog, NullFormatIsIgnored) {
  setenv("ZUNDE_LOG", "debug", 1);
  CaptureStderr();
  EXPECT_EQ(__dlog_print(LOG_ID_MAIN, DLOG_ERROR, "zunde-provider", nullptr), 0);
  EXPECT_EQ(GetCapturedStderr(), "");
  unsetenv("ZUNDE_LOG");
}

}  // namespace
