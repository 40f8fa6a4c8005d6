#include "xmltv_mapping.h"

#include <cctype>

#include "programmes.h"

namespace zunde::service::guide {
namespace {

std::string LeadingNumber(const std::string& text) {
  size_t end = 0;
  while (end < text.size() && std::isdigit(static_cast<unsigned char>(text[end]))) ++end;
  // "5 News" has a number; "5th Avenue" and "7even" do not.
  if (end == 0 || (end < text.size() && std::isalnum(static_cast<unsigned char>(text[end])))) return "";
  return text.substr(0, end);
}

std::string NumberOf(const XmltvChannel& channel, int position) {
  if (!channel.lcn.empty()) return channel.lcn;
  for (const std::string& name : channel.displayNames) {
    const std::string number = LeadingNumber(name);
    if (!number.empty()) return number;
  }
  return std::to_string(position);
}

bool SameLanguage(const std::string& lang, const std::string& wanted) {
  if (wanted.empty() || lang.compare(0, wanted.size(), wanted) != 0) return false;
  return lang.size() == wanted.size() || lang[wanted.size()] == '-' || lang[wanted.size()] == '_';
}

// The id an application can look the programme up by: the provider's own
// id when the file has one.
std::string ProgramIdOf(const XmltvProgramme& programme, uint32_t start) {
  for (const char* system : {"dd_progid", "xmltv_ns"}) {
    for (const EpisodeNum& episode : programme.episodeNums) {
      if (episode.system == system && !episode.text.empty()) return episode.text;
    }
  }
  return programme.channel + ":" + std::to_string(start);
}

std::string TextIn(const std::vector<LangText>& texts, const std::string& language) {
  const LangText* text = PickText(texts, language);
  return text ? text->text : "";
}

}  // namespace

std::string GenreIds::IdOf(const std::string& name) {
  const auto found = ids_.find(name);
  if (found != ids_.end()) return found->second;
  FCGenreInfo genre;
  genre.str_id = "X" + std::to_string(genres_.size() + 1);
  genre.str_name = name;
  genres_.push_back(genre);
  return ids_[name] = genre.str_id;
}

FCRemoteChannel ToRemoteChannel(const XmltvChannel& channel, int position, int activity) {
  FCRemoteChannel out;
  out.activityID = activity;
  out.str_program_source_id = channel.id;
  out.str_channel_name = channel.displayNames.empty() ? channel.id : channel.displayNames.front();
  out.str_channel_number = NumberOf(channel, position);
  out.str_major = out.str_channel_number;
  out.str_minor = "0";
  out.str_icon_url = channel.icon;
  return out;
}

const LangText* PickText(const std::vector<LangText>& texts, const std::string& language) {
  for (const LangText& text : texts) {
    if (SameLanguage(text.lang, language)) return &text;
  }
  return texts.empty() ? nullptr : &texts.front();
}

FCRemoteProgram ToRemoteProgram(const XmltvProgramme& programme, const FCRemoteChannel& channel, uint32_t start,
                                uint32_t stop, const std::string& language, GenreIds& genres) {
  FCRemoteProgram out;
  out.activityID = channel.activityID;
  out.str_program_source_id = channel.str_program_source_id;
  out.str_channel_name = channel.str_channel_name;
  out.str_channel_number = channel.str_channel_number;
  out.str_program_id = ProgramIdOf(programme, start);
  const LangText* title = PickText(programme.titles, language);
  out.str_lang = title ? title->lang : "";
  out.str_starttime = TimeText(start);
  out.utc_starttime = start;
  out.duration = static_cast<int>(stop - start);
  out.EndTime = stop;
  out.strTitle = title ? title->text : "";
  out.str_short_desc = TextIn(programme.descs, language);
  out.desc = out.str_short_desc;
  // Categories in the chosen language only: the same genre written in two
  // languages is one genre.
  const LangText* first = PickText(programme.categories, language);
  for (const LangText& category : programme.categories) {
    if (category.lang == first->lang) out.genre_array.push_back(genres.IdOf(category.text));
  }
  out.str_cert_flag = programme.rating;
  out.str_poster_url = programme.icon;
  return out;
}

}  // namespace zunde::service::guide
