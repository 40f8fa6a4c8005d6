// The operator family's recommendations: what is on now, what comes next,
// and the timelines of featured channels by hour and by evening.
#include <algorithm>

#include "FCMarshal.h"
#include "FCSmartChannelGuide.h"
#include "lineups.h"
#include "programmes.h"

namespace zunde::service {
namespace {

using T = JsonType;

const int kTimelineColumns = 5;

// A recommendation in either guide record; `slotField` is the timeslot or
// the dayslot.
template <typename Guide>
Guide GuideOf(const FCRemoteChannel& channel, const Slot& slot, int Guide::*slotField, int place, int sequence) {
  const FCRemoteProgram program = OperatorProgram(channel, slot);
  Guide guide;
  guide.activityID = channel.activityID;
  guide.*slotField = place;
  guide.sequence = sequence;
  guide.str_program_source_id = channel.str_program_source_id;
  guide.str_rec_type = "popular";
  guide.str_name = channel.str_channel_name;
  guide.str_number = channel.str_channel_number;
  guide.str_starttime = program.str_starttime;
  guide.utc_starttime = program.utc_starttime;
  guide.duration = program.duration;
  guide.str_content_id = program.str_program_id;
  guide.str_content_lang = program.str_lang;
  guide.str_content_title = program.strTitle;
  guide.str_content_type = "program";
  guide.str_content_missed = "0";
  guide.str_content_cert_flag = program.str_cert_flag;
  guide.content_genre_array = program.genre_array;
  guide.str_content_poster_url = program.str_poster_url;
  guide.str_content_poster_type = program.str_poster_type;
  guide.str_content_poster_index = program.str_poster_index;
  return guide;
}

// The tunable channels' slots that `take` accepts, in line-up order.
template <typename Take>
std::vector<std::pair<const FCRemoteChannel*, Slot>> Slots(Request& request, const Lineup& lineup, time_t time,
                                                           Take take) {
  std::vector<std::pair<const FCRemoteChannel*, Slot>> found;
  for (const LineupChannel& entry : lineup.channels) {
    Slot slot;
    if (entry.tunable && SlotOf(request, entry.channel, time, slot) && take(entry.channel, slot)) {
      found.emplace_back(&entry.channel, slot);
    }
  }
  return found;
}

void OnNow(Request& request, Json::Value& reply) {
  eRemoteContentActivity activity;
  std::string watching;
  unsigned long time = 0;
  int count = 0;
  FCFilterCriteria filter;
  FCMarshal::UnmarshalingForGetRecommendationOnNow(request.body, activity, watching, time, count, filter);
  std::list<FCSmartChannelGuide> guides;
  for (const auto& [channel, slot] : Slots(request, LineupOf(request), time, [&](const FCRemoteChannel& c, const Slot& s) {
         return c.str_program_source_id != watching && PassesFilter({s.genre}, filter, request.catalogue);
       })) {
    if (static_cast<int>(guides.size()) >= count) break;
    guides.push_back(GuideOf(*channel, slot, &FCSmartChannelGuide::timeslot, 0, static_cast<int>(guides.size()) + 1));
  }
  FCMarshal::FCSmartChannelGuideListToJson(guides, reply);
  Succeed(reply);
}

// What starts within the next three hours, soonest first.
void Upcoming(Request& request, Json::Value& reply) {
  eRemoteContentActivity activity;
  unsigned long time = 0;
  int count = 0;
  FCFilterCriteria filter;
  FCMarshal::UnmarshalingForGetRecommendationUpcoming(request.body, activity, time, count, filter);
  const Lineup& lineup = LineupOf(request);
  std::vector<std::pair<const FCRemoteChannel*, Slot>> next;
  for (const LineupChannel& entry : lineup.channels) {
    for (const Slot& slot : request.catalogue.SlotsBetween(entry.channel.str_program_source_id, entry.channel.genre_id,
                                                           time + 1, time + 3 * 3600, GuideEnd(request, lineup.activity))) {
      if (entry.tunable && slot.start > time && PassesFilter({slot.genre}, filter, request.catalogue)) {
        next.emplace_back(&entry.channel, slot);
      }
    }
  }
  std::stable_sort(next.begin(), next.end(), [](const auto& a, const auto& b) { return a.second.start < b.second.start; });
  std::list<FCSmartChannelGuide> guides;
  for (size_t i = 0; i < next.size() && static_cast<int>(i) < count; ++i) {
    guides.push_back(GuideOf(*next[i].first, next[i].second, &FCSmartChannelGuide::timeslot, 0, static_cast<int>(i) + 1));
  }
  FCMarshal::FCSmartChannelGuideListToJson(guides, reply);
  Succeed(reply);
}

// Timeslot n is the hour n hours after the given time.
void Timeline(Request& request, Json::Value& reply) {
  eRemoteContentActivity activity;
  unsigned long time = 0;
  int from = 0;
  int to = 0;
  FCMarshal::UnmarshalingForGetRecommendationTimeline(request.body, activity, time, from, to);
  const Lineup& lineup = LineupOf(request);
  std::map<int, std::map<int, FCSmartChannelGuide>> timeline;
  for (int slotNumber = from; slotNumber <= to && slotNumber - from < 48; ++slotNumber) {
    const auto found = Slots(request, lineup, static_cast<time_t>(time) + slotNumber * 3600,
                             [](const FCRemoteChannel& c, const Slot&) { return !c.ac_rank.empty(); });
    for (size_t i = 0; i < found.size() && i < kTimelineColumns; ++i) {
      timeline[slotNumber][static_cast<int>(i) + 1] =
          GuideOf(*found[i].first, found[i].second, &FCSmartChannelGuide::timeslot, slotNumber, static_cast<int>(i) + 1);
    }
  }
  FCMarshal::TimeLineToJson(timeline, reply);
  Succeed(reply);
}

// Dayslot n is the evening (20:00 UTC) n days after the service started.
void FutureTimeline(Request& request, Json::Value& reply) {
  eRemoteContentActivity activity;
  int from = 0;
  int to = 0;
  FCMarshal::UnmarshalingForGetRecommendationFutureTimeline(request.body, activity, from, to);
  const Lineup& lineup = LineupOf(request);
  std::map<int, std::map<int, FCSmartChannelGuide_Future>> timeline;
  for (int day = std::max(from, 0); day <= to && day <= 7; ++day) {
    const time_t evening = request.catalogue.now / 86400 * 86400 + day * 86400 + 20 * 3600;
    const auto found = Slots(request, lineup, evening, [](const FCRemoteChannel& c, const Slot&) { return !c.ac_rank.empty(); });
    for (size_t i = 0; i < found.size() && i < kTimelineColumns; ++i) {
      timeline[day][static_cast<int>(i) + 1] = GuideOf(*found[i].first, found[i].second,
                                                       &FCSmartChannelGuide_Future::dayslot, day, static_cast<int>(i) + 1);
    }
  }
  FCMarshal::FutureTimeLineToJson(timeline, reply);
  Succeed(reply);
}

const RequiredKey kTime{"utc_currenttime", T::UInt};
const RequiredKey kCount{"number_of_recommendation", T::Int};

}  // namespace

const MemberTable& OperatorRecommendationMembers() {
  static const MemberTable table = {
      {"GetRecommendationOnNow", {kActivityKey, kTime, kCount}, OnNow, kReads},
      {"GetRecommendationUpcomming", {kActivityKey, kTime, kCount}, Upcoming, kReads},
      {"GetRecommendationTimeline", {kActivityKey, kTime}, Timeline, kKeepsAnswer},
      {"GetRecommendationFutureTimeline", {kActivityKey}, FutureTimeline, kKeepsAnswer},
  };
  return table;
}

}  // namespace zunde::service
