#include "RFNetworkChannelManager_Proxy.h"

#include "FCElementData.h"
#include "FCCallStatus_internal.h"
#include "FCLog_internal.h"
#include "FCMarshal.h"
#include "FCRFNetworkChannelTable.h"
#include "FCRemoteCall_internal.h"

namespace {

using zunde::LogPrefix;
using zunde::LogPriority;

// The typed methods write their own entry lines, with the value they act on.
const zunde::CallLogLines kLines = {
    {LogPriority::Info, LogPrefix::Module, 3, FC_LINE_MOD("[FCRFNetworkChannelManager_Proxy::%s] called\n")},
    {LogPriority::Warning, LogPrefix::Module, 0,
     FC_LINE_MOD("[FCRFNetworkChannelManager_Proxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::Module, 0,
     FC_LINE_MOD("[FCRFNetworkChannelManager_Proxy::%s] fail to parse json data\n")},
};

// The two-layer call and CheckMetaProgramExist write the "DBG_LV" forms.
const zunde::CallLogLines kLevelLines = {
    {LogPriority::Info, LogPrefix::DebugLevel, 3, FC_LINE_LV("[FCRFNetworkChannelManager_Proxy::%s] called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCRFNetworkChannelManager_Proxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCRFNetworkChannelManager_Proxy::%s] fail to parse json data\n")},
};

zunde::RemoteCall Call(const char* member, const zunde::CallLogLines& lines = kLines,
                       zunde::LogSite site = zunde::LogSite::Here()) {
  return zunde::RemoteCall(lines, member, site);
}

// The mode travels as a plain integer.
bool JsonToNavigationMode(Json::Value& root, FCRFNetworkChannelAPI::ENavigationMode& mode) {
  int value = mode;
  FCMarshal::JsonToNavigationMode(root, value);
  mode = static_cast<FCRFNetworkChannelAPI::ENavigationMode>(value);
  return true;
}

// The request is an object even when there is no genre to send.
bool RepGenreRequestToJson(std::vector<FCRepGenreInfo>& genres, Json::Value& root) {
  root = Json::Value(Json::objectValue);
  return FCMarshal::RepGenreListToJson(genres, root);
}

}  // namespace

bool FCRFNetworkChannelManager_Proxy::Reset() {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::Reset()\n");
  return zunde::AnswerLocally(__func__, true);
}

bool FCRFNetworkChannelManager_Proxy::SetNavigationMode(ENavigationMode mode) {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::SetNavigationMode() Called, navigationMode : %d\n",
                  static_cast<int>(mode));
  return Call("SetNavigationMode").Writes(FCMarshal::NavigationModeToJson, mode).Run();
}

bool FCRFNetworkChannelManager_Proxy::GetNavigationMode(ENavigationMode& mode) {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::GetNavigationMode(), navigationMode : %d\n",
                  static_cast<int>(mode));
  return Call("GetNavigationMode").Reads(JsonToNavigationMode, mode).Run();
}

bool FCRFNetworkChannelManager_Proxy::SetGenreForNavigation(std::string genre) {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::SetGenreForNavigation(), genre : %s \n", genre.c_str());
  return Call("SetGenreForNavigation").Writes(FCMarshal::GenreToJson, genre).Run();
}

bool FCRFNetworkChannelManager_Proxy::GetGenreForNavigation(std::string& genre) {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::GetGenreForNavigation(), genre : %s\n", genre.c_str());
  return Call("GetGenreForNavigation").Reads(FCMarshal::JsonToGenre, genre).Run();
}

bool FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelMapByGenre(std::string genre,
                                                                    FCRFNetworkChannelTable& channels) {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelMapByGenre(), key(genre) : %s\n",
                  genre.c_str());
  // The reply's "genre" lands in this method's own copy, as the service's
  // echo of the request.
  return Call("GetRFNetworkChannelMapByGenre")
      .Writes(FCMarshal::GenreToJson, genre)
      .Reads(FCMarshal::JsonToGenre, genre)
      .Reads(FCMarshal::JsonToRFNetworkChannelTable, channels)
      .Run();
}

