// zunde-cli catalogue export-xmltv: the line-up and guide of an activity
// as an XMLTV document on standard output, valid against the XMLTV DTD, so
// that other guide tools (and zunde-service --xmltv) can read it.
#include <cmath>
#include <cstdio>
#include <ctime>
#include <map>
#include <memory>
#include <string>

#include "arg_checks.h"
#include "direct_commands.h"
#include "guide_window.h"
#include "session.h"

namespace zcli {
namespace {

struct ExportOptions {
  int activity = 0;
  std::string from = "now";
  double hours = 24;
};

// XML text: the five special characters escaped, and the control
// characters XML 1.0 cannot carry dropped.
std::string Xml(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    switch (c) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '"': out += "&quot;"; break;
      case '\'': out += "&apos;"; break;
      default:
        if (static_cast<unsigned char>(c) >= 0x20 || c == '\t' || c == '\n' || c == '\r') out += c;
    }
  }
  return out;
}

std::string XmltvTime(long long utc) {
  const time_t time = static_cast<time_t>(utc);
  struct tm parts {};
  gmtime_r(&time, &parts);
  char text[32];
  std::strftime(text, sizeof text, "%Y%m%d%H%M%S +0000", &parts);
  return text;
}

// An element holding text, with an optional lang attribute; nothing for
// empty text.
std::string Element(const char* name, const std::string& text, const std::string& lang = "") {
  if (text.empty()) return "";
  const std::string attribute = lang.empty() ? "" : " lang=\"" + Xml(lang) + "\"";
  return std::string("    <") + name + attribute + ">" + Xml(text) + "</" + name + ">\n";
}

std::string Icon(const std::string& src) { return src.empty() ? "" : "    <icon src=\"" + Xml(src) + "\"/>\n"; }

// The channel number goes in a second display-name, which is where XMLTV
// readers (and zunde-service) look for it.
void WriteChannel(const FCRemoteChannel& channel) {
  std::printf("  <channel id=\"%s\">\n%s%s%s  </channel>\n", Xml(channel.str_program_source_id).c_str(),
              Element("display-name", channel.str_channel_name.empty() ? channel.str_program_source_id
                                                                       : channel.str_channel_name)
                  .c_str(),
              Element("display-name", channel.str_channel_number).c_str(), Icon(channel.str_icon_url).c_str());
}

// Children in the order the DTD requires: title, desc, category, icon,
// episode-num, rating. The programme id travels as dd_progid, which
// zunde-service reads back as the same id.
void WriteProgramme(const FCRemoteProgram& p, const std::map<std::string, std::string>& genreNames) {
  std::string body = "    <title" + (p.str_lang.empty() ? "" : " lang=\"" + Xml(p.str_lang) + "\"") + ">" +
                     Xml(p.strTitle) + "</title>\n";
  body += Element("desc", p.str_short_desc.empty() ? p.desc : p.str_short_desc, p.str_lang);
  for (const std::string& genre : p.genre_array) {
    const auto name = genreNames.find(genre);
    body += Element("category", name == genreNames.end() ? genre : name->second);
  }
  body += Icon(p.str_poster_url);
  if (!p.str_program_id.empty()) {
    body += "    <episode-num system=\"dd_progid\">" + Xml(p.str_program_id) + "</episode-num>\n";
  }
  if (!p.str_cert_flag.empty()) body += "    <rating>\n  " + Element("value", p.str_cert_flag) + "    </rating>\n";
  std::printf("  <programme start=\"%s\" stop=\"%s\" channel=\"%s\">\n%s  </programme>\n",
              XmltvTime(p.utc_starttime).c_str(), XmltvTime(static_cast<long long>(p.utc_starttime) + p.duration).c_str(),
              Xml(p.str_program_source_id).c_str(), body.c_str());
}

std::map<std::string, std::string> GenreNames(int activity) {
  std::vector<FCGenreInfo> genres;
  std::map<std::string, std::string> names;
  FCAPI::GetRemoteContentMSOAPI()->GetGenreList(static_cast<eRemoteContentActivity>(activity), genres);
  for (const FCGenreInfo& genre : genres) names[genre.str_id] = genre.str_name;
  return names;
}

int Export(const ExportOptions& options) {
  std::vector<GuideRow> rows;
  const int seconds = static_cast<int>(std::lround(options.hours * 3600));
  if (const int failed = FetchGuide(options.activity, ParseFrom(options.from), seconds, rows, "export-xmltv")) return failed;
  const std::map<std::string, std::string> genreNames = GenreNames(options.activity);
  std::printf("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE tv SYSTEM \"xmltv.dtd\">\n"
              "<tv generator-info-name=\"zunde-cli\">\n");
  for (const GuideRow& row : rows) WriteChannel(row.channel);
  for (const GuideRow& row : rows) {
    for (const FCRemoteProgram& program : row.programs) WriteProgramme(program, genreNames);
  }
  std::printf("</tv>\n");
  return std::fflush(stdout) == 0 ? kOk : kRefused;
}

}  // namespace

void AddExportXmltv(CLI::App& app, Action& action) {
  auto options = std::make_shared<ExportOptions>();
  CLI::App* exporter = app.get_subcommand("catalogue")->add_subcommand(
      "export-xmltv", "The line-up and its guide as XMLTV on standard output");
  exporter->footer("Example: zunde-cli catalogue export-xmltv --activity 0 --from now --hours 6 > guide.xml");
  exporter->add_option("--activity", options->activity, "remote content activity (default 0)");
  exporter->add_option("--from", options->from, kFromHelp)->check(CLI::Validator(CheckTime, "TIME"));
  exporter->add_option("--hours", options->hours, "how many hours of guide (default 24)")->check(CLI::Range(0.5, 720.0));
  exporter->callback([options, &action] { action = [options] { return Export(*options); }; });
}

}  // namespace zcli
