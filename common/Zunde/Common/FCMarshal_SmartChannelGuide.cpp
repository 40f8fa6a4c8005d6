// Recommendation requests and the smart channel guide on the wire.
#include "FCElementData_internal.h"
#include "FCMarshal.h"

using zunde::catalogue::Member;
using zunde::catalogue::ReadArrayMember;
using zunde::catalogue::WriteArrayMember;

namespace {

const char kCurrentWatchingKey[] = "current_watching_program_source_id";
const char kUtcCurrentTimeKey[] = "utc_currenttime";
const char kNumberKey[] = "number_of_recommendation";
const char kGenreIdListKey[] = "genre id list";
const char kRecIdKey[] = "rec id";
const char kFromTimeslotKey[] = "from_timeslot";
const char kToTimeslotKey[] = "to_timeslot";
const char kFromDayslotKey[] = "from_dayslot";
const char kToDayslotKey[] = "to_dayslot";
const char kListKey[] = "out_list";
const char kTimelineKey[] = "out_timeline";
const char kFutureTimelineKey[] = "out_future_timeline";
const char kTimeSlotKey[] = "time_slot";
const char kDaySlotKey[] = "day_slot";
const char kSequenceMapKey[] = "sequence_map";
const char kSequenceKey[] = "sequence";
const char kGuideKey[] = "smart_channel_guide";

// The filter's part of a recommendation request: its rep id stays at home.
void WriteFilter(FCFilterCriteria& filter, Json::Value& root) {
  root[kGenreIdListKey] = filter.genre_id_list;
  root[kRecIdKey] = filter.rec_id;
}

void ReadFilter(Json::Value& root, FCFilterCriteria& filter) {
  filter.genre_id_list = Member(root, kGenreIdListKey).asString();
  filter.rec_id = Member(root, kRecIdKey).asString();
}

void WriteTime(unsigned long utc, Json::Value& root) { root[kUtcCurrentTimeKey] = static_cast<Json::UInt>(utc); }

unsigned long ReadTime(Json::Value& root) { return Member(root, kUtcCurrentTimeKey).asUInt(); }

// A timeline: slot to sequence to entry, as an array of slots in ascending
// order, each with its entries in ascending sequence.
template <class Guide>
using Timeline = std::map<int, std::map<int, Guide> >;

template <class Guide>
void WriteTimeline(Timeline<Guide>& timeline, const char* key, const char* slotKey, Json::Value& root) {
  WriteArrayMember(root, key, timeline, [slotKey](std::pair<const int, std::map<int, Guide> >& slot, Json::Value& e) {
    e[slotKey] = slot.first;
    WriteArrayMember(e, kSequenceMapKey, slot.second, [](std::pair<const int, Guide>& entry, Json::Value& s) {
      s[kSequenceKey] = entry.first;
      Guide::ToJson(entry.second, s[kGuideKey]);
    });
  });
}

// Keeps the first of equal slots, and within a slot the first of equal
// sequences; a slot already in the caller's timeline keeps its entries.
template <class Guide>
void ReadTimeline(Json::Value& root, const char* key, const char* slotKey, Timeline<Guide>& timeline) {
  ReadArrayMember(root, key, [&](Json::Value& e) {
    const int slot = Member(e, slotKey).asInt();
    std::map<int, Guide> entries;
    ReadArrayMember(e, kSequenceMapKey, [&entries](Json::Value& s) {
      const int sequence = Member(s, kSequenceKey).asInt();
      Guide guide;
      Json::Value object = Member(s, kGuideKey);
      Guide::FromJson(object, guide);
      entries.insert(std::make_pair(sequence, guide));
    });
    timeline.insert(std::make_pair(slot, entries));
  });
}

}  // namespace

bool FCMarshal::MarshalingForGetRecommendationOnNow(eRemoteContentActivity activity,
                                                    std::string currentWatchingProgramSourceId,
                                                    unsigned long utcCurrentTime, int numberOfRecommendation,
                                                    FCFilterCriteria& filter, Json::Value& root) {
  activityIDToJson(activity, root);
  root[kCurrentWatchingKey] = currentWatchingProgramSourceId;
  WriteTime(utcCurrentTime, root);
  root[kNumberKey] = numberOfRecommendation;
  WriteFilter(filter, root);
  return true;
}

