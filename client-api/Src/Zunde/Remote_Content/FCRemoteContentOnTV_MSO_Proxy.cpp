#include "FCRemoteContentOnTV_MSO_Proxy.h"

#include "FCLog_internal.h"
#include "FCMarshal.h"
#include "FCRemoteCall_internal.h"

namespace {

using zunde::LogPrefix;
using zunde::LogPriority;
using zunde::LogSite;

const zunde::CallLogLines kLines = {
    {LogPriority::Warning, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCRemoteContentOnTV_MSO_Proxy::%s] called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCRemoteContentOnTV_MSO_Proxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCRemoteContentOnTV_MSO_Proxy::%s] fail to parse json data\n")},
};

zunde::RemoteCall Call(const char* member, LogSite site = LogSite::Here()) {
  return zunde::RemoteCall(kLines, member, site);
}

// Most methods send the activity alone and read at most one output.
bool ForActivity(const char* member, eRemoteContentActivity activity, LogSite site = LogSite::Here()) {
  return Call(member, site).Entry().Writes(FCMarshal::activityIDToJson, activity).Run();
}

template <typename Read, typename Out>
bool ForActivity(const char* member, eRemoteContentActivity activity, Read&& read, Out& out,
                 LogSite site = LogSite::Here()) {
  return Call(member, site).Entry().Writes(FCMarshal::activityIDToJson, activity).Reads(read, out).Run();
}

bool ActivateSmartPersonalAt(eRemoteContentActivity activity, unsigned long time, LogSite site = LogSite::Here()) {
  return Call("ActivateSmartPersonal", site)
      .Entry()
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::UtcCurrentTimeToJson, time)
      .Run();
}

}  // namespace

