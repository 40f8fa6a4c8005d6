// FCMarshal: the wire vocabulary of the library.
//
// One class of static functions, one `...ToJson` / `JsonTo...` pair per
// argument set. Each writes or reads named members of one root Json::Value
// and returns true. Each family's functions live in a source file of their
// own, FCMarshal_<Family>.cpp, and are grouped below in the same order.
#ifndef ZUNDE_FCMARSHAL_H
#define ZUNDE_FCMARSHAL_H

#include <json/json.h>

#include <list>
#include <map>
#include <string>
#include <vector>

#include "FCMBRNetworkChannelAPI.h"
#include "FCRemoteContentTypes.h"

// --- record headers (begin) ---
#include "CZundeResponse.h"
#include "FCElementData.h"
#include "FCSmartChannelGuide.h"
#include "FCVirtualChannelsAPI.h"
#include "FCVirtualProgramData.h"
#include "MBRNetworkChannel.h"
#include "MBRNetworkChannelTable.h"
// --- record headers (end) ---

class FCMarshal {
 public:
  // --- replies (FCMarshal_Reply.cpp) ---
  // Parses a reply text into `root`, comments collected; the reader's result.
  static bool ParseToJson(std::string& text, Json::Value& root);

  // --- remote content environment (FCMarshal_RemoteContentEnv.cpp) ---
  // "country", "language" (strings)
  static bool CountryAndLangToJson(std::string const& country, std::string const& language, Json::Value& root);
  static bool JsonToCountryAndLang(Json::Value& root, std::string& country, std::string& language);
  // "atoken" (string)
  static bool atokenToJson(std::string const& token, Json::Value& root);
  static bool JsonToatoken(Json::Value& root, std::string& token);
  // "in_source", "in_tvmode" (ints)
  static bool TVSourceAndTVModeToJson(int& source, int& tvMode, Json::Value& root);
  static bool JsonToTVSourceAndTVMode(Json::Value& root, ESource& source, int& tvMode);
  // "in_source", "in_antennaMode", "in_serviceMode" (ints)
  static bool TVSourceAndTVModeToJson(int& source, int& antennaMode, int& serviceMode, Json::Value& root);
  static bool JsonToTVSourceAndTVMode(Json::Value& root, ESource& source, int& antennaMode, int& serviceMode);
  // "activityID" (int)
  static bool activityIDToJson(eRemoteContentActivity activity, Json::Value& root);
  static bool JsonToactivityID(Json::Value& root, eRemoteContentActivity& activity);
  // "in_recommend_type" (int)
  static bool RecommendTypeOptionToJson(eRecommendTypeOption option, Json::Value& root);
  static bool JsonToRecommendTypeOption(Json::Value& root, eRecommendTypeOption& option);
  // "in_user_id" (string)
  static bool UserIDToJson(std::string const& userId, Json::Value& root);
  static bool JsonToUserID(Json::Value& root, std::string& userId);