bool FCMarshal::UnmarshalingForGetRecommendationOnNow(Json::Value& root, eRemoteContentActivity& activity,
                                                      std::string& currentWatchingProgramSourceId,
                                                      unsigned long& utcCurrentTime, int& numberOfRecommendation,
                                                      FCFilterCriteria& filter) {
  JsonToactivityID(root, activity);
  currentWatchingProgramSourceId = Member(root, kCurrentWatchingKey).asString();
  utcCurrentTime = ReadTime(root);
  numberOfRecommendation = Member(root, kNumberKey).asInt();
  ReadFilter(root, filter);
  return true;
}

bool FCMarshal::MarshalllingForGetRecommendationUpcoming(eRemoteContentActivity activity, unsigned long utcCurrentTime,
                                                         int numberOfRecommendation, FCFilterCriteria& filter,
                                                         Json::Value& root) {
  activityIDToJson(activity, root);
  WriteTime(utcCurrentTime, root);
  root[kNumberKey] = numberOfRecommendation;
  WriteFilter(filter, root);
  return true;
}

bool FCMarshal::UnmarshalingForGetRecommendationUpcoming(Json::Value& root, eRemoteContentActivity& activity,
                                                         unsigned long& utcCurrentTime, int& numberOfRecommendation,
                                                         FCFilterCriteria& filter) {
  JsonToactivityID(root, activity);
  utcCurrentTime = ReadTime(root);
  numberOfRecommendation = Member(root, kNumberKey).asInt();
  ReadFilter(root, filter);
  return true;
}

bool FCMarshal::MarshalingForGetRecommendationTimeline(eRemoteContentActivity activity, unsigned long utcCurrentTime,
                                                       int fromTimeslot, int toTimeslot, Json::Value& root) {
  activityIDToJson(activity, root);
  WriteTime(utcCurrentTime, root);
  root[kFromTimeslotKey] = fromTimeslot;
  root[kToTimeslotKey] = toTimeslot;
  return true;
}

bool FCMarshal::UnmarshalingForGetRecommendationTimeline(Json::Value& root, eRemoteContentActivity& activity,
                                                         unsigned long& utcCurrentTime, int& fromTimeslot,
                                                         int& toTimeslot) {
  JsonToactivityID(root, activity);
  utcCurrentTime = ReadTime(root);
  fromTimeslot = Member(root, kFromTimeslotKey).asInt();
  toTimeslot = Member(root, kToTimeslotKey).asInt();
  return true;
}

bool FCMarshal::MarshalingForGetRecommendationFutureTimeline(eRemoteContentActivity activity, int fromDayslot,
                                                             int toDayslot, Json::Value& root) {
  activityIDToJson(activity, root);
  root[kFromDayslotKey] = fromDayslot;
  root[kToDayslotKey] = toDayslot;
  return true;
}

bool FCMarshal::UnmarshalingForGetRecommendationFutureTimeline(Json::Value& root, eRemoteContentActivity& activity,
                                                               int& fromDayslot, int& toDayslot) {
  JsonToactivityID(root, activity);
  fromDayslot = Member(root, kFromDayslotKey).asInt();
  toDayslot = Member(root, kToDayslotKey).asInt();
  return true;
}

bool FCMarshal::FCSmartChannelGuideListToJson(std::list<FCSmartChannelGuide>& guides, Json::Value& root) {
  WriteArrayMember(root, kListKey, guides, &FCSmartChannelGuide::ToJson);
  return true;
}

bool FCMarshal::JsonToFCSmartChannelGuideList(Json::Value& root, std::list<FCSmartChannelGuide>& guides) {
  ReadArrayMember(root, kListKey, [&guides](Json::Value& element) {
    FCSmartChannelGuide guide;
    FCSmartChannelGuide::FromJson(element, guide);
    guides.push_back(guide);
  });
  return true;
}

bool FCMarshal::TimeLineToJson(std::map<int, std::map<int, FCSmartChannelGuide> >& timeline, Json::Value& root) {
  WriteTimeline(timeline, kTimelineKey, kTimeSlotKey, root);
  return true;
}

bool FCMarshal::JsonToTimeLine(Json::Value& root, std::map<int, std::map<int, FCSmartChannelGuide> >& timeline) {
  ReadTimeline(root, kTimelineKey, kTimeSlotKey, timeline);
  return true;
}

bool FCMarshal::FutureTimeLineToJson(std::map<int, std::map<int, FCSmartChannelGuide_Future> >& timeline,
                                     Json::Value& root) {
  WriteTimeline(timeline, kFutureTimelineKey, kDaySlotKey, root);
  return true;
}

bool FCMarshal::JsonToFutureTimeLine(Json::Value& root,
                                     std::map<int, std::map<int, FCSmartChannelGuide_Future> >& timeline) {
  ReadTimeline(root, kFutureTimelineKey, kDaySlotKey, timeline);
  return true;
}
