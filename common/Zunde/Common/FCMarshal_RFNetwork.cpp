// The broadcast channel requests and replies: navigation, channel counts
// per genre, and the meta programme guide.
#include "FCElementData_internal.h"
#include "FCMarshal.h"
#include "FCRFNetworkChannelTable.h"

using zunde::catalogue::Member;
using zunde::catalogue::ReadArrayMember;
using zunde::catalogue::ReadKeyedMap;
using zunde::catalogue::WriteArrayMember;
using zunde::catalogue::WriteKeyedMap;

namespace {

const char kNavigationModeKey[] = "navigation mode";
const char kGenreKey[] = "genre";
const char kCountKey[] = "count";
const char kStartTimeKey[] = "start_time";
const char kDurationKey[] = "duration";
const char kServiceListKey[] = "service list";
const char kCountMapKey[] = "channel count map";
const char kMetaProgramMapKey[] = "meta_program_map";
const char kMetaProgramKeyKey[] = "key";

}  // namespace

bool FCMarshal::NavigationModeToJson(int mode, Json::Value& root) {
  root[kNavigationModeKey] = mode;
  return true;
}

bool FCMarshal::JsonToNavigationMode(Json::Value& root, int& mode) {
  mode = Member(root, kNavigationModeKey).asInt();
  return true;
}

bool FCMarshal::GenreToJson(std::string const& genre, Json::Value& root) {
  root[kGenreKey] = genre;
  return true;
}

bool FCMarshal::JsonToGenre(Json::Value& root, std::string& genre) {
  genre = Member(root, kGenreKey).asString();
  return true;
}

bool FCMarshal::CountToJson(int count, Json::Value& root) {
  root[kCountKey] = count;
  return true;
}

bool FCMarshal::JsonToCount(Json::Value& root, int& count) {
  count = Member(root, kCountKey).asInt();
  return true;
}

bool FCMarshal::StartTimeToJson(unsigned long startTime, Json::Value& root) {
  root[kStartTimeKey] = static_cast<Json::UInt>(startTime);
  return true;
}

bool FCMarshal::JsonToStartTime(Json::Value& root, unsigned long& startTime) {
  startTime = Member(root, kStartTimeKey).asUInt();
  return true;
}

bool FCMarshal::DurationToJson(unsigned int duration, Json::Value& root) {
  root[kDurationKey] = static_cast<Json::UInt>(duration);
  return true;
}

bool FCMarshal::JsonToDuration(Json::Value& root, unsigned int& duration) {
  duration = Member(root, kDurationKey).asUInt();
  return true;
}

bool FCMarshal::RFNetworkChannelTableToJson(FCRFNetworkChannelTable& table, Json::Value& root) {
  WriteArrayMember(root, kServiceListKey, table.m_rfNetworkChannelDB,
                   [](unsigned long long& id, Json::Value& element) { TCServiceIdToJson(id, element); });
  return true;
}

bool FCMarshal::JsonToRFNetworkChannelTable(Json::Value& root, FCRFNetworkChannelTable& table) {
  ReadArrayMember(root, kServiceListKey, [&table](Json::Value& element) {
    unsigned long long id = 0;
    JsonToTCServiceId(element, id);
    table.AppendRFNetworkChannel(id);
  });
  return true;
}

bool FCMarshal::CountMapToJson(std::map<std::string, int>& counts, Json::Value& root) {
  WriteKeyedMap(counts, kCountMapKey, kGenreKey, root, CountToJson);
  return true;
}

bool FCMarshal::JsonToCountMap(Json::Value& root, std::map<std::string, int>& counts) {
  ReadKeyedMap(root, kCountMapKey, kGenreKey, counts, JsonToCount);
  return true;
}

bool FCMarshal::MetaProgramMapToJson(std::map<unsigned int, FCRemoteProgram>& programs, Json::Value& root) {
  WriteArrayMember(root, kMetaProgramMapKey, programs,
                   [](std::pair<const unsigned int, FCRemoteProgram>& entry, Json::Value& element) {
                     FCRemoteProgram::ToJson(entry.second, element);
                     element[kMetaProgramKeyKey] = static_cast<Json::UInt>(entry.first);
                   });
  return true;
}

bool FCMarshal::JsonToMetaProgramMap(Json::Value& root, std::map<unsigned int, FCRemoteProgram>& programs) {
  ReadArrayMember(root, kMetaProgramMapKey, [&programs](Json::Value& element) {
    FCRemoteProgram program;
    FCRemoteProgram::FromJson(element, program);
    programs[Member(element, kMetaProgramKeyKey).asUInt()] = program;
  });
  return true;
}
