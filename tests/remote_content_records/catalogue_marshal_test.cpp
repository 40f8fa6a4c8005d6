// The lists and maps of the operator's catalogue replies.
#include <gtest/gtest.h>

#include <functional>

#include "FCMarshal.h"
#include "record_samples.h"

using samples::KeyTypes;
using samples::TypesOf;

namespace {

// Every list and map form writes one array member, none at all when empty.
struct ContainerCase {
  const char* name;
  const char* key;
  std::function<void(bool filled, Json::Value&)> write;
};

template <class Container>
std::function<void(bool, Json::Value&)> Writer(bool (*write)(Container&, Json::Value&), Container filled) {
  return [write, filled](bool full, Json::Value& root) {
    Container container = full ? filled : Container();
    write(container, root);
  };
}

const ContainerCase kContainers[] = {
    {"Channels", "channel_array",
     Writer(&FCMarshal::ChannelListToJson, std::vector<FCRemoteChannel>{samples::Channel()})},
    {"Genres", "array_genre", Writer(&FCMarshal::GenreListToJson, std::vector<FCGenreInfo>(1))},
    {"RepGenres", "out_array_rep_genre", Writer(&FCMarshal::RepGenreListToJson, std::vector<FCRepGenreInfo>(1))},
    {"RecGroups", "out_map_rec_group",
     Writer(&FCMarshal::RecGroupMapToJson, std::map<std::string, FCRecGroup>{{"r", FCRecGroup()}})},
    {"ProgramSources", "out_tunable_program_source_id_map",
     Writer(&FCMarshal::ProgramSourceMapToJson,
            std::map<std::string, FCRemoteChannelKey>{{"src", samples::ChannelKey()}})},
    {"Programs", "out_mapProgramWithSourceID",
     Writer(&FCMarshal::ProgramMapToJson,
            std::map<std::string, std::vector<FCRemoteProgram>>{{"src", {samples::Program()}}})},
};

class CatalogueContainer : public ::testing::TestWithParam<ContainerCase> {};

TEST_P(CatalogueContainer, IsOneArrayMemberLeftOutWhenEmpty) {
  Json::Value empty(Json::objectValue), filled;
  GetParam().write(false, empty);
  EXPECT_EQ(empty, Json::Value(Json::objectValue));
  GetParam().write(true, filled);
  EXPECT_EQ(TypesOf(filled), (KeyTypes{{GetParam().key, Json::arrayValue}}));
  EXPECT_EQ(filled[GetParam().key].size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Replies, CatalogueContainer, ::testing::ValuesIn(kContainers),
                         [](const ::testing::TestParamInfo<ContainerCase>& info) {
                           return std::string(info.param.name);
                         });

TEST(ChannelList, ReadingAppendsInArrayOrder) {
  std::vector<FCRemoteChannel> sent(2, samples::Channel());
  sent[1].str_channel_name = "Second";
  Json::Value root;
  FCMarshal::ChannelListToJson(sent, root);
  std::vector<FCRemoteChannel> received(1);
  FCMarshal::JsonToChannelList(root, received);
  ASSERT_EQ(received.size(), 3u);
  EXPECT_EQ(received[1].str_channel_name, "News");
  EXPECT_EQ(received[2].str_channel_name, "Second");
}

TEST(RecGroupMap, ElementsCarryTheirKeyUnderStringAndTheFirstWins) {
  FCRecGroup group;
  group.rec_id = "R";
  group.name = "first";
  std::map<std::string, FCRecGroup> sent = {{"key", group}};
  Json::Value root;
  FCMarshal::RecGroupMapToJson(sent, root);
  const Json::Value& element = root["out_map_rec_group"][0];
  EXPECT_EQ(TypesOf(element), (KeyTypes{{"string", Json::stringValue},
                                        {"rec id", Json::stringValue},
                                        {"avail country", Json::stringValue},
                                        {"name", Json::stringValue},
                                        {"genre id list", Json::stringValue}}));
  EXPECT_EQ(element["string"], "key");

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
  const Json::Value& elements = root["out_mapProgramWithSourceID"];
  ASSERT_EQ(elements.size(), 2u);
  EXPECT_EQ(TypesOf(elements[0]),
            (KeyTypes{{"program_source_id", Json::stringValue}, {"program_array", Json::arrayValue}}));
  EXPECT_EQ(TypesOf(elements[1]), (KeyTypes{{"program_source_id", Json::stringValue}}));

  std::map<std::string, std::vector<FCRemoteProgram>> received = {{"a", {}}};
  FCMarshal::JsonToProgramMap(root, received);
  EXPECT_TRUE(received["a"].empty());  // already there: the reply's programmes are dropped
  EXPECT_TRUE(received["b"].empty());
  received.clear();
  FCMarshal::JsonToProgramMap(root, received);
  EXPECT_EQ(received, sent);
}

}  // namespace
