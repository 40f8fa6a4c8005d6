#include "FCElementData.h"

#include <tuple>
#include <utility>

#include "FCDebug.h"
#include "FCElementData_internal.h"
#include "FCLog_internal.h"

using zunde::catalogue::MakeAsymmetricField;
using zunde::catalogue::MakeField;
using zunde::catalogue::Member;
using zunde::catalogue::ReadFields;
using zunde::catalogue::WriteFields;

namespace zunde {
namespace catalogue {

bool SatisfiesFilter(const std::vector<std::string>& genres, const FCFilterCriteria& filter) {
  if (filter.rec_id.empty() && filter.rep_id.empty()) return true;
  if (genres.empty()) return false;
  for (const std::string& genre : genres) {
    if (filter.genre_id_list.find("," + genre + ",") != std::string::npos) return true;
  }
  return false;
}

}  // namespace catalogue
}  // namespace zunde

namespace {

// The keys of the JSON forms, one list per record.

// Inside the sub-object "config".
auto MSOConfigFields() {
  using R = FCRemoteMSOConfig;
  return std::make_tuple(MakeField("strHeadend", &R::strHeadend), MakeField("strDeviceType", &R::strDeviceType),
                         MakeField("strZipCode", &R::strZipCode), MakeField("source", &R::source),
                         MakeField("antennaMode", &R::antennaMode), MakeField("serviceMode", &R::serviceMode),
                         MakeField("str_additional_info_with_json_format", &R::str_additional_info_with_json_format));
}

// Inside the sub-object "channel_key".
auto ChannelKeyFields() {
  using R = FCRemoteChannelKey;
  return std::make_tuple(
      MakeField("activityID", &R::activityID), MakeField("str_channel_number", &R::str_channel_number),
      MakeField("str_major", &R::str_major), MakeField("str_minor", &R::str_minor), MakeField("str_onid", &R::str_onid),
      MakeField("str_tsid", &R::str_tsid), MakeField("str_sid", &R::str_sid),
      MakeField("str_frequency", &R::str_frequency), MakeField("str_digital_flag", &R::str_digital_flag));
}

auto ChannelFields() {
  using R = FCRemoteChannel;
  return std::make_tuple(
      MakeField("activityID", &R::activityID), MakeField("str_program_source_id", &R::str_program_source_id),
      MakeField("str_channel_name", &R::str_channel_name), MakeField("str_channel_number", &R::str_channel_number),
      MakeField("str_alias", &R::str_alias), MakeField("str_major", &R::str_major),
      MakeField("str_minor", &R::str_minor), MakeField("str_onid", &R::str_onid), MakeField("str_tsid", &R::str_tsid),
      MakeField("str_sid", &R::str_sid), MakeField("str_frequency", &R::str_frequency),
      MakeField("str_ptc", &R::str_ptc), MakeField("str_icon_url", &R::str_icon_url),
      MakeField("str_url_index", &R::str_url_index), MakeField("str_dtv", &R::str_dtv), MakeField("embed", &R::embed),
      MakeField("str_digital_flag", &R::str_digital_flag), MakeField("str_qam_flag", &R::str_qam_flag),
      MakeField("genre id", &R::genre_id),
      // Written "gere name", read "genre name": the two spellings in use on
      // the wire, kept apart on purpose.
      MakeAsymmetricField("gere name", "genre name", &R::genre_name), MakeField("ac_rank", &R::ac_rank));
}

auto ProgramFields() {
  using R = FCRemoteProgram;
  using zunde::catalogue::UnsignedReadAsInt;
  return std::make_tuple(
      MakeField("activityID", &R::activityID), MakeField("program source id", &R::str_program_source_id),
      MakeField("channel name", &R::str_channel_name), MakeField("channel number", &R::str_channel_number),
      MakeField("program id", &R::str_program_id), MakeField("lang", &R::str_lang),
      MakeField("start time", &R::str_starttime), MakeField<UnsignedReadAsInt>("utc start time", &R::utc_starttime),
      MakeField("duration", &R::duration), MakeField("title", &R::strTitle), MakeField("cert flag", &R::str_cert_flag),
      MakeField("genre array", &R::genre_array), MakeField("poster url", &R::str_poster_url),
      MakeField("poster type", &R::str_poster_type), MakeField("poster overlay", &R::str_poster_overlay),
      MakeField("poster index", &R::str_poster_index), MakeField("short desc", &R::str_short_desc),
      MakeField("EndTime", &R::EndTime), MakeField("IsRF", &R::IsRF), MakeField("desc", &R::desc));
}

// The text form, but for its lossy "genre_array"; `desc`, `EndTime` and
// `IsRF` are not carried.
auto ProgramTextFields() {
  using R = FCRemoteProgram;
  using zunde::catalogue::UnsignedAsInt;
  return std::make_tuple(
      MakeField("activityID", &R::activityID), MakeField("str_program_source_id", &R::str_program_source_id),
      MakeField("str_channel_name", &R::str_channel_name), MakeField("str_channel_number", &R::str_channel_number),
      MakeField("str_program_id", &R::str_program_id), MakeField("str_lang", &R::str_lang),
      MakeField("str_starttime", &R::str_starttime), MakeField<UnsignedAsInt>("utc_starttime", &R::utc_starttime),
      MakeField("duration", &R::duration), MakeField("strTitle", &R::strTitle),
      MakeField("str_cert_flag", &R::str_cert_flag), MakeField("str_short_desc", &R::str_short_desc),
      MakeField("str_poster_url", &R::str_poster_url), MakeField("str_poster_type", &R::str_poster_type),
      MakeField("str_poster_overlay", &R::str_poster_overlay), MakeField("str_poster_index", &R::str_poster_index));
}

auto GenreInfoFields() {
  using R = FCGenreInfo;
  return std::make_tuple(MakeField("str_id", &R::str_id), MakeField("str_rep_id", &R::str_rep_id),
                         MakeField("rec id", &R::rec_id), MakeField("str_name", &R::str_name),
                         MakeField("str_genre_img_url", &R::str_genre_img_url),
                         MakeField("str_genre_img_type", &R::str_genre_img_type),
                         MakeField("str_genre_img_index", &R::str_genre_img_index));
}

auto RepGenreInfoFields() {
  using R = FCRepGenreInfo;
  return std::make_tuple(MakeField("str_rep_id", &R::str_rep_id), MakeField("str_name", &R::str_name),
                         MakeField("str_genre_id_list", &R::str_genre_id_list));
}

auto RecGroupFields() {
  using R = FCRecGroup;
  return std::make_tuple(MakeField("rec id", &R::rec_id), MakeField("avail country", &R::avail_country),
                         MakeField("name", &R::name), MakeField("genre id list", &R::genre_id_list));
}

// A missing "rep id" reads as "", as the other keys do.
auto FilterCriteriaFields() {
  using R = FCFilterCriteria;
  return std::make_tuple(MakeField("rec id", &R::rec_id), MakeField("rep id", &R::rep_id),
                         MakeField("genre id list", &R::genre_id_list));
}

const char kConfigKey[] = "config";
const char kChannelKeyKey[] = "channel_key";
const char kTextGenreArrayKey[] = "genre_array";
const char kTextGenreIdKey[] = "id";

}  // namespace