bool FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelUpByGenre(std::string genre, unsigned long long& current,
                                                                   unsigned long long& next) {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelUpByGenre(), key(genre) : %s\n",
                  genre.c_str());
  return Call("GetRFNetworkChannelUpByGenre")
      .Writes(FCMarshal::GenreToJson, genre)
      .Writes(FCMarshal::VCServiceIdToJson, current)
      .Reads(FCMarshal::VCJsonToServiceId, next)
      .Run();
}

bool FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelDownByGenre(std::string genre, unsigned long long& current,
                                                                     unsigned long long& next) {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelDownByGenre(), key(genre) : %s\n",
                  genre.c_str());
  return Call("GetRFNetworkChannelDownByGenre")
      .Writes(FCMarshal::GenreToJson, genre)
      .Writes(FCMarshal::VCServiceIdToJson, current)
      .Reads(FCMarshal::VCJsonToServiceId, next)
      .Run();
}

int FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelCountByGenre(std::string genre) {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelCountByGenre(), genre : %s\n",
                  genre.c_str());
  int count = 0;
  Call("GetRFNetworkChannelCountByGenre")
      .Writes(FCMarshal::GenreToJson, genre)
      .Reads(FCMarshal::JsonToCount, count)
      .RunIgnoringRet();
  return count;
}

bool FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelCountByGenreList(std::vector<FCRepGenreInfo>& genres,
                                                                          std::map<std::string, int>& counts) {
  FC_LOG_INFO_MOD(3, "FCRFNetworkChannelManager_Proxy::GetRFNetworkChannelCountByGenreList(), genrelist.size : %d\n",
                  static_cast<int>(genres.size()));
  return Call("GetRFNetworkChannelCountByGenreList")
      .Writes(RepGenreRequestToJson, genres)
      .Reads(FCMarshal::JsonToCountMap, counts)
      .RunIgnoringRet();
}

bool FCRFNetworkChannelManager_Proxy::GetPresentMetaProgram(unsigned long long const& serviceId,
                                                            FCRemoteProgram& program) {
  return Call("GetPresentMetaProgram")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Reads(FCMarshal::JsonToFCRemoteProgram, program)
      .Run();
}

bool FCRFNetworkChannelManager_Proxy::GetNextMetaProgram(FCRemoteProgram const& current, FCRemoteProgram& next) {
  return Call("GetNextMetaProgram")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::FCRemoteProgramToJson, current)
      .Reads(FCMarshal::JsonToFCRemoteProgram, next)
      .Run();
}

bool FCRFNetworkChannelManager_Proxy::GetPrevMetaProgram(FCRemoteProgram const& current, FCRemoteProgram& previous) {
  return Call("GetPrevMetaProgram")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::FCRemoteProgramToJson, current)
      .Reads(FCMarshal::JsonToFCRemoteProgram, previous)
      .Run();
}

bool FCRFNetworkChannelManager_Proxy::GetMetaProgramMap(unsigned long long const& serviceId, unsigned long startTime,
                                                        int duration,
                                                        std::map<unsigned int, FCRemoteProgram>& programs) {
  return Call("GetMetaProgramMap")
      .Through(RemoteCallWithJsonArguments)
      .Writes(FCMarshal::StartTimeToJson, startTime)
      .Writes(FCMarshal::DurationToJson, duration)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Reads(FCMarshal::JsonToMetaProgramMap, programs)
      .Run();
}

bool FCRFNetworkChannelManager_Proxy::CheckMetaProgramExist() { return Call("CheckMetaProgramExist", kLevelLines).Run(); }

bool FCRFNetworkChannelManager_Proxy::RemoteCallWithJsonArguments(const char* method, Json::Value const& request,
                                                                  Json::Value& reply) {
  return zunde::CallWithJsonArguments(kLevelLines, method, request, reply, RemoteCallWithStringArguments);
}

bool FCRFNetworkChannelManager_Proxy::RemoteCallWithStringArguments(const char* method, std::string const& request,
                                                                    std::string& reply) {
  return zunde::CallWithStringArguments(kLevelLines, method, request, reply);
}