  // --- remote content catalogue records (FCMarshal_RemoteContent.cpp) ---
  // One record, in its own JSON form: the configuration under "config", the
  // channel's and the programme's keys flat in `root`.
  static bool FCRmoteMSOConfigToJson(FCRemoteMSOConfig const& config, Json::Value& root);
  static bool JsonToFCRemoteMSOConfig(Json::Value& root, FCRemoteMSOConfig& config);
  static bool FCRemoteChannelToJson(FCRemoteChannel& channel, Json::Value& root);
  static bool JsonToFCRemoteChannel(Json::Value& root, FCRemoteChannel& channel);
  static bool FCRemoteProgramToJson(FCRemoteProgram const& program, Json::Value& root);
  static bool JsonToFCRemoteProgram(Json::Value& root, FCRemoteProgram& program);
  // Lists and maps: one array member each, left out when the container is
  // empty. Reading appends to the caller's vector, or inserts into the
  // caller's map where a key already there (or met earlier) keeps its value.
  // "channel_array": channel objects.
  static bool ChannelListToJson(std::vector<FCRemoteChannel>& channels, Json::Value& root);
  static bool JsonToChannelList(Json::Value& root, std::vector<FCRemoteChannel>& channels);
  // "array_genre": genre objects.
  static bool GenreListToJson(std::vector<FCGenreInfo>& genres, Json::Value& root);
  static bool JsonToGenreList(Json::Value& root, std::vector<FCGenreInfo>& genres);
  // "out_array_rep_genre": representative genre objects.
  static bool RepGenreListToJson(std::vector<FCRepGenreInfo>& genres, Json::Value& root);
  static bool JsonToRepGenreList(Json::Value& root, std::vector<FCRepGenreInfo>& genres);
  // "out_map_rec_group": rec group objects in key order, each with its map
  // key under "string".
  static bool RecGroupMapToJson(std::map<std::string, FCRecGroup>& groups, Json::Value& root);
  static bool JsonToRecGroupMap(Json::Value& root, std::map<std::string, FCRecGroup>& groups);
  // "out_tunable_program_source_id_map": objects holding the map key under
  // "program_source_id" and the channel key under "channel_key".
  static bool ProgramSourceMapToJson(std::map<std::string, FCRemoteChannelKey>& keys, Json::Value& root);
  static bool JsonToProgramSourceMap(Json::Value& root, std::map<std::string, FCRemoteChannelKey>& keys);
  // "out_mapProgramWithSourceID": objects holding the map key under
  // "program_source_id" and the programmes under "program_array" (left out
  // when there are none).
  static bool ProgramMapToJson(std::map<std::string, std::vector<FCRemoteProgram> >& programs, Json::Value& root);
  static bool JsonToProgramMap(Json::Value& root, std::map<std::string, std::vector<FCRemoteProgram> >& programs);

  // --- operator remote content requests (FCMarshal_RemoteContentMSO.cpp) ---
  // The requests' scalars sit flat beside "activityID", which the proxy
  // writes first. Reading a list of source ids appends to the caller's.
  // "sourceIDArray" (strings, left out when empty), "utc start time",
  // "duration" (ints), and the filter's "genre id list", "rep id", "rec id".
  static bool SourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteriaToJson(std::vector<std::string>& sourceIds,
                                                                              int utcStartTime, int duration,
                                                                              FCFilterCriteria& filter,
                                                                              Json::Value& root);
  static bool JsonToSourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteria(Json::Value& root,
                                                                              std::vector<std::string>& sourceIds,
                                                                              int& utcStartTime, int& duration,
                                                                              FCFilterCriteria& filter);
  // "utc_starttime" (unsigned), "duration" (int), "sourceIDArray"
  static bool SourceIDListAndUtcStartTimeAndDurationToJson(std::vector<std::string>& sourceIds,
                                                           unsigned long utcStartTime, int duration, Json::Value& root);
  static bool JsonToSourceIDListAndUtcStartTimeAndDuration(Json::Value& root, std::vector<std::string>& sourceIds,
                                                           unsigned long& utcStartTime, int& duration);
  // "utc_current_time" (unsigned): the activation and RF search requests.
  static bool UtcCurrentTimeToJson(unsigned long utcCurrentTime, Json::Value& root);
  static bool JsonToUtcCurrentTime(Json::Value& root, unsigned long& utcCurrentTime);
  // "program source id" (string), "utc current time" (unsigned)
  static bool ProgramSourceIDAndUtcCurrentTimeToJson(std::string programSourceId, unsigned long utcCurrentTime,
                                                     Json::Value& root);
  static bool JsonToProgramSourceIDAndUtcCurrentTime(Json::Value& root, std::string& programSourceId,
                                                     unsigned long& utcCurrentTime);
  // "program source id" (string)
  static bool ProgramSourceIDToJson(std::string programSourceId, Json::Value& root);
  static bool JsonToProgramSourceID(Json::Value& root, std::string& programSourceId);
  // "activityID" (int), "mbr ch number" (string), "utc current time"
  // (unsigned, spelt with blanks unlike the RF search's key)
  static bool MBRChannelAndUTCCurrentTimeToJson(eRemoteContentActivity activity, std::string const& channelNumber,
                                                unsigned long utcCurrentTime, Json::Value& root);
  static bool JsonToMBRChannelAndUTCCurrentTime(Json::Value& root, eRemoteContentActivity& activity,
                                                std::string& channelNumber, unsigned long& utcCurrentTime);
  // "search string" (string)
  static bool SearchStringToJson(std::string& searchString, Json::Value& root);
  static bool JsonToSearchString(Json::Value& root, std::string& searchString);

