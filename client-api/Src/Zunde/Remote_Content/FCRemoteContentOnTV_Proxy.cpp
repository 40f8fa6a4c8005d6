#include "FCRemoteContentOnTV_Proxy.h"

#include "FCLog_internal.h"
#include "FCMarshal.h"
#include "FCRemoteCall_internal.h"

namespace {

using zunde::LogPrefix;
using zunde::LogPriority;

const zunde::CallLogLines kLines = {
    {LogPriority::Warning, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCRemoteContentOnTV_Proxy::%s] called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCRemoteContentOnTV_Proxy::%s] fail to communicate using d-bus\n")},
    // The parse failure line names the operator proxy: that is its published wording.
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCRemoteContentOnTV_MSO_Proxy::%s] fail to parse json data\n")},
};

zunde::RemoteCall Call(const char* member, zunde::LogSite site = zunde::LogSite::Here()) {
  return zunde::RemoteCall(kLines, member, site);
}

// The time-out test flag travels under the key the replies use for their result.
bool FlagAsRetToJson(bool on, Json::Value& root) {
  root["ret"] = on;
  return true;
}

}  // namespace

bool FCRemoteContentOnTV_Proxy::Reset() { return Call("FCRemoteContent_Reset").Entry().Run(); }

bool FCRemoteContentOnTV_Proxy::ToggleZundeTimeoutTest(bool on) {
  return Call("ToggleZundeTimeoutTest").Entry().Writes(FlagAsRetToJson, on).Run();
}

bool FCRemoteContentOnTV_Proxy::SetRemoteContentEnv(std::string const& country, std::string const& language) {
  FC_LOG_WARN(0, "[FCRemoteContentOnTV_Proxy::%s] called in_country = %s, in_language=%s\n", __func__,
              country.c_str(), language.c_str());
  return Call("SetRemoteContentEnv").Writes(FCMarshal::CountryAndLangToJson, country, language).Run();
}

bool FCRemoteContentOnTV_Proxy::SetRemoteContentEnvForEmp(std::string const& request, std::string& reply) {
  return Call("SetRemoteContentEnv").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_Proxy::GetRemoteContentEnv(std::string& country, std::string& language) {
  return Call("GetRemoteContentEnv").Entry().Reads(FCMarshal::JsonToCountryAndLang, country, language).Run();
}

bool FCRemoteContentOnTV_Proxy::GetRemoteContentEnv(std::string& reply) {
  return Call("GetRemoteContentEnv").Entry().PassThrough(std::string(), reply);
}

bool FCRemoteContentOnTV_Proxy::GetRemoteContentActivityByTVSourceAndTVMode(int source, int antennaMode,
                                                                            int serviceMode,
                                                                            eRemoteContentActivity& activity) {
  return Call("GetRemoteContentActivityByTVSourceAndTSTVMode")
      .Entry()
      .Writes([](int& s, int& a, int& m, Json::Value& root) { FCMarshal::TVSourceAndTVModeToJson(s, a, m, root); },
              source, antennaMode, serviceMode)
      .Reads(FCMarshal::JsonToactivityID, activity)
      .Run();
}

bool FCRemoteContentOnTV_Proxy::GetRemoteContentActivityByTVSourceAndTVMode(std::string const& request,
                                                                            std::string& reply) {
  return Call("GetRemoteContentActivityByTVSourceAndTSTVMode").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_Proxy::SetRecommendTypeOption(eRecommendTypeOption option) {
  return Call("SetRecommendTypeOption").Entry().Writes(FCMarshal::RecommendTypeOptionToJson, option).Run();
}

bool FCRemoteContentOnTV_Proxy::SetRecommendTypeOption(std::string const& request, std::string& reply) {
  return Call("SetRecommendTypeOption").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_Proxy::GetRecommendTypeOption(eRecommendTypeOption& option) {
  return Call("GetRecommendTypeOption").Entry().Reads(FCMarshal::JsonToRecommendTypeOption, option).Run();
}

bool FCRemoteContentOnTV_Proxy::SetPersonalUserID(std::string const& userId) {
  return Call("SetPersonalUserID").Entry().Writes(FCMarshal::UserIDToJson, userId).Run();
}

bool FCRemoteContentOnTV_Proxy::GetPersonalUserID(std::string& userId) {
  return Call("GetPersonalUserID").Entry().Reads(FCMarshal::JsonToUserID, userId).Run();
}

bool FCRemoteContentOnTV_Proxy::SetAToken(std::string const& token) {
  return Call("SetAToken").Entry().Writes(FCMarshal::atokenToJson, token).Run();
}
