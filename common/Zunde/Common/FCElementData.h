// Records of the operator's (MSO) remote content catalogue, as the remote
// content APIs exchange them with the service:
//
//   FCRemoteMSOConfig           the operator setting of the set
//   FCRemoteChannelKey          what identifies a remote channel
//   FCRemoteChannel             one channel of the operator's line-up
//   FCRemoteProgram             one programme (event) of a remote channel
//   FCGenreInfo                 one genre
//   FCRepGenreInfo              a representative genre grouping several genres
//   FCRecGroup                  a recommendation group
//   FCGenre                     the whole genre catalogue
//   FCFilterCriteria            the filter applied to recommendations
//   FCAdditionalProgramRequest  a request for programmes beyond those delivered
//
// The service reads and writes the same records, so their JSON forms are a
// wire format. `ToJson(record, value)` writes the record's keys into `value`,
// `FromJson(value, record)` reads them back; both return true.
//
// Nearly every value travels as a JSON string, numbers of the service's world
// (channel numbers, ONID/TSID/SID, frequency, flags, genre ids) included; only
// the fields documented as int, unsigned or bool are JSON numbers or booleans.
// No text is converted to a number here.
//
// Reading takes every key as it stands: a missing key reads as "", 0 or
// false. A value of a type that does not convert (an object where a string is
// expected, a text where a number is expected) makes jsoncpp throw a
// Json::Exception; FCRemoteProgram catches it and ends the process through
// _FCAssert (see there), the other records let it reach the caller. Reading
// never adds members to the value read.
//
// String orderings are byte-wise: the common prefix compared as unsigned
// bytes, then the shorter string first.
//
// Genre id lists are comma-separated text with a leading and a trailing
// comma (",12,15,"); a genre id g matches a list when ",g," occurs in it.
#ifndef ZUNDE_FCELEMENTDATA_H
#define ZUNDE_FCELEMENTDATA_H

#include <json/json.h>

#include <map>
#include <string>
#include <vector>

// The operator (MSO) setting of the set.
//
// JSON: a sub-object "config" of the given value, holding "strHeadend",
//       "strDeviceType", "strZipCode" (strings), "source", "antennaMode",
//       "serviceMode" (ints), "str_additional_info_with_json_format" (string).
class FCRemoteMSOConfig {
 public:
  // Empty strings; source, antenna mode and service mode -1.
  FCRemoteMSOConfig();

  // All seven fields equal.
  bool operator==(const FCRemoteMSOConfig& other) const;
  bool operator!=(const FCRemoteMSOConfig& other) const;

  static bool ToJson(const FCRemoteMSOConfig& config, Json::Value& value);
  static bool FromJson(Json::Value& value, FCRemoteMSOConfig& config);

  std::string strHeadend;
  std::string strDeviceType;
  std::string strZipCode;
  int source;
  int antennaMode;
  int serviceMode;
  std::string str_additional_info_with_json_format;
};

// What identifies a remote channel.
//
// JSON: a sub-object "channel_key" of the given value, holding "activityID"
//       (int) and "str_channel_number", "str_major", "str_minor", "str_onid",
//       "str_tsid", "str_sid", "str_frequency", "str_digital_flag" (strings).
class FCRemoteChannelKey {
 public:
  // Activity 0, empty strings.
  FCRemoteChannelKey();

  // All nine fields equal.
  bool operator==(const FCRemoteChannelKey& other) const;
  // By activity (signed), then each string in field order, the first
  // difference deciding.
  bool operator<(const FCRemoteChannelKey& other) const;

  static bool ToJson(FCRemoteChannelKey& key, Json::Value& value);
  static bool FromJson(Json::Value& value, FCRemoteChannelKey& key);

  int activityID;  // an eRemoteContentActivity value
  std::string str_channel_number;
  std::string str_major;
  std::string str_minor;
  std::string str_onid;
  std::string str_tsid;
  std::string str_sid;
  std::string str_frequency;
  std::string str_digital_flag;
};

