// The operator's (MSO) remote content catalogue, reached through the service.
#ifndef ZUNDE_FCREMOTECONTENTONTV_MSO_PROXY_H
#define ZUNDE_FCREMOTECONTENTONTV_MSO_PROXY_H

#include <list>
#include <map>
#include <string>
#include <vector>

#include "FCRemoteContent_MSOAPI.h"

// Each typed method sends its arguments as one JSON request to the service
// member of the same name and returns the reply's "ret"; its outputs are
// filled from any reply that parses. Two members are named otherwise:
// ActivateTimeline calls "ActivateSmartPersonal", and the upcoming
// recommendations go to "GetRecommendationUpcomming" as the method is spelt.
// The (std::string const&, std::string&) forms hand the request text over as
// it stands and return the raw reply: true whenever the service answered.
class FCRemoteContentOnTV_MSO_Proxy : public FCRemoteContent_MSOAPI {
 public:
  bool GetRemoteContentConfig(Act activity, FCRemoteMSOConfig& config) override;
  bool GetRemoteContentConfig(std::string const& request, std::string& reply) override;
  bool SetRemoteContentConfig(Act activity, FCRemoteMSOConfig const& config) override;
  bool SetRemoteContentConfig(std::string const& request, std::string& reply) override;
  bool GetCertRule(Act activity, CZundeResponse_CertRule& rule) override;
  bool GetCertRule(std::string const& request, std::string& reply) override;
  bool GetFullChannelList(Act activity, std::vector<FCRemoteChannel>& channels) override;
  bool GetFullChannelList(std::string const& request, std::string& reply) override;
  bool GetTunableChannelList(Act activity, std::vector<FCRemoteChannel>& channels) override;
  bool GetTunableChannelList(std::string const& request, std::string& reply) override;
  bool GetTunableProgramSourceIdMap(Act activity, std::map<std::string, FCRemoteChannelKey>& keys) override;
  bool GetProgramMap(Act activity, std::vector<std::string>& channelIds, int startTime, int duration,
                     FCFilterCriteria& criteria, std::map<std::string, std::vector<FCRemoteProgram> >& programs) override;
  bool GetProgramMap(std::string const& request, std::string& reply) override;
  bool ActivateProgramGuide(Act activity) override;
  bool ActivateProgramGuide(std::string const& request, std::string& reply) override;
  bool DeactivateProgramGuide(Act activity) override;
  bool DeactivateProgramGuide(std::string const& request, std::string& reply) override;
  bool LoadAdditionalProgramMapFromServer(Act activity, std::vector<std::string>& channelIds, unsigned long startTime,
                                          int duration) override;
  bool LoadAdditionalProgramMapFromServer(std::string const& request, std::string& reply) override;
  bool GetGenreList(Act activity, std::vector<FCGenreInfo>& genres) override;
  bool GetGenreList(std::string const& request, std::string& reply) override;
  bool GetRepGenreList(Act activity, std::vector<FCRepGenreInfo>& genres) override;
  bool GetRepGenreList(std::string const& request, std::string& reply) override;
  bool GetVODProviders(Act activity, CZundeResponse_VODProviders& providers) override;
  bool GetVODProviders(std::string const& request, std::string& reply) override;
  bool GetRecGroupMap(Act activity, std::map<std::string, FCRecGroup>& groups) override;
  bool GetRecGroupMap(std::string const& request, std::string& reply) override;
  bool ActivateTimeline(Act activity, unsigned long time) override;
  bool ActivateSmartPersonal(Act activity, unsigned long time) override;
  bool ActivateSmartPersonal(std::string const& request, std::string& reply) override;
  bool GetRecommendationOnNow(Act activity, std::string groupId, unsigned long time, int count,
                              FCFilterCriteria& criteria, std::list<FCSmartChannelGuide>& guide) override;
  bool GetRecommendationOnNow(std::string const& request, std::string& reply) override;
  bool GetRecommendationUpcomming(Act activity, unsigned long time, int count, FCFilterCriteria& criteria,
                                  std::list<FCSmartChannelGuide>& guide) override;
  bool GetRecommendationUpcomming(std::string const& request, std::string& reply) override;
  bool GetRecommendationTimeline(Act activity, unsigned long time, int rows, int columns,
                                 std::map<int, std::map<int, FCSmartChannelGuide> >& timeline) override;
  bool GetRecommendationFutureTimeline(
      Act activity, int rows, int columns,
      std::map<int, std::map<int, FCSmartChannelGuide_Future> >& timeline) override;
  bool GetFCRemoteProgramByProgramSourceID(Act activity, std::string programSourceId, unsigned long time,
                                           FCRemoteProgram& program) override;
  bool GetFCRemoteProgramByProgramSourceID(std::string const& request, std::string& reply) override;
  bool GetFCRemoteChannelByProgramSourceID(Act activity, std::string programSourceId,
                                           FCRemoteChannel& channel) override;
  bool GetFCRemoteChannelByProgramSourceID(std::string const& request, std::string& reply) override;
  bool GetSearchKeyStringInRFMode(Act activity, unsigned long long& serviceId, unsigned long time,
                                  std::string& key) override;
  bool GetSearchKeyStringInMBRMode(Act activity, std::string const& channelId, unsigned long time,
                                   std::string& key) override;
  bool GetFeaturedChannels(Act activity, std::vector<FCRemoteChannel>& channels) override;
};

#endif
