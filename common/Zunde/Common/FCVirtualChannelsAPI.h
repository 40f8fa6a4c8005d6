// Virtual channels: the programmes, playlists, logos and images of
// internet-delivered channels, on-demand slots, configuration, and usage
// statistics (KPI events).
//
// Obtained from FCAPI::GetVirtualChannelsAPI(). Every operation is one
// blocking call to the service. Nearly every operation exists twice: typed,
// and raw, taking the request JSON text and giving back the reply text.
#ifndef ZUNDE_FCVIRTUALCHANNELSAPI_H
#define ZUNDE_FCVIRTUALCHANNELSAPI_H

#include <map>
#include <string>

class FCVirtualProgramData;
class FCVirtualProgramId;
class FCVirtualConfig;
class FCVirtualChannelInfo;

// Which programme relative to a given one is wanted; the service defines the values.
enum EProgramIndicator : int {};

class FCVirtualChannelsAPI {
 public:
  // The service defines the values of these.
  enum EChannelLogoSize : int {};
  enum EProgramLogoType : int {};
  // Type 0 may be sent only where the virtual channel feature is on.
  enum EKPIType : int {};

  virtual ~FCVirtualChannelsAPI() {}

  virtual bool GetProgramList(unsigned long long const& serviceId, unsigned int startTime, unsigned int duration,
                              std::map<unsigned int, FCVirtualProgramData>& programs) = 0;
  virtual bool GetProgramList(std::string const& in, std::string& out) = 0;
  virtual bool GetProgram(EProgramIndicator indicator, FCVirtualProgramId const& id, FCVirtualProgramData& program) = 0;
  virtual bool GetProgram(FCVirtualProgramId const& id, FCVirtualProgramData& program) = 0;
  virtual bool GetProgram(std::string const& in, std::string& out) = 0;
  virtual bool GetPresentProgram(unsigned long long const& serviceId, FCVirtualProgramData& program) = 0;
  virtual bool GetPresentProgram(std::string const& in, std::string& out) = 0;
  virtual bool GetChannelLogo(unsigned long long const& serviceId, EChannelLogoSize size, std::string& logo) = 0;
  virtual bool GetChannelLogo(std::string const& in, std::string& out) = 0;
  virtual bool GetProgramThumbnail(FCVirtualProgramId const& id, std::string& logo) = 0;
  virtual bool GetProgramThumbnail(std::string const& in, std::string& out) = 0;
  // The image's download id (0 when the call fails); `path` receives its location.
  virtual long GetProgramImage(FCVirtualProgramId const& id, EProgramLogoType type, std::string& path) = 0;
  // The download id; -1 when the call fails, 0 when the reply is not JSON.
  virtual long GetProgramImage(std::string const& in, std::string& out) = 0;
  virtual bool GetProgramBackground(FCVirtualProgramId const& id, std::string& logo) = 0;
  virtual bool GetProgramBackground(std::string const& in, std::string& out) = 0;
  // `id` may be null; otherwise it receives the slot's programme id.
  virtual bool SetOnDemandProgram(unsigned long long const& serviceId, FCVirtualProgramData const& program,
                                  FCVirtualProgramId* id) = 0;
  virtual bool SetOnDemandProgram(std::string const& in, std::string& out) = 0;
  virtual bool UnsetOnDemandProgram(FCVirtualProgramId id) = 0;
  virtual bool UnsetOnDemandProgram(std::string const& in, std::string& out) = 0;
  virtual bool GetOnDemandIdentifier(unsigned long long const& serviceId, FCVirtualProgramId& id) = 0;
  virtual bool GetOnDemandIdentifier(std::string const& in, std::string& out) = 0;
  virtual bool GetVCConfig(FCVirtualConfig& config) = 0;
  virtual bool GetVCConfig(std::string const& in, std::string& out) = 0;
  virtual bool GetFeaturedVirtualChannelInfo(unsigned long long const& serviceId, FCVirtualChannelInfo& info) = 0;
  virtual bool GetFeaturedVirtualChannelInfo(std::string const& in, std::string& out) = 0;
  virtual bool GetServiceIdFromOnTVProviderAndService(std::string const& providerId, std::string const& serviceId,
                                                      unsigned long long& out) = 0;
  virtual bool GetServiceIdFromOnTVProviderAndService(std::string const& in, std::string& out) = 0;
  virtual bool SendLogKPI(EKPIType type, std::string& eventName, std::string& category, std::string& desc) = 0;
  virtual bool GetViewingAgreement() = 0;
  virtual bool Reset() = 0;
  virtual bool KivoProgramInfoIsAvailable() = 0;
};

#endif
