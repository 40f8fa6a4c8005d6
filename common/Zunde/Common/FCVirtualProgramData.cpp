#include "FCVirtualProgramData.h"

#include <cstdlib>
#include <iterator>
#include <set>
#include <sstream>

#include "FCLog_internal.h"
#include "FCTime.h"
#include "FCTimeWapper.h"
#include "FCVirtualRecordJson_internal.h"

namespace vcjson = zunde::vcjson;

namespace {

std::string ReadText(const Json::Value& object, const char* key) { return vcjson::String(object, key); }

// Slot positions are -1 when the service does not say.
int ReadIndex(const Json::Value& object, const char* key) { return vcjson::Int(object, key, -1); }

constexpr vcjson::TextField<FCVirtualPlaylistItem> kItemTexts[] = {
    {nullptr, "id", &FCVirtualPlaylistItem::GetItemId, &FCVirtualPlaylistItem::SetItemId},
    {nullptr, "title", &FCVirtualPlaylistItem::GetTitle, &FCVirtualPlaylistItem::SetTitle},
    {nullptr, "content_uri", &FCVirtualPlaylistItem::GetContentUri, &FCVirtualPlaylistItem::SetContentUri},
};
constexpr vcjson::CountField<FCVirtualPlaylistItem> kItemCounts[] = {
    {nullptr, "order", &FCVirtualPlaylistItem::GetOrder, &FCVirtualPlaylistItem::SetOrder},
    {nullptr, "duration", &FCVirtualPlaylistItem::GetDuration, &FCVirtualPlaylistItem::SetDuration},
};

constexpr vcjson::TextField<FCVirtualProgramData> kProgramTexts[] = {
    {nullptr, "id", &FCVirtualProgramData::GetEventId, &FCVirtualProgramData::SetEventId},
    {nullptr, "content_type", &FCVirtualProgramData::GetContentType, &FCVirtualProgramData::SetContentType},
    {nullptr, "content_uri", &FCVirtualProgramData::GetContentUri, &FCVirtualProgramData::SetContentUri},
    {nullptr, "title", &FCVirtualProgramData::GetTitle, &FCVirtualProgramData::SetTitle},
    {nullptr, "short_desc", &FCVirtualProgramData::GetShortDescription, &FCVirtualProgramData::SetShortDescription},
    {"poster", "url", &FCVirtualProgramData::GetPosterUrl, &FCVirtualProgramData::SetPosterUrl},
    {"poster", "index", &FCVirtualProgramData::GetPosterIndex, &FCVirtualProgramData::SetPosterIndex},
};
constexpr vcjson::IndexField<FCVirtualProgramData> kProgramIndexes[] = {
    {nullptr, "relative_offset", &FCVirtualProgramData::GetRelativeOffset, &FCVirtualProgramData::SetRelativeOffset},
    {nullptr, "playlist_item_index", &FCVirtualProgramData::GetPlaylistItemIndex,
     &FCVirtualProgramData::SetPlaylistItemIndex},
};
constexpr vcjson::CountField<FCVirtualProgramData> kProgramCounts[] = {
    {nullptr, "duration", &FCVirtualProgramData::GetDuration, &FCVirtualProgramData::SetDuration},
};

constexpr const char* kProgramDataKey = "program_data";
constexpr const char* kStartTimeKey = "starttime";
constexpr const char* kPlaylistKey = "group_play_list";

// The keys of the fields themselves.
constexpr const char* kProgramFieldKeys[] = {kProgramDataKey, "id",         "content_type",    "content_uri",
                                             "title",         "short_desc", "relative_offset", "playlist_item_index",
                                             kStartTimeKey,   "duration",   "poster",          kPlaylistKey};
// Description keys that the guide does not show: dropped on reading, neither
// fields nor metadata.
constexpr const char* kDroppedProgramKeys[] = {"lang",          "mid_desc",      "desc",        "genres",
                                               "video_quality", "schedule_type", "trailer_url", "website"};

// Every key that is not carried on as metadata.
const std::set<std::string>& KnownProgramKeys() {
  static const std::set<std::string> keys = [] {
    std::set<std::string> known(std::begin(kProgramFieldKeys), std::end(kProgramFieldKeys));
    known.insert(std::begin(kDroppedProgramKeys), std::end(kDroppedProgramKeys));
    return known;
  }();
  return keys;
}

// The members of `source` that carry something, copied into `target`
// unless `skipped(key)`.
template <typename Skipped>
void CopyCarried(const Json::Value& source, Json::Value& target, Skipped skipped) {
  if (!source.isObject()) return;
  for (auto member = source.begin(); member != source.end(); ++member) {
    const std::string key = member.name();
    if (!skipped(key) && vcjson::IsWorthCarrying(*member)) target[key] = *member;
  }
}

std::string W3CTextOf(unsigned int seconds) {
  FCTime time;
  time.from_UTC(seconds, 0, false);
  return time.to_W3CDateTimeFormat();
}

bool EpochOfW3CText(const std::string& text, unsigned int* seconds) {
  FCTime time;
  if (!time.from_W3CDateTimeFormat(text, false)) return false;
  *seconds = static_cast<unsigned int>(time.to_UTC());
  return true;
}

// A slot's start: a W3C date-time, or epoch seconds written as text.
unsigned int StartTimeOfText(const std::string& text) {
  unsigned int seconds = 0;
  if (EpochOfW3CText(text, &seconds)) return seconds;
  return static_cast<unsigned int>(std::strtoul(text.c_str(), nullptr, 0));
}

// A programme id's start: a number, or a W3C date-time (0 when the text is
// none, since a half-parsed date has no meaningful epoch).
unsigned int StartTimeOfValue(const Json::Value& value) {
  if (!value.isString()) return vcjson::AsUInt(value);
  unsigned int seconds = 0;
  return EpochOfW3CText(value.asString(), &seconds) ? seconds : 0U;
}

// A service id of 0 is "not known" and matches any other.
bool ServicesDiffer(unsigned long long left, unsigned long long right) {
  return left != 0 && right != 0 && left != right;
}

// Reads one playlist item without needing a mutable input.
void ReadPlaylistItem(const Json::Value& in, FCVirtualPlaylistItem& out) {
  vcjson::ReadFields(in, out, kItemCounts, vcjson::LenientUInt);
  vcjson::ReadFields(in, out, kItemTexts, ReadText);
}

// Appends the items of `list` to `playlist`, as a reply is read into
// whatever record the caller holds.
void AppendPlaylist(const Json::Value& list, std::vector<FCVirtualPlaylistItem>& playlist) {
  if (!list.isArray()) return;
  for (Json::ArrayIndex index = 0; index < list.size(); ++index) {
    FCVirtualPlaylistItem item;
    ReadPlaylistItem(list[index], item);
    playlist.push_back(item);
  }
}

}  // namespace