  // --- match finder (FCMarshal_MatchFinder.cpp) ---
  // The id as decimal text under "TCServiceId". Writing consumes the id: the
  // caller's variable is 0 afterwards, and a zero id writes no key at all.
  static bool TCServiceIdToJson(unsigned long long& id, Json::Value& root);
  // Reads "TCServiceId" digit by digit without checking the characters; an
  // absent or empty text reads as 0.
  static bool JsonToTCServiceId(Json::Value& root, unsigned long long& id);

  // --- smart channel guide and recommendations (FCMarshal_SmartChannelGuide.cpp) ---
  // The recommendation requests. Of the filter only "genre id list" and
  // "rec id" travel; the service sees no rep id. Reading leaves the
  // filter's rep id as it was.
  // "activityID" (int), "current_watching_program_source_id" (string),
  // "utc_currenttime" (unsigned), "number_of_recommendation" (int), "genre id
  // list", "rec id" (strings)
  static bool MarshalingForGetRecommendationOnNow(eRemoteContentActivity activity,
                                                  std::string currentWatchingProgramSourceId,
                                                  unsigned long utcCurrentTime, int numberOfRecommendation,
                                                  FCFilterCriteria& filter, Json::Value& root);
  static bool UnmarshalingForGetRecommendationOnNow(Json::Value& root, eRemoteContentActivity& activity,
                                                    std::string& currentWatchingProgramSourceId,
                                                    unsigned long& utcCurrentTime, int& numberOfRecommendation,
                                                    FCFilterCriteria& filter);
  // "activityID", "utc_currenttime", "number_of_recommendation", "genre id
  // list", "rec id"
  static bool MarshalllingForGetRecommendationUpcoming(eRemoteContentActivity activity, unsigned long utcCurrentTime,
                                                       int numberOfRecommendation, FCFilterCriteria& filter,
                                                       Json::Value& root);
  static bool UnmarshalingForGetRecommendationUpcoming(Json::Value& root, eRemoteContentActivity& activity,
                                                       unsigned long& utcCurrentTime, int& numberOfRecommendation,
                                                       FCFilterCriteria& filter);
  // "activityID", "utc_currenttime" (unsigned), "from_timeslot",
  // "to_timeslot" (ints)
  static bool MarshalingForGetRecommendationTimeline(eRemoteContentActivity activity, unsigned long utcCurrentTime,
                                                     int fromTimeslot, int toTimeslot, Json::Value& root);
  static bool UnmarshalingForGetRecommendationTimeline(Json::Value& root, eRemoteContentActivity& activity,
                                                       unsigned long& utcCurrentTime, int& fromTimeslot,
                                                       int& toTimeslot);
  // "activityID", "from_dayslot", "to_dayslot" (ints)
  static bool MarshalingForGetRecommendationFutureTimeline(eRemoteContentActivity activity, int fromDayslot,
                                                           int toDayslot, Json::Value& root);
  static bool UnmarshalingForGetRecommendationFutureTimeline(Json::Value& root, eRemoteContentActivity& activity,
                                                             int& fromDayslot, int& toDayslot);
  // The results, each one array member left out when the container is
  // empty. Reading appends to the caller's list, or inserts into the
  // caller's timeline where a slot already there (or met earlier) keeps its
  // entries and, within a slot, the first entry of a sequence wins.
  // "out_list": guide entries in list order.
  static bool FCSmartChannelGuideListToJson(std::list<FCSmartChannelGuide>& guides, Json::Value& root);
  static bool JsonToFCSmartChannelGuideList(Json::Value& root, std::list<FCSmartChannelGuide>& guides);
  // "out_timeline": per time slot, ascending, {"time_slot": slot,
  // "sequence_map": [{"sequence": n, "smart_channel_guide": entry}, ...]};
  // a slot without entries has no "sequence_map".
  static bool TimeLineToJson(std::map<int, std::map<int, FCSmartChannelGuide> >& timeline, Json::Value& root);
  static bool JsonToTimeLine(Json::Value& root, std::map<int, std::map<int, FCSmartChannelGuide> >& timeline);
  // "out_future_timeline": as the timeline, with "day_slot" for the slot.
  static bool FutureTimeLineToJson(std::map<int, std::map<int, FCSmartChannelGuide_Future> >& timeline,
                                   Json::Value& root);
  static bool JsonToFutureTimeLine(Json::Value& root,
                                   std::map<int, std::map<int, FCSmartChannelGuide_Future> >& timeline);

