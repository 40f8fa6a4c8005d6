// Records of the virtual channels: internet-delivered, playlist-driven
// channels that the service offers beside the broadcast ones.
//
//   FCVirtualProgramId     the key of a programme slot
//   FCVirtualPlaylistItem  one clip of a slot's play list
//   FCVirtualProgramData   a programme slot as the guide shows it
//   FCVirtualChannelInfo   number, name and logos of a virtual channel
//   FCVirtualConfig        presentation settings of the virtual channel band
//
// The service reads and writes the same records, so their JSON forms are a
// wire format. `ToJson` writes into an object (or null) value, `FromJson`
// reads from one without changing it; both return true. A key missing on
// reading gives the field's default, a value of the wrong type reads as 0 or
// "" rather than throwing.
//
// Service ids (`TCServiceId`) travel as decimal text under "TCServiceId",
// never as JSON numbers. Times are seconds since the epoch (UTC), durations
// are seconds.
#ifndef ZUNDE_FCVIRTUALPROGRAMDATA_H
#define ZUNDE_FCVIRTUALPROGRAMDATA_H

#include <json/json.h>

#include <map>
#include <string>
#include <vector>

// The identity of a programme slot. A service id of 0 means "unknown" and
// matches any service id in comparisons.
//
// JSON: {"program_id": {"TCServiceId": "<decimal>", "event_id": "...",
//        "start_time": <unsigned>, "duration": <unsigned>}}
// On reading, "start_time" may also be a W3C date-time text; text that is
// no date-time reads as 0.
class FCVirtualProgramId {
 public:
  FCVirtualProgramId();

  unsigned long long GetServiceId() const { return m_serviceId; }
  void SetServiceId(unsigned long long serviceId) { m_serviceId = serviceId; }
  const std::string& GetEventId() const { return m_eventId; }
  void SetEventId(const std::string& eventId) { m_eventId = eventId; }
  unsigned int GetStartTime() const { return m_startTime; }
  void SetStartTime(unsigned int startTime) { m_startTime = startTime; }
  unsigned int GetDuration() const { return m_duration; }
  void SetDuration(unsigned int duration) { m_duration = duration; }

  // By service id when both are known and differ, then by start time, then
  // by event id. Duration takes no part.
  bool operator<(const FCVirtualProgramId& other) const;
  // Service ids match when equal or when either is 0; then event id, start
  // time and duration must all be equal.
  bool operator==(const FCVirtualProgramId& other) const;

  // "TCServiceId: ", "id: ", "start_time: ", "duration: ", one line each.
  std::string ToString() const;

  static bool ToJson(const FCVirtualProgramId& id, Json::Value& out);
  static bool FromJson(Json::Value& in, FCVirtualProgramId& out);

 private:
  unsigned long long m_serviceId;
  std::string m_eventId;
  unsigned int m_startTime;
  unsigned int m_duration;
};

// One clip of a slot's play list.
//
// JSON: {"order": <unsigned>, "id": "...", "title": "...",
//        "content_uri": "...", "duration": <unsigned>}
// On reading, "order" and "duration" may also be numeric text ("16", "0x10").
class FCVirtualPlaylistItem {
 public:
  FCVirtualPlaylistItem();
  ~FCVirtualPlaylistItem();

  unsigned int GetOrder() const { return m_order; }
  void SetOrder(unsigned int order) { m_order = order; }
  const std::string& GetItemId() const { return m_itemId; }
  void SetItemId(const std::string& itemId) { m_itemId = itemId; }
  const std::string& GetTitle() const { return m_title; }
  void SetTitle(const std::string& title) { m_title = title; }
  const std::string& GetContentUri() const { return m_contentUri; }
  void SetContentUri(const std::string& contentUri) { m_contentUri = contentUri; }
  unsigned int GetDuration() const { return m_duration; }
  void SetDuration(unsigned int duration) { m_duration = duration; }

