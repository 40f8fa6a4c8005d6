// zunde-cli virtual: internet-delivered channels.
#include <ZundeProvider.h>

#include "command_table.h"

namespace zcli {
namespace {

using Api = FCVirtualChannelsAPI;
Api* Vc() { return FCAPI::GetVirtualChannelsAPI(); }

const Arg kService{"SERVICE_ID", Kind::Unsigned64, "virtual channel service id"};
const Arg kId{"PROGRAM_ID", Kind::Json,
              "{\"program_id\": {\"TCServiceId\": ..., \"event_id\": ..., \"start_time\": ..., \"duration\": ...}}",
              ShapeOf<FCVirtualProgramId>()};
const char* const kIdSample = " '{\"program_id\": {\"TCServiceId\": \"281466386841601\", \"event_id\": \"1795500000\", \"start_time\": 1795500000, \"duration\": 8100}}'";
// The programme on air now: the schedule answers only inside its window.
const char* const kIdNowSample =
    R"( "{\"program_id\": {\"TCServiceId\": \"281466386841601\", \"event_id\": \"\", \"start_time\": $(date +%s), \"duration\": 0}}")";

// A picture of a programme: its address.
Command Picture(const char* name, const char* help, bool (Api::*method)(FCVirtualProgramId const&, std::string&)) {
  return {name, help, std::string("zunde-cli virtual ") + name + kIdSample, {kId},
          [method](const Args& a, Json::Value& out) {
            std::string logo;
            const bool ok = (Vc()->*method)(a.rec<FCVirtualProgramId>(0), logo);
            out["url"] = logo;
            return ok;
          }};
}

}  // namespace

Family VirtualFamily() {
  return {"virtual", "Virtual (internet-delivered) channels: programmes, pictures, on-demand slots", {
    {"programs", "The programmes of a channel in a time window", "zunde-cli virtual programs 281466386841601 now 7200",
     {kService, {"START", Kind::Time, "seconds since the epoch, now, now+90m or HH:MM"}, {"DURATION", Kind::Unsigned, "seconds"}},
     [](const Args& a, Json::Value& out) {
       const unsigned long long service = a.u(0);
       std::map<unsigned int, FCVirtualProgramData> programs;
       const bool ok = Vc()->GetProgramList(service, a.u(1), a.u(2), programs);
       FCMarshal::VirtualProgramMapToJson(programs, out);
       return ok;
     }, {"key", "id", "starttime", "duration", "title"}},
    {"program", "A programme by its id", std::string("zunde-cli virtual program") + kIdNowSample, {kId},
     [](const Args& a, Json::Value& out) {
       FCVirtualProgramData program;
       const bool ok = Vc()->GetProgram(a.rec<FCVirtualProgramId>(0), program);
       out = J(program);
       return ok;
     }},
    {"program-beside", "The programme an indicator names relative to a programme",
     std::string("zunde-cli virtual program-beside 1") + kIdNowSample,
     {{"INDICATOR", Kind::Int, "which programme relative to the one given"}, kId},
     [](const Args& a, Json::Value& out) {
       FCVirtualProgramData program;
       const bool ok = Vc()->GetProgram(static_cast<EProgramIndicator>(a.i(0)), a.rec<FCVirtualProgramId>(1), program);
       out = J(program);
       return ok;
     }},
    {"present", "The programme on a channel now", "zunde-cli virtual present 281466386841601", {kService},
     [](const Args& a, Json::Value& out) {
       const unsigned long long service = a.u(0);
       FCVirtualProgramData program;
       const bool ok = Vc()->GetPresentProgram(service, program);
       out = J(program);
       return ok;
     }},
    {"logo", "The logo of a channel", "zunde-cli virtual logo 281466386841601 1",
     {kService, {"SIZE", Kind::Int, "logo size"}},
     [](const Args& a, Json::Value& out) {
       const unsigned long long service = a.u(0);
       std::string logo;
       const bool ok = Vc()->GetChannelLogo(service, static_cast<Api::EChannelLogoSize>(a.i(1)), logo);
       out["url"] = logo;
       return ok;
     }},
    Picture("thumbnail", "The thumbnail of a programme", &Api::GetProgramThumbnail),
    Picture("background", "The background picture of a programme", &Api::GetProgramBackground),
    {"image", "Download a programme image (status 1 when no download starts)",
     std::string("zunde-cli virtual image 1") + kIdSample, {{"TYPE", Kind::Int, "image type"}, kId},
     [](const Args& a, Json::Value& out) {
       std::string path;
       const long id = Vc()->GetProgramImage(a.rec<FCVirtualProgramId>(1), static_cast<Api::EProgramLogoType>(a.i(0)), path);
       out["download_id"] = Json::Int64(id);
       out["path"] = path;
       return id != 0;
     }},
    {"set-on-demand", "Put a programme in a channel's on-demand slot",
     "zunde-cli virtual set-on-demand 281466386841601 '{\"id\": \"vod-1\", \"title\": \"Film\"}'",
     {kService, {"PROGRAM", Kind::Json, "the programme's JSON form", ShapeOf<FCVirtualProgramData>()}},
     [](const Args& a, Json::Value& out) {
       const unsigned long long service = a.u(0);
       FCVirtualProgramId id;
       const bool ok = Vc()->SetOnDemandProgram(service, a.rec<FCVirtualProgramData>(1), &id);
       out = J(id);
       return ok;
     }},
    {"on-demand-id", "The programme id in a channel's on-demand slot", "zunde-cli virtual on-demand-id 281466386841601", {kService},
     [](const Args& a, Json::Value& out) {
       const unsigned long long service = a.u(0);
       FCVirtualProgramId id;
       const bool ok = Vc()->GetOnDemandIdentifier(service, id);
       out = J(id);
       return ok;
     }},
    {"unset-on-demand", "Empty an on-demand slot", "zunde-cli virtual unset-on-demand '{\"program_id\": {\"TCServiceId\": \"281466386841601\", \"event_id\": \"vod-1\", \"start_time\": 0, \"duration\": 0}}'", {kId},
     [](const Args& a, Json::Value&) { return Vc()->UnsetOnDemandProgram(a.rec<FCVirtualProgramId>(0)); }},
    {"config", "The virtual channel configuration", "zunde-cli virtual config", {},
     [](const Args&, Json::Value& out) {
       FCVirtualConfig config;
       const bool ok = Vc()->GetVCConfig(config);
       out = J(config);
       return ok;
     }},
    {"featured", "The featured information of a channel", "zunde-cli virtual featured 281466386841601", {kService},
     [](const Args& a, Json::Value& out) {
       const unsigned long long service = a.u(0);
       FCVirtualChannelInfo info;
       const bool ok = Vc()->GetFeaturedVirtualChannelInfo(service, info);
       out = J(info);
       return ok;
     }},
    {"service-id", "The service id of an on-TV provider and service", "zunde-cli virtual service-id ontv-provider-1 ontv-movies",
     {{"PROVIDER", Kind::Text, "on-TV provider id"}, {"SERVICE", Kind::Text, "on-TV service id"}},
     [](const Args& a, Json::Value& out) {
       unsigned long long service = 0;
       const bool ok = Vc()->GetServiceIdFromOnTVProviderAndService(a.s(0), a.s(1), service);
       out["service_id"] = Json::UInt64(service);
       return ok;
     }},
    {"log-kpi", "Send a usage statistics event", "ZUNDE_VCONF_FILE=<(echo db/menu/corvina/homedatacontrol/defaultdisclaimeragree=1) "
     "ZUNDE_SYSTEM_INFO_FILE=<(echo SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=true) "
     "zunde-cli virtual log-kpi 1 watch channel 'watched 281466386841601'",
     {{"TYPE", Kind::Int, "KPI type"}, {"EVENT", Kind::Text, "event name"}, {"CATEGORY", Kind::Text, "category"},
      {"DESC", Kind::Text, "description"}},
     [](const Args& a, Json::Value&) {
       std::string event = a.s(1), category = a.s(2), desc = a.s(3);
       return Vc()->SendLogKPI(static_cast<Api::EKPIType>(a.i(0)), event, category, desc);
     }},
    YesNo({"viewing-agreement", "Whether the viewing agreement is given (status 1 when not)",
           "zunde-cli virtual viewing-agreement", {},
           [](const Args&, Json::Value& out) { return (out["agreed"] = Vc()->GetViewingAgreement()).asBool(); }}),
    YesNo({"program-info", "Whether programme information is available (status 1 when not)",
           "zunde-cli virtual program-info", {},
           [](const Args&, Json::Value& out) {
             return (out["available"] = Vc()->KivoProgramInfoIsAvailable()).asBool();
           }}),
    {"reset", "Reset the whole service to its defaults (every family, not only virtual channels)", "zunde-cli virtual reset", {},
     [](const Args&, Json::Value&) { return Vc()->Reset(); }},
  }};
}

}  // namespace zcli
