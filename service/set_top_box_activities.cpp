// The set-top-box activities: bound to TV sources, each with its settings.
#include "FCMBRNetworkChannelAPI.h"
#include "FCMarshal.h"
#include "set_top_box_requests.h"

namespace zunde::service {
namespace {

using Activity = FCMBRNetworkChannelAPI::EActivityID;
using T = JsonType;

int SourceOf(Request& request) {
  int source = -1;
  FCMarshal::JsonToSource(request.body, source);
  return source;
}

void ReplyActivity(int activity, Json::Value& reply) {
  FCMarshal::EactivityIDToJson(static_cast<Activity>(activity), reply);
  Succeed(reply);
}

void Allocate(Request& request, Json::Value& reply) {
  const int source = SourceOf(request);
  if (source == -1) throw BadRequest("source -1 is no source");
  int activity = ActivityOfSource(request.store, source);
  for (int free = 0; activity < 0 && free < kActivityCount; ++free) {
    SetTopBoxSettings settings = LoadSettings(request.store, free);
    if (settings.source != -1) continue;
    settings.source = source;
    SaveSettings(request.store, free, settings);
    Raise(request, kEventActivityChanged, free, source);
    activity = free;
  }
  if (activity < 0) throw BadRequest("every activity is taken");
  ReplyActivity(activity, reply);
}

void Delete(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  EraseSetTopBox(request.store, activity);
  Raise(request, kEventActivityChanged, activity, -1);
  ReplyActivity(activity, reply);
}

void SetSource(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  const int source = SourceOf(request);
  const int holder = ActivityOfSource(request.store, source);
  if (holder >= 0 && holder != activity) {
    throw BadRequest("source " + std::to_string(source) + " belongs to activity " + std::to_string(holder));
  }
  SetTopBoxSettings settings = LoadSettings(request.store, activity);
  settings.source = source;
  SaveSettings(request.store, activity, settings);
  Raise(request, kEventActivityChanged, activity, source);
  Succeed(reply);
}

// A source bound to no activity answers activity -1 with the reason.
void GetBySource(Request& request, Json::Value& reply) {
  const int source = SourceOf(request);
  const int activity = ActivityOfSource(request.store, source);
  FCMarshal::EactivityIDToJson(static_cast<Activity>(activity), reply);
  reply["ret"] = activity >= 0;
  if (activity < 0) reply["error"] = "no activity is bound to source " + std::to_string(source);
}

// --- settings: one string each ---

template <std::string SetTopBoxSettings::*Field, bool (*Read)(Json::Value&, std::string&), SetTopBoxSetting Which>
void SetSetting(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  SetTopBoxSettings settings = LoadSettings(request.store, activity);
  Read(request.body, settings.*Field);
  SaveSettings(request.store, activity, settings);
  Raise(request, kEventSetTopBoxSetting, activity, Which);
  Succeed(reply);
}

template <std::string SetTopBoxSettings::*Field, bool (*Write)(std::string const&, Json::Value&)>
void GetSetting(Request& request, Json::Value& reply) {
  Write(LoadSettings(request.store, ActivityOf(request)).*Field, reply);
  Succeed(reply);
}

using S = SetTopBoxSettings;

}  // namespace

const MemberTable& SetTopBoxActivityMembers() {
  static const MemberTable table = {
      {"AllocateActivityIDBySourceID", {{"source", T::Int}}, Allocate, kChanges},
      {"DeleteActivityID", {kActivityKey}, Delete, kChanges},
      {"SetActivityIDSourceID", {kActivityKey, {"source", T::Int}}, SetSource, kChanges},
      {"GetActivityIDBySourceID", {{"source", T::Int}}, GetBySource, kReads},
      {"SetZipCode", {kActivityKey, {"zip code", T::String}},
       SetSetting<&S::zipCode, FCMarshal::JsonToZipCode, kZipCode>, kChanges},
      {"GetZipCode", {kActivityKey}, GetSetting<&S::zipCode, FCMarshal::ZipCodeToJson>, kReads},
      {"SetHeadEndID", {kActivityKey, {"headend id", T::String}},
       SetSetting<&S::headEndId, FCMarshal::JsonToHeadEndID, kHeadEndId>, kChanges},
      {"GetHeadEndID", {kActivityKey}, GetSetting<&S::headEndId, FCMarshal::HeadEndIDToJson>, kReads},
      {"SetDeviceType", {kActivityKey, {"device type", T::String}},
       SetSetting<&S::deviceType, FCMarshal::JsonToDeviceType, kDeviceType>, kChanges},
      {"GetDeviceType", {kActivityKey}, GetSetting<&S::deviceType, FCMarshal::DeviceTypeToJson>, kReads},
      {"SetLocation", {kActivityKey, {"location", T::String}},
       SetSetting<&S::location, FCMarshal::JsonToLocation, kLocation>, kChanges},
      {"GetLocation", {kActivityKey}, GetSetting<&S::location, FCMarshal::LocationToJson>, kReads},
  };
  return table;
}

}  // namespace zunde::service
