#include "record_samples.h"

namespace samples {

FCRemoteChannel Channel() {
  FCRemoteChannel c;
  c.activityID = 2;
  c.str_program_source_id = "src-1";
  c.str_channel_name = "News";
  c.str_channel_number = "7-1";
  c.str_alias = "N";
  c.str_major = "7";
  c.str_minor = "1";
  c.str_onid = "100";
  c.str_tsid = "200";
  c.str_sid = "300";
  c.str_frequency = "557000";
  c.str_ptc = "29";
  c.str_icon_url = "http://icon";
  c.str_url_index = "4";
  c.str_dtv = "1";
  c.embed = 5;
  c.str_digital_flag = "1";
  c.str_qam_flag = "0";
  c.genre_id = ",3,";
  c.genre_name = "Drama";
  c.ac_rank = "9";
  return c;
}

FCRemoteChannelKey ChannelKey() {
  FCRemoteChannelKey k;
  Channel().GetKey(k);
  return k;
}

FCRemoteProgram Program() {
  FCRemoteProgram p;
  p.activityID = 1;
  p.str_program_source_id = "src-1";
  p.str_channel_name = "News";
  p.str_channel_number = "7-1";
  p.str_program_id = "EP1";
  p.str_lang = "en";
  p.str_starttime = "2016-03-01T20:30:00";
  p.utc_starttime = 1456864200;
  p.duration = 1800;
  p.strTitle = "Evening News";
  p.str_cert_flag = "PG";
  p.genre_array = {"1", "2"};
  p.str_poster_url = "http://poster";
  p.str_poster_type = "jpg";
  p.str_poster_overlay = "o";
  p.str_poster_index = "3";
  p.str_short_desc = "short";
  p.desc = "long";
  p.EndTime = 1456866000;
  p.IsRF = true;
  return p;
}

template <class G>
void Fill(G& g, int sequence) {
  g.activityID = 4;
  g.sequence = sequence;
  g.str_program_source_id = "src-2";
  g.str_rec_type = "popular";
  g.str_name = "Sport";
  g.str_number = "11";
  g.str_starttime = "2016-03-01T21:00:00";
  g.utc_starttime = 4000000000u;  // beyond the int range: read as unsigned
  g.duration = 3600;
  g.str_content_id = "C1";
  g.str_content_lang = "de";
  g.str_content_season_seq = "2";
  g.str_content_episode_seq = "5";
  g.str_content_title = "Match";
  g.str_content_year = "2016";
  g.str_content_type = "live";
  g.str_content_missed = "N";
  g.str_content_cert_flag = "G";
  g.content_genre_array = {"4", "9"};
  g.str_content_poster_url = "http://p";
  g.str_content_poster_type = "png";
  g.str_content_poster_overlay = "x";
  g.str_content_poster_index = "1";
}

FCSmartChannelGuide Guide(int timeslot, int sequence) {
  FCSmartChannelGuide g;
  Fill(g, sequence);
  g.timeslot = timeslot;
  return g;
}

FCSmartChannelGuide_Future FutureGuide(int dayslot, int sequence) {
  FCSmartChannelGuide_Future g;
  Fill(g, sequence);
  g.dayslot = dayslot;
  return g;
}

}  // namespace samples
