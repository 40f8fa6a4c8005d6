// The virtual channels, reached through the service.
//
// Every operation is one blocking call. A typed operation returns the
// service's "ret" and fills its outputs from the reply whenever the reply
// parses, whatever "ret" says; a raw operation hands back the reply text and
// returns its "ret". Usage statistics (SendLogKPI) are sent only when the
// user has accepted the home data disclaimer; events of type 0 also need the
// device's virtual channel feature.
#ifndef ZUNDE_FCVIRTUALCHANNELS_PROXY_H
#define ZUNDE_FCVIRTUALCHANNELS_PROXY_H

#include <json/forwards.h>

#include <map>
#include <string>

#include "FCVirtualChannelsAPI.h"

class FCVirtualChannels_Proxy : public FCVirtualChannelsAPI {
 public:
  bool GetProgramList(unsigned long long const& serviceId, unsigned int startTime, unsigned int duration,
                      std::map<unsigned int, FCVirtualProgramData>& programs) override;
  bool GetProgramList(std::string const& in, std::string& out) override;
  bool GetProgram(EProgramIndicator indicator, FCVirtualProgramId const& id, FCVirtualProgramData& program) override;
  bool GetProgram(FCVirtualProgramId const& id, FCVirtualProgramData& program) override;
  // Asks for the programme relative to another when the request names a
  // "program_indicator"; a request that is not JSON is not sent.
  bool GetProgram(std::string const& in, std::string& out) override;
  bool GetPresentProgram(unsigned long long const& serviceId, FCVirtualProgramData& program) override;
  bool GetPresentProgram(std::string const& in, std::string& out) override;
  bool GetChannelLogo(unsigned long long const& serviceId, EChannelLogoSize size, std::string& logo) override;
  bool GetChannelLogo(std::string const& in, std::string& out) override;
  bool GetProgramThumbnail(FCVirtualProgramId const& id, std::string& logo) override;
  bool GetProgramThumbnail(std::string const& in, std::string& out) override;
  long GetProgramImage(FCVirtualProgramId const& id, EProgramLogoType type, std::string& path) override;
  long GetProgramImage(std::string const& in, std::string& out) override;
  bool GetProgramBackground(FCVirtualProgramId const& id, std::string& logo) override;
  bool GetProgramBackground(std::string const& in, std::string& out) override;
  bool SetOnDemandProgram(unsigned long long const& serviceId, FCVirtualProgramData const& program,
                          FCVirtualProgramId* id) override;
  bool SetOnDemandProgram(std::string const& in, std::string& out) override;
  bool UnsetOnDemandProgram(FCVirtualProgramId id) override;
  bool UnsetOnDemandProgram(std::string const& in, std::string& out) override;
  bool GetOnDemandIdentifier(unsigned long long const& serviceId, FCVirtualProgramId& id) override;
  bool GetOnDemandIdentifier(std::string const& in, std::string& out) override;
  bool GetVCConfig(FCVirtualConfig& config) override;
  bool GetVCConfig(std::string const& in, std::string& out) override;
  bool GetFeaturedVirtualChannelInfo(unsigned long long const& serviceId, FCVirtualChannelInfo& info) override;
  bool GetFeaturedVirtualChannelInfo(std::string const& in, std::string& out) override;
  bool GetServiceIdFromOnTVProviderAndService(std::string const& providerId, std::string const& serviceId,
                                              unsigned long long& out) override;
  bool GetServiceIdFromOnTVProviderAndService(std::string const& in, std::string& out) override;
  bool SendLogKPI(EKPIType type, std::string& eventName, std::string& category, std::string& desc) override;
  // Whether the user has agreed to the viewing terms.
  bool GetViewingAgreement() override;
  bool Reset() override;
  bool KivoProgramInfoIsAvailable() override;

 private:
  // The steps every operation is made of; their lines name the D-Bus member.
  // The request text to `method`; true when the service answered, its reply text in `out`.
  static bool RemoteCallWithStringArguments(const char* method, const std::string& in, std::string& out);
  // The request written as JSON text, then the reply parsed into `out`.
  static bool RemoteCallWithJsonArguments(const char* method, const Json::Value& in, Json::Value& out);
  // The "ret" of a reply text; false when it does not parse.
  static bool ParseReturnValue(const std::string& reply);
};

#endif
