// FCTime: a W3C date-time (2016-03-01T20:30:00+09:00) as calendar fields,
// converted to and from seconds since the epoch.
//
// The calendar arithmetic is FCTimeWrapper's; FCTime only parses and prints
// the text form and carries the zone offset.
//
// Zone offset sign. `tzOffset` holds the offset of the text with its sign
// turned round: "+HH:MM" is stored as -(HH*60+MM), "-HH:MM" as +(HH*60+MM).
// Printing turns it back, so a text survives a parse and a print. The value
// is handed to FCTimeWrapper unchanged in both directions, although the
// wrapper reads it as minutes to add to UTC; for a parsed "+HH:MM" text
// `to_UTC` therefore moves by +offset. The records of this library only ever
// use a zero offset, and the service side relies on exactly this behaviour.
#ifndef ZUNDE_FCTIME_H
#define ZUNDE_FCTIME_H

#include <string>

class FCTime {
 public:
  // Every field zero, `dst` false.
  FCTime();
  virtual ~FCTime();

  // Parses "YYYY-MM-DDThh:mm:ss" with an optional zone suffix, storing `dst`
  // on success. Returns false when the six calendar fields do not all
  // convert, or when a "+"/"-" suffix is not "HH:MM"; `dst` is then left as
  // it was, while the calendar fields may be partly written.
  //
  // The suffix is looked for where the zero-padded form of the parsed fields
  // would end (19 characters for a normal date), not after the characters
  // actually parsed, and only when at least two characters follow there. So a
  // lone trailing "Z" is never examined and leaves the zone fields as they
  // were; "ZZ" resets them to zero; any other character leaves them alone.
  // Texts of 256 characters or more are refused.
  bool from_W3CDateTimeFormat(const std::string& text, bool dst);

  // Seconds since the epoch of the stored fields, with `tzOffset` and `dst`
  // as FCTimeWrapper reads them (see the sign note above).
  unsigned long to_UTC();

  // Sets the calendar fields from `seconds` shifted by `offsetMinutes` (and
  // one hour when `dst`). `tzOffset` becomes `offsetMinutes`; `tzHour` and
  // `tzMinute` are updated only for a non-zero offset. Always true.
  bool from_UTC(unsigned long seconds, int offsetMinutes, bool dst);

  // "YYYY-MM-DDThh:mm:ss" followed by "Z" for a zero `tzOffset`, else by the
  // sign ("+" for a negative offset) and "tzHour:tzMinute" as plain unpadded
  // numbers: nine hours ahead prints "+9:0". The service expects this form.
  std::string to_W3CDateTimeFormat();

  int year;               // full year, e.g. 2016
  int month;              // 1..12
  int day;                // day of month
  int hour;               // 0..23
  int minute;             // 0..59
  int second;             // 0..59
  unsigned int tzHour;    // hours of the zone offset, without sign
  unsigned int tzMinute;  // minutes of the zone offset, without sign
  int tzOffset;           // whole offset in minutes, sign as described above
  bool dst;               // daylight saving: one hour more, in FCTimeWrapper
};

#endif
