#include "MBRNetworkChannel.h"

#include <cstdint>
#include <tuple>

#include "FCDebug.h"
#include "RecordJson_internal.h"

namespace recordjson = zunde::recordjson;
using Lenient = recordjson::Lenient;

namespace {

// A missing or ill-typed key must not end the caller's process.
template <class Record, class T>
constexpr auto LenientField(const char* key, T Record::*member) {
  return recordjson::MakeField<Lenient>(key, member);
}

const int kNoActivity = 6;
const char kFavoriteBitSetKey[] = "bit set";

// The favourite assertion reports the source position that crash reports
// of this record have always carried, so that they stay comparable.
const char kAssertSource[] = "common/Zunde/MBR_Content/MBRNetworkChannel.cpp";
const unsigned long kSetFavoriteAssertLine = 394;
const unsigned long kGetFavoriteAssertLine = 467;

void AssertFavorite(int favorite, unsigned long line) {
  if (favorite < MBR_NETWORKCHANNEL_FAVORITE_MAX) return;
  _FCAssert("favorite < MBR_NETWORKCHANNEL_FAVORITE_MAX", kAssertSource, line);
}

}  // namespace

// --- FCMBRNetworkProgram ---

struct FCMBRNetworkProgram::JsonForm {
  static auto Fields() {
    return std::make_tuple(LenientField("m_startTime", &FCMBRNetworkProgram::m_startTime),
                           LenientField("m_duration", &FCMBRNetworkProgram::m_duration),
                           LenientField("m_title", &FCMBRNetworkProgram::m_title),
                           LenientField("m_channelID", &FCMBRNetworkProgram::m_channelID),
                           LenientField("m_programID", &FCMBRNetworkProgram::m_programID));
  }
};

FCMBRNetworkProgram::FCMBRNetworkProgram() : m_startTime(0xFFFFFFFFUL), m_duration(-1), m_channelID(-1) {}

FCMBRNetworkProgram::FCMBRNetworkProgram(const FCMBRNetworkProgram& other) = default;

FCMBRNetworkProgram& FCMBRNetworkProgram::operator=(const FCMBRNetworkProgram& other) = default;

FCMBRNetworkProgram::~FCMBRNetworkProgram() = default;

void FCMBRNetworkProgram::SetStartTime(unsigned long startTime) {
  m_startTime = static_cast<std::uint32_t>(startTime);
}

bool FCMBRNetworkProgram::operator<(const FCMBRNetworkProgram& other) const { return m_programID < other.m_programID; }

bool FCMBRNetworkProgram::operator==(const FCMBRNetworkProgram& other) const {
  return m_programID == other.m_programID;
}

bool FCMBRNetworkProgram::MBRNetworkProgramToJson(FCMBRNetworkProgram& program, Json::Value& root) {
  recordjson::WriteFields(program, root, JsonForm::Fields());
  return true;
}

bool FCMBRNetworkProgram::JsonToMBRNetworkProgram(Json::Value& root, FCMBRNetworkProgram& program) {
  recordjson::ReadFields(root, program, JsonForm::Fields());
  return true;
}

// --- FCMBRNetworkChannel ---

// The favourite set is written and read after these, as "bit set".
struct FCMBRNetworkChannel::JsonForm {
  static auto Fields() {
    return std::make_tuple(LenientField("m_activityID", &FCMBRNetworkChannel::m_activityID),
                           LenientField("m_acRank", &FCMBRNetworkChannel::m_acRank),
                           LenientField("m_str_icon_url", &FCMBRNetworkChannel::m_str_icon_url),
                           LenientField("m_str_url_index", &FCMBRNetworkChannel::m_str_url_index),
                           LenientField("m_major", &FCMBRNetworkChannel::m_major),
                           LenientField("m_originMajor", &FCMBRNetworkChannel::m_originMajor),
                           LenientField("m_minor", &FCMBRNetworkChannel::m_minor),
                           LenientField("m_name", &FCMBRNetworkChannel::m_name),
                           LenientField("m_originName", &FCMBRNetworkChannel::m_originName),
                           LenientField("m_channelID", &FCMBRNetworkChannel::m_channelID),
                           LenientField("m_remembered", &FCMBRNetworkChannel::m_remembered),
                           LenientField("m_bDigital", &FCMBRNetworkChannel::m_bDigital));
  }
};

