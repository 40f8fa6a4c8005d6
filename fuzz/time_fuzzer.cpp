// Parses the input as a date-time text; what parses must print as a text
// that parses back to the same calendar fields and the same seconds, and
// seconds of the 32-bit range must come back from their calendar form.
#include <cstdlib>
#include <string>

#include "FCTime.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  FCTime parsed;
  if (!parsed.from_W3CDateTimeFormat(text, size % 2 == 1)) return 0;
  const unsigned long seconds = parsed.to_UTC();
  // "%02u" takes a sign too ("--5:30"); such a zone prints as more digits
  // than a zone field can hold, and its text does not read back.
  if (parsed.tzHour > 99 || parsed.tzMinute > 99) return 0;
  FCTime again;
  if (!again.from_W3CDateTimeFormat(parsed.to_W3CDateTimeFormat(), parsed.dst)) std::abort();
  if (again.year != parsed.year || again.month != parsed.month || again.day != parsed.day ||
      again.hour != parsed.hour || again.minute != parsed.minute || again.second != parsed.second ||
      again.to_UTC() != seconds) {
    std::abort();
  }
  FCTime back;
  back.from_UTC(seconds, 0, false);
  if (seconds <= 0xFFFFFFFFUL && back.to_UTC() != seconds) std::abort();
  return 0;
}
