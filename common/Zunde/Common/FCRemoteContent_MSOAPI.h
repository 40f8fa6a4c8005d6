// The operator's (MSO) remote content catalogue: configuration, channel
// lists, programme maps, genres, VOD providers, certification rules,
// recommendations, timelines and the smart channel guide.
//
// Obtained from FCAPI::GetRemoteContentMSOAPI(). Every operation is one
// blocking call to the service about one remote content activity. The
// overloads taking (std::string const&, std::string&) pass a request JSON
// text through as it stands and hand back the service's raw reply text.
#ifndef ZUNDE_FCREMOTECONTENT_MSOAPI_H
#define ZUNDE_FCREMOTECONTENT_MSOAPI_H

#include <list>
#include <map>
#include <string>
#include <vector>

#include "FCRemoteContentTypes.h"

class FCRemoteMSOConfig;
class CZundeResponse_CertRule;
class CZundeResponse_VODProviders;
class FCRemoteChannel;
class FCRemoteChannelKey;
class FCRemoteProgram;
class FCFilterCriteria;
class FCGenreInfo;
class FCRepGenreInfo;
class FCRecGroup;
class FCSmartChannelGuide;
class FCSmartChannelGuide_Future;

class FCRemoteContent_MSOAPI {
 public:
  typedef eRemoteContentActivity Act;

  virtual ~FCRemoteContent_MSOAPI() {}

  virtual bool GetRemoteContentConfig(Act activity, FCRemoteMSOConfig& config) = 0;
  virtual bool GetRemoteContentConfig(std::string const& request, std::string& reply) = 0;
  virtual bool SetRemoteContentConfig(Act activity, FCRemoteMSOConfig const& config) = 0;
  virtual bool SetRemoteContentConfig(std::string const& request, std::string& reply) = 0;
  virtual bool GetCertRule(Act activity, CZundeResponse_CertRule& rule) = 0;
  virtual bool GetCertRule(std::string const& request, std::string& reply) = 0;
  virtual bool GetFullChannelList(Act activity, std::vector<FCRemoteChannel>& channels) = 0;
  virtual bool GetFullChannelList(std::string const& request, std::string& reply) = 0;
  virtual bool GetTunableChannelList(Act activity, std::vector<FCRemoteChannel>& channels) = 0;
  virtual bool GetTunableChannelList(std::string const& request, std::string& reply) = 0;
  virtual bool GetTunableProgramSourceIdMap(Act activity, std::map<std::string, FCRemoteChannelKey>& keys) = 0;
  virtual bool GetProgramMap(Act activity, std::vector<std::string>& channelIds, int startTime, int duration,
                             FCFilterCriteria& criteria,
                             std::map<std::string, std::vector<FCRemoteProgram> >& programs) = 0;
  virtual bool GetProgramMap(std::string const& request, std::string& reply) = 0;
  virtual bool ActivateProgramGuide(Act activity) = 0;
  virtual bool ActivateProgramGuide(std::string const& request, std::string& reply) = 0;
  virtual bool DeactivateProgramGuide(Act activity) = 0;
  virtual bool DeactivateProgramGuide(std::string const& request, std::string& reply) = 0;
  virtual bool LoadAdditionalProgramMapFromServer(Act activity, std::vector<std::string>& channelIds,
                                                  unsigned long startTime, int duration) = 0;
  virtual bool LoadAdditionalProgramMapFromServer(std::string const& request, std::string& reply) = 0;
  virtual bool GetGenreList(Act activity, std::vector<FCGenreInfo>& genres) = 0;
  virtual bool GetGenreList(std::string const& request, std::string& reply) = 0;
  virtual bool GetRepGenreList(Act activity, std::vector<FCRepGenreInfo>& genres) = 0;
  virtual bool GetRepGenreList(std::string const& request, std::string& reply) = 0;
  virtual bool GetVODProviders(Act activity, CZundeResponse_VODProviders& providers) = 0;
  virtual bool GetVODProviders(std::string const& request, std::string& reply) = 0;
  virtual bool GetRecGroupMap(Act activity, std::map<std::string, FCRecGroup>& groups) = 0;
  virtual bool GetRecGroupMap(std::string const& request, std::string& reply) = 0;
  virtual bool ActivateTimeline(Act activity, unsigned long time) = 0;
  virtual bool ActivateSmartPersonal(Act activity, unsigned long time) = 0;
  virtual bool ActivateSmartPersonal(std::string const& request, std::string& reply) = 0;
  virtual bool GetRecommendationOnNow(Act activity, std::string groupId, unsigned long time, int count,
                                      FCFilterCriteria& criteria, std::list<FCSmartChannelGuide>& guide) = 0;
  virtual bool GetRecommendationOnNow(std::string const& request, std::string& reply) = 0;
  virtual bool GetRecommendationUpcomming(Act activity, unsigned long time, int count, FCFilterCriteria& criteria,
                                          std::list<FCSmartChannelGuide>& guide) = 0;
  virtual bool GetRecommendationUpcomming(std::string const& request, std::string& reply) = 0;
  virtual bool GetRecommendationTimeline(Act activity, unsigned long time, int rows, int columns,
                                         std::map<int, std::map<int, FCSmartChannelGuide> >& timeline) = 0;
  virtual bool GetRecommendationFutureTimeline(
      Act activity, int rows, int columns, std::map<int, std::map<int, FCSmartChannelGuide_Future> >& timeline) = 0;
  virtual bool GetFCRemoteProgramByProgramSourceID(Act activity, std::string programSourceId, unsigned long time,
                                                   FCRemoteProgram& program) = 0;
  virtual bool GetFCRemoteProgramByProgramSourceID(std::string const& request, std::string& reply) = 0;
  virtual bool GetFCRemoteChannelByProgramSourceID(Act activity, std::string programSourceId,
                                                   FCRemoteChannel& channel) = 0;
  virtual bool GetFCRemoteChannelByProgramSourceID(std::string const& request, std::string& reply) = 0;
  virtual bool GetSearchKeyStringInRFMode(Act activity, unsigned long long& serviceId, unsigned long time,
                                          std::string& key) = 0;
  virtual bool GetSearchKeyStringInMBRMode(Act activity, std::string const& channelId, unsigned long time,
                                           std::string& key) = 0;
  virtual bool GetFeaturedChannels(Act activity, std::vector<FCRemoteChannel>& channels) = 0;
};

#endif