// --- FCVirtualProgramId ---

FCVirtualProgramId::FCVirtualProgramId() : m_serviceId(0), m_startTime(0), m_duration(0) {}

bool FCVirtualProgramId::operator<(const FCVirtualProgramId& other) const {
  if (ServicesDiffer(m_serviceId, other.m_serviceId)) return m_serviceId < other.m_serviceId;
  if (m_startTime != other.m_startTime) return m_startTime < other.m_startTime;
  return m_eventId < other.m_eventId;
}

bool FCVirtualProgramId::operator==(const FCVirtualProgramId& other) const {
  return !ServicesDiffer(m_serviceId, other.m_serviceId) && m_eventId == other.m_eventId &&
         m_startTime == other.m_startTime && m_duration == other.m_duration;
}

std::string FCVirtualProgramId::ToString() const {
  std::ostringstream text;
  text << "TCServiceId: " << m_serviceId << '\n'
       << "id: " << m_eventId << '\n'
       << "start_time: " << m_startTime << '\n'
       << "duration: " << m_duration << '\n';
  return text.str();
}

bool FCVirtualProgramId::ToJson(const FCVirtualProgramId& id, Json::Value& out) {
  Json::Value& nest = out["program_id"];
  vcjson::WriteServiceId(nest, id.m_serviceId);
  nest["event_id"] = id.m_eventId;
  nest["start_time"] = id.m_startTime;
  nest["duration"] = id.m_duration;
  return true;
}

