#include "FCVirtualChannels_Proxy.h"

#include <json/json.h>
#include <system_info.h>
#include <vconf.h>

#include "FCCallStatus_internal.h"
#include "FCLog_internal.h"
#include "FCMarshal.h"
#include "FCRemoteCall_internal.h"

namespace {

using zunde::LogPrefix;
using zunde::LogPriority;

const zunde::CallLogLines kLines = {
    {LogPriority::Info, LogPrefix::DebugLevel, 3, FC_LINE_LV("[FCVirtualChannels_Proxy::%s] called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCVirtualChannels_Proxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCVirtualChannels_Proxy::%s] fail to parse json data\n")},
};

// The lines about raw texts name another proxy's class: that is their published wording.
const zunde::LogLine kOutputNotJson = {LogPriority::Warning, LogPrefix::Module, 0,
                                       FC_LINE_MOD("[FCConnectedContent_Proxy::%s] fail to parse json output data\n")};

constexpr const char* kDisclaimerSetting = "db/menu/corvina/homedatacontrol/defaultdisclaimeragree";
// The one kind of usage event that belongs to the virtual channel feature.
constexpr int kFeatureKPIType = 0;

zunde::RemoteCall Call(const char* member) { return zunde::RemoteCall(kLines, member); }

// The on-demand slot's id is wanted only when the caller gives a place for it.
bool JsonToOptionalProgramId(Json::Value& root, FCVirtualProgramId* id) {
  return id == nullptr || FCMarshal::JsonToVirtualProgramId(root, *id);
}

bool ParseText(const std::string& text, Json::Value& root) { return Json::Reader().parse(text, root, true); }

}  // namespace

bool FCVirtualChannels_Proxy::RemoteCallWithStringArguments(const char* method, const std::string& in,
                                                            std::string& out) {
  return zunde::CallWithStringArguments(kLines, method, in, out);
}

bool FCVirtualChannels_Proxy::RemoteCallWithJsonArguments(const char* method, const Json::Value& in,
                                                          Json::Value& out) {
  return zunde::CallWithJsonArguments(kLines, method, in, out, RemoteCallWithStringArguments);
}

bool FCVirtualChannels_Proxy::ParseReturnValue(const std::string& reply) {
  return zunde::ParseReturnValue(kOutputNotJson, reply);
}

bool FCVirtualChannels_Proxy::GetProgramList(unsigned long long const& serviceId, unsigned int startTime,
                                             unsigned int duration,
                                             std::map<unsigned int, FCVirtualProgramData>& programs) {
  return Call("GetProgramList")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Writes(FCMarshal::StartTimeToJson, startTime)
      .Writes(FCMarshal::DurationToJson, duration)
      .Reads(FCMarshal::JsonToVirtualProgramMap, programs)
      .Run();
}

bool FCVirtualChannels_Proxy::GetProgramList(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("GetProgramList", in, out) && ParseReturnValue(out);
}

bool FCVirtualChannels_Proxy::GetProgram(EProgramIndicator indicator, FCVirtualProgramId const& id,
                                         FCVirtualProgramData& program) {
  return Call("GetProgramWithIndicator")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::EProgramIndicatorToJson, indicator)
      .Writes(FCMarshal::VirtualProgramIdToJson, id)
      .Reads(FCMarshal::JsonToVirtualProgramData, program)
      .Run();
}

bool FCVirtualChannels_Proxy::GetProgram(FCVirtualProgramId const& id, FCVirtualProgramData& program) {
  return Call("GetProgram")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VirtualProgramIdToJson, id)
      .Reads(FCMarshal::JsonToVirtualProgramData, program)
      .Run();
}

bool FCVirtualChannels_Proxy::GetProgram(std::string const& in, std::string& out) {
  Json::Value request;
  if (!ParseText(in, request)) {
    FC_LOG_WARN_MOD(0, "[FCConnectedContent_Proxy::%s] fail to parse json input data\n", __func__);
    return zunde::Refuse("GetProgram", "the request text is not JSON");
  }
  const bool relative = request.isObject() && request.isMember("program_indicator");
  return RemoteCallWithStringArguments(relative ? "GetProgramWithIndicator" : "GetProgram", in, out) &&
         ParseReturnValue(out);
}

bool FCVirtualChannels_Proxy::GetPresentProgram(unsigned long long const& serviceId, FCVirtualProgramData& program) {
  return Call("GetPresentProgram")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Reads(FCMarshal::JsonToVirtualProgramData, program)
      .Run();
}