// One channel of the operator's line-up.
//
// JSON, members of the given value itself: "activityID" (int),
//       "str_program_source_id", "str_channel_name", "str_channel_number",
//       "str_alias", "str_major", "str_minor", "str_onid", "str_tsid",
//       "str_sid", "str_frequency", "str_ptc", "str_icon_url",
//       "str_url_index", "str_dtv" (strings), "embed" (int),
//       "str_digital_flag", "str_qam_flag", "genre id", the genre name,
//       "ac_rank" (strings).
//
// The genre name is written as "gere name" and read as "genre name", both
// spellings being the service's: a channel written and read back here loses
// its genre name.
class FCRemoteChannel {
 public:
  // Activity 0, embed 0, empty strings.
  FCRemoteChannel();

  // Copies the nine identifying fields into `key`.
  void GetKey(FCRemoteChannelKey& key);

  static bool ToJson(FCRemoteChannel& channel, Json::Value& value);
  static bool FromJson(Json::Value& value, FCRemoteChannel& channel);

  int activityID;  // an eRemoteContentActivity value
  std::string str_program_source_id;
  std::string str_channel_name;
  std::string str_channel_number;
  std::string str_alias;
  std::string str_major;
  std::string str_minor;
  std::string str_onid;
  std::string str_tsid;
  std::string str_sid;
  std::string str_frequency;
  std::string str_ptc;
  std::string str_icon_url;
  std::string str_url_index;
  std::string str_dtv;
  int embed;
  std::string str_digital_flag;
  std::string str_qam_flag;
  std::string genre_id;
  std::string genre_name;
  std::string ac_rank;
};

class FCFilterCriteria;

// One programme (event) of a remote channel; also the meta programme of the
// broadcast (RF) channel API.
//
// JSON form (`ToJson` / `FromJson`), members of the given value itself:
//       "activityID" (int), "program source id", "channel name",
//       "channel number", "program id", "lang", "start time" (strings),
//       "utc start time" (unsigned; read as int), "duration" (int), "title",
//       "cert flag" (strings), "genre array" (array of strings, left out when
//       there are no genres), "poster url", "poster type", "poster overlay",
//       "poster index", "short desc" (strings), "EndTime" (unsigned), "IsRF"
//       (bool), "desc" (string).
//       Reading appends the genres to `genre_array`. Since the start time is
//       read as int, one beyond 2^31-1 does not convert.
//
// Text form (`to_string` / `from_string`): a styled JSON text with the keys
//       "activityID", "utc_starttime", "duration" (ints) and the field names
//       of the strings. `desc`, `EndTime` and `IsRF` are not carried, and the
//       genres are carried lossily, as the service expects: "genre_array" is
//       always one element, {"id": <the last genre id>}, or null when there
//       are no genres. Reading appends the "id" of every element, so the text
//       of a programme without genres reads back as the one genre id "".
//
// A value that does not convert ends the process in `FromJson`, `to_string`
// and `from_string`: the line
//   "<file>: <function>(<line>) > DBG_LV[0][FCRemoteProgram::<method>] Exception Caught"
// goes to the system log at warning priority, then _FCAssert("0", ...) runs.
class FCRemoteProgram {
 public:
  // Activity 0, times and duration 0, not RF, empty strings, no genres.
  FCRemoteProgram();
  virtual ~FCRemoteProgram();

  // The text form of the programme; true.
  bool to_string(std::string& out);
  // Reads the text form; the parse result of the text. A text that does not
  // parse still reads whatever the parser made of it.
  bool from_string(std::string& in);

  // By programme source id (byte-wise), then UTC start time.
  bool operator<(const FCRemoteProgram& other) const;
  // All fields equal except `activityID`, `desc`, `EndTime` and `IsRF`,
  // which take no part; genres compared element-wise.
  bool operator==(const FCRemoteProgram& other) const;

  // True when the filter's rec id and rep id are both empty (no filter);
  // otherwise true when one of the programme's genre ids, as ",id,", occurs
  // in the filter's genre id list. A programme without genres passes only
  // the empty filter.
  bool IsSatisfyFilterCriteria(FCFilterCriteria& filter);

  static bool ToJson(const FCRemoteProgram& program, Json::Value& value);
  static bool FromJson(Json::Value& value, FCRemoteProgram& program);

