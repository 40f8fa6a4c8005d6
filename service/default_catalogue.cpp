// The embedded default set: a cable operator on activity 0 and a satellite
// operator on activity 1 carrying the same stations under their own
// numbers, the set's broadcast services for most of those stations, and a
// handful of virtual channels. Nothing here depends on the clock.
#include "catalogue.h"

namespace zunde::service {
namespace {

struct GenreRow {
  const char* id;
  const char* name;
  const char* rep;
  const char* rec;
  std::vector<int> minutes;
  std::vector<std::string> titles;
  std::vector<std::string> stations;
};

const std::vector<GenreRow>& Genres() {
  static const std::vector<GenreRow> rows = {
      {"G01", "News", "R1", "REC1", {30}, {"Morning Report", "Headlines", "Business Hour", "World Desk", "Evening News", "Late Edition", "Weather Watch", "Politics Today"},
       {"Metro News", "World Report 24", "Capital Business", "City Desk"}},
      {"G02", "Sports", "R2", "REC2", {120, 60, 180, 90}, {"Match Day Live", "Goal Rush", "Court Side", "Motor Weekly", "Fight Night", "Sports Centre"},
       {"Arena Sports", "Field One", "Pitch TV", "Racing Channel"}},
      {"G03", "Movies", "R3", "REC1", {120, 105, 135}, {"The Long Road", "Harbour Lights", "Midnight Express Line", "Silver Canyon", "A Winter Promise", "The Last Orchard", "Quiet Storm", "Northern Star"},
       {"Cinema One", "Classic Movies", "Premiere Films", "Screen Max"}},
      {"G04", "Kids", "R4", "REC3", {30, 30, 60}, {"Bubble Friends", "Robo Pals", "Story Garden", "Little Explorers", "Cartoon Hour", "Dino Days"},
       {"Kids Zone", "Toon Town", "Junior TV"}},
      {"G05", "Documentary", "R1", "REC1", {60}, {"Planet Deep", "Ancient Cities", "Engineering Wonders", "Wild Coasts", "History Files", "Space Frontier"},
       {"Discovery Lane", "Nature Plus", "History Vault"}},
      {"G06", "Entertainment", "R4", "REC3", {30, 60, 60, 30}, {"Family Feud Night", "The Quiz Line", "Comedy Lounge", "Talent Street", "Late Talk", "Home Makeover"},
       {"Channel Five Star", "Fun TV", "Prime Entertainment", "Blue Sky TV", "Showcase"}},
      {"G07", "Music", "R4", "REC3", {60, 30}, {"Top 40 Countdown", "Unplugged", "Classic Hits", "Live at the Hall", "Beat Lab"},
       {"Music Box", "Hit Radio TV"}},
      {"G08", "Drama", "R3", "REC1", {60, 60, 45}, {"Hospital Hearts", "The Firm", "Coastal Police", "Family Ties", "Crown Court", "Dark Harbour"},
       {"Drama One", "Series Plus", "Stories TV"}},
      {"G09", "Lifestyle", "R4", "REC3", {30, 60}, {"Kitchen Table", "Garden Rescue", "Travel Diaries", "Fit in Five", "Home Chef"},
       {"Living TV", "Food Network Plus", "Travel Now"}},
  };
  return rows;
}

// How often each genre comes up along the line-up.
const int kGenreOrder[] = {5, 0, 2, 5, 1, 7, 3, 5, 0, 8, 2, 4, 6, 1, 7, 5, 3, 8, 0, 2};

const char* const kRepNames[][2] = {{"R1", "News & Info"}, {"R2", "Sports"}, {"R3", "Movies & Drama"}, {"R4", "Family"}};
const char* const kRecNames[][2] = {{"REC1", "Top Picks"}, {"REC2", "Sports Fans"}, {"REC3", "Family Time"}};

// The genre ids of the genres whose `field` is `value`, as ",id,id,"; the
// top picks cover every genre.
std::string IdList(const char* GenreRow::*field, const std::string& value) {
  std::string list = ",";
  for (const GenreRow& g : Genres()) {
    if (value == g.*field || value == "REC1") list += std::string(g.id) + ",";
  }
  return list;
}

std::string StationName(const GenreRow& genre, int station) {
  const int round = station / static_cast<int>(sizeof(kGenreOrder) / sizeof(int));
  const std::string& base = genre.stations[static_cast<size_t>(round) % genre.stations.size()];
  const int copy = round / static_cast<int>(genre.stations.size());
  return copy == 0 ? base : base + " " + std::to_string(copy + 1);
}

const GenreRow& GenreOf(int station) { return Genres()[kGenreOrder[station % (sizeof(kGenreOrder) / sizeof(int))]]; }

// The set's service id of a station: network, transport stream, service.
unsigned long long ServiceIdOf(int station) {
  return (0x22D4ULL << 32) | (static_cast<unsigned long long>(1 + station / 10) << 16) | static_cast<unsigned>(100 + station);
}

std::string SourceIdOf(int station) { return std::to_string(10001 + station); }

// Every eighth station is the operators' own (no broadcast service), and the
// set has a local service in its place that no operator lists.
bool CableOnly(int station) { return station % 8 == 5; }

LineupChannel OperatorChannel(int activity, int station, int number) {
  const GenreRow& genre = GenreOf(station);
  LineupChannel entry;
  FCRemoteChannel& c = entry.channel;
  c.activityID = activity;
  c.str_program_source_id = SourceIdOf(station);
  c.str_channel_name = StationName(genre, station);
  c.str_channel_number = std::to_string(number);
  c.str_alias = "ST" + std::to_string(station + 1);
  c.str_major = c.str_channel_number;
  c.str_minor = "0";
  if (!CableOnly(station)) {
    const unsigned long long id = ServiceIdOf(station);
    c.str_onid = std::to_string(id >> 32);
    c.str_tsid = std::to_string((id >> 16) & 0xFFFF);
    c.str_sid = std::to_string(id & 0xFFFF);
  }
  c.str_frequency = std::to_string(57000 + 6000 * (station / 10));
  c.str_ptc = std::to_string(2 + station / 10);
  c.str_icon_url = "https://logos.zunde.invalid/" + c.str_program_source_id + ".png";
  c.str_url_index = std::to_string(station);
  c.str_dtv = "1";
  c.embed = 0;
  c.str_digital_flag = "1";
  c.str_qam_flag = activity == 0 ? "1" : "0";
  c.genre_id = genre.id;
  c.genre_name = genre.name;
  c.ac_rank = station < 8 ? std::to_string(station + 1) : "";
  entry.tunable = activity != 0 || station % 10 != 9;  // the cable premium tier is not subscribed
  return entry;
}

Lineup OperatorLineup(int activity, int size) {
  Lineup lineup;
  lineup.activity = activity;
  lineup.config.strHeadend = activity == 0 ? "CA-METRO-01" : "SAT-NORTH-02";
  lineup.config.strDeviceType = activity == 0 ? "cable" : "satellite";
  lineup.config.strZipCode = "94105";
  lineup.config.source = activity == 0 ? 7 : 8;
  for (int station = 0; station < size; ++station) {
    // The satellite operator carries two stations in three, numbered from 101.
    if (activity == 1 && station % 3 == 2) continue;
    const int number = activity == 0 ? (station < 98 ? station + 2 : station + 102) : 101 + station;
    lineup.channels.push_back(OperatorChannel(activity, station, number));
  }
  return lineup;
}

void AddGenres(Catalogue& c) {
  for (const GenreRow& g : Genres()) {
    FCGenreInfo info;
    info.str_id = g.id;
    info.str_rep_id = g.rep;
    info.rec_id = g.rec;
    info.str_name = g.name;
    info.str_genre_img_url = std::string("https://images.zunde.invalid/genre/") + g.id + ".png";
    info.str_genre_img_type = "png";
    info.str_genre_img_index = std::string(g.id).substr(1);
    c.genres.push_back(info);
    c.schedules.push_back({g.id, g.minutes, g.titles});
  }
  for (const auto& rep : kRepNames) {
    FCRepGenreInfo info;
    info.str_rep_id = rep[0];
    info.str_name = rep[1];
    info.str_genre_id_list = IdList(&GenreRow::rep, rep[0]);
    c.repGenres.push_back(info);
  }
  for (const auto& rec : kRecNames) {
    FCRecGroup group;
    group.rec_id = rec[0];
    group.name = rec[1];
    group.avail_country = "US";
    group.genre_id_list = IdList(&GenreRow::rec, rec[0]);
    c.recGroups[group.rec_id] = group;
  }
}

void AddServices(Catalogue& c) {
  c.certRule.str_first_screen = "guide";
  c.certRule.str_adult_default = "locked";
  c.certRule.str_bar_mode = "top";
  c.certRule.str_bar_ratio = "0.1";
  c.certRule.str_service_cert_type = "TV-PG";
  c.certRule.str_service_rule = "TV-MA requires PIN";
  c.certRule.str_service_uptime_begin = "06:00";
  c.certRule.str_service_uptime_end = "23:00";
  const char* const providers[][3] = {{"vod-01", "StreamBox", "widget.streambox"},
                                      {"vod-02", "FilmVault", "widget.filmvault"},
                                      {"vod-03", "KidsPlay", "widget.kidsplay"}};
  for (const auto& p : providers) {
    CZundeResElement_VODProvider provider;
    provider.provider_id = p[0];
    provider.name = p[1];
    provider.widget_id = p[2];
    provider.logo = std::string("https://logos.zunde.invalid/vod/") + p[0] + ".png";
    provider.version = "1.0";
    c.vodProviders[p[0]] = provider;
  }
  const char* const virtuals[][3] = {{"Reel Classics", "G03", "movies"},   {"Toon Vault", "G04", "cartoons"},
                                     {"Kitchen Table", "G09", "cooking"},  {"Wild Planet", "G05", "nature"},
                                     {"Laugh Track", "G06", "comedy"},     {"Pulse Music", "G07", "music"}};
  for (int k = 0; k < 6; ++k) {
    const std::string n = std::to_string(k + 1);
    c.virtualChannels.push_back({(0xFFFEULL << 32) | (1ULL << 16) | static_cast<unsigned>(k + 1), std::to_string(4001 + k),
                                 virtuals[k][0], "ontv-provider-1", std::string("ontv-") + virtuals[k][2], virtuals[k][1],
                                 "https://images.zunde.invalid/vc/" + n, "", "", ""});
  }
  Json::Value config;
  config["ch_position"]["position"] = "after_last";
  config["ch_position"]["type"] = "major";
  config["vc_banner"]["tv_to_vc"] = "show";
  config["vc_banner"]["vc_to_tv"] = "hide";
  FCVirtualConfig::FromJson(config, c.virtualConfig);
}

}  // namespace

Catalogue DefaultCatalogue(int lineupSize) {
  Catalogue c;
  for (int station = 0; station < lineupSize; ++station) {
    const GenreRow& genre = GenreOf(station);
    if (CableOnly(station)) {
      c.broadcast.push_back({ServiceIdOf(station), "Local " + std::to_string(station + 1), genre.id, ""});
    } else {
      c.broadcast.push_back({ServiceIdOf(station), StationName(genre, station), genre.id, SourceIdOf(station)});
    }
  }
  c.lineups = {OperatorLineup(0, lineupSize), OperatorLineup(1, lineupSize)};
  AddGenres(c);
  AddServices(c);
  return c;
}

}  // namespace zunde::service