  // --- certification rule and VOD providers (FCMarshal_CatalogueResponses.cpp) ---
  // "out_cert_rule" and "out_vod_providers": forwarded to the records.
  static bool CertRuleToJson(CZundeResponse_CertRule& rule, Json::Value& root);
  static bool JsonToCertRule(Json::Value& root, CZundeResponse_CertRule& rule);
  static bool VODProviderToJson(CZundeResponse_VODProviders& providers, Json::Value& root);
  static bool JsonToVODProvider(Json::Value& root, CZundeResponse_VODProviders& providers);

  // --- set-top-box channels and programs (FCMarshal_MBR.cpp) ---
  // The channel's thirteen keys and the programme's five, flat in `root`.
  static bool MBRNetworkChannelToJson(FCMBRNetworkChannel& channel, Json::Value& root);
  static bool JsonToMBRNetworkChannel(Json::Value& root, FCMBRNetworkChannel& channel);
  static bool MBRProgramToJson(FCMBRNetworkProgram& program, Json::Value& root);
  static bool JsonToMBRProgram(Json::Value& root, FCMBRNetworkProgram& program);
  // "MBR channel table": an array of channels in list order, left out when
  // the table is empty. Reading appends to `table`.
  static bool MBRNetworkChannelTableToJson(FCMBRNetworkChannelTable& table, Json::Value& root);
  static bool JsonToMBRNetworkChannelTable(Json::Value& root, FCMBRNetworkChannelTable& table);
  // "mbrProgramTable": an array of programmes in ascending start time, each
  // with its start time also under "first"; left out when the table is
  // empty. Reading stores each programme under its "first", replacing one
  // already there.
  static bool MBRProgramTableToJson(FCMBRNetworkProgramTable& table, Json::Value& root);
  static bool JsonToMBRProgramTable(Json::Value& root, FCMBRNetworkProgramTable& table);

