// XMLTV times: "YYYYMMDDhhmmss +hhmm", where the seconds, minutes and
// hours may be left off and the zone is an offset, "UTC", "GMT" or "Z"
// (none means UTC).
#ifndef ZUNDE_SERVICE_GUIDE_FILES_XMLTV_TIME_H
#define ZUNDE_SERVICE_GUIDE_FILES_XMLTV_TIME_H

#include <cstdint>
#include <string>

namespace zunde::service::guide {

// Seconds since the epoch; false when `text` is not such a time or falls
// outside the unsigned 32-bit range the library's records carry.
bool ParseXmltvTime(const std::string& text, uint32_t& utc);

// `utc` as "YYYYMMDDhhmmss +0000".
std::string XmltvTime(uint32_t utc);

}  // namespace zunde::service::guide

#endif
