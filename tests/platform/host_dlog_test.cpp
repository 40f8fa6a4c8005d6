// The host edition of the platform log: one line on standard error per
// call, filtered by ZUNDE_LOG.
#include <dlog.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

std::string Logged(int priority, const char* format) {
  ::testing::internal::CaptureStderr();
  __dlog_print(LOG_ID_MAIN, priority, "zunde-provider", format);
  return ::testing::internal::GetCapturedStderr();
}

// Each setting against every priority from verbose to silent: the letters of
// the lines written. No setting, or an unknown one, means errors and above.
// Under the last setting, each call writes one whole line, however long.
TEST(HostLog, SettingChoosesTheLowestPriorityWrittenAndEachCallWritesOneLine) {
  const char* const cases[][2] = {{nullptr, "EF"}, {"off", ""},         {"warn", "WEF"},
                                  {"info", "IWEF"}, {"chatty", "EF"}, {"debug", "VDIWEF"}};
  for (const auto& c : cases) {
    c[0] ? setenv("ZUNDE_LOG", c[0], 1) : unsetenv("ZUNDE_LOG");
    std::string letters;
    for (int p = DLOG_VERBOSE; p <= DLOG_SILENT; ++p) letters += Logged(p, "x").substr(0, 1);
    EXPECT_EQ(letters, c[1]) << (c[0] ? c[0] : "unset");
  }
  EXPECT_EQ(Logged(DLOG_INFO, "tuner locked"), "I/zunde-provider: tuner locked\n");
  EXPECT_EQ(Logged(DLOG_WARN, "a\nb\n\n"), "W/zunde-provider: a b\n");
  const std::string longText(5000, 'x');  // beyond the first formatting buffer
  EXPECT_EQ(Logged(DLOG_WARN, longText.c_str()), "W/zunde-provider: " + longText + "\n");
  EXPECT_EQ(Logged(DLOG_ERROR, nullptr), "");
  unsetenv("ZUNDE_LOG");
}

}  // namespace