bool FCVirtualChannels_Proxy::GetPresentProgram(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("GetPresentProgram", in, out) && ParseReturnValue(out);
}

bool FCVirtualChannels_Proxy::GetChannelLogo(unsigned long long const& serviceId, EChannelLogoSize size,
                                             std::string& logo) {
  return Call("GetChannelLogo")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Writes(FCMarshal::LogoSizeToJson, size)
      .Reads(FCMarshal::JsonToChannelLogo, logo)
      .Run();
}

bool FCVirtualChannels_Proxy::GetChannelLogo(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("GetChannelLogo", in, out) && ParseReturnValue(out);
}

bool FCVirtualChannels_Proxy::GetProgramThumbnail(FCVirtualProgramId const& id, std::string& logo) {
  return Call("GetProgramThumbnail")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VirtualProgramIdToJson, id)
      .Reads(FCMarshal::JsonToProgramLogo, logo)
      .Run();
}

bool FCVirtualChannels_Proxy::GetProgramThumbnail(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("GetProgramThumbnail", in, out) && ParseReturnValue(out);
}

// The result is the download id, not "ret"; it stays 0 when the call fails.
long FCVirtualChannels_Proxy::GetProgramImage(FCVirtualProgramId const& id, EProgramLogoType type,
                                              std::string& path) {
  long downloadId = 0;
  Call("GetProgramImage")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VirtualProgramIdToJson, id)
      .Writes(FCMarshal::ProgramLogoTypeToJson, type)
      .Reads(FCMarshal::JsonToImageDownloadId, downloadId)
      .Reads(FCMarshal::JsonToProgramLogo, path)
      .RunIgnoringRet();
  return downloadId;
}

long FCVirtualChannels_Proxy::GetProgramImage(std::string const& in, std::string& out) {
  if (!RemoteCallWithStringArguments("GetProgramImage", in, out)) return -1;
  Json::Value reply;
  if (!ParseText(out, reply)) {
    zunde::WriteLogLine(kOutputNotJson, FC_LOG_SITE);
    zunde::EndCall(FCCallStatus::eCallBadReply, "the reply is not JSON");
    return 0;
  }
  long downloadId = 0;
  FCMarshal::JsonToImageDownloadId(reply, downloadId);
  return downloadId;
}

bool FCVirtualChannels_Proxy::GetProgramBackground(FCVirtualProgramId const& id, std::string& logo) {
  return Call("GetProgramBackground")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VirtualProgramIdToJson, id)
      .Reads(FCMarshal::JsonToProgramLogo, logo)
      .Run();
}

bool FCVirtualChannels_Proxy::GetProgramBackground(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("GetProgramBackground", in, out) && ParseReturnValue(out);
}

bool FCVirtualChannels_Proxy::SetOnDemandProgram(unsigned long long const& serviceId,
                                                 FCVirtualProgramData const& program, FCVirtualProgramId* id) {
  return Call("SetOnDemandProgram")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Writes(FCMarshal::VirtualProgramDataToJson, program)
      .Reads(JsonToOptionalProgramId, id)
      .Run();
}

bool FCVirtualChannels_Proxy::SetOnDemandProgram(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("SetOnDemandProgram", in, out) && ParseReturnValue(out);
}

bool FCVirtualChannels_Proxy::UnsetOnDemandProgram(FCVirtualProgramId id) {
  return Call("UnsetOnDemandProgram").Through(RemoteCallWithJsonArguments).Writes(FCMarshal::VirtualProgramIdToJson, id).Run();
}

bool FCVirtualChannels_Proxy::UnsetOnDemandProgram(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("UnsetOnDemandProgram", in, out) && ParseReturnValue(out);
}

bool FCVirtualChannels_Proxy::GetOnDemandIdentifier(unsigned long long const& serviceId, FCVirtualProgramId& id) {
  return Call("GetOnDemandIdentifier")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Reads(FCMarshal::JsonToVirtualProgramId, id)
      .Run();
}

bool FCVirtualChannels_Proxy::GetOnDemandIdentifier(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("GetOnDemandIdentifier", in, out) && ParseReturnValue(out);
}

// No writers: the request is the null document, "null".
bool FCVirtualChannels_Proxy::GetVCConfig(FCVirtualConfig& config) {
  return Call("GetVCConfig").Through(RemoteCallWithJsonArguments).Reads(FCMarshal::JsonToVirtualConfig, config).Run();
}