  // --- set-top-box channel manager requests (FCMarshal_MBRManager.cpp) ---
  // The members of the channel manager's requests and replies; a member
  // missing from a reply reads as 0 or the empty string. The records and
  // tables travel through the pairs above.
  // "activityID" (int)
  static bool EactivityIDToJson(FCMBRNetworkChannelAPI::EActivityID activity, Json::Value& root);
  static bool JsonToEactivityID(Json::Value& root, FCMBRNetworkChannelAPI::EActivityID& activity);
  // "source" (int)
  static bool SourceToJson(int source, Json::Value& root);
  static bool JsonToSource(Json::Value& root, int& source);
  // "headend id", "zip code", "device type", "location" (strings)
  static bool HeadEndIDToJson(std::string const& headEndId, Json::Value& root);
  static bool JsonToHeadEndID(Json::Value& root, std::string& headEndId);
  static bool ZipCodeToJson(std::string const& zipCode, Json::Value& root);
  static bool JsonToZipCode(Json::Value& root, std::string& zipCode);
  static bool DeviceTypeToJson(std::string const& deviceType, Json::Value& root);
  static bool JsonToDeviceType(Json::Value& root, std::string& deviceType);
  static bool LocationToJson(std::string const& location, Json::Value& root);
  static bool JsonToLocation(Json::Value& root, std::string& location);
  // "query type" (int)
  static bool QueryTypeToJson(FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery query, Json::Value& root);
  static bool JsonToQueryType(Json::Value& root, FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery& query);
  // "current time" (unsigned)
  static bool CurrentTimeToJson(unsigned long time, Json::Value& root);
  static bool JsonToCurrentTime(Json::Value& root, unsigned long& time);
  // "channelID" (string)
  static bool ChannelIDToJson(std::string const& channelId, Json::Value& root);
  static bool JsonToChannelID(Json::Value& root, std::string& channelId);
  // "favorite" (int)
  static bool EFavoriteToJson(FCMBRNetworkChannel::EFavorite favorite, Json::Value& root);
  static bool JsonToEFavorite(Json::Value& root, FCMBRNetworkChannel::EFavorite& favorite);
  // "major", "minor" (ints)
  static bool MajorMinorToJson(int major, int minor, Json::Value& root);
  static bool JsonToMajorMinor(Json::Value& root, int& major, int& minor);
  // "channel id", "major" (strings: here the origin major travels as text)
  static bool ChannelIdMajorToJson(std::string const& channelId, std::string const& originMajor, Json::Value& root);
  static bool JsonToChannelIdMajor(Json::Value& root, std::string& channelId, std::string& originMajor);

  // --- broadcast channels (FCMarshal_RFNetwork.cpp) ---
  // The service id travels as "TCServiceId" (VCServiceIdToJson and its
  // reader, below), the representative genres as "out_array_rep_genre"
  // (RepGenreListToJson, above).
  // "navigation mode" (int): an FCRFNetworkChannelAPI::ENavigationMode value.
  static bool NavigationModeToJson(int mode, Json::Value& root);
  static bool JsonToNavigationMode(Json::Value& root, int& mode);
  // "genre" (string)
  static bool GenreToJson(std::string const& genre, Json::Value& root);
  static bool JsonToGenre(Json::Value& root, std::string& genre);
  // "count" (int)
  static bool CountToJson(int count, Json::Value& root);
  static bool JsonToCount(Json::Value& root, int& count);
  // "start_time" and "duration" (unsigned)
  static bool StartTimeToJson(unsigned long startTime, Json::Value& root);
  static bool JsonToStartTime(Json::Value& root, unsigned long& startTime);
  static bool DurationToJson(unsigned int duration, Json::Value& root);
  static bool JsonToDuration(Json::Value& root, unsigned int& duration);
  // Each array member below is left out when its container is empty.
  // "service list": one {"TCServiceId": text} per id, in table order. Ids
  // are written by TCServiceIdToJson, so writing leaves every id of the
  // table at 0. Reading appends to `table` (FCRFNetworkChannelTable.h).
  static bool RFNetworkChannelTableToJson(class FCRFNetworkChannelTable& table, Json::Value& root);
  static bool JsonToRFNetworkChannelTable(Json::Value& root, class FCRFNetworkChannelTable& table);
  // "channel count map": {"count": n, "genre": g} per genre, ascending.
  // Reading inserts into `counts`: a genre already there, or met earlier,
  // keeps its count.
  static bool CountMapToJson(std::map<std::string, int>& counts, Json::Value& root);
  static bool JsonToCountMap(Json::Value& root, std::map<std::string, int>& counts);
  // "meta_program_map": programme objects in ascending key order, each with
  // its map key under "key" (unsigned). Reading stores each programme under
  // its key, replacing one already there.
  static bool MetaProgramMapToJson(std::map<unsigned int, FCRemoteProgram>& programs, Json::Value& root);
  static bool JsonToMetaProgramMap(Json::Value& root, std::map<unsigned int, FCRemoteProgram>& programs);

