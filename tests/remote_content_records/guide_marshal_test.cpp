// Recommendation requests and the smart channel guide's list and timelines
// on the wire.
#include <gtest/gtest.h>

#include <functional>

#include "FCMarshal.h"
#include "record_samples.h"

using samples::KeyTypes;
using samples::TypesOf;

namespace {

const eRemoteContentActivity kActivity = static_cast<eRemoteContentActivity>(3);

FCFilterCriteria Filter() {
  FCFilterCriteria filter;
  filter.rec_id = "R1";
  filter.rep_id = "P1";  // never sent
  filter.genre_id_list = ",4,";
  return filter;
}

struct RequestCase {
  const char* name;
  std::function<void(Json::Value&)> write;
  KeyTypes keys;
};

const RequestCase kRequests[] = {
    {"OnNow",
     [](Json::Value& root) {
       FCFilterCriteria filter = Filter();
       FCMarshal::MarshalingForGetRecommendationOnNow(kActivity, "src", 3000000000UL, 5, filter, root);
     },
     {{"activityID", Json::intValue},
      {"current_watching_program_source_id", Json::stringValue},
      {"utc_currenttime", Json::uintValue},
      {"number_of_recommendation", Json::intValue},
      {"genre id list", Json::stringValue},
      {"rec id", Json::stringValue}}},
    {"Upcoming",
     [](Json::Value& root) {
       FCFilterCriteria filter = Filter();
       FCMarshal::MarshalllingForGetRecommendationUpcoming(kActivity, 3000000000UL, 5, filter, root);
     },
     {{"activityID", Json::intValue},
      {"utc_currenttime", Json::uintValue},
      {"number_of_recommendation", Json::intValue},
      {"genre id list", Json::stringValue},
      {"rec id", Json::stringValue}}},
    {"Timeline",
     [](Json::Value& root) { FCMarshal::MarshalingForGetRecommendationTimeline(kActivity, 3000000000UL, 1, 4, root); },
     {{"activityID", Json::intValue},
      {"utc_currenttime", Json::uintValue},
      {"from_timeslot", Json::intValue},
      {"to_timeslot", Json::intValue}}},
    {"FutureTimeline",
     [](Json::Value& root) { FCMarshal::MarshalingForGetRecommendationFutureTimeline(kActivity, 0, 6, root); },
     {{"activityID", Json::intValue}, {"from_dayslot", Json::intValue}, {"to_dayslot", Json::intValue}}},
};

class RecommendationRequest : public ::testing::TestWithParam<RequestCase> {};

TEST_P(RecommendationRequest, HasExactlyItsKeysWithTheirTypes) {
  Json::Value root;
  GetParam().write(root);
  EXPECT_EQ(TypesOf(root), GetParam().keys);
}

INSTANTIATE_TEST_SUITE_P(Requests, RecommendationRequest, ::testing::ValuesIn(kRequests),
                         [](const ::testing::TestParamInfo<RequestCase>& info) {
                           return std::string(info.param.name);
                         });

TEST(RecommendationRequest, OnNowReadsBackAllButTheRepId) {
  Json::Value root;
  FCFilterCriteria sent = Filter();
  FCMarshal::MarshalingForGetRecommendationOnNow(kActivity, "src", 3000000000UL, 5, sent, root);
  eRemoteContentActivity activity{};
  std::string source;
  unsigned long utc = 0;
  int count = 0;
  FCFilterCriteria received;
  FCMarshal::UnmarshalingForGetRecommendationOnNow(root, activity, source, utc, count, received);
  EXPECT_EQ(activity, kActivity);
  EXPECT_EQ(source, "src");
  EXPECT_EQ(utc, 3000000000UL);
  EXPECT_EQ(count, 5);
  EXPECT_EQ(received.rec_id, "R1");
  EXPECT_EQ(received.genre_id_list, ",4,");
  EXPECT_EQ(received.rep_id, "");
}

TEST(GuideList, EmptyListLeavesTheKeyOut) {
  std::list<FCSmartChannelGuide> none;
  Json::Value root(Json::objectValue);
  FCMarshal::FCSmartChannelGuideListToJson(none, root);
  EXPECT_FALSE(root.isMember("out_list"));
  FCMarshal::JsonToFCSmartChannelGuideList(root, none);
  EXPECT_TRUE(none.empty());
}

TEST(GuideList, KeepsOrderAndAppendsOnReading) {
  std::list<FCSmartChannelGuide> sent = {samples::Guide(1, 2), samples::Guide(1, 1)};
  Json::Value root;
  FCMarshal::FCSmartChannelGuideListToJson(sent, root);
  ASSERT_EQ(root["out_list"].size(), 2u);
  EXPECT_EQ(root["out_list"][0]["sequence"], 2);
  std::list<FCSmartChannelGuide> received = {samples::Guide(9, 9)};
  FCMarshal::JsonToFCSmartChannelGuideList(root, received);
  std::list<FCSmartChannelGuide> expected = {samples::Guide(9, 9), samples::Guide(1, 2), samples::Guide(1, 1)};
  EXPECT_EQ(received, expected);
}

using Timeline = std::map<int, std::map<int, FCSmartChannelGuide>>;
using FutureTimeline = std::map<int, std::map<int, FCSmartChannelGuide_Future>>;

TEST(Timeline, EmptyMapLeavesTheKeyOutAndAMissingKeyReadsEmpty) {
  Timeline none;
  Json::Value root(Json::objectValue);
  FCMarshal::TimeLineToJson(none, root);
  EXPECT_EQ(root, Json::Value(Json::objectValue));
  FCMarshal::JsonToTimeLine(root, none);
  EXPECT_TRUE(none.empty());
}

TEST(Timeline, SlotsAndSequencesInAscendingOrder) {
  Timeline sent;
  sent[5][2] = samples::Guide(5, 2);
  sent[5][1] = samples::Guide(5, 1);
  sent[1][7] = samples::Guide(1, 7);
  Json::Value root;
  FCMarshal::TimeLineToJson(sent, root);
  const Json::Value& slots = root["out_timeline"];
  ASSERT_EQ(slots.size(), 2u);
  EXPECT_EQ(TypesOf(slots[0]), (KeyTypes{{"time_slot", Json::intValue}, {"sequence_map", Json::arrayValue}}));
  EXPECT_EQ(slots[0]["time_slot"], 1);
  EXPECT_EQ(slots[1]["time_slot"], 5);
  const Json::Value& entries = slots[1]["sequence_map"];
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_EQ(TypesOf(entries[0]), (KeyTypes{{"sequence", Json::intValue}, {"smart_channel_guide", Json::objectValue}}));
  EXPECT_EQ(entries[0]["sequence"], 1);
  EXPECT_EQ(entries[1]["sequence"], 2);
  EXPECT_EQ(entries[1]["smart_channel_guide"]["timeslot"], 5);

  Timeline received;
  FCMarshal::JsonToTimeLine(root, received);
  EXPECT_EQ(received, sent);
}

TEST(Timeline, SlotWithoutEntriesHasOnlyItsSlot) {
  Timeline sent;
  sent[4];
  Json::Value root;
  FCMarshal::TimeLineToJson(sent, root);
  EXPECT_EQ(TypesOf(root["out_timeline"][0]), (KeyTypes{{"time_slot", Json::intValue}}));
  Timeline received;
  FCMarshal::JsonToTimeLine(root, received);
  ASSERT_EQ(received.size(), 1u);
  EXPECT_TRUE(received[4].empty());
}

Json::Value Entry(int sequence, const char* title) {
  FCSmartChannelGuide guide = samples::Guide(0, sequence);
  guide.str_content_title = title;
  Json::Value entry;
  entry["sequence"] = sequence;
  FCSmartChannelGuide::ToJson(guide, entry["smart_channel_guide"]);
  return entry;
}

TEST(Timeline, FirstOfEqualSequencesAndOfEqualSlotsWins) {
  Json::Value slot;
  slot["time_slot"] = 2;
  slot["sequence_map"].append(Entry(1, "first"));
  slot["sequence_map"].append(Entry(1, "second"));
  Json::Value laterSlot;
  laterSlot["time_slot"] = 2;
  laterSlot["sequence_map"].append(Entry(3, "later slot"));
  Json::Value root;
  root["out_timeline"].append(slot);
  root["out_timeline"].append(laterSlot);

  Timeline received;
  FCMarshal::JsonToTimeLine(root, received);
  ASSERT_EQ(received.size(), 1u);
  ASSERT_EQ(received[2].size(), 1u);
  EXPECT_EQ(received[2][1].str_content_title, "first");

  Timeline already;
  already[2][9] = samples::Guide(2, 9);
  FCMarshal::JsonToTimeLine(root, already);
  EXPECT_EQ(already[2].count(1), 0u);  // a slot the caller had keeps its entries
}

TEST(FutureTimeline, UsesDaySlotsAndItsOwnKey) {
  FutureTimeline sent;
  sent[3][1] = samples::FutureGuide(3, 1);
  Json::Value root;
  FCMarshal::FutureTimeLineToJson(sent, root);
  EXPECT_EQ(root.getMemberNames(), std::vector<std::string>{"out_future_timeline"});
  const Json::Value& slot = root["out_future_timeline"][0];
  EXPECT_EQ(TypesOf(slot), (KeyTypes{{"day_slot", Json::intValue}, {"sequence_map", Json::arrayValue}}));
  EXPECT_EQ(slot["sequence_map"][0]["smart_channel_guide"]["dayslot"], 3);

  FutureTimeline received;
  FCMarshal::JsonToFutureTimeLine(root, received);
  ASSERT_EQ(received.count(3), 1u);
  Json::Value again;
  FCMarshal::FutureTimeLineToJson(received, again);
  EXPECT_EQ(again, root);
}

TEST(GuideEquality, IgnoresTheActivityOnly) {
  FCSmartChannelGuide other = samples::Guide();
  other.activityID = 99;
  EXPECT_TRUE(other == samples::Guide());
  other.timeslot += 1;
  EXPECT_FALSE(other == samples::Guide());
  other = samples::Guide();
  other.content_genre_array = {"9", "4"};
  EXPECT_FALSE(other == samples::Guide());
}

}  // namespace
