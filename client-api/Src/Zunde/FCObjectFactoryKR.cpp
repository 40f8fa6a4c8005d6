#include "FCObjectFactoryKR.h"

#include "FCMatchFinder_Proxy.h"
#include "FCRemoteContentOnTV_MSO_Proxy.h"
#include "FCRemoteContentOnTV_Proxy.h"
#include "FCVirtualChannels_Proxy.h"
#include "MBRNetworkChannelManager_Proxy.h"
#include "RFNetworkChannelManager_Proxy.h"

// Defined beside the concrete factory, so that the entry knows no proxy.
FCBrisvelObjectFactory* FCBrisvelObjectFactory::GetInstance() {
  if (m_pInstance == nullptr) m_pInstance = new FCObjectFactoryKR;
  return m_pInstance;
}

FCRFNetworkChannelAPI* FCObjectFactoryKR::GetRFNetworkChannelManager() { return new FCRFNetworkChannelManager_Proxy; }

FCMBRNetworkChannelAPI* FCObjectFactoryKR::GetMBRNetworkChannelManager() { return new FCMBRNetworkChannelManager_Proxy; }

FCRemoteContentAPI* FCObjectFactoryKR::GetRemoteContentAPI() { return new FCRemoteContentOnTV_Proxy; }

FCRemoteContent_MSOAPI* FCObjectFactoryKR::GetRemoteContentMSOAPI() { return new FCRemoteContentOnTV_MSO_Proxy; }

FIMatchFinder* FCObjectFactoryKR::GetMatchFinder() { return new FCMatchFinder_Proxy; }

FCVirtualChannelsAPI* FCObjectFactoryKR::GetVirtualChannelsAPI() { return new FCVirtualChannels_Proxy; }