// --- FCRemoteMSOConfig ---

FCRemoteMSOConfig::FCRemoteMSOConfig() : source(-1), antennaMode(-1), serviceMode(-1) {}

bool FCRemoteMSOConfig::operator==(const FCRemoteMSOConfig& other) const {
  return std::tie(strHeadend, strDeviceType, strZipCode, source, str_additional_info_with_json_format, antennaMode,
                  serviceMode) == std::tie(other.strHeadend, other.strDeviceType, other.strZipCode, other.source,
                                           other.str_additional_info_with_json_format, other.antennaMode,
                                           other.serviceMode);
}

bool FCRemoteMSOConfig::operator!=(const FCRemoteMSOConfig& other) const { return !(*this == other); }

bool FCRemoteMSOConfig::ToJson(const FCRemoteMSOConfig& config, Json::Value& value) {
  WriteFields(config, value[kConfigKey], MSOConfigFields());
  return true;
}

bool FCRemoteMSOConfig::FromJson(Json::Value& value, FCRemoteMSOConfig& config) {
  ReadFields(Member(value, kConfigKey), config, MSOConfigFields());
  return true;
}

// --- FCRemoteChannelKey ---

FCRemoteChannelKey::FCRemoteChannelKey() : activityID(0) {}

namespace {
auto Tied(const FCRemoteChannelKey& key) {
  return std::tie(key.activityID, key.str_channel_number, key.str_major, key.str_minor, key.str_onid, key.str_tsid,
                  key.str_sid, key.str_frequency, key.str_digital_flag);
}
}  // namespace

