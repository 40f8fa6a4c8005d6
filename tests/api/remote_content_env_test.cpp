// Every method of the remote content environment proxy on the real bus: its
// member, its exact request text, what it makes of the reply, its lines.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "FCRemoteContentOnTV_Proxy.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::ServiceTest;
using zunde::testing::TestService;

// A typed method: called with fixed inputs, its outputs rendered as text.
struct TypedCase {
  const char* method;
  const char* member;
  std::string request;  // exact bytes on the bus
  std::string reply;
  bool result;
  std::string outputs;  // after the call; "-" before it
  std::function<bool(FCRemoteContentOnTV_Proxy&, std::string& outputs)> call;
};

// Names the cases in test listings.
void PrintTo(const TypedCase& c, std::ostream* os) { *os << c.method; }

// Outputs start as "-": a failed call must leave them so.
bool CallGetEnv(FCRemoteContentOnTV_Proxy& proxy, std::string& outputs) {
  std::string country = "-";
  std::string language = "-";
  const bool result = proxy.GetRemoteContentEnv(country, language);
  outputs = country + "|" + language;
  return result;
}

bool CallGetActivity(FCRemoteContentOnTV_Proxy& proxy, std::string& outputs) {
  eRemoteContentActivity activity = static_cast<eRemoteContentActivity>(-9);
  const bool result = proxy.GetRemoteContentActivityByTVSourceAndTVMode(1, 2, 3, activity);
  outputs = std::to_string(activity);
  return result;
}

bool CallGetOption(FCRemoteContentOnTV_Proxy& proxy, std::string& outputs) {
  eRecommendTypeOption option = static_cast<eRecommendTypeOption>(-9);
  const bool result = proxy.GetRecommendTypeOption(option);
  outputs = std::to_string(option);
  return result;
}

bool CallGetUser(FCRemoteContentOnTV_Proxy& proxy, std::string& outputs) {
  std::string user = "-";
  const bool result = proxy.GetPersonalUserID(user);
  outputs = user;
  return result;
}

bool NoOutputs(bool result, std::string& outputs) {
  outputs = "none";
  return result;
}

const TypedCase kTypedCases[] = {
    {"Reset", "FCRemoteContent_Reset", "", R"({"ret": true})", true, "none",
     [](auto& p, auto& o) { return NoOutputs(p.Reset(), o); }},
    {"ToggleZundeTimeoutTest", "ToggleZundeTimeoutTest", "{\n   \"ret\" : true\n}\n", R"({"ret": false})", false,
     "none", [](auto& p, auto& o) { return NoOutputs(p.ToggleZundeTimeoutTest(true), o); }},
    {"SetRemoteContentEnv", "SetRemoteContentEnv", "{\n   \"country\" : \"\",\n   \"language\" : \"\"\n}\n",
     R"({"ret": true})", true, "none", [](auto& p, auto& o) { return NoOutputs(p.SetRemoteContentEnv("", ""), o); }},
    {"GetRemoteContentEnv", "GetRemoteContentEnv", "", R"({"ret": false, "country": "DE"})", false, "DE|", CallGetEnv},
    {"GetRemoteContentActivityByTVSourceAndTVMode", "GetRemoteContentActivityByTVSourceAndTSTVMode",
     "{\n   \"in_antennaMode\" : 2,\n   \"in_serviceMode\" : 3,\n   \"in_source\" : 1\n}\n",
     R"({"ret": true, "activityID": 4})", true, "4", CallGetActivity},
    {"SetRecommendTypeOption", "SetRecommendTypeOption", "{\n   \"in_recommend_type\" : 2\n}\n", R"({"ret": true})",
     true, "none",
     [](auto& p, auto& o) { return NoOutputs(p.SetRecommendTypeOption(static_cast<eRecommendTypeOption>(2)), o); }},
    {"GetRecommendTypeOption", "GetRecommendTypeOption", "", R"({"ret": true, "in_recommend_type": 1})", true, "1",
     CallGetOption},
    {"SetPersonalUserID", "SetPersonalUserID", "{\n   \"in_user_id\" : \"u-1\"\n}\n", R"({"ret": true})", true, "none",
     [](auto& p, auto& o) { return NoOutputs(p.SetPersonalUserID("u-1"), o); }},
    {"GetPersonalUserID", "GetPersonalUserID", "", R"({"ret": true, "in_user_id": "u-2"})", true, "u-2", CallGetUser},
    {"SetAToken", "SetAToken", "{\n   \"atoken\" : \"tok\"\n}\n", R"({"ret": true})", true, "none",
     [](auto& p, auto& o) { return NoOutputs(p.SetAToken("tok"), o); }},
};

std::string CaseName(const ::testing::TestParamInfo<TypedCase>& info) { return info.param.method; }

class EnvironmentTyped : public ServiceTest, public ::testing::WithParamInterface<TypedCase> {
 protected:
  void SetUp() override {
    ServiceTest::SetUp();
    LogCapture::Clear();
  }
  std::string Line(const char* className, const char* text) const {
    return std::string("[") + className + "::" + GetParam().method + "] " + text;
  }
  FCRemoteContentOnTV_Proxy proxy_;
};

