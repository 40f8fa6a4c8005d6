// The remote content environment, reached through the service.
#ifndef ZUNDE_FCREMOTECONTENTONTV_PROXY_H
#define ZUNDE_FCREMOTECONTENTONTV_PROXY_H

#include <string>

#include "FCRemoteContentAPI.h"

class FCRemoteContentOnTV_Proxy : public FCRemoteContentAPI {
 public:
  bool Reset() override;
  bool ToggleZundeTimeoutTest(bool on) override;
  bool SetRemoteContentEnv(std::string const& country, std::string const& language) override;
  bool SetRemoteContentEnvForEmp(std::string const& request, std::string& reply) override;
  bool GetRemoteContentEnv(std::string& country, std::string& language) override;
  bool GetRemoteContentEnv(std::string& reply) override;
  bool GetRemoteContentActivityByTVSourceAndTVMode(int source, int antennaMode, int serviceMode,
                                                   eRemoteContentActivity& activity) override;
  bool GetRemoteContentActivityByTVSourceAndTVMode(std::string const& request, std::string& reply) override;
  bool SetRecommendTypeOption(eRecommendTypeOption option) override;
  bool SetRecommendTypeOption(std::string const& request, std::string& reply) override;
  bool GetRecommendTypeOption(eRecommendTypeOption& option) override;
  bool SetPersonalUserID(std::string const& userId) override;
  bool GetPersonalUserID(std::string& userId) override;

  // Hands the service the access token for remote content requests.
  virtual bool SetAToken(std::string const& token);
};

#endif
