#include "FCTimeWapper.h"

#include <sys/time.h>
#include <sys/times.h>
#include <unistd.h>

#include <ctime>

#include "FCDebug.h"
#include "FCError.h"
#include "FCLog_internal.h"

const unsigned int DaysToMonth[13] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};

namespace {

constexpr unsigned long kSecondsPerDay = 86400;
constexpr unsigned long kDaysPerFourYears = 1461;
// 1 January 1968, a leap year, lies this many days before the epoch.
constexpr unsigned long kDaysFrom1968 = 731;
// Day of year of 1 March in a leap year.
constexpr unsigned long kLeapDayOfYear = 60;
constexpr int kThursday = 4;

// Month (0..11) of a day of year; 13 beyond the calendar. `monthStart`
// receives the first day of year of that month.
int MonthOfDay(unsigned long dayOfYear, bool leapYear, unsigned long* monthStart) {
  for (int month = 12; month >= 0; --month) {
    unsigned long start = DaysToMonth[month];
    if (month >= 2 && leapYear) ++start;
    if (start <= dayOfYear) {
      *monthStart = start;
      return month == 12 ? 13 : month;
    }
  }
  *monthStart = 0;
  return 0;
}

}  // namespace

unsigned long DS1371_DateToBinary(tm_struct* time) {
  // A month outside 0..11 (a date-time text may carry one) counts into the
  // years around it, as mktime does, rather than past the month table. For
  // months within the table this changes nothing. Wide enough for any two
  // ints a text may carry: the seconds then simply wrap.
  long long year = static_cast<long long>(time->tm_year) + time->tm_mon / 12;
  int month = time->tm_mon % 12;
  if (month < 0) {
    month += 12;
    --year;
  }
  long long leap = (year - 69) / 4;
  if (month >= 2 && year % 4 == 0) ++leap;
  const unsigned long days =
      DaysToMonth[month] + time->tm_mday - 1 + 365UL * static_cast<unsigned long>(year - 70) + leap;
  return ((days * 24 + time->tm_hour) * 3600) + time->tm_min * 60UL + time->tm_sec;
}

void DS1371_BinaryToDate(unsigned long seconds, tm_struct* time) {
  const unsigned long days = seconds / kSecondsPerDay + kDaysFrom1968;
  const unsigned long inCycle = days % kDaysPerFourYears;
  unsigned long leap = days / kDaysPerFourYears;
  if (inCycle >= kLeapDayOfYear) ++leap;
  const unsigned long years = (days - leap) / 365;

  unsigned long dayOfYear = days - 365 * years - leap;
  if (inCycle - kLeapDayOfYear < 306) ++dayOfYear;  // unsigned: false before 1 March

  unsigned long monthStart = 0;
  const int month = MonthOfDay(dayOfYear, (years + 68) % 4 == 0, &monthStart);

  time->tm_sec = static_cast<int>(seconds % 60);
  time->tm_min = static_cast<int>(seconds / 60 % 60);
  time->tm_hour = static_cast<int>(seconds / 3600 % 24);
  time->tm_mday = static_cast<int>(dayOfYear + 1 - monthStart);
  time->tm_mon = month;
  time->tm_year = static_cast<int>(years + 68);
  time->tm_wday = static_cast<int>((seconds / kSecondsPerDay + kThursday) % 7);
  time->tm_yday = static_cast<int>(dayOfYear);
}

unsigned long FCTimeWrapper::EpochTime() {
  timeval now = {0, 0};
  if (gettimeofday(&now, nullptr) != 0) FC_LOG_WARN(0, "Fail getting time by gettimeofday\n");
  FC_LOG_WARN(0, "CurrentTime return %d\n", static_cast<int>(now.tv_sec));
  return static_cast<unsigned int>(now.tv_sec);
}

unsigned long FCTimeWrapper::Tick() {
  const clock_t ticks = times(nullptr);
  if (ticks == static_cast<clock_t>(-1)) {
    FCDebug::Print("CSP Warning: times() return error(-1).\n");
    FCError::Set(FCError::ERROR_AGAIN);
    return static_cast<unsigned int>(-1);
  }
  const long ticksPerSecond = sysconf(_SC_CLK_TCK);
  const unsigned int msPerTick = ticksPerSecond == 0 ? 0 : static_cast<unsigned int>(1000 / ticksPerSecond);
  return static_cast<unsigned int>(static_cast<unsigned int>(ticks) * msPerTick);
}

int FCTimeWrapper::Sleep(unsigned long ms) {
  timespec request = {static_cast<time_t>(ms / 1000), static_cast<long>(ms % 1000) * 1000000L};
  timespec remaining = {0, 0};
  int result = nanosleep(&request, &remaining);
  while (result != 0 && (remaining.tv_sec != 0 || remaining.tv_nsec != 0)) {
    request = remaining;
    remaining = {0, 0};
    result = nanosleep(&request, &remaining);
  }
  return result;
}

void FCTimeWrapper::ConvertEpochToLocalTime(PTTime* localtime, unsigned long epoch, int offsetMinutes, bool dst) {
  FCASSERT(localtime != NULL);
  tm_struct broken = {};
  DS1371_BinaryToDate(epoch + offsetMinutes * 60L + (dst ? 3600 : 0), &broken);
  localtime->year = static_cast<int>(static_cast<unsigned int>(broken.tm_year) + 1900U);  // wraps far past 2038
  localtime->month = broken.tm_mon + 1;
  localtime->day = broken.tm_mday;
  localtime->hour = broken.tm_hour;
  localtime->minute = broken.tm_min;
  localtime->second = broken.tm_sec;
}

void FCTimeWrapper::ConvertLocalToEpochTime(unsigned long* sec, const PTTime* localtime, int offsetMinutes,
                                            bool dst) {
  FCASSERT(sec != NULL);
  FCASSERT(localtime != NULL);
  tm_struct broken = {};
  broken.tm_sec = localtime->second;
  broken.tm_min = localtime->minute;
  broken.tm_hour = localtime->hour;
  broken.tm_mday = localtime->day;
  // Wrapping, not overflowing, for the ends of the int range.
  broken.tm_mon = static_cast<int>(static_cast<unsigned int>(localtime->month) - 1U);
  broken.tm_year = static_cast<int>(static_cast<unsigned int>(localtime->year) - 1900U);
  *sec = DS1371_DateToBinary(&broken) - offsetMinutes * 60L - (dst ? 3600 : 0);
}
