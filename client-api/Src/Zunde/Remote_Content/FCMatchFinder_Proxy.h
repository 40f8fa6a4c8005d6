// Matching the set's broadcast service ids and the operator's catalogue
// channels, through the service.
#ifndef ZUNDE_FCMATCHFINDER_PROXY_H
#define ZUNDE_FCMATCHFINDER_PROXY_H

#include <string>

#include "FIMatchFinder.h"

// Each typed method sends the activity and what it knows, and fills the other
// side of the match from any reply that parses; the result is the reply's
// "ret". Service ids travel as decimal text under "TCServiceId". The
// (std::string const&, std::string&) forms pass the texts through as they
// stand: true whenever the service answered.
class FCMatchFinder_Proxy : public FIMatchFinder {
 public:
  bool GetFCRemoteChannelByTCServiceId(eRemoteContentActivity activity, unsigned long long& serviceId,
                                       FCRemoteChannel& channel) override;
  bool GetFCRemoteChannelByTCServiceId(std::string const& request, std::string& reply) override;
  bool GetTCServiceIdByFCRemoteChannel(eRemoteContentActivity activity, FCRemoteChannel& channel,
                                       unsigned long long& serviceId) override;
  bool GetTCServiceIdByFCRemoteChannel(std::string const& request, std::string& reply) override;
  bool GetTCServiceIdByProgramSourceID(eRemoteContentActivity activity, std::string programSourceId,
                                       unsigned long long& serviceId) override;
  bool GetTCServiceIdByProgramSourceID(std::string const& request, std::string& reply) override;
};

#endif
