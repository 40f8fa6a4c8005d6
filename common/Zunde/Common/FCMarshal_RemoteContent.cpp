// The catalogue records on the wire: single records in their own JSON form,
// and the lists and maps of the operator's catalogue replies.
#include "FCElementData_internal.h"
#include "FCMarshal.h"

#include <cstring>

using zunde::catalogue::ReadArrayMember;
using zunde::catalogue::ReadKeyedMap;
using zunde::catalogue::WriteArrayMember;
using zunde::catalogue::WriteKeyedMap;

namespace {

const char kChannelArrayKey[] = "channel_array";
const char kGenreArrayKey[] = "array_genre";
const char kRepGenreArrayKey[] = "out_array_rep_genre";
const char kRecGroupMapKey[] = "out_map_rec_group";
const char kRecGroupMapKeyKey[] = "string";
const char kProgramSourceMapKey[] = "out_tunable_program_source_id_map";
const char kProgramMapKey[] = "out_mapProgramWithSourceID";
const char kProgramSourceIdKey[] = "program_source_id";
const char kProgramArrayKey[] = "program_array";

// A vector of records as an array of their JSON objects.
template <class Record>
void WriteList(std::vector<Record>& records, const char* key, Json::Value& root) {
  WriteArrayMember(root, key, records, [](Record& record, Json::Value& element) { Record::ToJson(record, element); });
}

template <class Record>
void ReadList(Json::Value& root, const char* key, std::vector<Record>& records) {
  // Each record is read in place, into room made once: no copy of a record
  // that may carry a dozen strings. A record whose reading throws does not
  // stay behind.
  const Json::Value* array = root.isObject() ? root.find(key, key + std::strlen(key)) : nullptr;
  if (array != nullptr && array->isArray()) records.reserve(records.size() + array->size());
  ReadArrayMember(root, key, [&records](Json::Value& element) {
    records.emplace_back();
    try {
      Record::FromJson(element, records.back());
    } catch (...) {
      records.pop_back();
      throw;
    }
  });
}

}  // namespace

bool FCMarshal::FCRmoteMSOConfigToJson(FCRemoteMSOConfig const& config, Json::Value& root) {
  return FCRemoteMSOConfig::ToJson(config, root);
}

bool FCMarshal::JsonToFCRemoteMSOConfig(Json::Value& root, FCRemoteMSOConfig& config) {
  return FCRemoteMSOConfig::FromJson(root, config);
}

bool FCMarshal::FCRemoteChannelToJson(FCRemoteChannel& channel, Json::Value& root) {
  return FCRemoteChannel::ToJson(channel, root);
}

bool FCMarshal::JsonToFCRemoteChannel(Json::Value& root, FCRemoteChannel& channel) {
  return FCRemoteChannel::FromJson(root, channel);
}

bool FCMarshal::FCRemoteProgramToJson(FCRemoteProgram const& program, Json::Value& root) {
  return FCRemoteProgram::ToJson(program, root);
}

bool FCMarshal::JsonToFCRemoteProgram(Json::Value& root, FCRemoteProgram& program) {
  return FCRemoteProgram::FromJson(root, program);
}

bool FCMarshal::ChannelListToJson(std::vector<FCRemoteChannel>& channels, Json::Value& root) {
  WriteList(channels, kChannelArrayKey, root);
  return true;
}

bool FCMarshal::JsonToChannelList(Json::Value& root, std::vector<FCRemoteChannel>& channels) {
  ReadList(root, kChannelArrayKey, channels);
  return true;
}

bool FCMarshal::GenreListToJson(std::vector<FCGenreInfo>& genres, Json::Value& root) {
  WriteList(genres, kGenreArrayKey, root);
  return true;
}

bool FCMarshal::JsonToGenreList(Json::Value& root, std::vector<FCGenreInfo>& genres) {
  ReadList(root, kGenreArrayKey, genres);
  return true;
}

bool FCMarshal::RepGenreListToJson(std::vector<FCRepGenreInfo>& genres, Json::Value& root) {
  WriteList(genres, kRepGenreArrayKey, root);
  return true;
}

bool FCMarshal::JsonToRepGenreList(Json::Value& root, std::vector<FCRepGenreInfo>& genres) {
  ReadList(root, kRepGenreArrayKey, genres);
  return true;
}

bool FCMarshal::RecGroupMapToJson(std::map<std::string, FCRecGroup>& groups, Json::Value& root) {
  WriteKeyedMap(groups, kRecGroupMapKey, kRecGroupMapKeyKey, root, &FCRecGroup::ToJson);
  return true;
}

bool FCMarshal::JsonToRecGroupMap(Json::Value& root, std::map<std::string, FCRecGroup>& groups) {
  ReadKeyedMap(root, kRecGroupMapKey, kRecGroupMapKeyKey, groups, &FCRecGroup::FromJson);
  return true;
}

bool FCMarshal::ProgramSourceMapToJson(std::map<std::string, FCRemoteChannelKey>& keys, Json::Value& root) {
  WriteKeyedMap(keys, kProgramSourceMapKey, kProgramSourceIdKey, root, &FCRemoteChannelKey::ToJson);
  return true;
}

bool FCMarshal::JsonToProgramSourceMap(Json::Value& root, std::map<std::string, FCRemoteChannelKey>& keys) {
  ReadKeyedMap(root, kProgramSourceMapKey, kProgramSourceIdKey, keys, &FCRemoteChannelKey::FromJson);
  return true;
}

bool FCMarshal::ProgramMapToJson(std::map<std::string, std::vector<FCRemoteProgram> >& programs, Json::Value& root) {
  WriteKeyedMap(
      programs, kProgramMapKey, kProgramSourceIdKey, root,
      [](std::vector<FCRemoteProgram>& list, Json::Value& element) { WriteList(list, kProgramArrayKey, element); });
  return true;
}

bool FCMarshal::JsonToProgramMap(Json::Value& root, std::map<std::string, std::vector<FCRemoteProgram> >& programs) {
  ReadKeyedMap(
      root, kProgramMapKey, kProgramSourceIdKey, programs,
      [](Json::Value& element, std::vector<FCRemoteProgram>& list) { ReadList(element, kProgramArrayKey, list); });
  return true;
}
