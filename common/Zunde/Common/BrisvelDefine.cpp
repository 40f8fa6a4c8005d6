#include "BrisvelDefine.h"

#include "FCLog_internal.h"
#include "FCRemoteCall_internal.h"

bool FCAPI::is_initailzed = false;
FCBrisvelObjectFactory* FCBrisvelObjectFactory::m_pInstance = nullptr;

namespace {

using zunde::LogPrefix;
using zunde::LogPriority;

const zunde::CallLogLines kLines = {
    {LogPriority::Info, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCAPI::%s] called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCAPI::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCAPI::%s] fail to parse json data\n")},
};

// The API objects, one per getter, made on first use and never freed.
FCMBRNetworkChannelAPI* mbrNetworkChannelAPI = nullptr;
FCRFNetworkChannelAPI* rfNetworkChannelAPI = nullptr;
FCRemoteContentAPI* remoteContentAPI = nullptr;
FCRemoteContent_MSOAPI* remoteContentMSOAPI = nullptr;
FIMatchFinder* matchFinder = nullptr;
FCVirtualChannelsAPI* virtualChannelsAPI = nullptr;

template <typename Api>
Api* Cached(Api*& cache, Api* (FCBrisvelObjectFactory::*make)()) {
  if (cache != nullptr) return cache;
  FCBrisvelObjectFactory* factory = FCBrisvelObjectFactory::GetInstance();
  if (factory == nullptr) return nullptr;
  cache = (factory->*make)();
  return cache;
}

}  // namespace

bool FCAPI::Initialize() {
  zunde::WriteLogLine(kLines.called, FC_LOG_SITE);
  if (is_initailzed) {
    FC_LOG_WARN(0, "[FCAPI::%s] already initialized\n", __func__);
    return false;
  }
  is_initailzed = true;
  // The virtual channels object is left to its first use.
  GetMBRNetworkChannelAPI();
  GetRFNetworkChannelAPI();
  GetRemoteContentAPI();
  GetRemoteContentMSOAPI();
  GetMatchFinder();
  return true;
}

bool FCAPI::Finalize() {
  if (is_initailzed) {
    is_initailzed = false;
    return true;
  }
  FC_LOG_WARN(0, "[FCAPI::%s] already finalized\n", __func__);
  return false;
}

bool FCAPI::Reset() { return zunde::RemoteCall(kLines, "Reset").Entry().ConnectFirst().Run(); }

FCMBRNetworkChannelAPI* FCAPI::GetMBRNetworkChannelAPI() {
  return Cached(mbrNetworkChannelAPI, &FCBrisvelObjectFactory::GetMBRNetworkChannelManager);
}

FCRFNetworkChannelAPI* FCAPI::GetRFNetworkChannelAPI() {
  return Cached(rfNetworkChannelAPI, &FCBrisvelObjectFactory::GetRFNetworkChannelManager);
}

FCRemoteContentAPI* FCAPI::GetRemoteContentAPI() {
  return Cached(remoteContentAPI, &FCBrisvelObjectFactory::GetRemoteContentAPI);
}

FCRemoteContent_MSOAPI* FCAPI::GetRemoteContentMSOAPI() {
  return Cached(remoteContentMSOAPI, &FCBrisvelObjectFactory::GetRemoteContentMSOAPI);
}

FIMatchFinder* FCAPI::GetMatchFinder() { return Cached(matchFinder, &FCBrisvelObjectFactory::GetMatchFinder); }

FCVirtualChannelsAPI* FCAPI::GetVirtualChannelsAPI() {
  return Cached(virtualChannelsAPI, &FCBrisvelObjectFactory::GetVirtualChannelsAPI);
}
