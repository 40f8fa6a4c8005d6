// zunde-provider: the client library of the live-content service.
//
// Include this one header to reach every public type of the library.
#ifndef ZUNDE_PROVIDER_H
#define ZUNDE_PROVIDER_H

// Task runtime
#include "FCAlarm.h"
#include "FCDebug.h"
#include "FCError.h"
#include "FCHandler.h"
#include "FCList.h"
#include "FCQueue.h"
#include "FCStateAlarm.h"
#include "FCSyncDet.h"
#include "FCTask.h"
#include "FCTaskList.h"
#include "FCThread.h"
#include "FCTimeWapper.h"

// IPC transport
#include "FCEMSProxy.h"
#include "FCIPCConnection.h"
#include "FCIPCManager.h"
#include "FCMessageBuffer.h"

// Remote content records
#include "CZundeResponse.h"
#include "FCElementData.h"
#include "FCSmartChannelGuide.h"
#include "FCTime.h"

// Set-top-box records
#include "MBRNetworkChannel.h"
#include "MBRNetworkChannelTable.h"

// Broadcast channel records
#include "FCRFNetworkChannelTable.h"

// Virtual channel records
#include "FCVirtualProgramData.h"

// API entry and interfaces
#include "BrisvelDefine.h"
#include "FCCallStatus.h"
#include "FCMBRNetworkChannelAPI.h"
#include "FCMarshal.h"
#include "FCObjectFactoryKR.h"
#include "FCRFNetworkChannelAPI.h"
#include "FCRemoteContentAPI.h"
#include "FCRemoteContentOnTV_MSO_Proxy.h"
#include "FCRemoteContentOnTV_Proxy.h"
#include "FCMatchFinder_Proxy.h"
#include "FCRemoteContentTypes.h"
#include "FCRemoteContent_MSOAPI.h"
#include "FCVirtualChannelsAPI.h"
#include "FCVirtualChannels_Proxy.h"
#include "FIMatchFinder.h"
#include "MBRNetworkChannelManager_Proxy.h"
#include "RFNetworkChannelManager_Proxy.h"

#endif