FCMBRNetworkChannel::FCMBRNetworkChannel() { m_Initialize(); }

FCMBRNetworkChannel::FCMBRNetworkChannel(const FCMBRNetworkChannel& other) = default;

FCMBRNetworkChannel& FCMBRNetworkChannel::operator=(const FCMBRNetworkChannel& other) = default;

FCMBRNetworkChannel::~FCMBRNetworkChannel() = default;

void FCMBRNetworkChannel::m_Initialize() {
  m_major = -1;
  m_originMajor = -1;
  m_minor = 0;
  m_name.clear();
  m_originName.clear();
  m_channelID = -1;
  m_remembered = false;
  m_favoriteBitSet.reset();
  m_activityID = kNoActivity;
  m_bDigital = true;
  m_acRank = 0;
  m_str_icon_url.clear();
  m_str_url_index.clear();
}

bool FCMBRNetworkChannel::SetFavorite(EFavorite favorite, bool on) {
  AssertFavorite(favorite, kSetFavoriteAssertLine);
  m_favoriteBitSet.set(favorite, on);
  return true;
}

bool FCMBRNetworkChannel::GetFavorite(EFavorite favorite) {
  AssertFavorite(favorite, kGetFavoriteAssertLine);
  return m_favoriteBitSet.test(favorite);
}

bool FCMBRNetworkChannel::Restore() {
  m_major = m_originMajor;
  m_name = m_originName;
  return true;
}

int FCMBRNetworkChannel::m_ConvertEndian(unsigned char* dst, unsigned char* src, int length) {
  if (src == nullptr || dst == nullptr) return 1;
  int converted = 0;
  if (length > 0) {
    // Whole units only: an odd length takes the unit that its last byte
    // begins.
    do {
      if (src[converted] == 0 && src[converted + 1] == 0) break;
      dst[converted] = src[converted + 1];
      dst[converted + 1] = src[converted];
      converted += 2;
    } while (converted < length);
  }
  dst[converted] = 0;
  dst[converted + 1] = 0;
  return converted;
}

bool FCMBRNetworkChannel::operator<(const FCMBRNetworkChannel& other) const {
  return std::tie(m_major, m_minor, m_channelID) < std::tie(other.m_major, other.m_minor, other.m_channelID);
}

bool FCMBRNetworkChannel::operator==(const FCMBRNetworkChannel& other) const {
  return m_major == other.m_major && m_originMajor == other.m_originMajor && m_minor == other.m_minor &&
         m_name == other.m_name && m_originName == other.m_originName && m_channelID == other.m_channelID &&
         m_favoriteBitSet == other.m_favoriteBitSet && m_bDigital == other.m_bDigital;
}

bool FCMBRNetworkChannel::MBRNetworkChannelToJson(FCMBRNetworkChannel& channel, Json::Value& root) {
  recordjson::WriteFields(channel, root, JsonForm::Fields());
  root[kFavoriteBitSetKey] = channel.m_favoriteBitSet.to_string();
  return true;
}

bool FCMBRNetworkChannel::JsonToMBRNetworkChannel(Json::Value& root, FCMBRNetworkChannel& channel) {
  recordjson::ReadFields(root, channel, JsonForm::Fields());
  // The standard parse: a character other than '0' or '1' among the first
  // five throws std::invalid_argument, which is the caller's to handle.
  const std::string favorites = recordjson::Read<Lenient, std::string>(root, kFavoriteBitSetKey);
  channel.m_favoriteBitSet = std::bitset<MBR_NETWORKCHANNEL_FAVORITE_MAX>(favorites);
  return true;
}
