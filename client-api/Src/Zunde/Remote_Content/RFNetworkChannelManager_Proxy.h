// Broadcast (RF) channels, reached through the service.
//
// The meta programme methods go through the proxy's own two-layer call:
// RemoteCallWithJsonArguments writes the request and parses the reply,
// RemoteCallWithStringArguments carries the text and writes the lines.
#ifndef ZUNDE_RFNETWORKCHANNELMANAGER_PROXY_H
#define ZUNDE_RFNETWORKCHANNELMANAGER_PROXY_H

#include <json/json.h>

#include <map>
#include <string>
#include <vector>

#include "FCRFNetworkChannelAPI.h"

class FCRFNetworkChannelManager_Proxy : public FCRFNetworkChannelAPI {
 public:
  bool Reset() override;
  bool SetNavigationMode(ENavigationMode mode) override;
  bool GetNavigationMode(ENavigationMode& mode) override;
  bool SetGenreForNavigation(std::string genre) override;
  bool GetGenreForNavigation(std::string& genre) override;
  bool GetRFNetworkChannelMapByGenre(std::string genre, FCRFNetworkChannelTable& channels) override;
  bool GetRFNetworkChannelUpByGenre(std::string genre, unsigned long long& current,
                                    unsigned long long& next) override;
  bool GetRFNetworkChannelDownByGenre(std::string genre, unsigned long long& current,
                                      unsigned long long& next) override;
  int GetRFNetworkChannelCountByGenre(std::string genre) override;
  // True when the reply parsed; the reply's "ret" is not looked at.
  bool GetRFNetworkChannelCountByGenreList(std::vector<FCRepGenreInfo>& genres,
                                           std::map<std::string, int>& counts) override;
  bool GetPresentMetaProgram(unsigned long long const& serviceId, FCRemoteProgram& program) override;
  bool GetNextMetaProgram(FCRemoteProgram const& current, FCRemoteProgram& next) override;
  bool GetPrevMetaProgram(FCRemoteProgram const& current, FCRemoteProgram& previous) override;
  bool GetMetaProgramMap(unsigned long long const& serviceId, unsigned long startTime, int duration,
                         std::map<unsigned int, FCRemoteProgram>& programs) override;
  bool CheckMetaProgramExist() override;

 private:
  static bool RemoteCallWithJsonArguments(const char* method, Json::Value const& request, Json::Value& reply);
  static bool RemoteCallWithStringArguments(const char* method, std::string const& request, std::string& reply);
};

#endif
