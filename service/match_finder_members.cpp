// The match finder: an operator's channel and the set's own service are the
// same station when they share its program source id.
#include "FCMarshal.h"
#include "member_table.h"

namespace zunde::service {
namespace {

using T = JsonType;

const Lineup& LineupOf(Request& request) {
  eRemoteContentActivity activity;
  FCMarshal::JsonToactivityID(request.body, activity);
  const Lineup* lineup = request.catalogue.LineupOf(CheckedActivity(activity));
  if (lineup == nullptr) throw BadRequest("activity " + std::to_string(activity) + " has no operator line-up");
  return *lineup;
}

const LineupChannel* OnLineup(const Lineup& lineup, const std::string& sourceId) {
  for (const LineupChannel& entry : lineup.channels) {
    if (!sourceId.empty() && entry.channel.str_program_source_id == sourceId) return &entry;
  }
  return nullptr;
}

void ReplyServiceId(Request& request, const std::string& sourceId, Json::Value& reply) {
  const BroadcastChannel* station = request.catalogue.BroadcastBySource(sourceId);
  if (OnLineup(LineupOf(request), sourceId) == nullptr || station == nullptr) {
    throw BadRequest("no service matches program source id \"" + sourceId + "\"");
  }
  FCMarshal::VCServiceIdToJson(station->serviceId, reply);
  Succeed(reply);
}

void ChannelByServiceId(Request& request, Json::Value& reply) {
  const unsigned long long id = ServiceIdOf(request);
  const BroadcastChannel* station = request.catalogue.BroadcastById(id);
  const LineupChannel* entry = station ? OnLineup(LineupOf(request), station->sourceId) : nullptr;
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

const RequiredKey kActivity{"activityID", T::Int};

}  // namespace

const MemberTable& MatchFinderMembers() {
  static const MemberTable table = {
      {"GetFCRemoteChannelByTCServiceId", {kActivity, {"TCServiceId", T::String}}, ChannelByServiceId, false},
      {"GetTCServiceIdByFCRemoteChannel", {kActivity}, ServiceIdByChannel, false},
      {"GetTCServiceIdByProgramSourceID", {kActivity, {"program source id", T::String}}, ServiceIdBySource, false},
  };
  return table;
}

}  // namespace zunde::service
