// Records read from their JSON forms, every field holding a value of its
// own, and ways to look at their JSON.
#ifndef ZUNDE_TESTS_RECORD_SAMPLES_H
#define ZUNDE_TESTS_RECORD_SAMPLES_H

#include <json/json.h>

#include <string>

#include "FCElementData.h"
#include "FCSmartChannelGuide.h"
#include "json_text.h"

namespace samples {

using zunde::testing::Compact;
using zunde::testing::Parsed;

template <class Record>
Json::Value Written(Record record) {
  Json::Value value;
  Record::ToJson(record, value);
  return value;
}

template <class Record>
Record Read(const std::string& json) {
  Record record;
  Json::Value value = Parsed(json);
  Record::FromJson(value, record);
  return record;
}

// `json` read into a default record, then written again.
template <class Record>
std::string Reread(const std::string& json) {
  return Compact(Written(Read<Record>(json)));
}

// `text` with every `from` replaced by `to`, as compact JSON text.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return Compact(Parsed(text));
}

// The genre name is read from "genre name": written, it reads back empty.
const char kChannel[] = R"({"activityID": 2, "str_program_source_id": "c1", "str_channel_name": "c2",
    "str_channel_number": "c3", "str_alias": "c4", "str_major": "c5", "str_minor": "c6", "str_onid": "c7",
    "str_tsid": "c8", "str_sid": "c9", "str_frequency": "c10", "str_ptc": "c11", "str_icon_url": "c12",
    "str_url_index": "c13", "str_dtv": "c14", "embed": 5, "str_digital_flag": "c15", "str_qam_flag": "c16",
    "genre id": "c17", "gere name": "", "ac_rank": "c18"})";

// An end time beyond the int range: written and read unsigned.
const char kProgram[] = R"({"activityID": 1, "program source id": "p1", "channel name": "p2",
    "channel number": "p3", "program id": "p4", "lang": "p5", "start time": "p6", "utc start time": 1456864200,
    "duration": 1800, "title": "p7", "cert flag": "p8", "genre array": ["1", "2"], "poster url": "p9",
    "poster type": "p10", "poster overlay": "p11", "poster index": "p12", "short desc": "p13",
    "EndTime": 4000001800, "IsRF": true, "desc": "p14"})";

// A start beyond the int range: written and read unsigned.
const char kGuide[] = R"({"activityID": 4, "timeslot": 3, "sequence": 1, "str_program_source_id": "g1",
    "str_rec_type": "g2", "str_name": "g3", "str_number": "g4", "str_starttime": "g5", "utc_starttime": 4000000000,
    "duration": 3600, "str_content_id": "g6", "str_content_lang": "g7", "str_content_season_seq": "g8",
    "str_content_episode_seq": "g9", "str_content_title": "g10", "str_content_year": "g11", "str_content_type": "g12",
    "str_content_missed": "g13", "str_content_cert_flag": "g14", "content_genre_array": ["4", "9"],
    "str_content_poster_url": "g15", "str_content_poster_type": "g16", "str_content_poster_overlay": "g17",
    "str_content_poster_index": "g18"})";

inline FCRemoteProgram Program() { return Read<FCRemoteProgram>(kProgram); }
inline FCSmartChannelGuide Guide() { return Read<FCSmartChannelGuide>(kGuide); }

}  // namespace samples

#endif
