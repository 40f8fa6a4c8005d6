#include "MBRNetworkChannelManager_Proxy.h"

#include "FCCallStatus_internal.h"
#include "FCLog_internal.h"
#include "FCMarshal.h"
#include "FCRemoteCall_internal.h"
#include "FCTimeWapper.h"

namespace {

using zunde::LogLine;
using zunde::LogPrefix;
using zunde::LogPriority;
using Activity = FCMBRNetworkChannelAPI::EActivityID;

// Every method names its own entry line, in the "[16][3]" form on the main
// log; Reset's is the family's plain one.
#define ENTRY_LINE(text) (LogLine{LogPriority::Info, LogPrefix::Module, 3, FC_LINE_MOD(text)})

const zunde::CallLogLines kLines = {
    ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::Reset()\n"),
    {LogPriority::Warning, LogPrefix::Module, 0,
     FC_LINE_MOD("[FCMBRNetworkChannelManager_Proxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::Module, 0,
     FC_LINE_MOD("[FCMBRNetworkChannelManager_Proxy::%s] fail to parse json data\n")},
};

// GetFeaturedMBRChannels writes its lines in the "DBG_LV" form.
const zunde::CallLogLines kFeaturedLines = {
    {LogPriority::Info, LogPrefix::DebugLevel, 3, FC_LINE_LV("[GetFeaturedMBRChannels] activityID : %d\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCMBRNetworkChannelManager_Proxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCMBRNetworkChannelManager_Proxy::%s] fail to parse json data\n")},
};

zunde::RemoteCall Call(const char* member, zunde::LogSite site = zunde::LogSite::Here()) {
  return zunde::RemoteCall(kLines, member, site);
}

// Activities 0 to 4; a negative one reads as a large unsigned number.
bool InRange(Activity activity) { return static_cast<unsigned int>(activity) <= 4U; }
const char kActivityRange[] = "the activity is not 0 to 4";

// The remember flag travels under the key the replies use for their result.
bool RememberAsRetToJson(bool remember, Json::Value& root) {
  root["ret"] = remember;
  return true;
}

}  // namespace

bool FCMBRNetworkChannelManager_Proxy::Reset() {
  zunde::WriteLogLine(kLines.called, FC_LOG_SITE);
  return zunde::AnswerLocally(__func__, true);
}

bool FCMBRNetworkChannelManager_Proxy::AllocateActivityIDBySourceID(int source, EActivityID& activity) {
  if (source == -1) {
    FC_LOG_RAW_MOD(
        LOG_ID_MAIN, DLOG_WARN, 2,
        "FCMBRNetworkChannelManager_Proxy::AllocateActivityIDBySourceID() return false. source is invalid!\n");
    return zunde::Refuse("AllocateActivityIDBySourceID", "the source is -1");
  }
  return Call("AllocateActivityIDBySourceID")
      .Writes(FCMarshal::SourceToJson, source)
      .Reads(FCMarshal::JsonToEactivityID, activity)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::DeleteActivityID(EActivityID activity) {
  EActivityID echoed = activity;  // the service answers with the activity; nobody needs it
  return Call("DeleteActivityID")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Reads(FCMarshal::JsonToEactivityID, echoed)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetActivityIDSourceID(EActivityID activity, ESource source) {
  return Call("SetActivityIDSourceID")
      .Require(InRange(activity), kActivityRange)
      .Entry(ENTRY_LINE("SetActivityIDSourceID(), activityId(%d), sourceId(%d)"
                        "(If failed, same source could exists on other activityId)\n"),
             activity, source)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::SourceToJson, source)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetActivityIDBySourceID(int source, EActivityID& activity) {
  return Call("GetActivityIDBySourceID")
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::%s, sourceId(%d)\n"), __func__, source)
      .Writes(FCMarshal::SourceToJson, source)
      .Reads(FCMarshal::JsonToEactivityID, activity)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetZipCode(EActivityID activity, std::string& zipCode) {
  return Call("SetZipCode")
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::SetZipCode(), activityId(%d)\n"), activity)
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::ZipCodeToJson, zipCode)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetZipCode(EActivityID activity, std::string& zipCode) {
  return Call("GetZipCode")
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::GetZipCode(), activityId(%d)\n"), activity)
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Reads(FCMarshal::JsonToZipCode, zipCode)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetAdditionalInfo(EActivityID, std::string&) { return zunde::AnswerLocally(__func__, false); }

bool FCMBRNetworkChannelManager_Proxy::GetAdditionalInfo(EActivityID, std::string&) { return zunde::AnswerLocally(__func__, false); }

bool FCMBRNetworkChannelManager_Proxy::SetDeviceType(EActivityID activity, std::string& deviceType) {
  return Call("SetDeviceType")
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::SetDeviceType(), activityId(%d), deviceType[%s]\n"),
             activity, deviceType.c_str())
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::DeviceTypeToJson, deviceType)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetDeviceType(EActivityID activity, std::string& deviceType) {
  return Call("GetDeviceType")
      .Entry(ENTRY_LINE("GetDeviceType(), activityId(%d)\n"), activity)
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Reads(FCMarshal::JsonToDeviceType, deviceType)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetHeadEndID(EActivityID activity, std::string& headEndId) {
  return Call("SetHeadEndID")
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::SetHeadEndID(), activityId(%d)\n"), activity)
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::HeadEndIDToJson, headEndId)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetHeadEndID(EActivityID activity, std::string& headEndId) {
  return Call("GetHeadEndID")
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::GetHeadEndID(), activityId(%d)\n"), activity)
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Reads(FCMarshal::JsonToHeadEndID, headEndId)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetLocation(EActivityID activity, std::string& location) {
  return Call("SetLocation")
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::SetLocation(), activityId(%d), location[%s]\n"), activity,
             location.c_str())
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::LocationToJson, location)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetLocation(EActivityID activity, std::string& location) {
  return Call("GetLocation")
      .Require(InRange(activity), kActivityRange)
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::GetLocation(), activityId(%d)\n"), activity)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Reads(FCMarshal::JsonToLocation, location)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::ConstructMBRNetworkChannelMap(EActivityID activity) {
  return Call("ConstructMBRNetworkChannelMap").Writes(FCMarshal::EactivityIDToJson, activity).Run();
}

bool FCMBRNetworkChannelManager_Proxy::ConstructMBRNetworkProgramMap(EActivityID activity) {
  return Call("ConstructMBRNetworkProgramMap")
      .Entry(ENTRY_LINE("ConstructMBRNetworkProgramMap(), activityID : %d\n"), activity)
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetCurrentMBRNetworkProgram(EActivityID activity, FCMBRNetworkChannel& channel,
                                                                   FCMBRNetworkProgram& program) {
  return Call("GetCurrentMBRNetworkProgram")
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MBRNetworkChannelToJson, channel)
      .Reads(FCMarshal::JsonToMBRProgram, program)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetCurrentMBRNetworkProgrambyCurrentTime(EActivityID activity,
                                                                                unsigned long time,
                                                                                FCMBRNetworkChannel& channel,
                                                                                FCMBRNetworkProgram& program) {
  // The member repeats "byCurrentTime": that is the name the service listens to.
  return Call("GetCurrentMBRNetworkProgrambyCurrentTimebyCurrentTime")
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::CurrentTimeToJson, time)
      .Writes(FCMarshal::MBRNetworkChannelToJson, channel)
      .Reads(FCMarshal::JsonToMBRProgram, program)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetMBRNetworkChannelMap(EActivityID activity, FCMBRNetworkChannelTable& table) {
  return Call("SetMBRNetworkChannelMap")
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::SetMBRNetworkChannelMap(), activityID : %d\n"), activity)
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MBRNetworkChannelTableToJson, table)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetMBRNetworkChannelMap(EActivityID activity, FCMBRNetworkChannelTable& table,
                                                               FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery query) {
  return Call("GetMBRNetworkChannelMap")
      .Require(InRange(activity), kActivityRange)
      .Entry(
          ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::GetMBRNetworkChannelMap(), activityID : %d, queryType : %d\n"),
          activity, query)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::QueryTypeToJson, query)
      .Reads(FCMarshal::JsonToMBRNetworkChannelTable, table)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetMBRNetworkChannelUp(EActivityID activity, FCMBRNetworkChannel& current,
                                                              FCMBRNetworkChannel& next) {
  return Call("GetMBRNetworkChannelUp")
      .Require(InRange(activity), kActivityRange)
      .Entry(ENTRY_LINE("GetMBRNetworkChannelUp()\n"))
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MBRNetworkChannelToJson, current)
      .Reads(FCMarshal::JsonToMBRNetworkChannel, next)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetMBRNetworkChannelDown(EActivityID activity, FCMBRNetworkChannel& current,
                                                                FCMBRNetworkChannel& next) {
  return Call("GetMBRNetworkChannelDown")
      .Require(InRange(activity), kActivityRange)
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::GetMBRNetworkChannelDown()\n"))
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MBRNetworkChannelToJson, current)
      .Reads(FCMarshal::JsonToMBRNetworkChannel, next)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetMBRNetworkChannelByMajorMinor(EActivityID activity, int major, int minor,
                                                                        FCMBRNetworkChannel& channel) {
  return Call("GetMBRNetworkChannelByMajorMinor")
      .Require(InRange(activity), kActivityRange)
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::GetMBRNetworkChannelByMajorMinor()\n"))
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MajorMinorToJson, major, minor)
      .Reads(FCMarshal::JsonToMBRNetworkChannel, channel)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SaveMBRNetworkChannelMap(EActivityID activity) {
  return Call("SaveMBRNetworkChannelMap")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::AddNewMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel) {
  return Call("AddNewMBRNetworkChannel")
      .Require(InRange(activity), kActivityRange)
      .Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::AddNewMBRNetworkChannel()\n"))
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MBRNetworkChannelToJson, channel)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetRememberMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel,
                                                                    bool remember) {
  return Call("SetRememberMBRNetworkChannel")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MBRNetworkChannelToJson, channel)
      .Writes(RememberAsRetToJson, remember)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::ExistMBRNetworkChannelByMajorMinor(EActivityID activity, int major, int minor) {
  return Call("ExistMBRNetworkChannelByMajorMinor")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MajorMinorToJson, major, minor)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::AddFavoriteMBRNetworkChannel(EActivityID activity,
                                                                    FCMBRNetworkChannel::EFavorite favorite,
                                                                    FCMBRNetworkChannel& channel) {
  return Call("AddFavoriteMBRNetworkChannel")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::EFavoriteToJson, favorite)
      .Writes(FCMarshal::MBRNetworkChannelToJson, channel)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::DeleteFavoriteMBRNetworkChannel(EActivityID activity,
                                                                       FCMBRNetworkChannel::EFavorite favorite,
                                                                       FCMBRNetworkChannel& channel) {
  return Call("DeleteFavoriteMBRNetworkChannel")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::EFavoriteToJson, favorite)
      .Writes(FCMarshal::MBRNetworkChannelToJson, channel)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetMBRNetworkProgramMap(FCMBRNetworkProgramTable& table, std::string channelId) {
  return Call("SetMBRNetworkProgramMap")
      .Entry(LogLine{LogPriority::Debug, LogPrefix::Module, 4,
                     FC_LINE_MOD("FCMBRNetworkChannelManager_Proxy::SetMBRNetworkProgramMap(), channelID : %s\n")},
             channelId.c_str())
      .Writes(FCMarshal::MBRProgramTableToJson, table)
      .Writes(FCMarshal::ChannelIDToJson, channelId)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetMBRNetworkProgrmaMap(FCMBRNetworkProgramTable& table, std::string channelId) {
  return Call("GetMBRNetworkProgrmaMap")
      .Entry(ENTRY_LINE("GetMBRNetworkProgrmaMap(), channelID : %s\n"), channelId.c_str())
      .Writes(FCMarshal::ChannelIDToJson, channelId)
      .Reads(FCMarshal::JsonToMBRProgramTable, table)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::RemoveMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel) {
  return Call("RemoveMBRNetworkChannel")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MBRNetworkChannelToJson, channel)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetMaxNumberOfMajorMinor(EActivityID activity, int& major, int& minor) {
  return Call("GetMaxNumberOfMajorMinor")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Reads(FCMarshal::JsonToMajorMinor, major, minor)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::ExistChannelInActivityID(EActivityID activity,
                                                                FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery query) {
  return Call("ExistChannelInActivityID")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::QueryTypeToJson, query)
      .Run();
}

void FCMBRNetworkChannelManager_Proxy::ClearMBRProgramMap() {
  Call("ClearMBRProgramMap").Entry(ENTRY_LINE("FCMBRNetworkChannelManager_Proxy::ClearMBRProgramMap()\n")).Send();
}

bool FCMBRNetworkChannelManager_Proxy::GetFeaturedMBRChannels(EActivityID activity, FCMBRNetworkChannelTable& table) {
  return zunde::RemoteCall(kFeaturedLines, "GetFeaturedMBRChannels")
      .Require(InRange(activity), kActivityRange)
      .Entry(kFeaturedLines.called, activity)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Reads(FCMarshal::JsonToMBRNetworkChannelTable, table)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetEditedMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel) {
  return Call("SetEditedMBRNetworkChannel")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::MBRNetworkChannelToJson, channel)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::NotifyMBRChannelEditCompleted(EActivityID activity) {
  return Call("NotifyMBRChannelEditCompleted")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::GetMBRNetworkChannelByChannelIDOriginMajor(EActivityID activity,
                                                                                  std::string const& channelId,
                                                                                  std::string const& originMajor,
                                                                                  FCMBRNetworkChannel& channel) {
  return Call("GetMBRNetworkChannelByChannelIDOriginMajor")
      .Require(InRange(activity), kActivityRange)
      .Writes(FCMarshal::EactivityIDToJson, activity)
      .Writes(FCMarshal::ChannelIdMajorToJson, channelId, originMajor)
      .Reads(FCMarshal::JsonToMBRNetworkChannel, channel)
      .Run();
}

bool FCMBRNetworkChannelManager_Proxy::SetZipCode(EActivityID, int) { return zunde::AnswerLocally(__func__, false); }

bool FCMBRNetworkChannelManager_Proxy::GetZipCode(EActivityID, int&) { return zunde::AnswerLocally(__func__, false); }

unsigned long FCMBRNetworkChannelManager_Proxy::t_EpochTime() { return FCTimeWrapper::EpochTime(); }
