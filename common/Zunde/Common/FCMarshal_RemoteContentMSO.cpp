// The operator proxy's request members. Each UTC key is spelt as its request
// has always spelt it; the spellings differ from request to request.
#include "FCElementData_internal.h"
#include "FCMarshal.h"

using zunde::catalogue::Member;

namespace {

const char kSourceIdArrayKey[] = "sourceIDArray";
const char kProgramMapStartKey[] = "utc start time";         // int
const char kAdditionalStartKey[] = "utc_starttime";          // unsigned
const char kUtcCurrentTimeKey[] = "utc_current_time";        // activation, RF search
const char kUtcCurrentTimeBlankKey[] = "utc current time";  // programme by source, MBR search
const char kDurationKey[] = "duration";
const char kProgramSourceIdKey[] = "program source id";
const char kMbrChannelNumberKey[] = "mbr ch number";
const char kSearchStringKey[] = "search string";

void WriteSourceIds(std::vector<std::string>& sourceIds, Json::Value& root) {
  zunde::recordjson::Strict::Write(root, kSourceIdArrayKey, sourceIds);
}

void ReadSourceIds(Json::Value& root, std::vector<std::string>& sourceIds) {
  zunde::recordjson::Strict::Read(Member(root, kSourceIdArrayKey), sourceIds);
}

void WriteUnsigned(Json::Value& root, const char* key, unsigned long value) {
  root[key] = static_cast<Json::UInt>(value);
}

unsigned long ReadUnsigned(Json::Value& root, const char* key) { return Member(root, key).asUInt(); }

}  // namespace

bool FCMarshal::SourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteriaToJson(std::vector<std::string>& sourceIds,
                                                                                 int utcStartTime, int duration,
                                                                                 FCFilterCriteria& filter,
                                                                                 Json::Value& root) {
  WriteSourceIds(sourceIds, root);
  root[kProgramMapStartKey] = utcStartTime;
  root[kDurationKey] = duration;
  return FCFilterCriteria::ToJson(filter, root);
}

bool FCMarshal::JsonToSourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteria(Json::Value& root,
                                                                                 std::vector<std::string>& sourceIds,
                                                                                 int& utcStartTime, int& duration,
                                                                                 FCFilterCriteria& filter) {
  ReadSourceIds(root, sourceIds);
  utcStartTime = Member(root, kProgramMapStartKey).asInt();
  duration = Member(root, kDurationKey).asInt();
  return FCFilterCriteria::FromJson(root, filter);
}

bool FCMarshal::SourceIDListAndUtcStartTimeAndDurationToJson(std::vector<std::string>& sourceIds,
                                                              unsigned long utcStartTime, int duration,
                                                              Json::Value& root) {
  WriteUnsigned(root, kAdditionalStartKey, utcStartTime);
  root[kDurationKey] = duration;
  WriteSourceIds(sourceIds, root);
  return true;
}

bool FCMarshal::JsonToSourceIDListAndUtcStartTimeAndDuration(Json::Value& root, std::vector<std::string>& sourceIds,
                                                              unsigned long& utcStartTime, int& duration) {
  utcStartTime = ReadUnsigned(root, kAdditionalStartKey);
  duration = Member(root, kDurationKey).asInt();
  ReadSourceIds(root, sourceIds);
  return true;
}

bool FCMarshal::UtcCurrentTimeToJson(unsigned long utcCurrentTime, Json::Value& root) {
  WriteUnsigned(root, kUtcCurrentTimeKey, utcCurrentTime);
  return true;
}

bool FCMarshal::JsonToUtcCurrentTime(Json::Value& root, unsigned long& utcCurrentTime) {
  utcCurrentTime = ReadUnsigned(root, kUtcCurrentTimeKey);
  return true;
}

bool FCMarshal::ProgramSourceIDAndUtcCurrentTimeToJson(std::string programSourceId, unsigned long utcCurrentTime,
                                                        Json::Value& root) {
  root[kProgramSourceIdKey] = programSourceId;
  WriteUnsigned(root, kUtcCurrentTimeBlankKey, utcCurrentTime);
  return true;
}

bool FCMarshal::JsonToProgramSourceIDAndUtcCurrentTime(Json::Value& root, std::string& programSourceId,
                                                        unsigned long& utcCurrentTime) {
  programSourceId = Member(root, kProgramSourceIdKey).asString();
  utcCurrentTime = ReadUnsigned(root, kUtcCurrentTimeBlankKey);
  return true;
}

bool FCMarshal::ProgramSourceIDToJson(std::string programSourceId, Json::Value& root) {
  root[kProgramSourceIdKey] = programSourceId;
  return true;
}

bool FCMarshal::JsonToProgramSourceID(Json::Value& root, std::string& programSourceId) {
  programSourceId = Member(root, kProgramSourceIdKey).asString();
  return true;
}

bool FCMarshal::MBRChannelAndUTCCurrentTimeToJson(eRemoteContentActivity activity, std::string const& channelNumber,
                                                   unsigned long utcCurrentTime, Json::Value& root) {
  activityIDToJson(activity, root);
  root[kMbrChannelNumberKey] = channelNumber;
  WriteUnsigned(root, kUtcCurrentTimeBlankKey, utcCurrentTime);
  return true;
}

bool FCMarshal::JsonToMBRChannelAndUTCCurrentTime(Json::Value& root, eRemoteContentActivity& activity,
                                                   std::string& channelNumber, unsigned long& utcCurrentTime) {
  JsonToactivityID(root, activity);
  channelNumber = Member(root, kMbrChannelNumberKey).asString();
  utcCurrentTime = ReadUnsigned(root, kUtcCurrentTimeBlankKey);
  return true;
}

bool FCMarshal::SearchStringToJson(std::string& searchString, Json::Value& root) {
  root[kSearchStringKey] = searchString;
  return true;
}

bool FCMarshal::JsonToSearchString(Json::Value& root, std::string& searchString) {
  searchString = Member(root, kSearchStringKey).asString();
  return true;
}
