// Records of the set-top-box channels: the channels of an external box that
// the TV drives through its multi-brand remote, and the programmes on them.
//
//   FCMBRNetworkProgram  one programme on such a channel
//   FCMBRNetworkChannel  one channel of the box, with the user's edits
//
// The service reads and writes the same records, so their JSON forms are a
// wire format: `...ToJson` writes the record's keys into the given object,
// `JsonTo...` reads them back; both return true. A key missing on reading
// gives 0, false or the empty string.
#ifndef ZUNDE_MBRNETWORKCHANNEL_H
#define ZUNDE_MBRNETWORKCHANNEL_H

#include <json/json.h>

#include <bitset>
#include <string>

// The number of favourite lists a channel can belong to.
#define MBR_NETWORKCHANNEL_FAVORITE_MAX 5

// One programme on a set-top-box channel. Its identity is the programme id
// alone: ordering and equality look at nothing else, so the same programme
// is "equal" to itself at another time.
//
// JSON: "m_startTime" (unsigned), "m_duration" (int), "m_title" (string),
//       "m_channelID" (int), "m_programID" (string)
class FCMBRNetworkProgram {
 public:
  // Start 0xFFFFFFFF, duration -1, channel id -1, empty title and id.
  FCMBRNetworkProgram();
  FCMBRNetworkProgram(const FCMBRNetworkProgram& other);
  FCMBRNetworkProgram& operator=(const FCMBRNetworkProgram& other);
  virtual ~FCMBRNetworkProgram();

  // Seconds since the epoch (UTC). Start times are 32-bit on the wire, so
  // only the low 32 bits of a given time are kept.
  unsigned long GetStartTime() const { return m_startTime; }
  void SetStartTime(unsigned long startTime);
  // Length in seconds.
  int GetDuration() const { return m_duration; }
  void SetDuration(int duration) { m_duration = duration; }
  const std::string& GetTitle() const { return m_title; }
  void SetTitle(std::string& title) { m_title = title; }
  // The channel id of the channel that carries the programme.
  int GetChannelID() const { return m_channelID; }
  void SetChannelID(int channelID) { m_channelID = channelID; }
  const std::string& GetProgramID() const { return m_programID; }
  void SetProgramID(std::string& programID) { m_programID = programID; }

  // Byte-wise comparison of the programme ids, shorter first on a common
  // prefix.
  bool operator<(const FCMBRNetworkProgram& other) const;
  // Equal programme ids.
  bool operator==(const FCMBRNetworkProgram& other) const;

  static bool MBRNetworkProgramToJson(FCMBRNetworkProgram& program, Json::Value& root);
  static bool JsonToMBRNetworkProgram(Json::Value& root, FCMBRNetworkProgram& program);

 private:
  struct JsonForm;  // the keys of the JSON form

  unsigned long m_startTime;
  int m_duration;
  std::string m_title;
  int m_channelID;
  std::string m_programID;
};

// One channel of a set-top box as the TV shows it. The user may edit the
// shown major number and name; the box's own values stay beside them so that
// `Restore` can undo the edit.
//
// JSON: "m_activityID", "m_acRank" (ints), "m_str_icon_url",
//       "m_str_url_index" (strings), "m_major", "m_originMajor", "m_minor"
//       (ints), "m_name", "m_originName" (strings), "m_channelID" (int),
//       "m_remembered", "m_bDigital" (booleans), "bit set" (the favourite
//       set as five "0"/"1" characters, list 4 first: lists 0 and 2 give
//       "00101").
// Reading "bit set" uses at most its first five characters, the last one
// used being list 0; a shorter text sets only the low lists. A character
// other than "0" or "1" among those used throws std::invalid_argument.
class FCMBRNetworkChannel {
 public:
  // The favourite lists; the value is the list's bit in the favourite set.
  enum EFavorite {
    eFavorite0 = 0,
    eFavorite1 = 1,
    eFavorite2 = 2,
    eFavorite3 = 3,
    eFavorite4 = 4,
  };

  FCMBRNetworkChannel();
  FCMBRNetworkChannel(const FCMBRNetworkChannel& other);
  FCMBRNetworkChannel& operator=(const FCMBRNetworkChannel& other);
  virtual ~FCMBRNetworkChannel();