bool FCVirtualProgramId::FromJson(Json::Value& in, FCVirtualProgramId& out) {
  const Json::Value& nest = vcjson::MemberOrNull(in, "program_id");
  out.m_serviceId = vcjson::ReadServiceId(nest);
  out.m_eventId = vcjson::String(nest, "event_id");
  out.m_duration = vcjson::UInt(nest, "duration");
  out.m_startTime = StartTimeOfValue(vcjson::MemberOrNull(nest, "start_time"));
  return true;
}

// --- FCVirtualPlaylistItem ---

FCVirtualPlaylistItem::FCVirtualPlaylistItem() : m_order(0), m_duration(0) {}

FCVirtualPlaylistItem::~FCVirtualPlaylistItem() = default;

bool FCVirtualPlaylistItem::operator==(const FCVirtualPlaylistItem& other) const {
  return m_order == other.m_order && m_itemId == other.m_itemId && m_title == other.m_title &&
         m_contentUri == other.m_contentUri && m_duration == other.m_duration;
}

std::string FCVirtualPlaylistItem::ToString() const {
  std::ostringstream text;
  text << "order: " << m_order << '\n'
       << "id: " << m_itemId << '\n'
       << "title: " << m_title << '\n'
       << "content_uri: " << m_contentUri << '\n'
       << "duration: " << m_duration << '\n';
  return text.str();
}

bool FCVirtualPlaylistItem::ToJson(const FCVirtualPlaylistItem& item, Json::Value& out) {
  vcjson::WriteFields(item, out, kItemCounts);
  vcjson::WriteFields(item, out, kItemTexts);
  return true;
}

bool FCVirtualPlaylistItem::FromJson(Json::Value& in, FCVirtualPlaylistItem& out) {
  ReadPlaylistItem(in, out);
  return true;
}

// --- FCVirtualProgramData ---

FCVirtualProgramData::FCVirtualProgramData()
    : m_serviceId(0), m_startTime(0), m_duration(0), m_relativeOffset(-1), m_playlistItemIndex(-1) {}

FCVirtualProgramData::FCVirtualProgramData(const FCVirtualProgramData& other) = default;

FCVirtualProgramData& FCVirtualProgramData::operator=(const FCVirtualProgramData& other) = default;

FCVirtualProgramData::~FCVirtualProgramData() = default;

unsigned int FCVirtualProgramData::GetTimeOffset() {
  const unsigned int now = static_cast<unsigned int>(FCTimeWrapper::EpochTime());
  return now > m_startTime ? now - m_startTime : 0U;
}

std::string FCVirtualProgramData::GetSeriesId() const { return std::string(); }

bool FCVirtualProgramData::GetProgramId(FCVirtualProgramId& out) const {
  out.SetServiceId(m_serviceId);
  out.SetEventId(m_eventId);
  out.SetStartTime(m_startTime);
  out.SetDuration(m_duration);
  return true;
}

bool FCVirtualProgramData::operator<(const FCVirtualProgramData& other) const {
  FCVirtualProgramId mine;
  FCVirtualProgramId theirs;
  GetProgramId(mine);
  other.GetProgramId(theirs);
  return mine < theirs;
}

bool FCVirtualProgramData::operator==(const FCVirtualProgramData& other) const {
  return m_serviceId == other.m_serviceId && m_eventId == other.m_eventId && m_startTime == other.m_startTime &&
         m_duration == other.m_duration;
}

bool FCVirtualProgramData::ToJson(const FCVirtualProgramData& program, Json::Value& out) {
  vcjson::WriteServiceId(out[kProgramDataKey], program.m_serviceId);
  vcjson::WriteFields(program, out, kProgramTexts);
  vcjson::WriteFields(program, out, kProgramIndexes);
  out[kStartTimeKey] = W3CTextOf(program.m_startTime);
  vcjson::WriteFields(program, out, kProgramCounts);
  for (const FCVirtualPlaylistItem& item : program.m_playlist) {
    Json::Value element;
    FCVirtualPlaylistItem::ToJson(item, element);
    out[kPlaylistKey].append(element);
  }

  Json::Value metadata;
  if (!Json::Reader().parse(program.metadata, metadata, true)) return true;
  // Worded as the service's response parser words it, so that one search
  // finds the line on both sides.
  FC_LOG_RAW_LV(LOG_ID_MAIN, DLOG_DEBUG, 3, "[CZundeResponseParser::%s]  reader.parse(metadata) is OK\n", __func__);
  CopyCarried(metadata, out, [](const std::string&) { return false; });
  return true;
}

