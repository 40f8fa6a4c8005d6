// FCMarshal: the wire vocabulary of the library.
//
// One class of static functions, one `...ToJson` / `JsonTo...` pair per
// argument set. Each writes or reads named members of one root Json::Value
// and returns true. Each family's functions live in a source file of their
// own, FCMarshal_<Family>.cpp, and are grouped below in the same order.
#ifndef ZUNDE_FCMARSHAL_H
#define ZUNDE_FCMARSHAL_H

#include <json/json.h>

#include <list>
#include <map>
#include <string>
#include <vector>

#include "FCRemoteContentTypes.h"

// --- record headers (begin) ---
#include "FCVirtualProgramData.h"
// --- record headers (end) ---

class FCMarshal {
 public:
  // --- replies (FCMarshal_Reply.cpp) ---
  // Parses a reply text into `root`, comments collected; the reader's result.
  static bool ParseToJson(std::string& text, Json::Value& root);

  // --- remote content environment (FCMarshal_RemoteContentEnv.cpp) ---

  // --- remote content catalogue records (FCMarshal_RemoteContent.cpp) ---

  // --- smart channel guide and recommendations (FCMarshal_SmartChannelGuide.cpp) ---

  // --- certification rule and VOD providers (FCMarshal_CatalogueResponses.cpp) ---

  // --- set-top-box channels and programs (FCMarshal_MBR.cpp) ---

  // --- virtual channels (FCMarshal_VirtualChannels.cpp) ---
  // A service id as decimal text under "TCServiceId".
  static bool VCServiceIdToJson(unsigned long long id, Json::Value& root);
  // Reads "TCServiceId" back as a base-10 number; 0 when absent.
  static bool VCJsonToServiceId(Json::Value& root, unsigned long long& id);
};

#endif
