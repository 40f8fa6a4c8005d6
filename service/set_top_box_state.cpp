#include "set_top_box_state.h"

#include "FCMarshal.h"

namespace zunde::service {
namespace {

std::string SettingsKey(int activity) { return "activity/" + std::to_string(activity); }
std::string ChannelsKey(int activity) { return "channels/" + std::to_string(activity); }

const char kProgramPrefix[] = "programs/";

}  // namespace

SetTopBoxSettings LoadSettings(const Store& store, int activity) {
  SetTopBoxSettings settings;
  Json::Value doc = store.Get(SettingsKey(activity));
  if (doc.isNull()) return settings;
  FCMarshal::JsonToSource(doc, settings.source);
  FCMarshal::JsonToZipCode(doc, settings.zipCode);
  FCMarshal::JsonToHeadEndID(doc, settings.headEndId);
  FCMarshal::JsonToDeviceType(doc, settings.deviceType);
  FCMarshal::JsonToLocation(doc, settings.location);
  return settings;
}

void SaveSettings(Store& store, int activity, const SetTopBoxSettings& settings) {
  Json::Value doc(Json::objectValue);
  FCMarshal::SourceToJson(settings.source, doc);
  FCMarshal::ZipCodeToJson(settings.zipCode, doc);
  FCMarshal::HeadEndIDToJson(settings.headEndId, doc);
  FCMarshal::DeviceTypeToJson(settings.deviceType, doc);
  FCMarshal::LocationToJson(settings.location, doc);
  store.Put(SettingsKey(activity), doc);
}

ChannelList LoadChannels(const Store& store, int activity) {
  Json::Value doc = store.Get(ChannelsKey(activity));
  if (doc.isNull()) return {};
  FCMBRNetworkChannelTable table;
  FCMarshal::JsonToMBRNetworkChannelTable(doc, table);
  return table.GetNetworkChannelList();
}

void SaveChannels(Store& store, int activity, ChannelList& channels) {
  channels.sort();
  FCMBRNetworkChannelTable table;
  for (const FCMBRNetworkChannel& channel : channels) table.AppendNetworkChannel(channel);
  Json::Value doc(Json::objectValue);
  FCMarshal::MBRNetworkChannelTableToJson(table, doc);
  store.Put(ChannelsKey(activity), doc);
}

void EraseSetTopBox(Store& store, int activity) {
  store.Erase(SettingsKey(activity));
  store.Erase(ChannelsKey(activity));
}

int ActivityOfSource(const Store& store, int source) {
  if (source == -1) return -1;
  for (int activity = 0; activity < kActivityCount; ++activity) {
    if (LoadSettings(store, activity).source == source) return activity;
  }
  return -1;
}

FCMBRNetworkProgramTable LoadPrograms(const Store& store, const std::string& channelId) {
  FCMBRNetworkProgramTable programs;
  Json::Value doc = store.Get(kProgramPrefix + channelId);
  if (!doc.isNull()) FCMarshal::JsonToMBRProgramTable(doc, programs);
  return programs;
}

void SavePrograms(Store& store, const std::string& channelId, FCMBRNetworkProgramTable& programs, int keep) {
  Json::Value doc(Json::objectValue);
  FCMarshal::MBRProgramTableToJson(programs, doc);
  store.Put(kProgramPrefix + channelId, doc);
  store.Trim(kProgramPrefix, keep);
}

void ClearPrograms(Store& store) { store.EraseAll(kProgramPrefix); }

}  // namespace zunde::service
