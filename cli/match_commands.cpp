// zunde-cli match: broadcast service ids to catalogue channels and back.
#include <ZundeProvider.h>

#include "command_table.h"

namespace zcli {
namespace {

FIMatchFinder* Finder() { return FCAPI::GetMatchFinder(); }
eRemoteContentActivity Act(const Args& a) { return static_cast<eRemoteContentActivity>(a.i(0)); }
const Arg kAct{"ACTIVITY", Kind::Int, "remote content activity"};

}  // namespace

Family MatchFamily() {
  return {"match", "Match broadcast service ids and catalogue channels", {
    {"channel", "The catalogue channel of a broadcast service id", "zunde-cli match channel 0 38293928476773",
     {kAct, {"SERVICE_ID", Kind::Unsigned64, "broadcast service id"}},
     [](const Args& a, Json::Value& out) {
       unsigned long long service = a.u(1);
       FCRemoteChannel channel;
       const bool ok = Finder()->GetFCRemoteChannelByTCServiceId(Act(a), service, channel);
       out = J(channel);
       return ok;
     }},
    {"service-id", "The broadcast service id of a catalogue channel",
     "zunde-cli match service-id 0 '{\"str_program_source_id\": \"10002\"}'",
     {kAct, {"CHANNEL", Kind::Json, "the channel's JSON form", ShapeOf<FCRemoteChannel>()}},
     [](const Args& a, Json::Value& out) {
       FCRemoteChannel channel = a.rec<FCRemoteChannel>(1);
       unsigned long long service = 0;
       const bool ok = Finder()->GetTCServiceIdByFCRemoteChannel(Act(a), channel, service);
       out["service_id"] = Json::UInt64(service);
       return ok;
     }},
    {"service-id-by-source", "The broadcast service id of a programme source id",
     "zunde-cli match service-id-by-source 0 10002", {kAct, {"SOURCE_ID", Kind::Text, "programme source id"}},
     [](const Args& a, Json::Value& out) {
       unsigned long long service = 0;
       const bool ok = Finder()->GetTCServiceIdByProgramSourceID(Act(a), a.s(1), service);
       out["service_id"] = Json::UInt64(service);
       return ok;
     }},
  }};
}

}  // namespace zcli
