#include "FCSmartChannelGuide.h"

#include <tuple>

#include "FCElementData_internal.h"

using zunde::catalogue::MakeField;

namespace {

// The keys of both entries: the same but for the slot, the second field.
template <class G>
auto GuideFields(const char* slotKey, int G::*slot) {
  return std::make_tuple(
      MakeField("activityID", &G::activityID), MakeField(slotKey, slot), MakeField("sequence", &G::sequence),
      MakeField("str_program_source_id", &G::str_program_source_id), MakeField("str_rec_type", &G::str_rec_type),
      MakeField("str_name", &G::str_name), MakeField("str_number", &G::str_number),
      MakeField("str_starttime", &G::str_starttime), MakeField("utc_starttime", &G::utc_starttime),
      MakeField("duration", &G::duration), MakeField("str_content_id", &G::str_content_id),
      MakeField("str_content_lang", &G::str_content_lang),
      MakeField("str_content_season_seq", &G::str_content_season_seq),
      MakeField("str_content_episode_seq", &G::str_content_episode_seq),
      MakeField("str_content_title", &G::str_content_title), MakeField("str_content_year", &G::str_content_year),
      MakeField("str_content_type", &G::str_content_type), MakeField("str_content_missed", &G::str_content_missed),
      MakeField("str_content_cert_flag", &G::str_content_cert_flag),
      MakeField("content_genre_array", &G::content_genre_array),
      MakeField("str_content_poster_url", &G::str_content_poster_url),
      MakeField("str_content_poster_type", &G::str_content_poster_type),
      MakeField("str_content_poster_overlay", &G::str_content_poster_overlay),
      MakeField("str_content_poster_index", &G::str_content_poster_index));
}

auto TodayFields() { return GuideFields("timeslot", &FCSmartChannelGuide::timeslot); }
auto FutureFields() { return GuideFields("dayslot", &FCSmartChannelGuide_Future::dayslot); }

// What makes two entries the same: everything but the activity.
auto TiedForEquality(const FCSmartChannelGuide& g) {
  return std::tie(g.timeslot, g.sequence, g.str_program_source_id, g.str_rec_type, g.str_name, g.str_number,
                  g.utc_starttime, g.str_starttime, g.duration, g.str_content_id, g.str_content_lang,
                  g.str_content_season_seq, g.str_content_episode_seq, g.str_content_title, g.str_content_year,
                  g.str_content_type, g.str_content_missed, g.str_content_cert_flag, g.content_genre_array,
                  g.str_content_poster_url, g.str_content_poster_type, g.str_content_poster_overlay,
                  g.str_content_poster_index);
}

}  // namespace

// --- FCSmartChannelGuide ---

FCSmartChannelGuide::FCSmartChannelGuide() : activityID(0), timeslot(0), sequence(0), utc_starttime(0), duration(0) {}

FCSmartChannelGuide::~FCSmartChannelGuide() = default;

bool FCSmartChannelGuide::operator==(const FCSmartChannelGuide& other) const {
  return TiedForEquality(*this) == TiedForEquality(other);
}

bool FCSmartChannelGuide::IsSatisfyFilterCriteria(FCFilterCriteria& filter) {
  return zunde::catalogue::SatisfiesFilter(content_genre_array, filter);
}

bool FCSmartChannelGuide::ToJson(FCSmartChannelGuide& guide, Json::Value& value) {
  zunde::catalogue::WriteFields(guide, value, TodayFields());
  return true;
}

bool FCSmartChannelGuide::FromJson(Json::Value& value, FCSmartChannelGuide& guide) {
  zunde::catalogue::ReadFields(value, guide, TodayFields());
  return true;
}

// --- FCSmartChannelGuide_Future ---

FCSmartChannelGuide_Future::FCSmartChannelGuide_Future()
    : activityID(0), dayslot(0), sequence(0), utc_starttime(0), duration(0) {}

FCSmartChannelGuide_Future::~FCSmartChannelGuide_Future() = default;

bool FCSmartChannelGuide_Future::ToJson(FCSmartChannelGuide_Future& guide, Json::Value& value) {
  zunde::catalogue::WriteFields(guide, value, FutureFields());
  return true;
}

bool FCSmartChannelGuide_Future::FromJson(Json::Value& value, FCSmartChannelGuide_Future& guide) {
  zunde::catalogue::ReadFields(value, guide, FutureFields());
  return true;
}
