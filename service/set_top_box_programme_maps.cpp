// The set-top-box programme maps, kept per channel id, and the programme
// on air on a channel.
#include <ctime>

#include "FCMarshal.h"
#include "set_top_box_requests.h"

namespace zunde::service {
namespace {

using T = JsonType;

std::string ChannelIdOf(Request& request) {
  std::string channelId;
  FCMarshal::JsonToChannelID(request.body, channelId);
  return channelId;
}

void SetPrograms(Request& request, Json::Value& reply) {
  FCMBRNetworkProgramTable programs;
  FCMarshal::JsonToMBRProgramTable(request.body, programs);
  SavePrograms(request.store, ChannelIdOf(request), programs, request.limits.programMaps);
  Raise(request, kEventProgramMapChanged, static_cast<int32_t>(programs.GetNetworkProgramMap().size()), 0);
  Succeed(reply);
}

void GetPrograms(Request& request, Json::Value& reply) {
  FCMBRNetworkProgramTable programs = LoadPrograms(request.store, ChannelIdOf(request));
  FCMarshal::MBRProgramTableToJson(programs, reply);
  Succeed(reply);
}

void ClearAllPrograms(Request& request, Json::Value& reply) {
  ClearPrograms(request.store);
  Raise(request, kEventProgramMapChanged, 0, 1);
  Succeed(reply);
}

void ProgramAt(Request& request, Json::Value& reply, unsigned long time) {
  ActivityOf(request);
  const std::string channelId = std::to_string(ChannelOf(request).GetChannelID());
  FCMBRNetworkProgram program;
  if (!LoadPrograms(request.store, channelId).FindNetworkProgrambyStartTime(time, program)) {
    throw BadRequest("no programme on channel id " + channelId + " at " + std::to_string(time));
  }
  FCMarshal::MBRProgramToJson(program, reply);
  Succeed(reply);
}

void ProgramNow(Request& request, Json::Value& reply) {
  ProgramAt(request, reply, static_cast<unsigned long>(std::time(nullptr)));
}

void ProgramAtTime(Request& request, Json::Value& reply) {
  unsigned long time = 0;
  FCMarshal::JsonToCurrentTime(request.body, time);
  ProgramAt(request, reply, time);
}

const RequiredKey kChannelId{"channelID", T::String};
const RequiredKey kChannel{"m_channelID", T::Int};

}  // namespace

const MemberTable& SetTopBoxProgramMapMembers() {
  static const MemberTable table = {
      {"SetMBRNetworkProgramMap", {kChannelId}, SetPrograms, kChanges},
      {"GetMBRNetworkProgrmaMap", {kChannelId}, GetPrograms, kReads},
      {"ClearMBRProgramMap", {}, ClearAllPrograms, kChanges},
      {"GetCurrentMBRNetworkProgram", {kActivityKey, kChannel}, ProgramNow, kReads},
      {"GetCurrentMBRNetworkProgrambyCurrentTimebyCurrentTime", {kActivityKey, {"current time", T::UInt}, kChannel},
       ProgramAtTime, kReads},
  };
  return table;
}

}  // namespace zunde::service
