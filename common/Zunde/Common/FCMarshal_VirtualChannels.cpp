#include "FCMarshal.h"

#include <cstdlib>
#include <string>

#include "FCVirtualRecordJson_internal.h"

namespace vcjson = zunde::vcjson;

namespace {

constexpr const char* kProgramMapKey = "virtual_program_map";

// The enumerations travel as signed numbers; the service defines their values.
template <typename Enum>
void WriteEnum(Json::Value& root, const char* key, Enum value) {
  root[key] = static_cast<int>(value);
}

template <typename Enum>
void ReadEnum(const Json::Value& root, const char* key, Enum& value) {
  value = static_cast<Enum>(vcjson::Int(root, key));
}

}  // namespace

bool FCMarshal::VCServiceIdToJson(unsigned long long id, Json::Value& root) {
  vcjson::WriteServiceId(root, id);
  return true;
}

bool FCMarshal::VCJsonToServiceId(Json::Value& root, unsigned long long& id) {
  id = vcjson::ReadServiceId(root);
  return true;
}

bool FCMarshal::EProgramIndicatorToJson(EProgramIndicator indicator, Json::Value& root) {
  WriteEnum(root, "program_indicator", indicator);
  return true;
}

bool FCMarshal::JsonToEProgramIndicator(Json::Value& root, EProgramIndicator& indicator) {
  ReadEnum(root, "program_indicator", indicator);
  return true;
}

bool FCMarshal::LogoSizeToJson(FCVirtualChannelsAPI::EChannelLogoSize size, Json::Value& root) {
  WriteEnum(root, "logoSize", size);
  return true;
}

bool FCMarshal::JsonToLogoSize(Json::Value& root, FCVirtualChannelsAPI::EChannelLogoSize& size) {
  ReadEnum(root, "logoSize", size);
  return true;
}

bool FCMarshal::ProgramLogoTypeToJson(FCVirtualChannelsAPI::EProgramLogoType type, Json::Value& root) {
  WriteEnum(root, "programLogoType", type);
  return true;
}

bool FCMarshal::JsonToProgramLogoType(Json::Value& root, FCVirtualChannelsAPI::EProgramLogoType& type) {
  ReadEnum(root, "programLogoType", type);
  return true;
}

bool FCMarshal::ChannelLogoToJson(std::string const& logo, Json::Value& root) {
  root["channelLogo"] = logo;
  return true;
}

bool FCMarshal::JsonToChannelLogo(Json::Value& root, std::string& logo) {
  logo = vcjson::String(root, "channelLogo");
  return true;
}

bool FCMarshal::ProgramLogoToJson(std::string const& logo, Json::Value& root) {
  root["programLogo"] = logo;
  return true;
}

bool FCMarshal::JsonToProgramLogo(Json::Value& root, std::string& logo) {
  logo = vcjson::String(root, "programLogo");
  return true;
}

bool FCMarshal::OnTvProviderIdToJson(std::string const& providerId, Json::Value& root) {
  root["onTvProviderId"] = providerId;
  return true;
}

bool FCMarshal::JsonToOnTvProviderId(Json::Value& root, std::string& providerId) {
  providerId = vcjson::String(root, "onTvProviderId");
  return true;
}

bool FCMarshal::OnTvServiceIdToJson(std::string const& serviceId, Json::Value& root) {
  root["onTvServiceId"] = serviceId;
  return true;
}

bool FCMarshal::JsonToOnTvServiceId(Json::Value& root, std::string& serviceId) {
  serviceId = vcjson::String(root, "onTvServiceId");
  return true;
}

// Download ids are text, like service ids, so that they survive any reader.
bool FCMarshal::ImageDownloadIdToJson(long id, Json::Value& root) {
  root["imageDownloadId"] = std::to_string(id);
  return true;
}

bool FCMarshal::JsonToImageDownloadId(Json::Value& root, long& id) {
  id = std::strtol(vcjson::String(root, "imageDownloadId", "0").c_str(), nullptr, 10);
  return true;
}

bool FCMarshal::KPIInfoToJson(FCVirtualChannelsAPI::EKPIType type, std::string& eventName, std::string& category,
                              std::string& desc, Json::Value& root) {
  WriteEnum(root, "KPIType", type);
  root["EventName"] = eventName;
  root["Category"] = category;
  root["desc"] = desc;
  return true;
}

bool FCMarshal::JsonToKPIInfo(Json::Value& root, FCVirtualChannelsAPI::EKPIType& type, std::string& eventName,
                              std::string& category, std::string& desc) {
  ReadEnum(root, "KPIType", type);
  eventName = vcjson::String(root, "EventName");
  category = vcjson::String(root, "Category");
  desc = vcjson::String(root, "desc");
  return true;
}

bool FCMarshal::VirtualProgramIdToJson(FCVirtualProgramId const& id, Json::Value& root) {
  return FCVirtualProgramId::ToJson(id, root);
}

bool FCMarshal::JsonToVirtualProgramId(Json::Value& root, FCVirtualProgramId& id) {
  return FCVirtualProgramId::FromJson(root, id);
}

bool FCMarshal::VirtualProgramDataToJson(FCVirtualProgramData const& program, Json::Value& root) {
  return FCVirtualProgramData::ToJson(program, root);
}

bool FCMarshal::JsonToVirtualProgramData(Json::Value& root, FCVirtualProgramData& program) {
  return FCVirtualProgramData::FromJson(root, program);
}

bool FCMarshal::VirtualConfigToJson(FCVirtualConfig const& config, Json::Value& root) {
  return FCVirtualConfig::ToJson(config, root);
}

bool FCMarshal::JsonToVirtualConfig(Json::Value& root, FCVirtualConfig& config) {
  return FCVirtualConfig::FromJson(root, config);
}

bool FCMarshal::VirtualChannelInfoToJson(FCVirtualChannelInfo const& info, Json::Value& root) {
  return FCVirtualChannelInfo::ToJson(info, root);
}

bool FCMarshal::JsonToVirtualChannelInfo(Json::Value& root, FCVirtualChannelInfo& info) {
  return FCVirtualChannelInfo::FromJson(root, info);
}

bool FCMarshal::VirtualProgramMapToJson(std::map<unsigned int, FCVirtualProgramData> const& programs,
                                        Json::Value& root) {
  for (const auto& [key, program] : programs) {
    Json::Value element;
    FCVirtualProgramData::ToJson(program, element);
    element["key"] = key;
    root[kProgramMapKey].append(element);
  }
  return true;
}

// Each element is read whole, so its "key" is also kept in the programme's
// metadata, as every member the record does not know is.
bool FCMarshal::JsonToVirtualProgramMap(Json::Value& root, std::map<unsigned int, FCVirtualProgramData>& programs) {
  const Json::Value& list = vcjson::MemberOrNull(root, kProgramMapKey);
  if (!list.isArray()) return true;
  for (Json::Value element : list) {
    FCVirtualProgramData program;
    FCVirtualProgramData::FromJson(element, program);
    programs[vcjson::UInt(element, "key")] = program;
  }
  return true;
}