  int activityID;  // an eRemoteContentActivity value
  std::string str_program_source_id;
  std::string str_channel_name;
  std::string str_channel_number;
  std::string str_program_id;
  std::string str_lang;
  std::string str_starttime;   // local start time text
  unsigned int utc_starttime;  // seconds since the epoch
  int duration;                // seconds
  std::string strTitle;
  std::string str_cert_flag;
  std::vector<std::string> genre_array;  // genre ids
  std::string str_poster_url;
  std::string str_poster_type;
  std::string str_poster_overlay;
  std::string str_poster_index;
  std::string str_short_desc;
  std::string desc;
  unsigned int EndTime;  // seconds since the epoch
  bool IsRF;
};

// One genre.
//
// JSON: "str_id", "str_rep_id", "rec id", "str_name", "str_genre_img_url",
//       "str_genre_img_type", "str_genre_img_index" (strings).
class FCGenreInfo {
 public:
  FCGenreInfo();

  static bool ToJson(FCGenreInfo& genre, Json::Value& value);
  static bool FromJson(Json::Value& value, FCGenreInfo& genre);

  std::string str_id;
  std::string str_rep_id;
  std::string rec_id;
  std::string str_name;
  std::string str_genre_img_url;
  std::string str_genre_img_type;
  std::string str_genre_img_index;
};

// A representative genre grouping several genres.
//
// JSON: "str_rep_id", "str_name", "str_genre_id_list" (strings).
class FCRepGenreInfo {
 public:
  FCRepGenreInfo();

  static bool ToJson(FCRepGenreInfo& genre, Json::Value& value);
  static bool FromJson(Json::Value& value, FCRepGenreInfo& genre);

  std::string str_rep_id;
  std::string str_name;
  std::string str_genre_id_list;  // ",id,id,"
};

// A recommendation group.
//
// JSON: "rec id", "avail country", "name", "genre id list" (strings).
class FCRecGroup {
 public:
  FCRecGroup();

  static bool ToJson(FCRecGroup& group, Json::Value& value);
  static bool FromJson(Json::Value& value, FCRecGroup& group);

  std::string rec_id;
  std::string avail_country;
  std::string name;
  std::string genre_id_list;  // ",id,id,"
};

// The whole genre catalogue. Its JSON form is made by the FCMarshal list and
// map functions (GenreListToJson, RepGenreListToJson, RecGroupMapToJson).
class FCGenre {
 public:
  // True when the three containers are all empty.
  bool IsEmpty();
  // Empties the three containers.
  void Clear();

  std::vector<FCGenreInfo> genreList;
  std::vector<FCRepGenreInfo> repGenreList;
  std::map<std::string, FCRecGroup> recGroupMap;  // by rec id
};

// The filter applied to recommendations. With both `rec_id` and `rep_id`
// empty it lets everything through.
//
// JSON: "rec id", "rep id", "genre id list" (strings); a missing "rep id"
//       reads as "".
class FCFilterCriteria {
 public:
  FCFilterCriteria();

  // Empties the three strings; true.
  bool Clear();

  static bool ToJson(FCFilterCriteria& filter, Json::Value& value);
  static bool FromJson(Json::Value& value, FCFilterCriteria& filter);

  std::string rec_id;
  std::string rep_id;
  std::string genre_id_list;  // ",id,id,"
};

// A request for programmes of one source beyond those delivered. It has no
// JSON form.
class FCAdditionalProgramRequest {
 public:
  FCAdditionalProgramRequest(std::string programSourceId, unsigned long utcStartTime, int duration);
  virtual ~FCAdditionalProgramRequest();

  // All three fields equal.
  bool operator==(const FCAdditionalProgramRequest& other) const;
  bool operator!=(const FCAdditionalProgramRequest& other) const;
  // By source id (byte-wise), then start time (unsigned), then duration
  // (signed).
  bool operator<(const FCAdditionalProgramRequest& other) const;

  std::string str_program_source_id;
  unsigned long utc_starttime;  // seconds since the epoch
  int duration;                 // seconds
};

#endif