TEST_P(EnvironmentTyped, SendsItsMemberAndRequestAndReadsTheReply) {
  TestService::Reply(GetParam().member, GetParam().reply);
  std::string outputs;
  EXPECT_EQ(GetParam().call(proxy_, outputs), GetParam().result);
  EXPECT_EQ(outputs, GetParam().outputs);

  const auto call = TestService::TakeOnlyCall();
  EXPECT_EQ(call.member, GetParam().member);
  EXPECT_EQ(call.payload, GetParam().request);
  EXPECT_EQ(call.length, static_cast<int>(GetParam().request.size()));
}

TEST_P(EnvironmentTyped, WritesItsEntryLineAtWarningPriority) {
  TestService::Reply(GetParam().member, GetParam().reply);
  std::string outputs;
  GetParam().call(proxy_, outputs);
  zunde::testing::LogRecord record;
  const bool custom = std::string(GetParam().method) == "SetRemoteContentEnv";
  ASSERT_TRUE(LogCapture::Find(
      custom ? Line("FCRemoteContentOnTV_Proxy", "called in_country = , in_language=\n") : Line("FCRemoteContentOnTV_Proxy", "called\n"),
      &record));
  EXPECT_NE(record.text.find(" > DBG_LV[0]["), std::string::npos) << record.text;
  EXPECT_EQ(record.priority, 5);
  EXPECT_EQ(record.logId, 2);
}

TEST_P(EnvironmentTyped, TransportFailureLeavesOutputsAndLogs) {
  TestService::ReplyWithError(GetParam().member);
  std::string outputs;
  EXPECT_FALSE(GetParam().call(proxy_, outputs));
  if (GetParam().outputs != "none") {
    EXPECT_EQ(outputs.find_first_not_of("-|9"), std::string::npos) << outputs;
  }
  EXPECT_TRUE(LogCapture::Find(Line("FCRemoteContentOnTV_Proxy", "fail to communicate using d-bus\n")));
}

TEST_P(EnvironmentTyped, UnparsableReplyLeavesOutputsAndNamesTheOperatorProxy) {
  TestService::Reply(GetParam().member, "");
  std::string outputs;
  EXPECT_FALSE(GetParam().call(proxy_, outputs));
  if (GetParam().outputs != "none") {
    EXPECT_EQ(outputs.find_first_not_of("-|9"), std::string::npos) << outputs;
  }
  EXPECT_TRUE(LogCapture::Find(Line("FCRemoteContentOnTV_MSO_Proxy", "fail to parse json data\n")));
}

INSTANTIATE_TEST_SUITE_P(RemoteContentEnvironment, EnvironmentTyped, ::testing::ValuesIn(kTypedCases), CaseName);

// The pass-through methods: text in as it stands, reply text out raw.
struct PassThroughCase {
  const char* method;
  const char* member;
  std::function<bool(FCRemoteContentOnTV_Proxy&, std::string const&, std::string&)> call;
  bool sendsRequest;  // false: the method sends an empty request
};

void PrintTo(const PassThroughCase& c, std::ostream* os) { *os << c.method; }

const PassThroughCase kPassThroughCases[] = {
    {"SetRemoteContentEnvForEmp", "SetRemoteContentEnv",
     [](auto& p, auto const& in, auto& out) { return p.SetRemoteContentEnvForEmp(in, out); }, true},
    {"GetRemoteContentEnv", "GetRemoteContentEnv",
     [](auto& p, auto const&, auto& out) { return p.GetRemoteContentEnv(out); }, false},
    {"GetRemoteContentActivityByTVSourceAndTVMode", "GetRemoteContentActivityByTVSourceAndTSTVMode",
     [](auto& p, auto const& in, auto& out) { return p.GetRemoteContentActivityByTVSourceAndTVMode(in, out); }, true},
    {"SetRecommendTypeOption", "SetRecommendTypeOption",
     [](auto& p, auto const& in, auto& out) { return p.SetRecommendTypeOption(in, out); }, true},
};

class EnvironmentPassThrough : public ServiceTest, public ::testing::WithParamInterface<PassThroughCase> {
 protected:
  FCRemoteContentOnTV_Proxy proxy_;
};

TEST_P(EnvironmentPassThrough, ForwardsTextAndReturnsTheRawReply) {
  TestService::Reply(GetParam().member, R"({"ret": false})");
  std::string reply;
  EXPECT_TRUE(GetParam().call(proxy_, "not json {", reply));
  EXPECT_EQ(reply, R"({"ret": false})");
  const auto call = TestService::TakeOnlyCall();
  EXPECT_EQ(call.member, GetParam().member);
  EXPECT_EQ(call.payload, GetParam().sendsRequest ? "not json {" : "");
}

TEST_P(EnvironmentPassThrough, EmptyReplyIsTrueWithAnEmptyString) {
  TestService::Reply(GetParam().member, "");
  std::string reply = "-";
  EXPECT_TRUE(GetParam().call(proxy_, "{}", reply));
  EXPECT_EQ(reply, "");
}

TEST_P(EnvironmentPassThrough, TransportFailureLeavesTheReply) {
  TestService::ReplyWithoutArguments(GetParam().member);
  std::string reply = "-";
  EXPECT_FALSE(GetParam().call(proxy_, "{}", reply));
  EXPECT_EQ(reply, "-");
}

INSTANTIATE_TEST_SUITE_P(RemoteContentEnvironment, EnvironmentPassThrough, ::testing::ValuesIn(kPassThroughCases),
                         [](const auto& info) { return std::string(info.param.method); });

}  // namespace
