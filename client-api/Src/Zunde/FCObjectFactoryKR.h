// The object factory of this library: it knows every proxy.
#ifndef ZUNDE_FCOBJECTFACTORYKR_H
#define ZUNDE_FCOBJECTFACTORYKR_H

#include "BrisvelDefine.h"

class FCObjectFactoryKR : public FCBrisvelObjectFactory {
 public:
  // Each makes a new proxy, which the caller owns; null for a family this
  // build does not offer.
  FCRFNetworkChannelAPI* GetRFNetworkChannelManager() override;
  FCMBRNetworkChannelAPI* GetMBRNetworkChannelManager() override;
  FCRemoteContentAPI* GetRemoteContentAPI() override;
  FCRemoteContent_MSOAPI* GetRemoteContentMSOAPI() override;
  FIMatchFinder* GetMatchFinder() override;
  FCVirtualChannelsAPI* GetVirtualChannelsAPI() override;
};

#endif
