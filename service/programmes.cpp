#include "programmes.h"

#include <ctime>

namespace zunde::service {

std::string ScheduleKey(const BroadcastChannel& channel) {
  return channel.sourceId.empty() ? std::to_string(channel.serviceId) : channel.sourceId;
}

std::string TimeText(unsigned int utc) {
  const time_t time = utc;
  struct tm parts {};
  gmtime_r(&time, &parts);
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", &parts);
  return text;
}

namespace {

FCRemoteProgram Program(const Slot& slot, const std::string& key, const std::string& name) {
  FCRemoteProgram p;
  p.str_channel_name = name;
  p.str_program_id = key + ":" + std::to_string(slot.start);
  p.str_lang = "en";
  p.str_starttime = TimeText(slot.start);
  p.utc_starttime = slot.start;
  p.duration = static_cast<int>(slot.duration);
  p.EndTime = slot.start + slot.duration;
  p.strTitle = slot.title;
  p.str_cert_flag = slot.genre == "G03" || slot.genre == "G08" ? "TV-14" : "TV-G";
  p.genre_array = {slot.genre};
  p.str_poster_url = "https://images.zunde.invalid/poster/" + key + "/" + std::to_string(slot.index % 1000) + ".jpg";
  p.str_poster_type = "jpg";
  p.str_poster_index = std::to_string(slot.index % 1000);
  p.str_short_desc = slot.title + " on " + name;
  p.desc = slot.title + ", " + TimeText(slot.start) + " UTC on " + name + ".";
  return p;
}

}  // namespace

FCRemoteProgram OperatorProgram(const FCRemoteChannel& channel, const Slot& slot) {
  if (slot.listed) return *slot.listed;
  FCRemoteProgram p = Program(slot, channel.str_program_source_id, channel.str_channel_name);
  p.activityID = channel.activityID;
  p.str_program_source_id = channel.str_program_source_id;
  p.str_channel_number = channel.str_channel_number;
  p.IsRF = false;
  return p;
}

FCRemoteProgram BroadcastProgram(const BroadcastChannel& channel, const Slot& slot) {
  FCRemoteProgram p = slot.listed ? *slot.listed : Program(slot, std::to_string(channel.serviceId), channel.name);
  p.str_program_id = std::to_string(channel.serviceId) + ":" + std::to_string(slot.start);
  p.str_channel_name = channel.name;
  p.str_program_source_id = channel.sourceId;
  p.IsRF = true;
  return p;
}

std::string ChannelKeyOfProgramId(const std::string& programId) { return programId.substr(0, programId.find(':')); }

bool PassesFilter(const std::vector<std::string>& genres, const FCFilterCriteria& filter, const Catalogue& catalogue) {
  std::string list = filter.genre_id_list;
  for (const FCRepGenreInfo& rep : catalogue.repGenres) {
    if (list.empty() && !filter.rep_id.empty() && rep.str_rep_id == filter.rep_id) list = rep.str_genre_id_list;
  }
  const auto group = catalogue.recGroups.find(filter.rec_id);
  if (list.empty() && group != catalogue.recGroups.end()) list = group->second.genre_id_list;
  if (list.empty()) return filter.rec_id.empty() && filter.rep_id.empty();
  for (const std::string& genre : genres) {
    if (list.find("," + genre + ",") != std::string::npos) return true;
  }
  return false;
}

}  // namespace zunde::service