  // Every field equal.
  bool operator==(const FCVirtualPlaylistItem& other) const;

  // "order: ", "id: ", "title: ", "content_uri: ", "duration: ", one line each.
  std::string ToString() const;

  static bool ToJson(const FCVirtualPlaylistItem& item, Json::Value& out);
  static bool FromJson(Json::Value& in, FCVirtualPlaylistItem& out);

 private:
  unsigned int m_order;
  std::string m_itemId;
  std::string m_title;
  std::string m_contentUri;
  unsigned int m_duration;
};

// A programme slot as the guide shows it.
//
// JSON, one flat object:
//   "program_data": {"TCServiceId": "<decimal>"}, "id", "content_type",
//   "content_uri", "title", "short_desc" (strings), "relative_offset",
//   "playlist_item_index" (signed), "starttime" (W3C date-time text, UTC,
//   ending in "Z"), "duration" (unsigned), "poster": {"url", "index"},
//   "group_play_list" (array of playlist items, left out when empty).
// Any further members the service sends ride along in `metadata` and are
// written back at the top level; see `metadata` below.
class FCVirtualProgramData {
 public:
  FCVirtualProgramData();
  FCVirtualProgramData(const FCVirtualProgramData& other);
  FCVirtualProgramData& operator=(const FCVirtualProgramData& other);
  ~FCVirtualProgramData();

  unsigned long long GetServiceId() const { return m_serviceId; }
  void SetServiceId(unsigned long long serviceId) { m_serviceId = serviceId; }
  const std::string& GetEventId() const { return m_eventId; }
  void SetEventId(const std::string& eventId) { m_eventId = eventId; }
  const std::string& GetContentType() const { return m_contentType; }
  void SetContentType(const std::string& contentType) { m_contentType = contentType; }
  const std::string& GetContentUri() const { return m_contentUri; }
  void SetContentUri(const std::string& contentUri) { m_contentUri = contentUri; }
  unsigned int GetStartTime() const { return m_startTime; }
  void SetStartTime(unsigned int startTime) { m_startTime = startTime; }
  unsigned int GetDuration() const { return m_duration; }
  void SetDuration(unsigned int duration) { m_duration = duration; }
  const std::string& GetTitle() const { return m_title; }
  void SetTitle(const std::string& title) { m_title = title; }
  const std::vector<FCVirtualPlaylistItem>& GetPlaylist() const { return m_playlist; }
  void SetPlaylist(const std::vector<FCVirtualPlaylistItem>& playlist) { m_playlist = playlist; }
  const std::string& GetPosterUrl() const { return m_posterUrl; }
  void SetPosterUrl(const std::string& posterUrl) { m_posterUrl = posterUrl; }
  const std::string& GetPosterIndex() const { return m_posterIndex; }
  void SetPosterIndex(const std::string& posterIndex) { m_posterIndex = posterIndex; }
  const std::string& GetShortDescription() const { return m_shortDescription; }
  void SetShortDescription(const std::string& shortDescription) { m_shortDescription = shortDescription; }
  int GetRelativeOffset() const { return m_relativeOffset; }
  void SetRelativeOffset(int relativeOffset) { m_relativeOffset = relativeOffset; }
  int GetPlaylistItemIndex() const { return m_playlistItemIndex; }
  void SetPlaylistItemIndex(int playlistItemIndex) { m_playlistItemIndex = playlistItemIndex; }

  // Seconds since the start of the slot by the current clock; 0 while the
  // slot has not started yet.
  unsigned int GetTimeOffset();
  // Always empty: virtual slots carry no series. Kept so that the
  // programme records of the library share one interface.
  std::string GetSeriesId() const;
  // Copies service id, event id, start time and duration; returns true.
  bool GetProgramId(FCVirtualProgramId& out) const;

