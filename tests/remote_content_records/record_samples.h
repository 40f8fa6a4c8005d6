// Records with every field set to a value of its own, so that a key carrying
// the wrong field shows, and ways to look at their JSON.
#ifndef ZUNDE_TESTS_RECORD_SAMPLES_H
#define ZUNDE_TESTS_RECORD_SAMPLES_H

#include <json/json.h>

#include <initializer_list>
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

// Sets the string fields to prefix1, prefix2, ... in the order given.
template <class Record>
void Number(Record& record, const char* prefix, std::initializer_list<std::string Record::*> fields) {
  int n = 0;
  for (std::string Record::*field : fields) record.*field = prefix + std::to_string(++n);
}

inline FCRemoteChannel Channel() {
  using C = FCRemoteChannel;
  C c;
  Number(c, "c",
         {&C::str_program_source_id, &C::str_channel_name, &C::str_channel_number, &C::str_alias, &C::str_major,
          &C::str_minor, &C::str_onid, &C::str_tsid, &C::str_sid, &C::str_frequency, &C::str_ptc, &C::str_icon_url,
          &C::str_url_index, &C::str_dtv, &C::str_digital_flag, &C::str_qam_flag, &C::genre_id, &C::genre_name,
          &C::ac_rank});
  c.activityID = 2;
  c.embed = 5;
  return c;
}

inline FCRemoteChannelKey ChannelKey() {
  FCRemoteChannelKey k;
  Channel().GetKey(k);
  return k;
}

inline FCRemoteProgram Program() {
  using P = FCRemoteProgram;
  P p;
  Number(p, "p",
         {&P::str_program_source_id, &P::str_channel_name, &P::str_channel_number, &P::str_program_id, &P::str_lang,
          &P::str_starttime, &P::strTitle, &P::str_cert_flag, &P::str_poster_url, &P::str_poster_type,
          &P::str_poster_overlay, &P::str_poster_index, &P::str_short_desc, &P::desc});
  p.activityID = 1;
  p.utc_starttime = 1456864200;
  p.duration = 1800;
  p.genre_array = {"1", "2"};
  p.EndTime = 4000001800u;  // beyond the int range: written unsigned
  p.IsRF = true;
  return p;
}

// Either guide entry but for its slot, which the caller sets.
template <class G>
G GuideEntry(int sequence) {
  G g;
  Number(g, "g",
         {&G::str_program_source_id, &G::str_rec_type, &G::str_name, &G::str_number, &G::str_starttime,
          &G::str_content_id, &G::str_content_lang, &G::str_content_season_seq, &G::str_content_episode_seq,
          &G::str_content_title, &G::str_content_year, &G::str_content_type, &G::str_content_missed,
          &G::str_content_cert_flag, &G::str_content_poster_url, &G::str_content_poster_type,
          &G::str_content_poster_overlay, &G::str_content_poster_index});
  g.activityID = 4;
  g.sequence = sequence;
  g.utc_starttime = 4000000000u;  // beyond the int range: read as unsigned
  g.duration = 3600;
  g.content_genre_array = {"4", "9"};
  return g;
}

inline FCSmartChannelGuide Guide(int timeslot = 3, int sequence = 1) {
  FCSmartChannelGuide g = GuideEntry<FCSmartChannelGuide>(sequence);
  g.timeslot = timeslot;
  return g;
}

inline FCSmartChannelGuide_Future FutureGuide(int dayslot = 2, int sequence = 1) {
  FCSmartChannelGuide_Future g = GuideEntry<FCSmartChannelGuide_Future>(sequence);
  g.dayslot = dayslot;
  return g;
}

}  // namespace samples

#endif