bool FCVirtualChannels_Proxy::GetVCConfig(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("GetVCConfig", in, out) && ParseReturnValue(out);
}

bool FCVirtualChannels_Proxy::GetFeaturedVirtualChannelInfo(unsigned long long const& serviceId,
                                                            FCVirtualChannelInfo& info) {
  return Call("GetFeaturedVirtualChannelInfo")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Reads(FCMarshal::JsonToVirtualChannelInfo, info)
      .Run();
}

bool FCVirtualChannels_Proxy::GetFeaturedVirtualChannelInfo(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("GetFeaturedVirtualChannelInfo", in, out) && ParseReturnValue(out);
}

bool FCVirtualChannels_Proxy::GetServiceIdFromOnTVProviderAndService(std::string const& providerId,
                                                                     std::string const& serviceId,
                                                                     unsigned long long& out) {
  return Call("GetServiceIdFromOnTVProviderAndService")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::OnTvProviderIdToJson, providerId)
      .Writes(FCMarshal::OnTvServiceIdToJson, serviceId)
      .Reads(FCMarshal::VCJsonToServiceId, out)
      .Run();
}

bool FCVirtualChannels_Proxy::GetServiceIdFromOnTVProviderAndService(std::string const& in, std::string& out) {
  return RemoteCallWithStringArguments("GetServiceIdFromOnTVProviderAndService", in, out) && ParseReturnValue(out);
}

// Usage events leave the device only with the user's consent to the home data
// disclaimer; events of the virtual channel feature also need the feature.
bool FCVirtualChannels_Proxy::SendLogKPI(EKPIType type, std::string& eventName, std::string& category,
                                         std::string& desc) {
  FC_LOG_INFO(3, "[FCVirtualChannels_Proxy::%s] type = %d, event name = %s, category = %s, desc = %s\n", __func__,
              static_cast<int>(type), eventName.c_str(), category.c_str(), desc.c_str());
  int agreed = 0;
  if (vconf_get_int(kDisclaimerSetting, &agreed) != 0) {
    FC_LOG_WARN(0, "[FCVirtualChannels_Proxy::%s] db/menu/corvina/homedatacontrol/defaultdisclaimeragree Fail\n",
                __func__);
    return zunde::Refuse("SendLogKPI", "the setting of the user's consent to the home data disclaimer cannot be read");
  }
  if (agreed == 0) {
    FC_LOG_WARN(0, "[FCVirtualChannels_Proxy::%s] defaultdisclaimeragree is false \n", __func__);
    return zunde::Refuse("SendLogKPI", "the user has not agreed to the home data disclaimer");
  }
  bool supported = false;
  if (system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT, &supported) != SYSTEM_INFO_ERROR_NONE) {
    FC_LOG_WARN(0,
                "[FCVirtualChannels_Proxy::%s] system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT) "
                "Fail\n",
                __func__);
    return zunde::Refuse("SendLogKPI", "the platform cannot say whether it supports virtual channels");
  }
  if (!supported && type == kFeatureKPIType) {
    FC_LOG_WARN(0, "[FCVirtualChannels_Proxy::%s] Kivo is NOT Supported \n", __func__);
    return zunde::Refuse("SendLogKPI", "the platform does not support virtual channels");
  }
  return Call("SendLogKPI")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::KPIInfoToJson, type, eventName, category, desc)
      .Run();
}

bool FCVirtualChannels_Proxy::GetViewingAgreement() { return Call("GetViewingAgreement").Through(RemoteCallWithJsonArguments).Run(); }

bool FCVirtualChannels_Proxy::Reset() {
  FC_LOG_INFO_MOD(0, "[FCConnectedContent_Proxy::%s] reset start\n", __func__);
  std::string reply;
  if (!RemoteCallWithStringArguments("Reset", std::string(), reply)) return false;
  FC_LOG_INFO_MOD(0, "[FCConnectedContent_Proxy::%s] reset end\n", __func__);
  return ParseReturnValue(reply);
}

bool FCVirtualChannels_Proxy::KivoProgramInfoIsAvailable() {
  FC_LOG_INFO_MOD(0, "[FCConnectedContent_Proxy::%s] start\n", __func__);
  std::string reply;
  if (!RemoteCallWithStringArguments("KivoProgramInfoIsAvailable", std::string(), reply)) return false;
  FC_LOG_INFO_MOD(0, "[FCConnectedContent_Proxy::%s] end\n", __func__);
  return ParseReturnValue(reply);
}
