#include "guide_loader.h"

#include <map>
#include <memory>

#include "listed_guide.h"
#include "m3u_playlist.h"
#include "xml_stream.h"
#include "xmltv_mapping.h"
#include "xmltv_time.h"

namespace zunde::service::guide {

const char kM3uProvider[] = "m3u";

namespace {

const int kXmltvActivity = 0;
const unsigned long long kM3uServiceIds = 0xFFFDULL << 32;

// What an XMLTV file gives, read before anything of the catalogue changes.
struct XmltvGuide {
  std::vector<LineupChannel> channels;
  std::shared_ptr<const ListedGuide> programmes;
  int skipped = 0;
};

struct Skips {
  int unknownChannel = 0;
  int badTime = 0;
  int noEnd = 0;
  int Total() const { return unknownChannel + badTime + noEnd; }
};

XmltvGuide ReadXmltvGuide(const GuideFiles& files, GenreIds& genres, Skips& skips) {
  XmltvGuide guide;
  std::map<std::string, size_t> positions;
  ListedGuideBuilder builder(files.guidePath);
  XmltvHandlers handlers;
  handlers.channel = [&](const XmltvChannel& channel) {
    if (positions.count(channel.id) != 0) return;
    positions[channel.id] = guide.channels.size();
    builder.AddChannel(channel.id);
    guide.channels.push_back({ToRemoteChannel(channel, static_cast<int>(guide.channels.size()) + 1, kXmltvActivity), true});
  };
  handlers.programme = [&](const XmltvProgramme& programme) {
    const auto position = positions.find(programme.channel);
    if (position == positions.end()) return void(++skips.unknownChannel);
    uint32_t start = 0;
    uint32_t stop = 0;
    if (!ParseXmltvTime(programme.start, start) || (!programme.stop.empty() && !ParseXmltvTime(programme.stop, stop))) {
      return void(++skips.badTime);
    }
    const FCRemoteChannel& channel = guide.channels[position->second].channel;
    builder.Add(ToRemoteProgram(programme, channel, start, stop, files.language, genres), programme.stop.empty());
  };
  ReadXmltv(files.xmltv, handlers);
  guide.programmes = builder.Finish(skips.noEnd);
  return guide;
}

// The same tvg-id (else name) gives the same id each time the playlist is
// read; a clash moves on to the next free id.
unsigned long long StableId(const std::string& key, const std::map<unsigned long long, bool>& taken) {
  uint64_t hash = 1469598103934665603ULL;
  for (unsigned char c : key) hash = (hash ^ c) * 1099511628211ULL;
  unsigned long long id = kM3uServiceIds | (hash & 0xFFFFFFFFULL);
  while (taken.count(id) != 0) id = kM3uServiceIds | ((id + 1) & 0xFFFFFFFFULL);
  return id;
}

std::vector<VirtualChannel> ReadPlaylist(const std::string& path, GenreIds& genres) {
  std::vector<VirtualChannel> channels;
  std::map<unsigned long long, bool> taken;
  for (const M3uEntry& entry : ReadM3u(path)) {
    VirtualChannel channel;
    channel.service = entry.tvgId.empty() ? entry.name : entry.tvgId;
    channel.serviceId = StableId(channel.service, taken);
    taken[channel.serviceId] = true;
    channel.major = std::to_string(channels.size() + 1);
    channel.name = entry.name;
    channel.provider = kM3uProvider;
    channel.genre = entry.group.empty() ? "" : genres.IdOf(entry.group);
    channel.logo = entry.logo;
    channel.streamUrl = entry.url;
    channel.guideKey = entry.tvgId;
    channels.push_back(channel);
  }
  return channels;
}

std::string WarningOf(const std::string& path, const Skips& skips) {
  if (skips.Total() == 0) return "";
  return path + ": skipped " + std::to_string(skips.Total()) + " programmes (" + std::to_string(skips.unknownChannel) +
         " of no known channel, " + std::to_string(skips.badTime) + " with a time that does not parse, " +
         std::to_string(skips.noEnd) + " without an end after their start)";
}

void UseXmltvGuide(XmltvGuide& guide, Catalogue& catalogue) {
  Lineup* lineup = nullptr;
  for (Lineup& candidate : catalogue.lineups) {
    if (candidate.activity == kXmltvActivity) lineup = &candidate;
  }
  if (lineup == nullptr) {
    catalogue.lineups.push_back({kXmltvActivity, {}, {}});
    lineup = &catalogue.lineups.back();
  }
  lineup->channels = std::move(guide.channels);
  catalogue.listed = std::move(guide.programmes);
}

}  // namespace

void LoadGuideFiles(const GuideFiles& files, Catalogue& catalogue, std::string& warning) {
  GenreIds genres;
  Skips skips;
  XmltvGuide guide;
  if (!files.xmltv.empty()) guide = ReadXmltvGuide(files, genres, skips);
  std::vector<VirtualChannel> virtualChannels;
  if (!files.m3u.empty()) virtualChannels = ReadPlaylist(files.m3u, genres);
  // Nothing of the catalogue changes before both files have been read.
  if (!files.xmltv.empty()) UseXmltvGuide(guide, catalogue);
  if (!files.m3u.empty()) catalogue.virtualChannels = std::move(virtualChannels);
  catalogue.genres.insert(catalogue.genres.end(), genres.Genres().begin(), genres.Genres().end());
  warning = WarningOf(files.xmltv, skips);
}

}  // namespace zunde::service::guide
