// The virtual programme slot: its exact JSON text, what a lenient read
// makes of what the service sends, and the metadata spread over the top
// level.
#include <dlog.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "FCTimeWapper.h"
#include "FCVirtualProgramData.h"
#include "log_capture.h"
#include "record_json.h"

namespace vcrecords {
namespace {

using Slot = FCVirtualProgramData;

const char kDefault[] = R"({"content_type":"","content_uri":"","duration":0,"id":"","playlist_item_index":-1,)"
                        R"("poster":{"index":"","url":""},"program_data":{"TCServiceId":"0"},"relative_offset":-1,)"
                        R"("short_desc":"","starttime":"1970-01-01T00:00:00Z","title":""})"
                        "\n";

const char kFull[] =
    R"({"content_type":"vod","content_uri":"http://a/b","duration":1800,"group_play_list":[{"content_uri":"http://c",)"
    R"("duration":60,"id":"c1","order":1,"title":"Clip"}],"id":"ev1","playlist_item_index":0,)"
    R"("poster":{"index":"2","url":"http://p"},"program_data":{"TCServiceId":"18446744073709551615"},)"
    R"("relative_offset":5,"short_desc":"short","starttime":"2016-03-01T20:30:00Z","title":"News"})"
    "\n";

// The default slot's form with the members of `changed` put over it.
std::string DefaultWith(const std::string& changed) { return Overlay(kDefault, changed); }

std::string WithMetadata(const std::string& metadata) {
  Slot slot;
  slot.metadata = metadata;
  return Write(slot);
}

std::string TimeOffsetIn(const std::string& seconds) {
  Slot slot;
  slot.SetStartTime(static_cast<unsigned int>(FCTimeWrapper::EpochTime()) + std::stoul(seconds));
  return std::to_string(slot.GetTimeOffset());
}

const TextCase kSlots[] = {
    {"Full", Reread<Slot>, kFull, kFull},
    {"Default", Reread<Slot>, "{}", kDefault},
    {"NoServiceId", Reread<Slot>, R"({"program_data":{}})", kDefault},
    {"DecimalServiceId", Reread<Slot>, R"({"program_data":{"TCServiceId":"007"}})",
     DefaultWith(R"({"program_data":{"TCServiceId":"7"}})")},
    // Values of a type that does not convert read as empty, a present index as 0.
    {"IllTyped", Reread<Slot>,
     R"({"program_data":[1],"id":{},"duration":[],"relative_offset":"x","poster":"p","group_play_list":{"order":1}})",
     DefaultWith(R"({"relative_offset":0})")},
    // A start is a date-time, else epoch seconds as text, with base prefixes.
    {"StartAsEpochText", Reread<Slot>, R"({"starttime":"1456864200"})",
     DefaultWith(R"({"starttime":"2016-03-01T20:30:00Z"})")},
    {"StartAsHexText", Reread<Slot>, R"({"starttime":"0x10"})", DefaultWith(R"({"starttime":"1970-01-01T00:00:16Z"})")},
    {"DurationAsHexText", Reread<Slot>, R"({"duration":"0x10"})", DefaultWith(R"({"duration":16})")},
    // Unknown non-empty members come back as metadata; descriptions are dropped.
    {"UnknownMembers", Reread<Slot>,
     R"({"ret":true,"rating":{"age":12},"count":0,"note":"","none":null,"list":[],"tags":["a"],"lang":"en",)"
     R"("mid_desc":"m","desc":"d","genres":["g"],"video_quality":"hd","schedule_type":"live","trailer_url":"t",)"
     R"("website":"w"})",
     DefaultWith(R"({"ret":true,"rating":{"age":12},"count":0,"tags":["a"]})")},
    // Metadata spreads its members over the form: only an empty value is
    // skipped, and a member under a field's key wins over the field.
    {"MetadataNotJson", WithMetadata, "not json", kDefault},
    {"MetadataEmptyValues", WithMetadata, R"({"lang":"en","n":null,"a":[],"o":{},"s":"","title":""})",
     DefaultWith(R"({"lang":"en"})")},
    {"MetadataValues", WithMetadata, R"({"zero":0,"no":false,"pi":1.5,"a":[null],"o":{"k":""},"title":"T"})",
     DefaultWith(R"({"zero":0,"no":false,"pi":1.5,"a":[null],"o":{"k":""},"title":"T"})")},
    {"TimeOffsetBeforeTheStart", TimeOffsetIn, "3600", "0"},
};

INSTANTIATE_TEST_SUITE_P(Slots, Text, ::testing::ValuesIn(kSlots), CaseName);

// Worded as the service's response parser words it.
TEST(FCVirtualProgramDataJson, ParsedMetadataIsLogged) {
  using zunde::testing::LogCapture;
  LogCapture::Clear();
  WithMetadata("");
  WithMetadata("{}");
  const auto records = LogCapture::Records();
  ASSERT_EQ(1U, records.size());
  EXPECT_EQ(DLOG_DEBUG, records[0].priority);
  EXPECT_THAT(records[0].text,
              ::testing::MatchesRegex(".*common/Zunde/Common/FCVirtualProgramData\\.cpp: ToJson\\([0-9]+\\) "
                                      "> DBG_LV\\[3\\]\\[CZundeResponseParser::ToJson\\]  reader"
                                      "\\.parse\\(metadata\\) is OK\n"));
}

}  // namespace
}  // namespace vcrecords
