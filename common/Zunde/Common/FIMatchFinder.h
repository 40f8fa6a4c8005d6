// Matching broadcast service ids and catalogue channels.
//
// Obtained from FCAPI::GetMatchFinder(). Every operation is one blocking call
// to the service; the (std::string const&, std::string&) overloads pass JSON
// text through both ways.
#ifndef ZUNDE_FIMATCHFINDER_H
#define ZUNDE_FIMATCHFINDER_H

#include <string>

#include "FCRemoteContentTypes.h"

class FCRemoteChannel;

class FIMatchFinder {
 public:
  virtual ~FIMatchFinder() {}

  virtual bool GetFCRemoteChannelByTCServiceId(eRemoteContentActivity activity, unsigned long long& serviceId,
                                               FCRemoteChannel& channel) = 0;
  virtual bool GetFCRemoteChannelByTCServiceId(std::string const& request, std::string& reply) = 0;
  virtual bool GetTCServiceIdByFCRemoteChannel(eRemoteContentActivity activity, FCRemoteChannel& channel,
                                               unsigned long long& serviceId) = 0;
  virtual bool GetTCServiceIdByFCRemoteChannel(std::string const& request, std::string& reply) = 0;
  virtual bool GetTCServiceIdByProgramSourceID(eRemoteContentActivity activity, std::string programSourceId,
                                               unsigned long long& serviceId) = 0;
  virtual bool GetTCServiceIdByProgramSourceID(std::string const& request, std::string& reply) = 0;
};

#endif
