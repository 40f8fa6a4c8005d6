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
#include "CZundeResponse.h"
#include "FCVirtualProgramData.h"
#include "MBRNetworkChannel.h"
#include "MBRNetworkChannelTable.h"
// --- record headers (end) ---

class FCMarshal {
 public:
  // --- replies (FCMarshal_Reply.cpp) ---
  // Parses a reply text into `root`, comments collected; the reader's result.
  static bool ParseToJson(std::string& text, Json::Value& root);

  // --- remote content environment (FCMarshal_RemoteContentEnv.cpp) ---
  // "country", "language" (strings)
  static bool CountryAndLangToJson(std::string const& country, std::string const& language, Json::Value& root);
  static bool JsonToCountryAndLang(Json::Value& root, std::string& country, std::string& language);
  // "atoken" (string)
  static bool atokenToJson(std::string const& token, Json::Value& root);
  static bool JsonToatoken(Json::Value& root, std::string& token);
  // "in_source", "in_tvmode" (ints)
  static bool TVSourceAndTVModeToJson(int& source, int& tvMode, Json::Value& root);
  static bool JsonToTVSourceAndTVMode(Json::Value& root, ESource& source, int& tvMode);
  // "in_source", "in_antennaMode", "in_serviceMode" (ints)
  static bool TVSourceAndTVModeToJson(int& source, int& antennaMode, int& serviceMode, Json::Value& root);
  static bool JsonToTVSourceAndTVMode(Json::Value& root, ESource& source, int& antennaMode, int& serviceMode);
  // "activityID" (int)
  static bool activityIDToJson(eRemoteContentActivity activity, Json::Value& root);
  static bool JsonToactivityID(Json::Value& root, eRemoteContentActivity& activity);
  // "in_recommend_type" (int)
  static bool RecommendTypeOptionToJson(eRecommendTypeOption option, Json::Value& root);
  static bool JsonToRecommendTypeOption(Json::Value& root, eRecommendTypeOption& option);
  // "in_user_id" (string)
  static bool UserIDToJson(std::string const& userId, Json::Value& root);
  static bool JsonToUserID(Json::Value& root, std::string& userId);


  // --- remote content catalogue records (FCMarshal_RemoteContent.cpp) ---

  // --- smart channel guide and recommendations (FCMarshal_SmartChannelGuide.cpp) ---

  // --- certification rule and VOD providers (FCMarshal_CatalogueResponses.cpp) ---
  // "out_cert_rule" and "out_vod_providers": forwarded to the records.
  static bool CertRuleToJson(CZundeResponse_CertRule& rule, Json::Value& root);
  static bool JsonToCertRule(Json::Value& root, CZundeResponse_CertRule& rule);
  static bool VODProviderToJson(CZundeResponse_VODProviders& providers, Json::Value& root);
  static bool JsonToVODProvider(Json::Value& root, CZundeResponse_VODProviders& providers);

  // --- set-top-box channels and programs (FCMarshal_MBR.cpp) ---
  // The channel's thirteen keys and the programme's five, flat in `root`.
  static bool MBRNetworkChannelToJson(FCMBRNetworkChannel& channel, Json::Value& root);
  static bool JsonToMBRNetworkChannel(Json::Value& root, FCMBRNetworkChannel& channel);
  static bool MBRProgramToJson(FCMBRNetworkProgram& program, Json::Value& root);
  static bool JsonToMBRProgram(Json::Value& root, FCMBRNetworkProgram& program);
  // "MBR channel table": an array of channels in list order, left out when
  // the table is empty. Reading appends to `table`.
  static bool MBRNetworkChannelTableToJson(FCMBRNetworkChannelTable& table, Json::Value& root);
  static bool JsonToMBRNetworkChannelTable(Json::Value& root, FCMBRNetworkChannelTable& table);
  // "mbrProgramTable": an array of programmes in ascending start time, each
  // with its start time also under "first"; left out when the table is
  // empty. Reading stores each programme under its "first", replacing one
  // already there.
  static bool MBRProgramTableToJson(FCMBRNetworkProgramTable& table, Json::Value& root);
  static bool JsonToMBRProgramTable(Json::Value& root, FCMBRNetworkProgramTable& table);

  // --- virtual channels (FCMarshal_VirtualChannels.cpp) ---
  // A service id as decimal text under "TCServiceId".
  static bool VCServiceIdToJson(unsigned long long id, Json::Value& root);
  // Reads "TCServiceId" back as a base-10 number; 0 when absent.
  static bool VCJsonToServiceId(Json::Value& root, unsigned long long& id);
};

#endif
