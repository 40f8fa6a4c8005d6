// The lists, maps and timelines of the operator's catalogue and guide
// replies as the service writes them; reading them is the operator proxy's.
#include <gtest/gtest.h>

#include "FCMarshal.h"
#include "record_samples.h"

using namespace samples;

namespace {

using M = FCMarshal;
using G = FCSmartChannelGuide;
using F = FCSmartChannelGuide_Future;

// `pattern` with each "@X" replaced by the form of the default record X stands for.
std::string Form(std::string pattern) {
  const std::pair<std::string, Json::Value> entries[] = {
      {"@C", Written(FCRemoteChannel())}, {"@I", Written(FCGenreInfo())}, {"@R", Written(FCRepGenreInfo())},
      {"@K", Written(FCRemoteChannelKey())["channel_key"]}, {"@P", Written(FCRemoteProgram())},
      {"@G", Written(G())}, {"@F", Written(F())}};
  for (const auto& entry : entries) pattern = Replaced(pattern, "\"" + entry.first + "\"", Compact(entry.second));
  return pattern;
}

// Each container is one member, absent when empty, in ascending key order,
// read back as written; a slot without entries has no sequence map.
TEST(Containers, AreExactlyThisTextLeftOutWhenEmptyAndReadBack) {
  Json::Value none(Json::objectValue), written, again;
  auto both = [&](auto write, auto read, auto full) {
    decltype(full) empty, received;
    write(empty, none), write(full, written), read(written, received), write(received, again);
  };
  both(M::ChannelListToJson, M::JsonToChannelList, std::vector<FCRemoteChannel>(1));
  both(M::GenreListToJson, M::JsonToGenreList, std::vector<FCGenreInfo>(1));
  both(M::RepGenreListToJson, M::JsonToRepGenreList, std::vector<FCRepGenreInfo>(1));
  both(M::RecGroupMapToJson, M::JsonToRecGroupMap, std::map<std::string, FCRecGroup>{{"r", {}}});
  both(M::ProgramSourceMapToJson, M::JsonToProgramSourceMap, std::map<std::string, FCRemoteChannelKey>{{"s", {}}});
  both(M::ProgramMapToJson, M::JsonToProgramMap,
       std::map<std::string, std::vector<FCRemoteProgram>>{{"a", std::vector<FCRemoteProgram>(2)}, {"b", {}}});
  both(M::FCSmartChannelGuideListToJson, M::JsonToFCSmartChannelGuideList, std::list<G>(2));
  both(M::TimeLineToJson, M::JsonToTimeLine,
       std::map<int, std::map<int, G>>{{5, {{2, {}}, {1, {}}}}, {3, {}}, {1, {{7, {}}}}});
  both(M::FutureTimeLineToJson, M::JsonToFutureTimeLine, std::map<int, std::map<int, F>>{{2, {{1, {}}}}});
  const std::string form = Form(R"({"channel_array": ["@C"], "array_genre": ["@I"], "out_array_rep_genre": ["@R"],
      "out_map_rec_group": [{"string": "r", "rec id": "", "avail country": "", "name": "", "genre id list": ""}],
      "out_tunable_program_source_id_map": [{"program_source_id": "s", "channel_key": "@K"}],
      "out_mapProgramWithSourceID": [{"program_source_id": "a", "program_array": ["@P", "@P"]},
      {"program_source_id": "b"}], "out_list": ["@G", "@G"],
      "out_timeline": [{"time_slot": 1, "sequence_map": [{"sequence": 7, "smart_channel_guide": "@G"}]},
      {"time_slot": 3}, {"time_slot": 5, "sequence_map": [{"sequence": 1, "smart_channel_guide": "@G"},
      {"sequence": 2, "smart_channel_guide": "@G"}]}],
      "out_future_timeline": [{"day_slot": 2, "sequence_map": [{"sequence": 1, "smart_channel_guide": "@F"}]}]})");
  EXPECT_EQ(Compact(none), "{}\n");
  EXPECT_EQ(Compact(written), form);
  EXPECT_EQ(Compact(again), form);
}

// The later sequence 1 and the later slot 2 are both dropped.
TEST(Containers, ReadingATimelineKeepsTheFirstOfEqualKeys) {
  Json::Value reply = Parsed(R"({"out_timeline": [{"time_slot": 2, "sequence_map": [
      {"sequence": 1, "smart_channel_guide": {"str_name": "first"}},
      {"sequence": 1, "smart_channel_guide": {"str_name": "second"}}]}, {"time_slot": 2}]})");
  std::map<int, std::map<int, G>> timeline;
  M::JsonToTimeLine(reply, timeline);
  EXPECT_EQ(timeline[2][1].str_name, "first");
}

}  // namespace
