// Clock, sleep and calendar services of the task runtime.
//
// Times are unsigned seconds since the Unix epoch (UTC); zone offsets are
// minutes to add to UTC to get local time. The calendar counts every fourth
// year as a leap year, which holds from 1901 to 2099.
#ifndef ZUNDE_FCTIMEWAPPER_H
#define ZUNDE_FCTIMEWAPPER_H

// Broken-down time of the two calendar functions below.
struct tm_struct {
  int tm_sec;     // 0..59
  int tm_min;     // 0..59
  int tm_hour;    // 0..23
  int tm_mday;    // 1..31
  int tm_unused;  // neither read nor written by the calendar functions
  int tm_mon;     // 0..11
  int tm_year;    // years since 1900
  int tm_wday;    // 0 = Sunday
  int tm_yday;    // 0..365
};

// Days before each month of a common year; entry 12 is the whole year.
extern const unsigned int DaysToMonth[13];

// Seconds since the epoch of a broken-down UTC time. A month outside 0..11
// moves into the following or preceding years (13 is February of the next).
unsigned long DS1371_DateToBinary(tm_struct* time);

// Breaks seconds since the epoch down into `time`, leaving `tm_unused` alone.
// Beyond the calendar (a day of year of 366 or more) the month comes out as
// 13, which callers have always received; it is kept.
void DS1371_BinaryToDate(unsigned long seconds, tm_struct* time);

class FCTimeWrapper {
 public:
  // A local date-time as callers see it.
  struct PTTime {
    int year;    // full year, e.g. 2024
    int month;   // 1..12
    int day;     // 1..31
    int hour;    // 0..23
    int minute;  // 0..59
    int second;  // 0..59
  };

  // Whole seconds of the wall clock since the epoch, cut to 32 bits. Logs the
  // value on every call; a clock failure is logged and never reported.
  static unsigned long EpochTime();

  // Milliseconds of the process's monotonic tick clock, wrapping at 32 bits.
  // All ones, with FCError ERROR_AGAIN, when the clock cannot be read.
  static unsigned long Tick();

  // Sleeps the calling thread, resuming after signals until the whole time
  // has passed. Returns 0, or -1 when the last attempt failed.
  static int Sleep(unsigned long ms);

  // local = calendar of (epoch + offsetMinutes minutes + one hour if dst).
  static void ConvertEpochToLocalTime(PTTime* localtime, unsigned long epoch, int offsetMinutes, bool dst);

  // *sec = seconds of `localtime` - offsetMinutes minutes - one hour if dst.
  static void ConvertLocalToEpochTime(unsigned long* sec, const PTTime* localtime, int offsetMinutes, bool dst);
};

#endif
