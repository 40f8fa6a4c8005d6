// The JSON forms of the catalogue and guide records: the exact text each one
// travels as, read back whole, and what a read does with missing and
// ill-typed values.
#include <gtest/gtest.h>

#include "record_samples.h"

using namespace samples;

namespace {

struct FormCase {
  const char* name;
  std::string (*reread)(Json::Value json);  // read, then written again
  std::string json;
};

template <class Record>
std::string Again(Json::Value json) {
  return Reread<Record>(json);
}

const char kMSOConfigDefault[] = R"({"config": {"strHeadend": "", "strDeviceType": "", "strZipCode": "",
    "source": -1, "antennaMode": -1, "serviceMode": -1, "str_additional_info_with_json_format": ""}})";
const char kChannelKey[] = R"({"channel_key": {"activityID": 2, "str_channel_number": "c3", "str_major": "c5",
    "str_minor": "c6", "str_onid": "c7", "str_tsid": "c8", "str_sid": "c9", "str_frequency": "c10",
    "str_digital_flag": "c15"}})";

const FormCase kForms[] = {
    {"MSOConfig", Again<FCRemoteMSOConfig>, kMSOConfigDefault},
    {"ChannelKey", Again<FCRemoteChannelKey>, kChannelKey},
    {"Channel", Again<FCRemoteChannel>, kChannel},
    {"Program", Again<FCRemoteProgram>, kProgram},
    {"Guide", Again<FCSmartChannelGuide>, kGuide},
    {"FutureGuide", Again<FCSmartChannelGuide_Future>, Replaced(kGuide, "\"timeslot\"", "\"dayslot\"")},
    {"GenreInfo", Again<FCGenreInfo>,
     R"({"str_id": "i1", "str_rep_id": "i2", "rec id": "i3", "str_name": "i4", "str_genre_img_url": "i5",
         "str_genre_img_type": "i6", "str_genre_img_index": "i7"})"},
    {"RepGenreInfo", Again<FCRepGenreInfo>, R"({"str_rep_id": "r1", "str_name": "r2", "str_genre_id_list": "r3"})"},
    {"RecGroup", Again<FCRecGroup>, R"({"rec id": "g1", "avail country": "g2", "name": "g3", "genre id list": "g4"})"},
    {"FilterCriteria", Again<FCFilterCriteria>, R"({"rec id": "f1", "rep id": "f2", "genre id list": "f3"})"},
};

class JsonForm : public ::testing::TestWithParam<FormCase> {};

TEST_P(JsonForm, ReadsAndWritesExactlyThisText) {
  EXPECT_EQ(GetParam().reread(Parsed(GetParam().json)), Compact(Parsed(GetParam().json)));
}

INSTANTIATE_TEST_SUITE_P(Records, JsonForm, ::testing::ValuesIn(kForms),
                         [](const ::testing::TestParamInfo<FormCase>& info) { return std::string(info.param.name); });

TEST(JsonForm, DefaultsAndWhatAChannelGivesItsKey) {
  EXPECT_EQ(Compact(Written(FCRemoteMSOConfig())), Compact(Parsed(kMSOConfigDefault)));
  FCRemoteChannelKey key;
  Read<FCRemoteChannel>(kChannel).GetKey(key);
  EXPECT_EQ(Compact(Written(key)), Compact(Parsed(kChannelKey)));
  EXPECT_FALSE(Written(FCRemoteProgram()).isMember("genre array"));
}

TEST(JsonRead, ChannelGenreNameComesFromGenreName) {
  EXPECT_EQ(Read<FCRemoteChannel>(R"({"genre name": "Drama", "gere name": "x"})").genre_name, "Drama");
}

TEST(JsonRead, GenresAreAppendedToThoseThere) {
  FCSmartChannelGuide before;
  before.content_genre_array = {"1"};
  EXPECT_EQ(Parsed(Reread(Parsed(kGuide), before))["content_genre_array"], Parsed(R"(["1", "4", "9"])"));
}

// Also a missing "config": its ints read 0, not the default -1.
TEST(JsonRead, MissingKeysReadAsEmptyZeroOrFalseWithoutBeingAdded) {
  Json::Value empty(Json::objectValue);
  FCRemoteProgram program = Program();
  program.genre_array.clear();
  EXPECT_EQ(Reread(empty, program), Compact(Written(FCRemoteProgram())));
  EXPECT_EQ(Reread<FCRemoteMSOConfig>(empty), Replaced(kMSOConfigDefault, "-1", "0"));
  EXPECT_EQ(empty, Json::Value(Json::objectValue));
}

// Records other than the programme hand jsoncpp's type errors to the caller.
TEST(JsonRead, IllTypedValuesThrowToTheCaller) {
  EXPECT_THROW(Reread<FCRemoteChannel>(Parsed(R"({"embed": "five"})")), Json::Exception);
  EXPECT_THROW(Reread<FCRemoteMSOConfig>(Parsed(R"({"config": "none"})")), Json::Exception);
  EXPECT_THROW(Reread<FCSmartChannelGuide>(Parsed(R"({"content_genre_array": {"a": "1"}})")), Json::Exception);
}

}  // namespace
