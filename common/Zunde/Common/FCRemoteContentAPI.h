// The remote content environment: the country and language, the user, the
// recommendation preference, and which remote content activity the TV's
// current source and mode map to.
//
// Obtained from FCAPI::GetRemoteContentAPI(). Every operation is one blocking
// call to the service. The overloads taking (std::string const&, std::string&)
// pass a request JSON text through as it stands and hand back the service's
// raw reply text; they return true when the service answered at all.
#ifndef ZUNDE_FCREMOTECONTENTAPI_H
#define ZUNDE_FCREMOTECONTENTAPI_H

#include <string>

#include "FCRemoteContentTypes.h"

class FCRemoteContentAPI {
 public:
  virtual ~FCRemoteContentAPI() {}

  // Asks the service to reset its remote content state.
  virtual bool Reset() = 0;
  // Switches the service's time-out test mode.
  virtual bool ToggleZundeTimeoutTest(bool on) = 0;
  virtual bool SetRemoteContentEnv(std::string const& country, std::string const& language) = 0;
  virtual bool SetRemoteContentEnvForEmp(std::string const& request, std::string& reply) = 0;
  virtual bool GetRemoteContentEnv(std::string& country, std::string& language) = 0;
  virtual bool GetRemoteContentEnv(std::string& reply) = 0;
  virtual bool GetRemoteContentActivityByTVSourceAndTVMode(int source, int antennaMode, int serviceMode,
                                                           eRemoteContentActivity& activity) = 0;
  virtual bool GetRemoteContentActivityByTVSourceAndTVMode(std::string const& request, std::string& reply) = 0;
  virtual bool SetRecommendTypeOption(eRecommendTypeOption option) = 0;
  virtual bool SetRecommendTypeOption(std::string const& request, std::string& reply) = 0;
  virtual bool GetRecommendTypeOption(eRecommendTypeOption& option) = 0;
  virtual bool SetPersonalUserID(std::string const& userId) = 0;
  virtual bool GetPersonalUserID(std::string& userId) = 0;
};

#endif
