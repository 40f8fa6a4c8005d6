#include "xmltv_time.h"

#include <cctype>
#include <ctime>

namespace zunde::service::guide {
namespace {

// Days from 1970-01-01 to the given civil date (proleptic Gregorian).
long long DaysFromCivil(long long y, unsigned m, unsigned d) {
  y -= m <= 2;
  const long long era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<long long>(doe) - 719468;
}

int Digits(const std::string& text, size_t at, size_t count) {
  int value = 0;
  for (size_t i = at; i < at + count; ++i) value = value * 10 + (text[i] - '0');
  return value;
}

// The zone's offset east of UTC in seconds; false when it is not one.
bool ParseZone(const std::string& zone, long long& offset) {
  if (zone.empty() || zone == "UTC" || zone == "GMT" || zone == "Z") {
    offset = 0;
    return true;
  }
  if (zone.size() != 5 || (zone[0] != '+' && zone[0] != '-')) return false;
  for (size_t i = 1; i < 5; ++i) {
    if (!std::isdigit(static_cast<unsigned char>(zone[i]))) return false;
  }
  const int hours = Digits(zone, 1, 2);
  const int minutes = Digits(zone, 3, 2);
  if (hours > 23 || minutes > 59) return false;
  offset = (zone[0] == '-' ? -1 : 1) * (hours * 3600LL + minutes * 60LL);
  return true;
}

}  // namespace

bool ParseXmltvTime(const std::string& text, uint32_t& utc) {
  size_t digits = 0;
  while (digits < text.size() && std::isdigit(static_cast<unsigned char>(text[digits]))) ++digits;
  if (digits < 8 || digits > 14 || digits % 2 != 0) return false;
  const std::string padded = text.substr(0, digits) + std::string(14 - digits, '0');
  const int month = Digits(padded, 4, 2), day = Digits(padded, 6, 2);
  const int hour = Digits(padded, 8, 2), minute = Digits(padded, 10, 2), second = Digits(padded, 12, 2);
  if (month < 1 || month > 12 || day < 1 || day > 31 || hour > 23 || minute > 59 || second > 60) return false;
  size_t zoneAt = digits;
  while (zoneAt < text.size() && text[zoneAt] == ' ') ++zoneAt;
  long long offset = 0;
  if (!ParseZone(text.substr(zoneAt), offset)) return false;
  const long long seconds = DaysFromCivil(Digits(padded, 0, 4), month, day) * 86400 + hour * 3600LL +
                            minute * 60LL + second - offset;
  if (seconds < 0 || seconds > 0xFFFFFFFFLL) return false;
  utc = static_cast<uint32_t>(seconds);
  return true;
}

std::string XmltvTime(uint32_t utc) {
  const time_t time = utc;
  struct tm parts {};
  gmtime_r(&time, &parts);
  char text[32];
  std::strftime(text, sizeof text, "%Y%m%d%H%M%S +0000", &parts);
  return text;
}

}  // namespace zunde::service::guide