  // Orders by the slots' ids, so a service id of 0 matches any service id.
  bool operator<(const FCVirtualProgramData& other) const;
  // Unlike operator<, the service ids must be exactly equal (0 is no
  // wildcard here); then event id, start time and duration. Nothing else
  // takes part.
  bool operator==(const FCVirtualProgramData& other) const;

  static bool ToJson(const FCVirtualProgramData& program, Json::Value& out);
  static bool FromJson(Json::Value& in, FCVirtualProgramData& out);

 private:
  unsigned long long m_serviceId;
  std::string m_eventId;
  std::string m_contentType;
  std::string m_contentUri;
  unsigned int m_startTime;
  unsigned int m_duration;
  std::string m_title;
  std::vector<FCVirtualPlaylistItem> m_playlist;
  std::string m_posterUrl;
  std::string m_posterIndex;
  std::string m_shortDescription;
  int m_relativeOffset;
  int m_playlistItemIndex;

 public:
  // Compact JSON text of an object holding the members of the slot that no
  // field covers. `FromJson` fills it with every unknown, non-empty member
  // (the eight description keys "lang", "mid_desc", "desc", "genres",
  // "video_quality", "schedule_type", "trailer_url" and "website" are
  // dropped). `ToJson` spreads its non-empty members over the top level,
  // where they win over the fields' keys; text that is not JSON adds nothing.
  std::string metadata;
};

// The virtual programme map: slots by the service's unsigned key.
typedef std::map<unsigned int, FCVirtualProgramData> FCVirtualProgramMap;

// Number, name and logos of a virtual channel.
//
// JSON: {"major": "...", "channel_name": "...",
//        "logo_collection": [{"logo": "...", "index": <int>}, ...]}
// "logo_collection" is left out when there are no logos. A missing "major"
// reads as "0".
class FCVirtualChannelInfo {
 public:
  FCVirtualChannelInfo();

  const std::string& GetMajor() const { return m_major; }
  void SetMajor(const std::string& major) { m_major = major; }
  const std::string& GetChannelName() const { return m_channelName; }
  void SetChannelName(const std::string& channelName) { m_channelName = channelName; }
  // Logo url or name to its index; a logo listed twice keeps the later index.
  const std::map<std::string, int>& GetLogoCollection() const { return m_logoCollection; }
  void SetLogoCollection(const std::map<std::string, int>& logoCollection) { m_logoCollection = logoCollection; }

  // "channel name: <name>", "channel name: <major>" (the label is repeated
  // as log readers know it), then "logo[<logo>]: <index>" per logo.
  std::string ToString() const;

  static bool ToJson(const FCVirtualChannelInfo& info, Json::Value& out);
  static bool FromJson(Json::Value& in, FCVirtualChannelInfo& out);

 private:
  std::string m_major;
  std::string m_channelName;
  std::map<std::string, int> m_logoCollection;
};

// Presentation settings of the virtual channel band, as the service gives
// them; applications only read them.
//
// JSON: {"ch_position": {"position": "...", "type": "..."},
//        "vc_banner": {"tv_to_vc": "...", "vc_to_tv": "..."}}
class FCVirtualConfig {
 public:
  FCVirtualConfig();

  const std::string& GetChPosition() const { return m_chPosition; }
  const std::string& GetChPositionType() const { return m_chPositionType; }
  // Banner shown when switching from a broadcast to a virtual channel.
  const std::string& GetBannerTvToVc() const { return m_bannerTvToVc; }
  // Banner shown when switching back.
  const std::string& GetBannerVcToTv() const { return m_bannerVcToTv; }

  static bool ToJson(const FCVirtualConfig& config, Json::Value& out);
  static bool FromJson(Json::Value& in, FCVirtualConfig& out);

 private:
  // Where each field travels: one table serves both directions.
  struct WireField;
  static const WireField kWireFields[];

  std::string m_chPosition;
  std::string m_chPositionType;
  std::string m_bannerTvToVc;
  std::string m_bannerVcToTv;
};

#endif
