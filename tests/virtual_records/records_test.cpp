// The programme id, the playlist item, the channel and the band settings:
// their exact JSON and text forms, and how programme ids compare.
#include <gtest/gtest.h>
#include <json/json.h>

#include <string>

#include "FCVirtualProgramData.h"
#include "record_json.h"

namespace vcrecords {

TEST_P(Text, GivesExactlyTheExpectedText) { EXPECT_EQ(GetParam().expected, GetParam().use(GetParam().input)); }

namespace {

using Id = FCVirtualProgramId;
using Item = FCVirtualPlaylistItem;
using Channel = FCVirtualChannelInfo;
using Config = FCVirtualConfig;

const char kId[] =
    R"({"program_id":{"TCServiceId":"18446744073709551615","duration":60,"event_id":"ev","start_time":100}})"
    "\n";
const char kItem[] = R"({"content_uri":"http://c/3","duration":45,"id":"c3","order":3,"title":"Clip"})"
                     "\n";
const char kChannel[] =
    R"({"channel_name":"Movies","logo_collection":[{"index":2,"logo":"big.png"},{"index":1,"logo":"small.png"}],)"
    R"("major":"101"})"
    "\n";
const char kConfig[] =
    R"({"ch_position":{"position":"after","type":"number"},"vc_banner":{"tv_to_vc":"Welcome","vc_to_tv":"Bye"}})"
    "\n";

// The start of a programme id whose "start_time" is `value`.
std::string StartOf(const std::string& value) {
  return std::to_string(Read<Id>(R"({"program_id":{"start_time":)" + value + "}}").GetStartTime());
}

// The id is read back through its text form, since its equality lets a
// zero service id pass; a start given as text must be a date-time.
const TextCase kRecords[] = {
    {"IdJson", Reread<Id>, kId, kId},
    {"IdText", TextOf<Id>, kId, "TCServiceId: 18446744073709551615\nid: ev\nstart_time: 100\nduration: 60\n"},
    {"IdMissing", TextOf<Id>, R"({"program_id":5})", Id().ToString()},
    {"IdStartAsDateTime", StartOf, R"("2016-03-01T20:30:00Z")", "1456864200"},
    {"IdStartAsOtherText", StartOf, R"("1456864200")", "0"},
    {"ItemJson", Reread<Item>, kItem, kItem},
    {"ItemText", TextOf<Item>, kItem, "order: 3\nid: c3\ntitle: Clip\ncontent_uri: http://c/3\nduration: 45\n"},
    {"ChannelJson", Reread<Channel>, kChannel, kChannel},
    // The label is repeated for the major as the service's logs have it.
    {"ChannelText", TextOf<Channel>, kChannel,
     "channel name: Movies\nchannel name: 101\nlogo[big.png]: 2\nlogo[small.png]: 1\n"},
    {"ChannelMissingMajorAndLogos", Reread<Channel>, "{}",
     R"({"channel_name":"","major":"0"})"
     "\n"},
    {"ChannelLaterDuplicateLogoWins", Reread<Channel>,
     R"({"major":"","logo_collection":[{"logo":"a","index":1},{"logo":"a","index":5}]})",
     R"({"channel_name":"","logo_collection":[{"index":5,"logo":"a"}],"major":""})"
     "\n"},
    {"ConfigJson", Reread<Config>, kConfig, kConfig},
};

INSTANTIATE_TEST_SUITE_P(Records, Text, ::testing::ValuesIn(kRecords), CaseName);

// What identifies a programme, as an id or as a slot.
struct Identity {
  unsigned long long serviceId;
  const char* eventId;
  unsigned int start, duration;
  template <class Record>
  Record As() const {
    Record record;
    record.SetServiceId(serviceId);
    record.SetEventId(eventId);
    record.SetStartTime(start);
    record.SetDuration(duration);
    return record;
  }
};

struct CompareCase {
  Identity left, right;
  bool less, equal;
  bool slotsEqual;  // the slots want the exact service id
};

class ProgramIdCompare : public ::testing::TestWithParam<CompareCase> {};

TEST_P(ProgramIdCompare, ServiceThenStartThenEventIdAndZeroServiceIsAny) {
  const CompareCase& c = GetParam();
  EXPECT_EQ(c.less, c.left.As<Id>() < c.right.As<Id>());
  EXPECT_EQ(c.equal, c.left.As<Id>() == c.right.As<Id>());
  // A slot's title, like the rest but its identity, takes no part.
  auto left = c.left.As<FCVirtualProgramData>(), right = c.right.As<FCVirtualProgramData>();
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
}  // namespace vcrecords