bool FCRemoteContentOnTV_MSO_Proxy::GetRemoteContentConfig(Act activity, FCRemoteMSOConfig& config) {
  return ForActivity("GetRemoteContentConfig", activity, FCMarshal::JsonToFCRemoteMSOConfig, config);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRemoteContentConfig(std::string const& request, std::string& reply) {
  return Call("GetRemoteContentConfig").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::SetRemoteContentConfig(Act activity, FCRemoteMSOConfig const& config) {
  return Call("SetRemoteContentConfig")
      .Entry()
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::FCRmoteMSOConfigToJson, config)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::SetRemoteContentConfig(std::string const& request, std::string& reply) {
  return Call("SetRemoteContentConfig").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetCertRule(Act activity, CZundeResponse_CertRule& rule) {
  return ForActivity("GetCertRule", activity, FCMarshal::JsonToCertRule, rule);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetCertRule(std::string const& request, std::string& reply) {
  return Call("GetCertRule").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetFullChannelList(Act activity, std::vector<FCRemoteChannel>& channels) {
  return ForActivity("GetFullChannelList", activity, FCMarshal::JsonToChannelList, channels);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetFullChannelList(std::string const& request, std::string& reply) {
  return Call("GetFullChannelList").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetTunableChannelList(Act activity, std::vector<FCRemoteChannel>& channels) {
  return ForActivity("GetTunableChannelList", activity, FCMarshal::JsonToChannelList, channels);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetTunableChannelList(std::string const& request, std::string& reply) {
  return Call("GetTunableChannelList").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetTunableProgramSourceIdMap(Act activity,
                                                                 std::map<std::string, FCRemoteChannelKey>& keys) {
  return ForActivity("GetTunableProgramSourceIdMap", activity, FCMarshal::JsonToProgramSourceMap, keys);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetProgramMap(Act activity, std::vector<std::string>& channelIds, int startTime,
                                                  int duration, FCFilterCriteria& criteria,
                                                  std::map<std::string, std::vector<FCRemoteProgram> >& programs) {
  return Call("GetProgramMap")
      .Entry()
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::SourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteriaToJson, channelIds, startTime,
              duration, criteria)
      .Reads(FCMarshal::JsonToProgramMap, programs)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::GetProgramMap(std::string const& request, std::string& reply) {
  return Call("GetProgramMap").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::ActivateProgramGuide(Act activity) {
  return ForActivity("ActivateProgramGuide", activity);
}

bool FCRemoteContentOnTV_MSO_Proxy::ActivateProgramGuide(std::string const& request, std::string& reply) {
  return Call("ActivateProgramGuide").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::DeactivateProgramGuide(Act activity) {
  return ForActivity("DeactivateProgramGuide", activity);
}

bool FCRemoteContentOnTV_MSO_Proxy::DeactivateProgramGuide(std::string const& request, std::string& reply) {
  return Call("DeactivateProgramGuide").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::LoadAdditionalProgramMapFromServer(Act activity,
                                                                       std::vector<std::string>& channelIds,
                                                                       unsigned long startTime, int duration) {
  return Call("LoadAdditionalProgramMapFromServer")
      .Entry()
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::SourceIDListAndUtcStartTimeAndDurationToJson, channelIds, startTime, duration)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::LoadAdditionalProgramMapFromServer(std::string const& request,
                                                                       std::string& reply) {
  return Call("LoadAdditionalProgramMapFromServer").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetGenreList(Act activity, std::vector<FCGenreInfo>& genres) {
  return ForActivity("GetGenreList", activity, FCMarshal::JsonToGenreList, genres);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetGenreList(std::string const& request, std::string& reply) {
  return Call("GetGenreList").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRepGenreList(Act activity, std::vector<FCRepGenreInfo>& genres) {
  return ForActivity("GetRepGenreList", activity, FCMarshal::JsonToRepGenreList, genres);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRepGenreList(std::string const& request, std::string& reply) {
  return Call("GetRepGenreList").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetVODProviders(Act activity, CZundeResponse_VODProviders& providers) {
  return ForActivity("GetVODProviders", activity, FCMarshal::JsonToVODProvider, providers);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetVODProviders(std::string const& request, std::string& reply) {
  return Call("GetVODProviders").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRecGroupMap(Act activity, std::map<std::string, FCRecGroup>& groups) {
  return ForActivity("GetRecGroupMap", activity, FCMarshal::JsonToRecGroupMap, groups);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRecGroupMap(std::string const& request, std::string& reply) {
  return Call("GetRecGroupMap").Entry().PassThrough(request, reply);
}

// The service has no member of its own for timelines: a timeline is
// activated as the smart personal guide is, under the method's own lines.
bool FCRemoteContentOnTV_MSO_Proxy::ActivateTimeline(Act activity, unsigned long time) {
  return ActivateSmartPersonalAt(activity, time);
}

bool FCRemoteContentOnTV_MSO_Proxy::ActivateSmartPersonal(Act activity, unsigned long time) {
  return ActivateSmartPersonalAt(activity, time);
}

bool FCRemoteContentOnTV_MSO_Proxy::ActivateSmartPersonal(std::string const& request, std::string& reply) {
  return Call("ActivateSmartPersonal").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRecommendationOnNow(Act activity, std::string groupId, unsigned long time,
                                                           int count, FCFilterCriteria& criteria,
                                                           std::list<FCSmartChannelGuide>& guide) {
  return Call("GetRecommendationOnNow")
      .Entry()
      .Writes(FCMarshal::MarshalingForGetRecommendationOnNow, activity, groupId, time, count, criteria)
      .Reads(FCMarshal::JsonToFCSmartChannelGuideList, guide)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRecommendationOnNow(std::string const& request, std::string& reply) {
  return Call("GetRecommendationOnNow").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRecommendationUpcomming(Act activity, unsigned long time, int count,
                                                               FCFilterCriteria& criteria,
                                                               std::list<FCSmartChannelGuide>& guide) {
  return Call("GetRecommendationUpcomming")
      .Entry()
      .Writes(FCMarshal::MarshalllingForGetRecommendationUpcoming, activity, time, count, criteria)
      .Reads(FCMarshal::JsonToFCSmartChannelGuideList, guide)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRecommendationUpcomming(std::string const& request, std::string& reply) {
  return Call("GetRecommendationUpcomming").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRecommendationTimeline(
    Act activity, unsigned long time, int rows, int columns,
    std::map<int, std::map<int, FCSmartChannelGuide> >& timeline) {
  return Call("GetRecommendationTimeline")
      .Entry()
      .Writes(FCMarshal::MarshalingForGetRecommendationTimeline, activity, time, rows, columns)
      .Reads(FCMarshal::JsonToTimeLine, timeline)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::GetRecommendationFutureTimeline(
    Act activity, int rows, int columns, std::map<int, std::map<int, FCSmartChannelGuide_Future> >& timeline) {
  return Call("GetRecommendationFutureTimeline")
      .Entry()
      .Writes(FCMarshal::MarshalingForGetRecommendationFutureTimeline, activity, rows, columns)
      .Reads(FCMarshal::JsonToFutureTimeLine, timeline)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::GetFCRemoteProgramByProgramSourceID(Act activity, std::string programSourceId,
                                                                        unsigned long time,
                                                                        FCRemoteProgram& program) {
  return Call("GetFCRemoteProgramByProgramSourceID")
      .Entry()
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::ProgramSourceIDAndUtcCurrentTimeToJson, programSourceId, time)
      .Reads(FCMarshal::JsonToFCRemoteProgram, program)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::GetFCRemoteProgramByProgramSourceID(std::string const& request,
                                                                        std::string& reply) {
  return Call("GetFCRemoteProgramByProgramSourceID").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetFCRemoteChannelByProgramSourceID(Act activity, std::string programSourceId,
                                                                        FCRemoteChannel& channel) {
  return Call("GetFCRemoteChannelByProgramSourceID")
      .Entry()
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::ProgramSourceIDToJson, programSourceId)
      .Reads(FCMarshal::JsonToFCRemoteChannel, channel)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::GetFCRemoteChannelByProgramSourceID(std::string const& request,
                                                                        std::string& reply) {
  return Call("GetFCRemoteChannelByProgramSourceID").Entry().PassThrough(request, reply);
}

bool FCRemoteContentOnTV_MSO_Proxy::GetSearchKeyStringInRFMode(Act activity, unsigned long long& serviceId,
                                                               unsigned long time, std::string& key) {
  return Call("GetSearchKeyStringInRFMode")
      .Entry()
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Writes(FCMarshal::UtcCurrentTimeToJson, time)
      .Reads(FCMarshal::JsonToSearchString, key)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::GetSearchKeyStringInMBRMode(Act activity, std::string const& channelId,
                                                                unsigned long time, std::string& key) {
  return Call("GetSearchKeyStringInMBRMode")
      .Entry()
      .Writes(FCMarshal::MBRChannelAndUTCCurrentTimeToJson, activity, channelId, time)
      .Reads(FCMarshal::JsonToSearchString, key)
      .Run();
}

bool FCRemoteContentOnTV_MSO_Proxy::GetFeaturedChannels(Act activity, std::vector<FCRemoteChannel>& channels) {
  return ForActivity("GetFeaturedChannels", activity, FCMarshal::JsonToChannelList, channels);
}
