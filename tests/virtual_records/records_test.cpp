// The virtual channel records: the exact JSON text each travels as (member
// order and number forms included) and their text forms, what a lenient read
// makes of what the service sends, the slot's metadata, and how programme
// ids compare. Most cases are one row: a use of a record, the text it is
// given, and the exact text it must give back.
#include <dlog.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "FCTimeWapper.h"
#include "FCVirtualProgramData.h"
#include "json_text.h"
#include "log_capture.h"

namespace {

using Slot = FCVirtualProgramData;
using Id = FCVirtualProgramId;

// FastWriter's compact text, without its final newline.
std::string Line(const Json::Value& value) {
  const std::string text = zunde::testing::Compact(value);
  return text.substr(0, text.size() - 1);
}

template <typename Record>
std::string Write(const Record& record) {
  Json::Value out;
  EXPECT_TRUE(Record::ToJson(record, out));
  return Line(out);
}

// Reading never changes what it reads.
template <typename Record>
Record Read(const std::string& text) {
  Json::Value in = zunde::testing::Parsed(text), before = in;
  Record record;
  EXPECT_TRUE(Record::FromJson(in, record));
  EXPECT_EQ(before, in);
  return record;
}

template <typename Record>
std::string Reread(const std::string& text) {
  return Write(Read<Record>(text));
}

const char kDefault[] = R"({"content_type":"","content_uri":"","duration":0,"id":"","playlist_item_index":-1,)"
                        R"("poster":{"index":"","url":""},"program_data":{"TCServiceId":"0"},"relative_offset":-1,)"
                        R"("short_desc":"","starttime":"1970-01-01T00:00:00Z","title":""})";
const char kIdDefault[] = R"({"program_id":{"TCServiceId":"0","duration":0,"event_id":"","start_time":0}})";

// The default slot's form with the members of `changed` put over it.
std::string DefaultWith(const std::string& changed) {
  Json::Value result = zunde::testing::Parsed(kDefault), members = zunde::testing::Parsed(changed);
  for (const std::string& key : members.getMemberNames()) result[key] = members[key];
  return Line(result);
}

std::string WithMetadata(const std::string& metadata) {
  Slot slot;
  slot.metadata = metadata;
  return Write(slot);
}

struct TextCase {
  const char* name;
  std::string (*use)(const std::string& input);
  std::string input, expected = "";  // no expected text: the input is given back
};

class Text : public ::testing::TestWithParam<TextCase> {};

TEST_P(Text, GivesExactlyTheExpectedText) {
  EXPECT_EQ(GetParam().expected.empty() ? GetParam().input : GetParam().expected, GetParam().use(GetParam().input));
}

const TextCase kCases[] = {
    {"SlotFull", Reread<Slot>,
     R"({"content_type":"vod","content_uri":"http://a/b","duration":1800,"group_play_list":[{"content_uri":"http://c",)"
     R"("duration":60,"id":"c1","order":1,"title":"Clip"}],"id":"ev1","playlist_item_index":0,)"
     R"("poster":{"index":"2","url":"http://p"},"program_data":{"TCServiceId":"18446744073709551615"},)"
     R"("relative_offset":5,"short_desc":"short","starttime":"2016-03-01T20:30:00Z","title":"News"})"},
    {"SlotWithoutServiceId", Reread<Slot>, R"({"program_data":{}})", kDefault},
    // Values of a type that does not convert read as empty, a present index
    // as 0; a start that is no date-time is epoch seconds as text, and a
    // duration as text has base prefixes.
    {"SlotLenient", Reread<Slot>, R"({"program_data":[1],"id":{},"relative_offset":"x","poster":"p",)"
     R"("group_play_list":{"order":1},"starttime":"1456864200","duration":"0x10"})",
     DefaultWith(R"({"relative_offset":0,"starttime":"2016-03-01T20:30:00Z","duration":16})")},
    // Unknown non-empty members come back as metadata; descriptions are dropped.
    {"SlotUnknownMembers", Reread<Slot>,
     R"({"ret":true,"rating":{"age":12},"count":0,"note":"","none":null,"list":[],"tags":["a"],"lang":"en",)"
     R"("mid_desc":"m","desc":"d","genres":["g"],"video_quality":"hd","schedule_type":"live","trailer_url":"t",)"
     R"("website":"w"})",
     DefaultWith(R"({"ret":true,"rating":{"age":12},"count":0,"tags":["a"]})")},
    // Metadata spreads its members over the form: only an empty value is
    // skipped, and a member under a field's key wins over the field.
    {"SlotMetadataNotJson", WithMetadata, "not json", kDefault},
    {"SlotMetadata", WithMetadata, R"({"n":null,"a":[],"o":{},"s":"","zero":0,"no":false,"pi":1.5,"b":[null],)"
     R"("p":{"k":""},"title":"T","lang":"en"})",
     DefaultWith(R"({"zero":0,"no":false,"pi":1.5,"b":[null],"p":{"k":""},"title":"T","lang":"en"})")},
    // A start given as text must be a date-time.
    {"IdJson", Reread<Id>, R"({"program_id":{"TCServiceId":"18446744073709551615","duration":60,"event_id":"ev",)"
     R"("start_time":"1970-01-01T00:01:40Z"}})",
     R"({"program_id":{"TCServiceId":"18446744073709551615","duration":60,"event_id":"ev","start_time":100}})"},
    {"IdStartAsOtherText", Reread<Id>, R"({"program_id":{"start_time":"1456864200"}})", kIdDefault},
    {"IdIllTyped", Reread<Id>, R"({"program_id":5})", kIdDefault},
    {"ItemText", [](const std::string& item) { return Read<FCVirtualPlaylistItem>(item).ToString(); },
     R"({"content_uri":"http://c/3","duration":45,"id":"c3","order":3,"title":"Clip"})",
     "order: 3\nid: c3\ntitle: Clip\ncontent_uri: http://c/3\nduration: 45\n"},
    {"ChannelJson", Reread<FCVirtualChannelInfo>, R"({"channel_name":"Movies","logo_collection":[{"index":2,)"
     R"("logo":"big.png"},{"index":1,"logo":"small.png"}],"major":"101"})"},
    {"ChannelMissingMajorAndLogos", Reread<FCVirtualChannelInfo>, "{}", R"({"channel_name":"","major":"0"})"},
    {"ChannelLaterDuplicateLogoWins", Reread<FCVirtualChannelInfo>,
     R"({"major":"","logo_collection":[{"logo":"a","index":1},{"logo":"a","index":5}]})",
     R"({"channel_name":"","logo_collection":[{"index":5,"logo":"a"}],"major":""})"},
    {"ConfigJson", Reread<FCVirtualConfig>,
     R"({"ch_position":{"position":"after","type":"number"},"vc_banner":{"tv_to_vc":"Welcome","vc_to_tv":"Bye"}})"},
};

INSTANTIATE_TEST_SUITE_P(Records, Text, ::testing::ValuesIn(kCases),
                         [](const ::testing::TestParamInfo<TextCase>& info) { return std::string(info.param.name); });

TEST(Slot, TimeOffsetBeforeTheStartIsZero) {
  Slot slot;
  slot.SetStartTime(static_cast<unsigned int>(FCTimeWrapper::EpochTime()) + 3600);
  EXPECT_EQ(0U, slot.GetTimeOffset());
}

// Worded as the service's response parser words it, and only for metadata that parses.
TEST(SlotMetadata, ParsedMetadataIsLogged) {
  zunde::testing::LogCapture::Clear();
  WithMetadata("not json"), WithMetadata("{}");
  const auto records = zunde::testing::LogCapture::Records();
  ASSERT_EQ(1U, records.size());
  EXPECT_EQ(DLOG_DEBUG, records[0].priority);
  EXPECT_THAT(records[0].text, ::testing::MatchesRegex(".*common/Zunde/Common/FCVirtualProgramData\\.cpp: ToJson\\("
                                                       "[0-9]+\\) > DBG_LV\\[3\\]\\[CZundeResponseParser::ToJson\\]  "
                                                       "reader\\.parse\\(metadata\\) is OK\n"));
}

// What identifies a programme, as an id or as a slot; the slots want the
// exact service id.
struct Identity { unsigned long long serviceId; const char* eventId; unsigned int start, duration; };
struct CompareCase { Identity left, right; bool less, equal, slotsEqual; };

template <class Record>
Record Make(const Identity& id) {
  Record record;
  record.SetServiceId(id.serviceId), record.SetEventId(id.eventId);
  record.SetStartTime(id.start), record.SetDuration(id.duration);
  return record;
}

class ProgramIdCompare : public ::testing::TestWithParam<CompareCase> {};

TEST_P(ProgramIdCompare, ServiceThenStartThenEventIdAndZeroServiceIsAny) {
  const CompareCase& c = GetParam();
  EXPECT_EQ(c.less, Make<Id>(c.left) < Make<Id>(c.right));
  EXPECT_EQ(c.equal, Make<Id>(c.left) == Make<Id>(c.right));
  // A slot's title, like the rest but its identity, takes no part.
  auto left = Make<Slot>(c.left), right = Make<Slot>(c.right);
  left.SetTitle("a title");
  EXPECT_EQ(c.less, left < right);
  EXPECT_EQ(c.slotsEqual, left == right);
}

const CompareCase kCompareCases[] = {
    {{7, "e", 100, 60}, {7, "e", 100, 60}, false, true, true},
    {{7, "z", 900, 0}, {8, "a", 100, 0}, true, false, false},
    // The whole 64 bits take part, unsigned.
    {{0x100000000ULL, "a", 0, 0}, {0xFFFFFFFFFFFFFFFFULL, "a", 0, 0}, true, false, false},
    // An unknown service matches any: the start time decides the order.
    {{0, "e", 100, 60}, {7, "e", 100, 60}, false, true, false},
    {{7, "e", 100, 60}, {0, "e", 100, 60}, false, true, false},
    {{7, "a", 100, 0}, {0, "a", 200, 0}, true, false, false},
    {{7, "a", 100, 0}, {7, "b", 100, 0}, true, false, false},
    // Duration takes part in equality only.
    {{7, "a", 100, 1}, {7, "a", 100, 2}, false, false, false}};

INSTANTIATE_TEST_SUITE_P(Pairs, ProgramIdCompare, ::testing::ValuesIn(kCompareCases));

}  // namespace
