// The members of the set-top-box channel manager's requests and replies.
// Replies are read leniently, as the records are: a missing member, or one of
// a type that does not convert, reads as 0 or the empty string and never
// throws, and reading adds no member to the document read.
#include "FCMarshal.h"

#include "RecordJson_internal.h"

namespace {

using Lenient = zunde::recordjson::Lenient;

template <class T>
T Read(const Json::Value& root, const char* key) {
  return zunde::recordjson::Read<Lenient, T>(root, key);
}

const char kActivityKey[] = "activityID";
const char kMajorKey[] = "major";

}  // namespace

bool FCMarshal::EactivityIDToJson(FCMBRNetworkChannelAPI::EActivityID activity, Json::Value& root) {
  root[kActivityKey] = static_cast<int>(activity);
  return true;
}

bool FCMarshal::JsonToEactivityID(Json::Value& root, FCMBRNetworkChannelAPI::EActivityID& activity) {
  activity = static_cast<FCMBRNetworkChannelAPI::EActivityID>(Read<int>(root, kActivityKey));
  return true;
}

bool FCMarshal::SourceToJson(int source, Json::Value& root) {
  root["source"] = source;
  return true;
}

bool FCMarshal::JsonToSource(Json::Value& root, int& source) {
  source = Read<int>(root, "source");
  return true;
}

bool FCMarshal::HeadEndIDToJson(std::string const& headEndId, Json::Value& root) {
  root["headend id"] = headEndId;
  return true;
}

bool FCMarshal::JsonToHeadEndID(Json::Value& root, std::string& headEndId) {
  headEndId = Read<std::string>(root, "headend id");
  return true;
}

bool FCMarshal::ZipCodeToJson(std::string const& zipCode, Json::Value& root) {
  root["zip code"] = zipCode;
  return true;
}

bool FCMarshal::JsonToZipCode(Json::Value& root, std::string& zipCode) {
  zipCode = Read<std::string>(root, "zip code");
  return true;
}

bool FCMarshal::DeviceTypeToJson(std::string const& deviceType, Json::Value& root) {
  root["device type"] = deviceType;
  return true;
}

bool FCMarshal::JsonToDeviceType(Json::Value& root, std::string& deviceType) {
  deviceType = Read<std::string>(root, "device type");
  return true;
}

bool FCMarshal::LocationToJson(std::string const& location, Json::Value& root) {
  root["location"] = location;
  return true;
}

bool FCMarshal::JsonToLocation(Json::Value& root, std::string& location) {
  location = Read<std::string>(root, "location");
  return true;
}

bool FCMarshal::QueryTypeToJson(FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery query, Json::Value& root) {
  root["query type"] = static_cast<int>(query);
  return true;
}

bool FCMarshal::JsonToQueryType(Json::Value& root, FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery& query) {
  query = static_cast<FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery>(Read<int>(root, "query type"));
  return true;
}

bool FCMarshal::CurrentTimeToJson(unsigned long time, Json::Value& root) {
  root["current time"] = static_cast<Json::UInt>(time);
  return true;
}

bool FCMarshal::JsonToCurrentTime(Json::Value& root, unsigned long& time) {
  time = Read<unsigned long>(root, "current time");
  return true;
}

bool FCMarshal::ChannelIDToJson(std::string const& channelId, Json::Value& root) {
  root["channelID"] = channelId;
  return true;
}

bool FCMarshal::JsonToChannelID(Json::Value& root, std::string& channelId) {
  channelId = Read<std::string>(root, "channelID");
  return true;
}

bool FCMarshal::EFavoriteToJson(FCMBRNetworkChannel::EFavorite favorite, Json::Value& root) {
  root["favorite"] = static_cast<int>(favorite);
  return true;
}

bool FCMarshal::JsonToEFavorite(Json::Value& root, FCMBRNetworkChannel::EFavorite& favorite) {
  favorite = static_cast<FCMBRNetworkChannel::EFavorite>(Read<int>(root, "favorite"));
  return true;
}

bool FCMarshal::MajorMinorToJson(int major, int minor, Json::Value& root) {
  root[kMajorKey] = major;
  root["minor"] = minor;
  return true;
}

bool FCMarshal::JsonToMajorMinor(Json::Value& root, int& major, int& minor) {
  major = Read<int>(root, kMajorKey);
  minor = Read<int>(root, "minor");
  return true;
}

// The same "major" key as the pair above, carrying the origin major as text.
bool FCMarshal::ChannelIdMajorToJson(std::string const& channelId, std::string const& originMajor, Json::Value& root) {
  root["channel id"] = channelId;
  root[kMajorKey] = originMajor;
  return true;
}

bool FCMarshal::JsonToChannelIdMajor(Json::Value& root, std::string& channelId, std::string& originMajor) {
  channelId = Read<std::string>(root, "channel id");
  originMajor = Read<std::string>(root, kMajorKey);
  return true;
}
