// Entries of the operator's recommendations and of the smart channel guide,
// which lays recommended content out by time slots for the current day and
// by day slots for the coming days.
//
//   FCSmartChannelGuide         one entry of a list or of the day's timeline
//   FCSmartChannelGuide_Future  one entry of the coming days' timeline
//
// Containers the recommendation calls fill:
//   a list              std::list<FCSmartChannelGuide>
//   a timeline          std::map<int, std::map<int, FCSmartChannelGuide>>,
//                       time slot to sequence (rank within the slot) to entry
//   a future timeline   std::map<int, std::map<int, FCSmartChannelGuide_Future>>,
//                       day slot to sequence to entry
//
// JSON forms, members of the given value itself, in the conventions of the
// catalogue records (FCElementData.h): "activityID", the slot ("timeslot" or
// "dayslot"), "sequence" (ints), "str_program_source_id", "str_rec_type",
// "str_name", "str_number", "str_starttime" (strings), "utc_starttime"
// (unsigned), "duration" (int), "str_content_id", "str_content_lang",
// "str_content_season_seq", "str_content_episode_seq", "str_content_title",
// "str_content_year", "str_content_type", "str_content_missed",
// "str_content_cert_flag" (strings), "content_genre_array" (array of strings,
// left out without genres; reading appends), "str_content_poster_url",
// "str_content_poster_type", "str_content_poster_overlay",
// "str_content_poster_index" (strings). A value of a type that does not
// convert throws Json::Exception to the caller.
#ifndef ZUNDE_FCSMARTCHANNELGUIDE_H
#define ZUNDE_FCSMARTCHANNELGUIDE_H

#include <json/json.h>

#include <string>
#include <vector>

#include "FCElementData.h"

class FCSmartChannelGuide {
 public:
  // Zero numbers, empty strings, no genres.
  FCSmartChannelGuide();
  virtual ~FCSmartChannelGuide();

  // Every field equal but `activityID`; genres compared element-wise.
  bool operator==(const FCSmartChannelGuide& other) const;

  // As FCRemoteProgram::IsSatisfyFilterCriteria, on `content_genre_array`.
  bool IsSatisfyFilterCriteria(FCFilterCriteria& filter);

  static bool ToJson(FCSmartChannelGuide& guide, Json::Value& value);
  static bool FromJson(Json::Value& value, FCSmartChannelGuide& guide);

  int activityID;  // an eRemoteContentActivity value
  int timeslot;
  int sequence;  // rank within the slot
  std::string str_program_source_id;
  std::string str_rec_type;
  std::string str_name;    // channel name
  std::string str_number;  // channel number
  std::string str_starttime;
  unsigned int utc_starttime;  // seconds since the epoch
  int duration;                // seconds
  std::string str_content_id;
  std::string str_content_lang;
  std::string str_content_season_seq;
  std::string str_content_episode_seq;
  std::string str_content_title;
  std::string str_content_year;
  std::string str_content_type;
  std::string str_content_missed;
  std::string str_content_cert_flag;
  std::vector<std::string> content_genre_array;  // genre ids
  std::string str_content_poster_url;
  std::string str_content_poster_type;
  std::string str_content_poster_overlay;
  std::string str_content_poster_index;
};

// As FCSmartChannelGuide, with a day slot ("dayslot") where that has its
// time slot.
class FCSmartChannelGuide_Future {
 public:
  // Zero numbers, empty strings, no genres.
  FCSmartChannelGuide_Future();
  virtual ~FCSmartChannelGuide_Future();

  static bool ToJson(FCSmartChannelGuide_Future& guide, Json::Value& value);
  static bool FromJson(Json::Value& value, FCSmartChannelGuide_Future& guide);

  int activityID;  // an eRemoteContentActivity value
  int dayslot;
  int sequence;  // rank within the slot
  std::string str_program_source_id;
  std::string str_rec_type;
  std::string str_name;    // channel name
  std::string str_number;  // channel number
  std::string str_starttime;
  unsigned int utc_starttime;  // seconds since the epoch
  int duration;                // seconds
  std::string str_content_id;
  std::string str_content_lang;
  std::string str_content_season_seq;
  std::string str_content_episode_seq;
  std::string str_content_title;
  std::string str_content_year;
  std::string str_content_type;
  std::string str_content_missed;
  std::string str_content_cert_flag;
  std::vector<std::string> content_genre_array;  // genre ids
  std::string str_content_poster_url;
  std::string str_content_poster_type;
  std::string str_content_poster_overlay;
  std::string str_content_poster_index;
};

#endif
