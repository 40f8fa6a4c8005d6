// The match finder: an operator's channel and the set's own service are the
// same station when they share its program source id.
#include "FCMarshal.h"
#include "lineups.h"

namespace zunde::service {
namespace {

using T = JsonType;

void ReplyServiceId(Request& request, const std::string& sourceId, Json::Value& reply) {
  const BroadcastChannel* station = request.catalogue.BroadcastBySource(sourceId);
  if (EntryBySource(LineupOf(request), sourceId) == nullptr || station == nullptr) {
    throw BadRequest("no service matches program source id \"" + sourceId + "\"");
  }
  FCMarshal::VCServiceIdToJson(station->serviceId, reply);
  Succeed(reply);
}

void ChannelByServiceId(Request& request, Json::Value& reply) {
  const unsigned long long id = ServiceIdOf(request);
  const BroadcastChannel* station = request.catalogue.BroadcastById(id);
  const LineupChannel* entry = station ? EntryBySource(LineupOf(request), station->sourceId) : nullptr;
  if (entry == nullptr) throw BadRequest("no channel matches service id " + std::to_string(id));
  FCRemoteChannel channel = entry->channel;
  FCMarshal::FCRemoteChannelToJson(channel, reply);
  Succeed(reply);
}

void ServiceIdByChannel(Request& request, Json::Value& reply) {
  FCRemoteChannel channel;
  FCMarshal::JsonToFCRemoteChannel(request.body, channel);
  ReplyServiceId(request, channel.str_program_source_id, reply);
}

void ServiceIdBySource(Request& request, Json::Value& reply) {
  std::string sourceId;
  FCMarshal::JsonToProgramSourceID(request.body, sourceId);
  ReplyServiceId(request, sourceId, reply);
}

}  // namespace

const MemberTable& MatchFinderMembers() {
  static const MemberTable table = {
      {"GetFCRemoteChannelByTCServiceId", {kActivityKey, {"TCServiceId", T::String}}, ChannelByServiceId, kReads},
      {"GetTCServiceIdByFCRemoteChannel", {kActivityKey}, ServiceIdByChannel, kReads},
      {"GetTCServiceIdByProgramSourceID", {kActivityKey, {"program source id", T::String}}, ServiceIdBySource, kReads},
  };
  return table;
}

}  // namespace zunde::service
