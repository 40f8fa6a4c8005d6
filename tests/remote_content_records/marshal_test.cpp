// Recommendation requests, the smart channel guide's list and timelines, and
// the lists and maps of the operator's catalogue replies on the wire.
#include <gtest/gtest.h>

#include <functional>

#include "FCMarshal.h"
#include "record_samples.h"

using samples::Compact;
using samples::Parsed;
using samples::Written;

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
  const char* json;
};

// A current time beyond the int range shows it travels unsigned.
const RequestCase kRequests[] = {
    {"OnNow",
     [](Json::Value& root) {
       FCFilterCriteria filter = Filter();
       FCMarshal::MarshalingForGetRecommendationOnNow(kActivity, "src", 3000000000UL, 5, filter, root);
     },
     R"({"activityID": 3, "current_watching_program_source_id": "src", "utc_currenttime": 3000000000,
         "number_of_recommendation": 5, "genre id list": ",4,", "rec id": "R1"})"},
    {"Upcoming",
     [](Json::Value& root) {
       FCFilterCriteria filter = Filter();
       FCMarshal::MarshalllingForGetRecommendationUpcoming(kActivity, 3000000000UL, 5, filter, root);
     },
     R"({"activityID": 3, "utc_currenttime": 3000000000, "number_of_recommendation": 5, "genre id list": ",4,",
         "rec id": "R1"})"},
    {"Timeline",
     [](Json::Value& root) { FCMarshal::MarshalingForGetRecommendationTimeline(kActivity, 3000000000UL, 1, 4, root); },
     R"({"activityID": 3, "utc_currenttime": 3000000000, "from_timeslot": 1, "to_timeslot": 4})"},
    {"FutureTimeline",
     [](Json::Value& root) { FCMarshal::MarshalingForGetRecommendationFutureTimeline(kActivity, 0, 6, root); },
     R"({"activityID": 3, "from_dayslot": 0, "to_dayslot": 6})"},
};

class RecommendationRequest : public ::testing::TestWithParam<RequestCase> {};

TEST_P(RecommendationRequest, IsExactlyThisText) {
  Json::Value root;
  GetParam().write(root);
  EXPECT_EQ(Compact(root), Compact(Parsed(GetParam().json)));
}

INSTANTIATE_TEST_SUITE_P(Requests, RecommendationRequest, ::testing::ValuesIn(kRequests),
                         [](const ::testing::TestParamInfo<RequestCase>& info) {
                           return std::string(info.param.name);
                         });

TEST(RecommendationRequest, OnNowReadsBackAllButTheRepId) {
  Json::Value root;
  kRequests[0].write(root);
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

// A slot without entries has no sequence map, and is read back empty.
TEST(Timeline, SlotsAndSequencesInAscendingOrder) {
  Timeline sent;
  sent[5][2] = samples::Guide(5, 2);
  sent[5][1] = samples::Guide(5, 1);
  sent[1][7] = samples::Guide(1, 7);
  sent[3];
  Json::Value root;
  FCMarshal::TimeLineToJson(sent, root);
  Json::Value expected = Parsed(R"({"out_timeline": [{"time_slot": 1, "sequence_map": [{"sequence": 7}]},
      {"time_slot": 3}, {"time_slot": 5, "sequence_map": [{"sequence": 1}, {"sequence": 2}]}]})");
  Json::Value& slots = expected["out_timeline"];
  slots[0]["sequence_map"][0]["smart_channel_guide"] = Written(samples::Guide(1, 7));
  slots[2]["sequence_map"][0]["smart_channel_guide"] = Written(samples::Guide(5, 1));
  slots[2]["sequence_map"][1]["smart_channel_guide"] = Written(samples::Guide(5, 2));
  EXPECT_EQ(Compact(root), Compact(expected));

  Timeline received;
  FCMarshal::JsonToTimeLine(root, received);
  EXPECT_EQ(received, sent);
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
  Json::Value root = Parsed(R"({"out_timeline": [{"time_slot": 2}, {"time_slot": 2}]})");
  root["out_timeline"][0]["sequence_map"].append(Entry(1, "first"));
  root["out_timeline"][0]["sequence_map"].append(Entry(1, "second"));
  root["out_timeline"][1]["sequence_map"].append(Entry(3, "later slot"));

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
  Json::Value expected = Parsed(R"({"out_future_timeline": [{"day_slot": 3, "sequence_map": [{"sequence": 1}]}]})");
  expected["out_future_timeline"][0]["sequence_map"][0]["smart_channel_guide"] = Written(samples::FutureGuide(3, 1));
  EXPECT_EQ(Compact(root), Compact(expected));

  FutureTimeline received;
  FCMarshal::JsonToFutureTimeLine(root, received);
  Json::Value again;
  FCMarshal::FutureTimeLineToJson(received, again);
  EXPECT_EQ(again, root);
}

// Every list and map form writes one array member, none at all when empty,
// and reads back what it wrote.
struct ContainerCase {
  const char* name;
  const char* key;
  std::function<void(bool filled, Json::Value& written, Json::Value& rewritten)> io;
};

template <class Container>
decltype(ContainerCase::io) IO(bool (*write)(Container&, Json::Value&), bool (*read)(Json::Value&, Container&),
                               Container filled) {
  return [=](bool full, Json::Value& written, Json::Value& rewritten) {
    Container container = full ? filled : Container(), received;
    write(container, written);
    read(written, received);
    write(received, rewritten);
  };
}

