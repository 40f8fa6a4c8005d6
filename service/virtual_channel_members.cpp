// The virtual channels family: computed programme slots with play lists,
// logos and images under each channel's image base, the on-demand slot of
// a channel and the usage events. A slot's event id is "<service id>:<start>"; the programme
// indicator asks for the slot before (-1), the same (0) or after (1).
#include <ctime>

#include "FCMarshal.h"
#include "FCVirtualChannelsAPI.h"
#include "FCVirtualProgramData.h"
#include "handler_helpers.h"
#include "virtual_state.h"

namespace zunde::service {
namespace {

using T = JsonType;

const int kPlaylistItems = 3;

const VirtualChannel& ChannelOf(Request& request, unsigned long long id) {
  const VirtualChannel* channel = request.catalogue.VirtualById(id);
  if (channel == nullptr) throw BadRequest("no virtual channel " + std::to_string(id));
  return *channel;
}

FCVirtualProgramId IdOf(Request& request) {
  FCVirtualProgramId id;
  FCMarshal::JsonToVirtualProgramId(request.body, id);
  return id;
}

// A playlist's channel plays its own stream and shows its guide channel's
// programmes; the others have everything under their image base.
std::string ScheduleKeyOf(const VirtualChannel& channel) {
  return channel.guideKey.empty() ? std::to_string(channel.serviceId) : channel.guideKey;
}

std::string StreamOf(const VirtualChannel& channel, const std::string& start) {
  return channel.streamUrl.empty() ? channel.imageBase + "/stream/" + start + ".m3u8" : channel.streamUrl;
}

FCVirtualProgramData ProgramOf(const VirtualChannel& channel, const Slot& slot) {
  const std::string start = std::to_string(slot.start);
  FCVirtualProgramData program;
  program.SetServiceId(channel.serviceId);
  program.SetEventId(std::to_string(channel.serviceId) + ":" + start);
  program.SetContentType("playlist");
  program.SetContentUri(StreamOf(channel, start));
  program.SetStartTime(slot.start);
  program.SetDuration(slot.duration);
  program.SetTitle(slot.title);
  // A playlist's channel plays its one stream; the others a few clips.
  const int items = channel.streamUrl.empty() ? kPlaylistItems : 1;
  std::vector<FCVirtualPlaylistItem> playlist(items);
  for (int i = 0; i < items; ++i) {
    playlist[i].SetOrder(i + 1);
    playlist[i].SetItemId(start + "-" + std::to_string(i + 1));
    playlist[i].SetTitle(items == 1 ? slot.title : slot.title + " (part " + std::to_string(i + 1) + ")");
    playlist[i].SetContentUri(items == 1 ? channel.streamUrl
                                         : channel.imageBase + "/clips/" + start + "-" + std::to_string(i + 1) + ".mp4");
    playlist[i].SetDuration(slot.duration / items);
  }
  program.SetPlaylist(playlist);
  program.SetPosterUrl(channel.imageBase + "/poster/" + start + ".jpg");
  program.SetPosterIndex(std::to_string(slot.index % 1000));
  program.SetShortDescription(slot.title + " on " + channel.name);
  if (slot.listed) {
    program.SetPosterUrl(slot.listed->str_poster_url);
    program.SetShortDescription(slot.listed->str_short_desc);
  }
  return program;
}

// A playlist's channel shows only what a guide file lists for it: made-up
// programmes on a real stream would mislead.
std::vector<Slot> SlotsOf(Request& request, const VirtualChannel& channel, time_t from, time_t to) {
  if (!channel.streamUrl.empty() && !request.catalogue.Lists(channel.guideKey)) return {};
  return request.catalogue.SlotsBetween(ScheduleKeyOf(channel), channel.genre, from, to, request.catalogue.WindowEnd());
}

Slot SlotAt(Request& request, const VirtualChannel& channel, time_t time) {
  std::vector<Slot> slots = SlotsOf(request, channel, time, time + 1);
  if (slots.empty()) {
    throw BadRequest("no programme on virtual channel " + std::to_string(channel.serviceId) + " at " + std::to_string(time));
  }
  return slots.front();
}

void ReplyProgram(const FCVirtualProgramData& program, Json::Value& reply) {
  FCMarshal::VirtualProgramDataToJson(program, reply);
  Succeed(reply);
}

void ReplyImage(Request& request, Json::Value& reply, const char* kind) {
  const FCVirtualProgramId id = IdOf(request);
  FCMarshal::ProgramLogoToJson(
      ChannelOf(request, id.GetServiceId()).imageBase + "/" + kind + "/" + std::to_string(id.GetStartTime()) + ".jpg", reply);
  Succeed(reply);
}

// --- programmes ---

void ProgramList(Request& request, Json::Value& reply) {
  const VirtualChannel& channel = ChannelOf(request, ServiceIdOf(request));
  unsigned long start = 0;
  unsigned int duration = 0;
  FCMarshal::JsonToStartTime(request.body, start);
  FCMarshal::JsonToDuration(request.body, duration);
  std::map<unsigned int, FCVirtualProgramData> programs;
  for (const Slot& slot : SlotsOf(request, channel, start, static_cast<time_t>(start) + duration)) {
    programs[slot.start] = ProgramOf(channel, slot);
  }
  FCMarshal::VirtualProgramMapToJson(programs, reply);
  Succeed(reply);
}

void ProgramWithIndicator(Request& request, Json::Value& reply) {
  EProgramIndicator indicator;
  FCMarshal::JsonToEProgramIndicator(request.body, indicator);
  const FCVirtualProgramId id = IdOf(request);
  const VirtualChannel& channel = ChannelOf(request, id.GetServiceId());
  const Slot same = SlotAt(request, channel, id.GetStartTime());
  time_t at = same.start;
  if (indicator == 1) at = static_cast<time_t>(same.start) + same.duration;
  if (indicator == -1) at = static_cast<time_t>(same.start) - 1;
  if (indicator < -1 || indicator > 1) throw BadRequest("programme indicator " + std::to_string(indicator) + " is not -1 to 1");
  ReplyProgram(ProgramOf(channel, SlotAt(request, channel, at)), reply);
}

// An on-demand slot is found by its event id before the schedule is asked.
void Program(Request& request, Json::Value& reply) {
  const FCVirtualProgramId id = IdOf(request);
  const auto onDemand = LoadOnDemand(request.store, id.GetServiceId());
  if (onDemand && onDemand->GetEventId() == id.GetEventId()) return ReplyProgram(*onDemand, reply);
  const VirtualChannel& channel = ChannelOf(request, id.GetServiceId());
  ReplyProgram(ProgramOf(channel, SlotAt(request, channel, id.GetStartTime())), reply);
}

void Present(Request& request, Json::Value& reply) {
  const VirtualChannel& channel = ChannelOf(request, ServiceIdOf(request));
  ReplyProgram(ProgramOf(channel, SlotAt(request, channel, std::time(nullptr))), reply);
}

// --- images ---

void ChannelLogo(Request& request, Json::Value& reply) {
  FCVirtualChannelsAPI::EChannelLogoSize size;
  FCMarshal::JsonToLogoSize(request.body, size);
  const VirtualChannel& channel = ChannelOf(request, ServiceIdOf(request));
  FCMarshal::ChannelLogoToJson(
      channel.streamUrl.empty() ? channel.imageBase + "/logo_" + std::to_string(size) + ".png" : channel.logo, reply);
  Succeed(reply);
}

void Thumbnail(Request& request, Json::Value& reply) { ReplyImage(request, reply, "thumbnail"); }
void Background(Request& request, Json::Value& reply) { ReplyImage(request, reply, "background"); }

// The download id is the same for the same image: from the start time and
// the image type, never 0.
void Image(Request& request, Json::Value& reply) {
  FCVirtualChannelsAPI::EProgramLogoType type;
  FCMarshal::JsonToProgramLogoType(request.body, type);
  const FCVirtualProgramId id = IdOf(request);
  const std::string base = ChannelOf(request, id.GetServiceId()).imageBase;
  FCMarshal::ImageDownloadIdToJson(static_cast<long>(id.GetStartTime() / 60 % 1000000) * 10 + type % 10 + 1, reply);
  FCMarshal::ProgramLogoToJson(base + "/image_" + std::to_string(type) + "/" + std::to_string(id.GetStartTime()) + ".jpg",
                               reply);
  Succeed(reply);
}

// --- on-demand slots ---

FCVirtualProgramId IdOfProgram(const FCVirtualProgramData& program) {
  FCVirtualProgramId id;
  id.SetServiceId(program.GetServiceId());
  id.SetEventId(program.GetEventId());
  id.SetStartTime(program.GetStartTime());
  id.SetDuration(program.GetDuration());
  return id;
}

void SetOnDemand(Request& request, Json::Value& reply) {
  const unsigned long long serviceId = ServiceIdOf(request);
  ChannelOf(request, serviceId);
  FCVirtualProgramData program;
  FCMarshal::JsonToVirtualProgramData(request.body, program);
  program.SetServiceId(serviceId);
  if (program.GetEventId().empty()) program.SetEventId("on demand:" + std::to_string(program.GetStartTime()));
  SaveOnDemand(request.store, serviceId, program);
  FCMarshal::VirtualProgramIdToJson(IdOfProgram(program), reply);
  Succeed(reply);
}

void UnsetOnDemand(Request& request, Json::Value& reply) {
  const FCVirtualProgramId id = IdOf(request);
  const auto onDemand = LoadOnDemand(request.store, id.GetServiceId());
  if (!onDemand || onDemand->GetEventId() != id.GetEventId()) throw BadRequest("no such on-demand slot");
  EraseOnDemand(request.store, id.GetServiceId());
  Succeed(reply);
}

void OnDemandIdentifier(Request& request, Json::Value& reply) {
  const auto onDemand = LoadOnDemand(request.store, ServiceIdOf(request));
  if (!onDemand) throw BadRequest("no on-demand slot on that channel");
  FCMarshal::VirtualProgramIdToJson(IdOfProgram(*onDemand), reply);
  Succeed(reply);
}

// --- channels, configuration, agreement ---

void Config(Request& request, Json::Value& reply) {
  FCMarshal::VirtualConfigToJson(request.catalogue.virtualConfig, reply);
  Succeed(reply);
}

void FeaturedInfo(Request& request, Json::Value& reply) {
  const VirtualChannel& channel = ChannelOf(request, ServiceIdOf(request));
  FCVirtualChannelInfo info;
  info.SetMajor(channel.major);
  info.SetChannelName(channel.name);
  info.SetLogoCollection({{"small", 0}, {"medium", 1}, {"large", 2}});
  FCMarshal::VirtualChannelInfoToJson(info, reply);
  Succeed(reply);
}

void ServiceIdFromOnTv(Request& request, Json::Value& reply) {
  std::string provider;
  std::string service;
  FCMarshal::JsonToOnTvProviderId(request.body, provider);
  FCMarshal::JsonToOnTvServiceId(request.body, service);
  for (const VirtualChannel& channel : request.catalogue.virtualChannels) {
    if (channel.provider == provider && channel.service == service) {
      FCMarshal::VCServiceIdToJson(channel.serviceId, reply);
      return Succeed(reply);
    }
  }
  throw BadRequest("no virtual channel for \"" + provider + "\" and \"" + service + "\"");
}

// Only the newest events are kept (--kpi-log-limit).
void LogKpi(Request& request, Json::Value& reply) {
  KpiEvent event;
  FCMarshal::JsonToKPIInfo(request.body, event.type, event.name, event.category, event.desc);
  event.time = std::time(nullptr);
  LogKpiEvent(request.store, event, request.limits.kpiLog);
  Succeed(reply);
}

void ViewingAgreement(Request& request, Json::Value& reply) { reply["ret"] = request.catalogue.viewingAgreement; }
void ProgramInfoAvailable(Request& request, Json::Value& reply) {
  reply["ret"] = !request.catalogue.virtualChannels.empty();
}

const RequiredKey kServiceId{"TCServiceId", T::String};
const RequiredKey kProgramId{"program_id", T::Object};

}  // namespace

const MemberTable& VirtualChannelMembers() {
  static const MemberTable table = {
      {"GetProgramList", {kServiceId, {"start_time", T::UInt}, {"duration", T::UInt}}, ProgramList, kKeepsAnswer},
      {"GetProgramWithIndicator", {{"program_indicator", T::Int}, kProgramId}, ProgramWithIndicator, kReads},
      {"GetProgram", {kProgramId}, Program, kReads},
      {"GetPresentProgram", {kServiceId}, Present, kReads},
      {"GetChannelLogo", {kServiceId}, ChannelLogo, kReads},
      {"GetProgramThumbnail", {kProgramId}, Thumbnail, kReads},
      {"GetProgramImage", {kProgramId}, Image, kReads},
      {"GetProgramBackground", {kProgramId}, Background, kReads},
      {"SetOnDemandProgram", {kServiceId}, SetOnDemand, kChanges},
      {"UnsetOnDemandProgram", {kProgramId}, UnsetOnDemand, kChanges},
      {"GetOnDemandIdentifier", {kServiceId}, OnDemandIdentifier, kReads},
      {"GetVCConfig", {}, Config, kReads},
      {"GetFeaturedVirtualChannelInfo", {kServiceId}, FeaturedInfo, kReads},
      {"GetServiceIdFromOnTVProviderAndService", {{"onTvProviderId", T::String}, {"onTvServiceId", T::String}}, ServiceIdFromOnTv, kReads},
      {"SendLogKPI", {{"KPIType", T::Int}}, LogKpi, kChanges},
      {"GetViewingAgreement", {}, ViewingAgreement, kReads},
      {"KivoProgramInfoIsAvailable", {}, ProgramInfoAvailable, kReads},
  };
  return table;
}

}  // namespace zunde::service
