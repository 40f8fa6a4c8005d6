// Recommendation requests, and the lists, maps and timelines of the
// operator's catalogue and guide replies on the wire.
#include <gtest/gtest.h>

#include <functional>

#include "FCMarshal.h"
#include "record_samples.h"

using namespace samples;

namespace {

// Its rep id is never sent.
FCFilterCriteria& Filter() {
  static FCFilterCriteria filter =
      Read<FCFilterCriteria>(R"({"rec id": "R1", "rep id": "P1", "genre id list": ",4,"})");
  return filter;
}

const auto kActivity = static_cast<eRemoteContentActivity>(3);
const unsigned long kLate = 3000000000UL;  // beyond the int range: travels unsigned
using M = FCMarshal;

struct RequestCase {
  const char* name;
  std::function<void(Json::Value&)> write;
  const char* json;
};

const RequestCase kRequests[] = {
    {"OnNow",
     [](Json::Value& root) { M::MarshalingForGetRecommendationOnNow(kActivity, "s", kLate, 5, Filter(), root); },
     R"({"activityID": 3, "current_watching_program_source_id": "s", "utc_currenttime": 3000000000,
         "number_of_recommendation": 5, "genre id list": ",4,", "rec id": "R1"})"},
    {"Upcoming",
     [](Json::Value& root) { M::MarshalllingForGetRecommendationUpcoming(kActivity, kLate, 5, Filter(), root); },
     R"({"activityID": 3, "utc_currenttime": 3000000000, "number_of_recommendation": 5, "genre id list": ",4,",
         "rec id": "R1"})"},
    {"Timeline", [](Json::Value& root) { M::MarshalingForGetRecommendationTimeline(kActivity, kLate, 1, 4, root); },
     R"({"activityID": 3, "utc_currenttime": 3000000000, "from_timeslot": 1, "to_timeslot": 4})"},
    {"FutureTimeline",
     [](Json::Value& root) { M::MarshalingForGetRecommendationFutureTimeline(kActivity, 0, 6, root); },
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

// Each container as one array member, none at all when empty, and read back
// as written. The entries are default records, whose own forms the record
// tests pin; "$" in a form stands for the entry's form.
struct ContainerCase {
  const char* name;
  std::function<std::vector<std::string>()> texts;  // written empty, written full, read back and written again
  std::string form;
};

template <class C>
std::function<std::vector<std::string>()> Texts(bool (*write)(C&, Json::Value&), bool (*read)(Json::Value&, C&),
                                                C full) {
  return [=] {
    C empty, copy = full, received;
    Json::Value none(Json::objectValue), written, again;
    write(empty, none);
    write(copy, written);
    read(written, received);
    write(received, again);
    return std::vector<std::string>{Compact(none), Compact(written), Compact(again)};
  };
}

std::string Form(const char* pattern, const Json::Value& entry) {
  std::string text = Compact(entry);
  return Replaced(pattern, "$", text.substr(0, text.size() - 1));
}

using G = FCSmartChannelGuide;
const ContainerCase kContainers[] = {
    {"Channels", Texts(&M::ChannelListToJson, &M::JsonToChannelList, std::vector<FCRemoteChannel>(1)),
     Form(R"({"channel_array": [$]})", Written(FCRemoteChannel()))},
    {"Genres", Texts(&M::GenreListToJson, &M::JsonToGenreList, std::vector<FCGenreInfo>(1)),
     Form(R"({"array_genre": [$]})", Written(FCGenreInfo()))},
    {"RepGenres", Texts(&M::RepGenreListToJson, &M::JsonToRepGenreList, std::vector<FCRepGenreInfo>(1)),
     Form(R"({"out_array_rep_genre": [$]})", Written(FCRepGenreInfo()))},
    {"RecGroups",
     Texts(&M::RecGroupMapToJson, &M::JsonToRecGroupMap, std::map<std::string, FCRecGroup>{{"r", FCRecGroup()}}),
     Compact(Parsed(R"({"out_map_rec_group": [{"string": "r", "rec id": "", "avail country": "", "name": "",
         "genre id list": ""}]})"))},
    {"ProgramSources",
     Texts(&M::ProgramSourceMapToJson, &M::JsonToProgramSourceMap,
           std::map<std::string, FCRemoteChannelKey>{{"s", FCRemoteChannelKey()}}),
     Form(R"({"out_tunable_program_source_id_map": [{"program_source_id": "s", "channel_key": $}]})",
          Written(FCRemoteChannelKey())["channel_key"])},
    {"Programs",
     Texts(&M::ProgramMapToJson, &M::JsonToProgramMap,
           std::map<std::string, std::vector<FCRemoteProgram>>{{"a", std::vector<FCRemoteProgram>(2)}, {"b", {}}}),
     Form(R"({"out_mapProgramWithSourceID": [{"program_source_id": "a", "program_array": [$, $]},
         {"program_source_id": "b"}]})",
          Written(FCRemoteProgram()))},
    {"Guides", Texts(&M::FCSmartChannelGuideListToJson, &M::JsonToFCSmartChannelGuideList, std::list<G>(2)),
     Form(R"({"out_list": [$, $]})", Written(G()))},
    // Slots and sequences ascending; a slot without entries has no sequence map.
    {"Timeline",
     Texts(&M::TimeLineToJson, &M::JsonToTimeLine,
           std::map<int, std::map<int, G>>{{5, {{2, G()}, {1, G()}}}, {3, {}}, {1, {{7, G()}}}}),
     Form(R"({"out_timeline": [{"time_slot": 1, "sequence_map": [{"sequence": 7, "smart_channel_guide": $}]},
         {"time_slot": 3}, {"time_slot": 5, "sequence_map": [{"sequence": 1, "smart_channel_guide": $},
         {"sequence": 2, "smart_channel_guide": $}]}]})",
          Written(G()))},
    {"FutureTimeline",
     Texts(&M::FutureTimeLineToJson, &M::JsonToFutureTimeLine,
           std::map<int, std::map<int, FCSmartChannelGuide_Future>>{{2, {{1, FCSmartChannelGuide_Future()}}}}),
     Form(R"({"out_future_timeline": [{"day_slot": 2, "sequence_map": [{"sequence": 1, "smart_channel_guide": $}]}]})",
          Written(FCSmartChannelGuide_Future()))},
};

class Container : public ::testing::TestWithParam<ContainerCase> {};

TEST_P(Container, IsExactlyThisTextLeftOutWhenEmptyAndReadsBack) {
  EXPECT_EQ(GetParam().texts(), (std::vector<std::string>{"{}\n", GetParam().form, GetParam().form}));
}

INSTANTIATE_TEST_SUITE_P(Replies, Container, ::testing::ValuesIn(kContainers),
                         [](const ::testing::TestParamInfo<ContainerCase>& info) {
                           return std::string(info.param.name);
                         });

// Reading keeps the first of equal sequences and of equal slots.
TEST(TimelineRead, FirstOfEqualKeysWins) {
  Json::Value reply = Parsed(R"({"out_timeline": [{"time_slot": 2, "sequence_map": [
      {"sequence": 1, "smart_channel_guide": {"str_content_title": "first"}},
      {"sequence": 1, "smart_channel_guide": {"str_content_title": "second"}}]},
      {"time_slot": 2, "sequence_map": [{"sequence": 3}]}]})");
  std::map<int, std::map<int, G>> timeline;
  M::JsonToTimeLine(reply, timeline);
  ASSERT_EQ(timeline.size(), 1u);
  ASSERT_EQ(timeline[2].size(), 1u);
  EXPECT_EQ(timeline[2][1].str_content_title, "first");
}

}  // namespace