bool FCRemoteChannelKey::operator==(const FCRemoteChannelKey& other) const { return Tied(*this) == Tied(other); }

bool FCRemoteChannelKey::operator<(const FCRemoteChannelKey& other) const { return Tied(*this) < Tied(other); }

bool FCRemoteChannelKey::ToJson(FCRemoteChannelKey& key, Json::Value& value) {
  WriteFields(key, value[kChannelKeyKey], ChannelKeyFields());
  return true;
}

bool FCRemoteChannelKey::FromJson(Json::Value& value, FCRemoteChannelKey& key) {
  ReadFields(Member(value, kChannelKeyKey), key, ChannelKeyFields());
  return true;
}

// --- FCRemoteChannel ---

FCRemoteChannel::FCRemoteChannel() : activityID(0), embed(0) {}

void FCRemoteChannel::GetKey(FCRemoteChannelKey& key) {
  key.activityID = activityID;
  key.str_channel_number = str_channel_number;
  key.str_major = str_major;
  key.str_minor = str_minor;
  key.str_onid = str_onid;
  key.str_tsid = str_tsid;
  key.str_sid = str_sid;
  key.str_frequency = str_frequency;
  key.str_digital_flag = str_digital_flag;
}

bool FCRemoteChannel::ToJson(FCRemoteChannel& channel, Json::Value& value) {
  WriteFields(channel, value, ChannelFields());
  return true;
}

bool FCRemoteChannel::FromJson(Json::Value& value, FCRemoteChannel& channel) {
  ReadFields(value, channel, ChannelFields());
  return true;
}

// --- FCRemoteProgram ---

// A programme that does not convert is never handed on half-read: the
// process ends, after a line in the system log. The catch is written out in
// each converting function, so that the line names that function.
#define FC_PROGRAM_EXCEPTION_CAUGHT(method)                             \
  do {                                                                  \
    FC_LOG_WARN(0, "[FCRemoteProgram::%s] Exception Caught\n", method); \
    _FCAssert("0", __FILE__, __LINE__);                                 \
  } while (0)

FCRemoteProgram::FCRemoteProgram() : activityID(0), utc_starttime(0), duration(0), EndTime(0), IsRF(false) {}

FCRemoteProgram::~FCRemoteProgram() = default;

bool FCRemoteProgram::to_string(std::string& out) {
  try {
    Json::Value root;
    WriteFields(*this, root, ProgramTextFields());
    // One element holding the last genre id, null without genres: the
    // service reads the text form's genres this way.
    Json::Value genre;
    for (const std::string& id : genre_array) genre[kTextGenreIdKey] = id;
    root[kTextGenreArrayKey].append(genre);
    out = Json::StyledWriter().write(root);
    return true;
  } catch (...) {
    FC_PROGRAM_EXCEPTION_CAUGHT("to_string");
  }
}

bool FCRemoteProgram::from_string(std::string& in) {
  try {
    Json::Value root;
    const bool parsed = Json::Reader().parse(in, root, true);
    ReadFields(root, *this, ProgramTextFields());
    const Json::Value& genres = Member(root, kTextGenreArrayKey);
    for (Json::ArrayIndex index = 0; index < genres.size(); ++index) {
      genre_array.push_back(Member(genres[index], kTextGenreIdKey).asString());
    }
    return parsed;
  } catch (...) {
    FC_PROGRAM_EXCEPTION_CAUGHT("from_string");
  }
}

bool FCRemoteProgram::operator<(const FCRemoteProgram& other) const {
  return std::tie(str_program_source_id, utc_starttime) < std::tie(other.str_program_source_id, other.utc_starttime);
}

namespace {
// What makes two programmes the same: not their activity, description, end
// time or origin.
auto TiedForEquality(const FCRemoteProgram& p) {
  return std::tie(p.str_program_source_id, p.str_channel_name, p.str_channel_number, p.str_program_id, p.str_lang,
                  p.utc_starttime, p.str_starttime, p.duration, p.strTitle, p.str_cert_flag, p.genre_array,
                  p.str_poster_url, p.str_poster_type, p.str_poster_overlay, p.str_poster_index, p.str_short_desc);
}
}  // namespace

