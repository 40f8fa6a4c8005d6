// The entry to the library.
//
//   FCAPI::Initialize();
//   FCRemoteContentAPI* remote = FCAPI::GetRemoteContentAPI();
//   std::string country, language;
//   remote->GetRemoteContentEnv(country, language);
//
// Each getter hands out one object per process, made on first use and owned
// by the library until the process ends; a getter returns null only when no
// object factory can be had. Initialize makes five of the six objects in
// advance (not the virtual channels one). Nothing here is locked: make the
// first calls from one thread.
#ifndef ZUNDE_BRISVELDEFINE_H
#define ZUNDE_BRISVELDEFINE_H

#include "FCCallStatus.h"

// The six API interfaces; each has a header of its own.
class FCMBRNetworkChannelAPI;
class FCRFNetworkChannelAPI;
class FCRemoteContentAPI;
class FCRemoteContent_MSOAPI;
class FIMatchFinder;
class FCVirtualChannelsAPI;

class FCAPI {
 public:
  // Marks the library initialised and makes the API objects but the virtual
  // channels one. False, with a log line, when already initialised.
  static bool Initialize();
  // Clears the mark; the API objects stay. False when not initialised.
  static bool Finalize();
  // Asks the service to reset its whole state; the service's "ret".
  static bool Reset();

  static FCMBRNetworkChannelAPI* GetMBRNetworkChannelAPI();
  static FCRFNetworkChannelAPI* GetRFNetworkChannelAPI();
  static FCRemoteContentAPI* GetRemoteContentAPI();
  static FCRemoteContent_MSOAPI* GetRemoteContentMSOAPI();
  static FIMatchFinder* GetMatchFinder();
  static FCVirtualChannelsAPI* GetVirtualChannelsAPI();

  // The outcome of the calling thread's last API call (FCCallStatus.h).
  static FCCallStatus GetLastCallStatus();

  // The misspelling is the published name.
  static bool is_initailzed;
};

// Makes the API objects. Each call makes a new object, which the caller owns;
// FCAPI calls each operation once and keeps the result.
class FCBrisvelObjectFactory {
 public:
  // The factory of the process, made on first use and never deleted.
  static FCBrisvelObjectFactory* GetInstance();

  virtual FCRFNetworkChannelAPI* GetRFNetworkChannelManager() = 0;
  virtual FCMBRNetworkChannelAPI* GetMBRNetworkChannelManager() = 0;
  virtual FCRemoteContentAPI* GetRemoteContentAPI() = 0;
  virtual FCRemoteContent_MSOAPI* GetRemoteContentMSOAPI() = 0;
  virtual FIMatchFinder* GetMatchFinder() = 0;
  virtual FCVirtualChannelsAPI* GetVirtualChannelsAPI() = 0;
  virtual ~FCBrisvelObjectFactory() {}

 protected:
  static FCBrisvelObjectFactory* m_pInstance;
};

#endif