  // Back to the defaults: major and origin major -1, minor 0, channel id -1,
  // not remembered, no favourites, activity 6 (beyond the valid activities
  // 0 to 4, so that a fresh channel belongs to none), digital, rank 0,
  // empty strings.
  void m_Initialize();

  // The major number as shown, which the user may have edited.
  int GetMajor() const { return m_major; }
  void SetMajor(int major) { m_major = major; }
  // The major number as the box reported it.
  int GetOriginMajor() const { return m_originMajor; }
  void SetOriginMajor(int originMajor) { m_originMajor = originMajor; }
  int GetMinor() const { return m_minor; }
  void SetMinor(int minor) { m_minor = minor; }
  int GetacRank() const { return m_acRank; }
  void SetacRank(int rank) { m_acRank = rank; }
  // The name as shown, which the user may have edited.
  const std::string& GetName() const { return m_name; }
  void SetName(std::string& name) { m_name = name; }
  // The name as the box reported it.
  const std::string& GetOriginName() const { return m_originName; }
  void SetOriginName(std::string& originName) { m_originName = originName; }
  const std::string& GetIconUrl() const { return m_str_icon_url; }
  void SetIconUrl(std::string& iconUrl) { m_str_icon_url = iconUrl; }
  const std::string& GetUrlIndex() const { return m_str_url_index; }
  void SetUrlIndex(std::string& urlIndex) { m_str_url_index = urlIndex; }
  int GetChannelID() const { return m_channelID; }
  void SetChannelID(int& channelID) { m_channelID = channelID; }
  bool GetRemembered() const { return m_remembered; }
  void SetRemembered(bool remembered) { m_remembered = remembered; }
  // An FCMBRNetworkChannelAPI::EActivityID value, or 6 for none.
  int GetActivityID() const { return m_activityID; }
  void SetActivityID(int activityID) { m_activityID = activityID; }
  bool IsDigital() const { return m_bDigital; }
  void SetDigitalFlag(bool digital) { m_bDigital = digital; }
  std::bitset<MBR_NETWORKCHANNEL_FAVORITE_MAX> GetFavoriteBitSet() const { return m_favoriteBitSet; }
  void SetFavoriteBitSet(std::bitset<MBR_NETWORKCHANNEL_FAVORITE_MAX>& favorites) { m_favoriteBitSet = favorites; }

  // Adds the channel to (on) or removes it from (off) one favourite list;
  // returns true. A list beyond the last ends the process by assertion.
  bool SetFavorite(EFavorite favorite, bool on);
  // Whether the channel is in one favourite list. A list beyond the last
  // ends the process by assertion.
  bool GetFavorite(EFavorite favorite);

  // Undoes the user's edit: the shown major and name take the box's values
  // again. The minor and everything else stay. Returns true.
  bool Restore();

  // Copies the UTF-16 text `src` to `dst` with the two bytes of each unit
  // swapped, up to a unit of two zero bytes or until `length` bytes are
  // done, whichever comes first, then writes a two-byte zero terminator.
  // Returns the number of bytes converted (the terminator's index); 1 when
  // either pointer is null, with nothing written. An odd `length` rounds up
  // to whole units. `dst` needs room for the converted bytes plus two.
  int m_ConvertEndian(unsigned char* dst, unsigned char* src, int length);

  // By major, then minor, then channel id, all signed. Nothing else counts.
  bool operator<(const FCMBRNetworkChannel& other) const;
  // Major, origin major, minor, names, channel id, favourite set and the
  // digital flag. Remembered, activity, rank and the icon URL and index are
  // deliberately left out.
  bool operator==(const FCMBRNetworkChannel& other) const;

  static bool MBRNetworkChannelToJson(FCMBRNetworkChannel& channel, Json::Value& root);
  // Throws std::invalid_argument on a malformed "bit set" (see above), the
  // keys before it having been read already.
  static bool JsonToMBRNetworkChannel(Json::Value& root, FCMBRNetworkChannel& channel);

 private:
  struct JsonForm;  // the keys of the JSON form

  int m_major;
  int m_originMajor;
  int m_minor;
  std::string m_name;
  std::string m_originName;
  int m_channelID;
  bool m_remembered;
  std::bitset<MBR_NETWORKCHANNEL_FAVORITE_MAX> m_favoriteBitSet;
  int m_activityID;
  bool m_bDigital;
  int m_acRank;
  std::string m_str_icon_url;
  std::string m_str_url_index;
};

#endif