  // --- virtual channels (FCMarshal_VirtualChannels.cpp) ---
  // A service id as decimal text under "TCServiceId".
  static bool VCServiceIdToJson(unsigned long long id, Json::Value& root);
  // Reads "TCServiceId" back as a base-10 number; 0 when absent.
  static bool VCJsonToServiceId(Json::Value& root, unsigned long long& id);
  // The enumerations as signed numbers: "program_indicator", "logoSize",
  // "programLogoType"; 0 when absent.
  static bool EProgramIndicatorToJson(EProgramIndicator indicator, Json::Value& root);
  static bool JsonToEProgramIndicator(Json::Value& root, EProgramIndicator& indicator);
  static bool LogoSizeToJson(FCVirtualChannelsAPI::EChannelLogoSize size, Json::Value& root);
  static bool JsonToLogoSize(Json::Value& root, FCVirtualChannelsAPI::EChannelLogoSize& size);
  static bool ProgramLogoTypeToJson(FCVirtualChannelsAPI::EProgramLogoType type, Json::Value& root);
  static bool JsonToProgramLogoType(Json::Value& root, FCVirtualChannelsAPI::EProgramLogoType& type);
  // Strings, "" when absent: "channelLogo", "programLogo", "onTvProviderId",
  // "onTvServiceId".
  static bool ChannelLogoToJson(std::string const& logo, Json::Value& root);
  static bool JsonToChannelLogo(Json::Value& root, std::string& logo);
  static bool ProgramLogoToJson(std::string const& logo, Json::Value& root);
  static bool JsonToProgramLogo(Json::Value& root, std::string& logo);
  static bool OnTvProviderIdToJson(std::string const& providerId, Json::Value& root);
  static bool JsonToOnTvProviderId(Json::Value& root, std::string& providerId);
  static bool OnTvServiceIdToJson(std::string const& serviceId, Json::Value& root);
  static bool JsonToOnTvServiceId(Json::Value& root, std::string& serviceId);
  // "imageDownloadId": decimal text, read base 10; 0 when absent.
  static bool ImageDownloadIdToJson(long id, Json::Value& root);
  static bool JsonToImageDownloadId(Json::Value& root, long& id);
  // "KPIType" (int), "EventName", "Category", "desc" (strings).
  static bool KPIInfoToJson(FCVirtualChannelsAPI::EKPIType type, std::string& eventName, std::string& category,
                            std::string& desc, Json::Value& root);
  static bool JsonToKPIInfo(Json::Value& root, FCVirtualChannelsAPI::EKPIType& type, std::string& eventName,
                            std::string& category, std::string& desc);
  // The records in their own JSON forms: the id nested under "program_id",
  // the programme, configuration and channel info flat in `root`.
  static bool VirtualProgramIdToJson(FCVirtualProgramId const& id, Json::Value& root);
  static bool JsonToVirtualProgramId(Json::Value& root, FCVirtualProgramId& id);
  static bool VirtualProgramDataToJson(FCVirtualProgramData const& program, Json::Value& root);
  static bool JsonToVirtualProgramData(Json::Value& root, FCVirtualProgramData& program);
  static bool VirtualConfigToJson(FCVirtualConfig const& config, Json::Value& root);
  static bool JsonToVirtualConfig(Json::Value& root, FCVirtualConfig& config);
  static bool VirtualChannelInfoToJson(FCVirtualChannelInfo const& info, Json::Value& root);
  static bool JsonToVirtualChannelInfo(Json::Value& root, FCVirtualChannelInfo& info);
  // "virtual_program_map": programmes in ascending key order, each with its
  // map key under "key"; left out when the map is empty. Reading assigns each
  // element to the entry of its "key" (a repeated key keeps the later one)
  // and leaves the other entries of the caller's map as they were.
  static bool VirtualProgramMapToJson(std::map<unsigned int, FCVirtualProgramData> const& programs,
                                      Json::Value& root);
  static bool JsonToVirtualProgramMap(Json::Value& root, std::map<unsigned int, FCVirtualProgramData>& programs);
};

#endif
