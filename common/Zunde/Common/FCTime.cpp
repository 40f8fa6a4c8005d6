#include "FCTime.h"

#include <cstdio>
#include <cstring>

#include "FCTimeWapper.h"

namespace {

// Work and print buffers; the service never sends a date-time anywhere near
// this long.
constexpr std::size_t kBufferSize = 256;

constexpr const char* kCalendarFormat = "%04d-%02d-%02dT%02d:%02d:%02d";

// The zero-padded calendar part of `time`, which also fixes where a zone
// suffix is looked for when parsing.
int PrintCalendar(const FCTime& time, char (&buffer)[kBufferSize]) {
  const int length = std::snprintf(buffer, sizeof buffer, kCalendarFormat, time.year, time.month, time.day, time.hour,
                                   time.minute, time.second);
  return length < 0 ? 0 : length;
}

FCTimeWrapper::PTTime CalendarOf(const FCTime& time) {
  return FCTimeWrapper::PTTime{time.year, time.month, time.day, time.hour, time.minute, time.second};
}

}  // namespace

FCTime::FCTime()
    : year(0), month(0), day(0), hour(0), minute(0), second(0), tzHour(0), tzMinute(0), tzOffset(0), dst(false) {}

FCTime::~FCTime() = default;

bool FCTime::from_W3CDateTimeFormat(const std::string& text, bool dst) {
  if (text.size() >= kBufferSize) return false;
  char work[kBufferSize] = {};
  std::memcpy(work, text.data(), text.size());

  if (std::sscanf(work, "%d-%d-%dT%d:%d:%d", &year, &month, &day, &hour, &minute, &second) < 6) return false;

  char canonical[kBufferSize];
  const int calendarLength = PrintCalendar(*this, canonical);
  const int inputLength = static_cast<int>(std::strlen(work));

  // The suffix is sought where the zero-padded form would end, and only when
  // two or more characters follow there, even for unpadded input: the
  // service parses its date-times the same way, and both ends must agree on
  // which zone a text carries.
  if (inputLength - calendarLength > 1) {
    const char marker = work[calendarLength];
    if (marker == '+' || marker == '-') {
      if (std::sscanf(work + calendarLength + 1, "%02u:%02u", &tzHour, &tzMinute) != 2) return false;
      const int minutes = static_cast<int>(tzHour * 60 + tzMinute);
      tzOffset = marker == '+' ? -minutes : minutes;
    } else if (marker == 'Z') {
      tzHour = 0;
      tzMinute = 0;
      tzOffset = 0;
    }
  }
  this->dst = dst;
  return true;
}

unsigned long FCTime::to_UTC() {
  const FCTimeWrapper::PTTime local = CalendarOf(*this);
  unsigned long seconds = 0;
  FCTimeWrapper::ConvertLocalToEpochTime(&seconds, &local, tzOffset, dst);
  return seconds;
}

bool FCTime::from_UTC(unsigned long seconds, int offsetMinutes, bool dst) {
  FCTimeWrapper::PTTime local = {};
  FCTimeWrapper::ConvertEpochToLocalTime(&local, seconds, offsetMinutes, dst);
  year = local.year;
  month = local.month;
  day = local.day;
  hour = local.hour;
  minute = local.minute;
  second = local.second;

  tzOffset = offsetMinutes;
  if (offsetMinutes != 0) {
    const unsigned int magnitude =
        offsetMinutes < 0 ? 0U - static_cast<unsigned int>(offsetMinutes) : static_cast<unsigned int>(offsetMinutes);
    tzHour = magnitude / 60;
    tzMinute = magnitude % 60;
  }
  this->dst = dst;
  return true;
}

std::string FCTime::to_W3CDateTimeFormat() {
  char buffer[kBufferSize];
  std::string text(buffer, PrintCalendar(*this, buffer));
  if (tzOffset == 0) return text + "Z";
  // Unpadded on purpose ("+9:0"): it is the form the service receives.
  return text + (tzOffset < 0 ? "+" : "-") + std::to_string(tzHour) + ":" + std::to_string(tzMinute);
}
