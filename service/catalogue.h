// What the service offers beside the state users change: the broadcast
// channels, the operators' line-ups per activity, genres, recommendation
// groups, certification rules, VOD providers and the virtual channels.
//
// Programmes are not stored: each channel repeats a daily schedule that its
// genre sets, so a programme is computed from the channel and the time, and
// a 5,000-channel line-up costs no start-up time. The guide reaches from a
// day before the service started to a week after it (further for what an
// activity loaded more of). Only a guide file's programmes are stored, in
// an SQLite file of their own (guide_files/listed_guide.h), and shown as
// listed in place of the computed ones.
#ifndef ZUNDE_SERVICE_CATALOGUE_H
#define ZUNDE_SERVICE_CATALOGUE_H

#include <json/json.h>

#include <ctime>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "CZundeResponse.h"
#include "FCElementData.h"
#include "FCVirtualProgramData.h"

namespace zunde::service {

namespace guide {
class ListedGuide;
}

// One of the set's own tuned services.
struct BroadcastChannel {
  unsigned long long serviceId = 0;
  std::string name;
  std::string genre;     // a genre id
  std::string sourceId;  // the program source id operators list it under; "" when none does
};

// What a channel of a given genre shows each day: programme lengths in
// minutes, repeated from midnight UTC, and titles taken in turn.
struct Schedule {
  std::string genre;
  std::vector<int> minutes;
  std::vector<std::string> titles;
};

struct LineupChannel {
  FCRemoteChannel channel;
  bool tunable = true;
};

struct Lineup {
  int activity = 0;
  FCRemoteMSOConfig config;
  std::vector<LineupChannel> channels;
};

struct VirtualChannel {
  unsigned long long serviceId = 0;
  std::string major;
  std::string name;
  std::string provider;  // its provider and service ids on the OnTV side
  std::string service;
  std::string genre;
  std::string imageBase;  // logos, thumbnails and backgrounds live under it
  // A playlist's channel: its own logo and stream, and the guide channel
  // its programmes come from; "" for none.
  std::string logo;
  std::string streamUrl;
  std::string guideKey;
};

// A programme slot of a broadcast or virtual channel.
struct Slot {
  unsigned int start = 0;
  unsigned int duration = 0;
  std::string title;
  std::string genre;
  long index = 0;  // the slot's place in the channel's endless sequence
  std::optional<FCRemoteProgram> listed;  // the programme as a guide file lists it
};

struct Catalogue {
  std::vector<BroadcastChannel> broadcast;
  std::vector<Lineup> lineups;
  std::vector<FCGenreInfo> genres;
  std::vector<FCRepGenreInfo> repGenres;
  std::map<std::string, FCRecGroup> recGroups;
  CZundeResponse_CertRule certRule;
  CZundeResponse_VODProviders vodProviders;
  std::vector<Schedule> schedules;
  std::vector<VirtualChannel> virtualChannels;
  FCVirtualConfig virtualConfig;
  bool viewingAgreement = true;

  // Programmes a guide file lists; a channel key found there takes its
  // programmes from it instead of its genre's schedule.
  std::shared_ptr<const guide::ListedGuide> listed;

  // When the guide window was fixed: the service's start.
  time_t now = 0;

  const Lineup* LineupOf(int activity) const;
  const BroadcastChannel* BroadcastById(unsigned long long serviceId) const;
  const BroadcastChannel* BroadcastBySource(const std::string& sourceId) const;
  const VirtualChannel* VirtualById(unsigned long long serviceId) const;
  const Schedule& ScheduleOf(const std::string& genre) const;
  // Whether a guide file has the channel `key`.
  bool Lists(const std::string& key) const;

  // The guide window in whole UTC days: from the day before `now` to the
  // end of the seventh day after it.
  time_t WindowStart() const { return (now / 86400 - 1) * 86400; }
  time_t WindowEnd() const { return (now / 86400 + 8) * 86400; }

  // The slots of the channel `key` (of genre `genre`) that overlap
  // [from, to), clipped to [WindowStart(), `end`).
  std::vector<Slot> SlotsBetween(const std::string& key, const std::string& genre, time_t from, time_t to,
                                 time_t end) const;
  // The slot on air at `time`; false outside the window ending at `end`.
  bool SlotAt(const std::string& key, const std::string& genre, time_t time, time_t end, Slot& slot) const;
};

// The embedded default set: `lineupSize` broadcast and operator channels.
Catalogue DefaultCatalogue(int lineupSize);

// The documented file form (README.md, "Catalogue files").
Json::Value CatalogueToJson(const Catalogue& catalogue);

// A file that does not match the format.
struct CatalogueError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Fills what a catalogue file `doc` leaves out: top-level members from
// `defaults` (a document of the default set), and every field of a line-up,
// channel, broadcast or virtual channel element but those that identify it.
void FillLeftOut(Json::Value& doc, const Json::Value& defaults);

// Reads and checks `path`, what it leaves out taken from the default set of
// `lineupSize` stations; throws CatalogueError naming the first problem and
// where it is.
Catalogue LoadCatalogue(const std::string& path, int lineupSize = 60);

}  // namespace zunde::service

#endif
