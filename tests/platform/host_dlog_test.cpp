// The host edition of the platform log: one line on standard error per
// call, filtered by ZUNDE_LOG.
#include <dlog.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

struct LogCase {
  const char* name;
  const char* setting;  // null: unset
  int priority;
  const char* format;
  std::string written;
};

class HostLog : public ::testing::TestWithParam<LogCase> {};

TEST_P(HostLog, WritesWhatTheSettingLetsThroughOnOneLine) {
  const LogCase& c = GetParam();
  c.setting ? setenv("ZUNDE_LOG", c.setting, 1) : unsetenv("ZUNDE_LOG");
  ::testing::internal::CaptureStderr();
  __dlog_print(LOG_ID_MAIN, c.priority, "zunde-provider", c.format);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), c.written);
  unsetenv("ZUNDE_LOG");
}

const char kText[] = "tuner locked";
const std::string kLong(5000, 'x');  // beyond the first formatting buffer
const std::string kLongLine = "W/zunde-provider: " + kLong + "\n";

INSTANTIATE_TEST_SUITE_P(
    Settings, HostLog,
    ::testing::Values(LogCase{"UnsetKeepsWarningsQuiet", nullptr, DLOG_WARN, kText, ""},
                      LogCase{"UnsetShowsErrors", nullptr, DLOG_ERROR, kText, "E/zunde-provider: tuner locked\n"},
                      LogCase{"OffSilencesFatal", "off", DLOG_FATAL, kText, ""},
                      LogCase{"WarnShowsWarnings", "warn", DLOG_WARN, kText, "W/zunde-provider: tuner locked\n"},
                      LogCase{"WarnHidesInformation", "warn", DLOG_INFO, kText, ""},
                      LogCase{"InfoShowsInformation", "info", DLOG_INFO, kText, "I/zunde-provider: tuner locked\n"},
                      LogCase{"InfoHidesDebug", "info", DLOG_DEBUG, kText, ""},
                      LogCase{"DebugShowsVerbose", "debug", DLOG_VERBOSE, kText, "V/zunde-provider: tuner locked\n"},
                      LogCase{"UnknownSettingActsAsError", "chatty", DLOG_WARN, kText, ""},
                      LogCase{"SilentPriorityIsNeverWritten", "debug", DLOG_SILENT, kText, ""},
                      LogCase{"NewlinesBecomeOneLine", "debug", DLOG_WARN, "a\nb\n\n", "W/zunde-provider: a b\n"},
                      LogCase{"LongMessageIsWrittenWhole", "debug", DLOG_WARN, kLong.c_str(), kLongLine},
                      LogCase{"NullFormatIsIgnored", "debug", DLOG_ERROR, nullptr, ""}),
    [](const ::testing::TestParamInfo<LogCase>& info) { return std::string(info.param.name); });

}  // namespace