FCRemoteChannel ChannelWithoutGenreName() {
  FCRemoteChannel channel = samples::Channel();
  channel.genre_name.clear();  // written under a key it is not read from
  return channel;
}

using M = FCMarshal;
const ContainerCase kContainers[] = {
    {"Channels", "channel_array",
     IO(&M::ChannelListToJson, &M::JsonToChannelList, std::vector<FCRemoteChannel>{ChannelWithoutGenreName()})},
    {"Genres", "array_genre", IO(&M::GenreListToJson, &M::JsonToGenreList, std::vector<FCGenreInfo>(1))},
    {"RepGenres", "out_array_rep_genre",
     IO(&M::RepGenreListToJson, &M::JsonToRepGenreList, std::vector<FCRepGenreInfo>(1))},
    {"RecGroups", "out_map_rec_group",
     IO(&M::RecGroupMapToJson, &M::JsonToRecGroupMap, std::map<std::string, FCRecGroup>{{"r", FCRecGroup()}})},
    {"ProgramSources", "out_tunable_program_source_id_map",
     IO(&M::ProgramSourceMapToJson, &M::JsonToProgramSourceMap,
        std::map<std::string, FCRemoteChannelKey>{{"src", samples::ChannelKey()}})},
    {"Programs", "out_mapProgramWithSourceID",
     IO(&M::ProgramMapToJson, &M::JsonToProgramMap,
        std::map<std::string, std::vector<FCRemoteProgram>>{{"src", {samples::Program()}}})},
    {"Guides", "out_list",
     IO(&M::FCSmartChannelGuideListToJson, &M::JsonToFCSmartChannelGuideList,
        std::list<FCSmartChannelGuide>{samples::Guide()})},
    {"Timeline", "out_timeline", IO(&M::TimeLineToJson, &M::JsonToTimeLine, Timeline{{1, {{1, samples::Guide()}}}})},
};

class Container : public ::testing::TestWithParam<ContainerCase> {};

TEST_P(Container, IsOneArrayMemberLeftOutWhenEmpty) {
  Json::Value empty(Json::objectValue), emptyAgain(Json::objectValue), filled, filledAgain;
  GetParam().io(false, empty, emptyAgain);
  EXPECT_EQ(empty, Json::Value(Json::objectValue));
  EXPECT_EQ(emptyAgain, Json::Value(Json::objectValue));
  GetParam().io(true, filled, filledAgain);
  EXPECT_EQ(filled.getMemberNames(), std::vector<std::string>{GetParam().key});
  EXPECT_TRUE(filled[GetParam().key].isArray());
  EXPECT_EQ(filled[GetParam().key].size(), 1u);
  EXPECT_EQ(filledAgain, filled);
}

INSTANTIATE_TEST_SUITE_P(Replies, Container, ::testing::ValuesIn(kContainers),
                         [](const ::testing::TestParamInfo<ContainerCase>& info) {
                           return std::string(info.param.name);
                         });

TEST(RecGroupMap, ElementsCarryTheirKeyUnderStringAndTheFirstWins) {
  FCRecGroup group;
  group.rec_id = "R";
  group.name = "first";
  std::map<std::string, FCRecGroup> sent = {{"key", group}};
  Json::Value root;
  FCMarshal::RecGroupMapToJson(sent, root);
  const Json::Value& element = root["out_map_rec_group"][0];
  EXPECT_EQ(Compact(element), Compact(Parsed(R"({"string": "key", "rec id": "R", "avail country": "", "name": "first",
                               "genre id list": ""})")));

  Json::Value duplicate = element;
  duplicate["name"] = "second";
  root["out_map_rec_group"].append(duplicate);
  std::map<std::string, FCRecGroup> received;
  FCMarshal::JsonToRecGroupMap(root, received);
  ASSERT_EQ(received.size(), 1u);
  EXPECT_EQ(received["key"].name, "first");
}

TEST(ProgramMap, SourcesWithoutProgrammesHaveNoProgramArray) {
  FCRemoteProgram second = samples::Program();
  second.utc_starttime += 1800;
  std::map<std::string, std::vector<FCRemoteProgram>> sent = {{"a", {samples::Program(), second}}, {"b", {}}};
  Json::Value root;
  FCMarshal::ProgramMapToJson(sent, root);
  Json::Value expected = Parsed(R"({"out_mapProgramWithSourceID": [{"program_source_id": "a"},
      {"program_source_id": "b"}]})");
  expected["out_mapProgramWithSourceID"][0]["program_array"].append(Written(samples::Program()));
  expected["out_mapProgramWithSourceID"][0]["program_array"].append(Written(second));
  EXPECT_EQ(Compact(root), Compact(expected));

  std::map<std::string, std::vector<FCRemoteProgram>> received = {{"a", {}}};
  FCMarshal::JsonToProgramMap(root, received);
  EXPECT_TRUE(received["a"].empty());  // already there: the reply's programmes are dropped
  EXPECT_TRUE(received["b"].empty());
  received.clear();
  FCMarshal::JsonToProgramMap(root, received);
  EXPECT_EQ(received, sent);
}

}  // namespace
