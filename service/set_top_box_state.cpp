#include "set_top_box_state.h"

#include "FCMarshal.h"

namespace zunde::service {
namespace {

std::string BoxKey(int activity) { return "activity/" + std::to_string(activity); }

const char kProgramPrefix[] = "programs/";

}  // namespace

SetTopBox LoadSetTopBox(const Store& store, int activity) {
  SetTopBox box;
  Json::Value doc = store.Get(BoxKey(activity));
  if (doc.isNull()) return box;
  FCMarshal::JsonToSource(doc, box.source);
  FCMarshal::JsonToZipCode(doc, box.zipCode);
  FCMarshal::JsonToHeadEndID(doc, box.headEndId);
  FCMarshal::JsonToDeviceType(doc, box.deviceType);
  FCMarshal::JsonToLocation(doc, box.location);
  FCMBRNetworkChannelTable table;
  FCMarshal::JsonToMBRNetworkChannelTable(doc, table);
  box.channels = table.GetNetworkChannelList();
  return box;
}

void SaveSetTopBox(Store& store, int activity, SetTopBox& box) {
  box.channels.sort();
  FCMBRNetworkChannelTable table;
  for (const FCMBRNetworkChannel& channel : box.channels) table.AppendNetworkChannel(channel);
  Json::Value doc(Json::objectValue);
  FCMarshal::SourceToJson(box.source, doc);
  FCMarshal::ZipCodeToJson(box.zipCode, doc);
  FCMarshal::HeadEndIDToJson(box.headEndId, doc);
  FCMarshal::DeviceTypeToJson(box.deviceType, doc);
  FCMarshal::LocationToJson(box.location, doc);
  FCMarshal::MBRNetworkChannelTableToJson(table, doc);
  store.Put(BoxKey(activity), doc);
}

void EraseSetTopBox(Store& store, int activity) { store.Erase(BoxKey(activity)); }

int ActivityOfSource(const Store& store, int source) {
  if (source == -1) return -1;
  for (int activity = 0; activity < kActivityCount; ++activity) {
    if (LoadSetTopBox(store, activity).source == source) return activity;
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