bool FCVirtualProgramData::FromJson(Json::Value& in, FCVirtualProgramData& out) {
  out.m_serviceId = vcjson::ReadServiceId(vcjson::MemberOrNull(in, kProgramDataKey));
  vcjson::ReadFields(in, out, kProgramTexts, ReadText);
  vcjson::ReadFields(in, out, kProgramIndexes, ReadIndex);
  out.m_startTime = StartTimeOfText(vcjson::String(in, kStartTimeKey));
  vcjson::ReadFields(in, out, kProgramCounts, vcjson::LenientUInt);
  AppendPlaylist(vcjson::MemberOrNull(in, kPlaylistKey), out.m_playlist);

  Json::Value metadata(Json::objectValue);
  const std::set<std::string>& known = KnownProgramKeys();
  CopyCarried(in, metadata, [&known](const std::string& key) { return known.count(key) != 0; });
  out.metadata = Json::FastWriter().write(metadata);
  return true;
}

// --- FCVirtualChannelInfo ---

FCVirtualChannelInfo::FCVirtualChannelInfo() = default;

std::string FCVirtualChannelInfo::ToString() const {
  std::ostringstream text;
  text << "channel name: " << m_channelName << '\n' << "channel name: " << m_major << '\n';
  for (const auto& logo : m_logoCollection) text << "logo[" << logo.first << "]: " << logo.second << '\n';
  return text.str();
}

bool FCVirtualChannelInfo::ToJson(const FCVirtualChannelInfo& info, Json::Value& out) {
  out["major"] = info.m_major;
  out["channel_name"] = info.m_channelName;
  for (const auto& logo : info.m_logoCollection) {
    Json::Value element;
    element["logo"] = logo.first;
    element["index"] = logo.second;
    out["logo_collection"].append(element);
  }
  return true;
}

bool FCVirtualChannelInfo::FromJson(Json::Value& in, FCVirtualChannelInfo& out) {
  out.m_major = vcjson::String(in, "major", "0");
  out.m_channelName = vcjson::String(in, "channel_name");
  const Json::Value& logos = vcjson::MemberOrNull(in, "logo_collection");
  if (!logos.isArray()) return true;
  for (Json::ArrayIndex index = 0; index < logos.size(); ++index) {
    const Json::Value& logo = logos[index];
    out.m_logoCollection[vcjson::String(logo, "logo")] = vcjson::Int(logo, "index");
  }
  return true;
}

// --- FCVirtualConfig ---

struct FCVirtualConfig::WireField {
  const char* group;
  const char* key;
  std::string FCVirtualConfig::*field;
};

const FCVirtualConfig::WireField FCVirtualConfig::kWireFields[] = {
    {"ch_position", "position", &FCVirtualConfig::m_chPosition},
    {"ch_position", "type", &FCVirtualConfig::m_chPositionType},
    {"vc_banner", "tv_to_vc", &FCVirtualConfig::m_bannerTvToVc},
    {"vc_banner", "vc_to_tv", &FCVirtualConfig::m_bannerVcToTv},
};

FCVirtualConfig::FCVirtualConfig() = default;

bool FCVirtualConfig::ToJson(const FCVirtualConfig& config, Json::Value& out) {
  for (const WireField& wire : kWireFields) vcjson::Slot(out, wire.group, wire.key) = config.*wire.field;
  return true;
}

bool FCVirtualConfig::FromJson(Json::Value& in, FCVirtualConfig& out) {
  for (const WireField& wire : kWireFields) out.*wire.field = ReadText(vcjson::Place(in, wire.group), wire.key);
  return true;
}