bool FCRemoteProgram::operator==(const FCRemoteProgram& other) const {
  return TiedForEquality(*this) == TiedForEquality(other);
}

bool FCRemoteProgram::IsSatisfyFilterCriteria(FCFilterCriteria& filter) {
  return zunde::catalogue::SatisfiesFilter(genre_array, filter);
}

bool FCRemoteProgram::ToJson(const FCRemoteProgram& program, Json::Value& value) {
  WriteFields(program, value, ProgramFields());
  return true;
}

bool FCRemoteProgram::FromJson(Json::Value& value, FCRemoteProgram& program) {
  try {
    ReadFields(value, program, ProgramFields());
    return true;
  } catch (...) {
    FC_PROGRAM_EXCEPTION_CAUGHT("FromJson");
  }
}

#undef FC_PROGRAM_EXCEPTION_CAUGHT

// --- FCGenreInfo, FCRepGenreInfo, FCRecGroup ---

FCGenreInfo::FCGenreInfo() = default;

bool FCGenreInfo::ToJson(FCGenreInfo& genre, Json::Value& value) {
  WriteFields(genre, value, GenreInfoFields());
  return true;
}

bool FCGenreInfo::FromJson(Json::Value& value, FCGenreInfo& genre) {
  ReadFields(value, genre, GenreInfoFields());
  return true;
}

FCRepGenreInfo::FCRepGenreInfo() = default;

bool FCRepGenreInfo::ToJson(FCRepGenreInfo& genre, Json::Value& value) {
  WriteFields(genre, value, RepGenreInfoFields());
  return true;
}

bool FCRepGenreInfo::FromJson(Json::Value& value, FCRepGenreInfo& genre) {
  ReadFields(value, genre, RepGenreInfoFields());
  return true;
}

FCRecGroup::FCRecGroup() = default;

bool FCRecGroup::ToJson(FCRecGroup& group, Json::Value& value) {
  WriteFields(group, value, RecGroupFields());
  return true;
}

bool FCRecGroup::FromJson(Json::Value& value, FCRecGroup& group) {
  ReadFields(value, group, RecGroupFields());
  return true;
}

// --- FCGenre ---

bool FCGenre::IsEmpty() { return genreList.empty() && repGenreList.empty() && recGroupMap.empty(); }

void FCGenre::Clear() {
  genreList.clear();
  repGenreList.clear();
  recGroupMap.clear();
}

// --- FCFilterCriteria ---

FCFilterCriteria::FCFilterCriteria() = default;

bool FCFilterCriteria::Clear() {
  rec_id.clear();
  rep_id.clear();
  genre_id_list.clear();
  return true;
}

bool FCFilterCriteria::ToJson(FCFilterCriteria& filter, Json::Value& value) {
  WriteFields(filter, value, FilterCriteriaFields());
  return true;
}

bool FCFilterCriteria::FromJson(Json::Value& value, FCFilterCriteria& filter) {
  ReadFields(value, filter, FilterCriteriaFields());
  return true;
}

// --- FCAdditionalProgramRequest ---

FCAdditionalProgramRequest::FCAdditionalProgramRequest(std::string programSourceId, unsigned long utcStartTime,
                                                       int duration)
    : str_program_source_id(std::move(programSourceId)), utc_starttime(utcStartTime), duration(duration) {}

FCAdditionalProgramRequest::~FCAdditionalProgramRequest() = default;

namespace {
auto Tied(const FCAdditionalProgramRequest& r) {
  return std::tie(r.str_program_source_id, r.utc_starttime, r.duration);
}
}  // namespace

bool FCAdditionalProgramRequest::operator==(const FCAdditionalProgramRequest& other) const {
  return Tied(*this) == Tied(other);
}

bool FCAdditionalProgramRequest::operator!=(const FCAdditionalProgramRequest& other) const { return !(*this == other); }

bool FCAdditionalProgramRequest::operator<(const FCAdditionalProgramRequest& other) const {
  return Tied(*this) < Tied(other);
}
