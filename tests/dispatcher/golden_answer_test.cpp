// The answer texts of one member of each shape, exactly as they go on the
// bus; the bus itself adds nothing to them.
#include <gtest/gtest.h>

#include "served.h"

namespace {

struct Row {
  const char* member;
  const char* request;
  const char* answer;
};

const Row kRows[] = {
    // Refused requests.
    {"NoSuchMember", "{}", R"({"error":"unknown member \"NoSuchMember\"","ret":false})"},
    {"SetRemoteContentEnv", "not json", R"({"error":"the request is not a JSON object","ret":false})"},
    {"SetRemoteContentEnv", R"({"country": "XX"})", R"({"error":"missing key \"language\"","ret":false})"},
    {"SetRecommendTypeOption", R"({"in_recommend_type": "2"})",
     R"({"error":"\"in_recommend_type\" must be an integer","ret":false})"},
    {"ConstructMBRNetworkChannelMap", R"({"activityID": 9})", R"({"error":"activity 9 is not 0 to 4","ret":false})"},
    {"AddFavoriteMBRNetworkChannel", R"({"activityID": 0, "favorite": 5, "m_major": 1, "m_minor": 0})",
     R"({"error":"favourite list 5 is not 0 to 4","ret":false})"},
    // Not found.
    {"GetMBRNetworkChannelByMajorMinor", R"({"activityID": 0, "major": 5, "minor": 1})",
     R"({"error":"no channel 5-1 in the map","ret":false})"},
    // A change, and what it left.
    {"SetRemoteContentEnv", R"({"country": "DE", "language": "de"})", R"({"ret":true})"},
    {"GetRemoteContentEnv", "", R"({"country":"DE","language":"de","ret":true})"},
    // A yes-or-no answer.
    {"ExistMBRNetworkChannelByMajorMinor", R"({"activityID": 0, "major": 5, "minor": 1})", R"({"ret":false})"},
    // Lists, counts and records.
    {"GetRFNetworkChannelCountByGenre", R"({"genre": "G02"})", R"({"count":6,"ret":true})"},
    {"GetRFNetworkChannelMapByGenre", R"({"genre": "G02"})",
     R"({"genre":"G02","ret":true,"service list":[{"TCServiceId":"38293928476776"},{"TCServiceId":"38293928542321"},)"
     R"({"TCServiceId":"38293928607868"},{"TCServiceId":"38293928673413"},{"TCServiceId":"38293928738960"},)"
     R"({"TCServiceId":"38293928804505"}]})"},
    {"GetFCRemoteChannelByProgramSourceID", R"({"activityID": 0, "program source id": "10001"})",
     R"({"ac_rank":"1","activityID":0,"embed":0,"genre id":"G06","gere name":"Entertainment","ret":true,)"
     R"("str_alias":"ST1","str_channel_name":"Channel Five Star","str_channel_number":"2","str_digital_flag":"1",)"
     R"("str_dtv":"1","str_frequency":"57000","str_icon_url":"https://logos.zunde.invalid/10001.png","str_major":"2",)"
     R"("str_minor":"0","str_onid":"8916","str_program_source_id":"10001","str_ptc":"2","str_qam_flag":"1",)"
     R"("str_sid":"100","str_tsid":"1","str_url_index":"0"})"},
    {"GetMetaProgramMap", R"({"TCServiceId": "38293928476773", "start_time": 1767268800, "duration": 1})",
     R"({"meta_program_map":[{"EndTime":1767270600,"IsRF":true,"activityID":0,"cert flag":"TV-G",)"
     R"("channel name":"Metro News","channel number":"","desc":"Evening News, 2026-01-01 12:00 UTC on Metro News.",)"
     R"("duration":1800,"genre array":["G01"],"key":1767268800,"lang":"en","poster index":"24","poster overlay":"",)"
     R"("poster type":"jpg","poster url":"https://images.zunde.invalid/poster/38293928476773/24.jpg",)"
     R"("program id":"38293928476773:1767268800","program source id":"10002","short desc":"Evening News on Metro News",)"
     R"("start time":"2026-01-01 12:00","title":"Evening News","utc start time":1767268800}],"ret":true})"},
    {"GetChannelLogo", R"({"TCServiceId": "281466386841601", "logoSize": 1})",
     R"({"channelLogo":"https://images.zunde.invalid/vc/1/logo_1.png","ret":true})"},
};

TEST(GoldenAnswers, EachShapeAnswersItsExactText) {
  zunde::testing::Served served(60, zunde::testing::kFixedNow);
  for (const Row& row : kRows) EXPECT_EQ(served.Text(row.member, row.request), row.answer) << row.member;
}

}  // namespace
