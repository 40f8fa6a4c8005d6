// A catalogue file need only say what differs from the default set: a member
// left out is the default set's, and an element of the line-ups, channels,
// broadcast or virtual channels needs only the members that identify it.
// The rest is filled in here, before the file is checked against the
// default's shape, so that checking and reading never see a gap.
#include "catalogue.h"

namespace zunde::service {
namespace {

Json::Value Members(std::initializer_list<std::pair<const char*, Json::Value>> members) {
  Json::Value object(Json::objectValue);
  for (const auto& [name, value] : members) object[name] = value;
  return object;
}

// What the members an element leaves out are. The members it must give have
// no default, so the shape check reports them missing, with their place.
const Json::Value& LineupDefaults() {
  static const Json::Value defaults = [] {
    Json::Value defaults = Members({{"channels", Json::Value(Json::arrayValue)}});
    FCRemoteMSOConfig config;
    FCRemoteMSOConfig::ToJson(config, defaults["config"]);
    return defaults;
  }();
  return defaults;
}

// An operator channel without a broadcast service, not featured, of the
// first schedule's genre, and tunable.
const Json::Value& ChannelDefaults() {
  static const Json::Value defaults = [] {
    FCRemoteChannel channel;
    channel.str_minor = "0";
    channel.str_dtv = "1";
    channel.str_digital_flag = "1";
    channel.str_qam_flag = "0";
    Json::Value defaults(Json::objectValue);
    FCRemoteChannel::ToJson(channel, defaults);
    defaults["tunable"] = true;
    defaults.removeMember("str_channel_name");
    defaults.removeMember("str_major");
    return defaults;
  }();
  return defaults;
}

const Json::Value& BroadcastDefaults() {
  static const Json::Value defaults = Members({{"genre", ""}, {"program source id", ""}});
  return defaults;
}

const Json::Value& VirtualDefaults() {
  static const Json::Value defaults =
      Members({{"major", ""}, {"provider", ""}, {"service", ""}, {"genre", ""}, {"images", ""}});
  return defaults;
}

void Fill(Json::Value& element, const Json::Value& defaults) {
  if (!element.isObject()) return;
  for (const std::string& name : defaults.getMemberNames()) {
    if (!element.isMember(name)) element[name] = defaults[name];
  }
}

// A channel's own defaults follow from what it gives: it belongs to its
// line-up's activity, shows its major as its number, and its guide and
// match-finder key is its major and minor.
void FillChannel(Json::Value& channel, const Json::Value& activity) {
  if (!channel.isObject()) return;
  if (channel.isMember("str_major") && channel["str_major"].isString()) {
    const std::string major = channel["str_major"].asString();
    const Json::Value minor = channel.get("str_minor", "0");
    if (!channel.isMember("activityID")) channel["activityID"] = activity;
    if (!channel.isMember("str_channel_number")) channel["str_channel_number"] = major;
    if (!channel.isMember("str_program_source_id")) {
      channel["str_program_source_id"] = major + "-" + (minor.isString() ? minor.asString() : "0");
    }
  }
  Fill(channel, ChannelDefaults());
}

void FillArray(Json::Value& array, const Json::Value& defaults) {
  if (!array.isArray()) return;
  for (Json::Value& element : array) Fill(element, defaults);
}

}  // namespace

void FillLeftOut(Json::Value& doc, const Json::Value& defaults) {
  if (!doc.isObject()) return;  // the shape check refuses it
  Fill(doc, defaults);
  FillArray(doc["broadcast"], BroadcastDefaults());
  FillArray(doc["virtual channels"], VirtualDefaults());
  FillArray(doc["lineups"], LineupDefaults());
  if (!doc["lineups"].isArray()) return;
  for (Json::Value& lineup : doc["lineups"]) {
    if (!lineup.isObject() || !lineup.isMember("activityID") || !lineup["channels"].isArray()) continue;
    for (Json::Value& channel : lineup["channels"]) FillChannel(channel, lineup["activityID"]);
  }
}

}  // namespace zunde::service
