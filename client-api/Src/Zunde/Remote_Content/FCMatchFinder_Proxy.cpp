#include "FCMatchFinder_Proxy.h"

#include "FCLog_internal.h"
#include "FCMarshal.h"
#include "FCRemoteCall_internal.h"

namespace {

using zunde::LogPrefix;
using zunde::LogPriority;

// The wording of these lines is published as it stands: two blanks before
// "called", and the operator proxy's class name in the parse failure line.
const zunde::CallLogLines kLines = {
    {LogPriority::Warning, LogPrefix::DebugLevel, 0, FC_LINE_LV("[FCMatchFinder_Proxy::%s]  called\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCMatchFinder_Proxy::%s] fail to communicate using d-bus\n")},
    {LogPriority::Warning, LogPrefix::DebugLevel, 0,
     FC_LINE_LV("[FCRemoteContentOnTV_MSO_Proxy::%s] fail to parse json data\n")},
};

zunde::RemoteCall Call(const char* member, zunde::LogSite site = zunde::LogSite::Here()) {
  return zunde::RemoteCall(kLines, member, site);
}

}  // namespace

bool FCMatchFinder_Proxy::GetFCRemoteChannelByTCServiceId(eRemoteContentActivity activity,
                                                          unsigned long long& serviceId, FCRemoteChannel& channel) {
  FC_LOG_WARN(0, "[FCMatchFinder::%s]  called\n", __func__);
  FC_LOG_WARN(0, "[FCMatchFinder::%s]  TCServiceId = %llu\n", __func__, serviceId);
  return Call("GetFCRemoteChannelByTCServiceId")
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::VCServiceIdToJson, serviceId)
      .Reads(FCMarshal::JsonToFCRemoteChannel, channel)
      .Run();
}

bool FCMatchFinder_Proxy::GetFCRemoteChannelByTCServiceId(std::string const& request, std::string& reply) {
  return Call("GetFCRemoteChannelByTCServiceId").Entry().PassThrough(request, reply);
}

bool FCMatchFinder_Proxy::GetTCServiceIdByFCRemoteChannel(eRemoteContentActivity activity, FCRemoteChannel& channel,
                                                          unsigned long long& serviceId) {
  return Call("GetTCServiceIdByFCRemoteChannel")
      .Entry()
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::FCRemoteChannelToJson, channel)
      .Reads(FCMarshal::VCJsonToServiceId, serviceId)
      .Run();
}

bool FCMatchFinder_Proxy::GetTCServiceIdByFCRemoteChannel(std::string const& request, std::string& reply) {
  return Call("GetTCServiceIdByFCRemoteChannel").Entry().PassThrough(request, reply);
}

bool FCMatchFinder_Proxy::GetTCServiceIdByProgramSourceID(eRemoteContentActivity activity,
                                                          std::string programSourceId,
                                                          unsigned long long& serviceId) {
  return Call("GetTCServiceIdByProgramSourceID")
      .Entry()
      .Writes(FCMarshal::activityIDToJson, activity)
      .Writes(FCMarshal::ProgramSourceIDToJson, programSourceId)
      .Reads(FCMarshal::VCJsonToServiceId, serviceId)
      .Run();
}

bool FCMatchFinder_Proxy::GetTCServiceIdByProgramSourceID(std::string const& request, std::string& reply) {
  return Call("GetTCServiceIdByProgramSourceID").Entry().PassThrough(request, reply);
}
