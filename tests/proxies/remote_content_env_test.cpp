// The remote content environment proxy, one row per method.
#include "FCRemoteContentOnTV_Proxy.h"
#include "proxy_harness.h"

namespace {

using namespace zunde::testing;
using Proxy = FCRemoteContentOnTV_Proxy;

// Every line of this proxy goes to the system log at warning priority; its
// parse failure line names the operator proxy.
ExpectedLine Line(const std::string& text) { return {2, 5, "DBG_LV[0][" + text}; }

ProxyCase Row(const std::string& method, const std::string& member, const std::string& request,
              const std::string& reply, bool result, const std::string& outputs, std::function<Observed()> call,
              const std::string& entry = "called\n") {
  return {method,
          member,
          request,
          reply,
          result,
          outputs,
          std::move(call),
          Line("FCRemoteContentOnTV_Proxy::" + method + "] " + entry),
          Line("FCRemoteContentOnTV_Proxy::" + method + "] fail to communicate using d-bus\n"),
          Line("FCRemoteContentOnTV_MSO_Proxy::" + method + "] fail to parse json data\n")};
}

const auto kNoActivity = static_cast<eRemoteContentActivity>(-9);
const auto kNoOption = static_cast<eRecommendTypeOption>(-9);

const ProxyCase kCases[] = {
    Row("Reset", "FCRemoteContent_Reset", "", R"({"ret": true})", true, "",
        Observe<Proxy>([](Proxy& p) { return p.Reset(); })),
    Row("ToggleZundeTimeoutTest", "ToggleZundeTimeoutTest", "{\n   \"ret\" : true\n}\n", R"({"ret": true})", true,
        "", Observe<Proxy>([](Proxy& p) { return p.ToggleZundeTimeoutTest(true); })),
    Row("SetRemoteContentEnv", "SetRemoteContentEnv", "{\n   \"country\" : \"DE\",\n   \"language\" : \"\"\n}\n",
        R"({"ret": true})", true, "", Observe<Proxy>([](Proxy& p) { return p.SetRemoteContentEnv("DE", ""); }),
        "called in_country = DE, in_language=\n"),
    Row("GetRemoteContentEnv", "GetRemoteContentEnv", "", R"({"ret": true, "country": "DE"})", true, "DE | ",
        Observe<Proxy>([](Proxy& p, std::string& c, std::string& l) { return p.GetRemoteContentEnv(c, l); },
                       std::string("-"), std::string("-"))),
    Row("GetRemoteContentActivityByTVSourceAndTVMode", "GetRemoteContentActivityByTVSourceAndTSTVMode",
        "{\n   \"in_antennaMode\" : 2,\n   \"in_serviceMode\" : 3,\n   \"in_source\" : 1\n}\n",
        R"({"ret": true, "activityID": 4})", true, "4",
        Observe<Proxy>(
            [](Proxy& p, eRemoteContentActivity& a) { return p.GetRemoteContentActivityByTVSourceAndTVMode(1, 2, 3, a); },
            kNoActivity)),
    Row("SetRecommendTypeOption", "SetRecommendTypeOption", "{\n   \"in_recommend_type\" : 2\n}\n",
        R"({"ret": true})", true, "",
        Observe<Proxy>([](Proxy& p) { return p.SetRecommendTypeOption(static_cast<eRecommendTypeOption>(2)); })),
    Row("GetRecommendTypeOption", "GetRecommendTypeOption", "", R"({"ret": true, "in_recommend_type": 1})", true,
        "1", Observe<Proxy>([](Proxy& p, eRecommendTypeOption& o) { return p.GetRecommendTypeOption(o); }, kNoOption)),
    Row("SetPersonalUserID", "SetPersonalUserID", "{\n   \"in_user_id\" : \"u-1\"\n}\n", R"({"ret": true})", true,
        "", Observe<Proxy>([](Proxy& p) { return p.SetPersonalUserID("u-1"); })),
    Row("GetPersonalUserID", "GetPersonalUserID", "", R"({"ret": true, "in_user_id": "u-2"})", true, "u-2",
        Observe<Proxy>([](Proxy& p, std::string& u) { return p.GetPersonalUserID(u); }, std::string("-"))),
    Row("SetAToken", "SetAToken", "{\n   \"atoken\" : \"tok\"\n}\n", R"({"ret": true})", true, "",
        Observe<Proxy>([](Proxy& p) { return p.SetAToken("tok"); })),
};
INSTANTIATE_TEST_SUITE_P(RemoteContentEnvironment, ProxyMethod, ::testing::ValuesIn(kCases), CaseName<ProxyCase>);

PassThroughCase PassThrough(const std::string& method, const std::string& member,
                            std::function<bool(const std::string&, std::string&)> call, bool forwardsRequest = true) {
  return {method, member, std::move(call), forwardsRequest, false,
          Line("FCRemoteContentOnTV_Proxy::" + method + "] called\n"),
          Line("FCRemoteContentOnTV_Proxy::" + method + "] fail to communicate using d-bus\n")};
}

Proxy proxy;
const PassThroughCase kPassThroughs[] = {
    PassThrough("SetRemoteContentEnvForEmp", "SetRemoteContentEnv",
                [](auto& in, auto& out) { return proxy.SetRemoteContentEnvForEmp(in, out); }),
    PassThrough("GetRemoteContentEnv", "GetRemoteContentEnv",
                [](auto&, auto& out) { return proxy.GetRemoteContentEnv(out); }, false),
    PassThrough("GetRemoteContentActivityByTVSourceAndTVMode", "GetRemoteContentActivityByTVSourceAndTSTVMode",
                [](auto& in, auto& out) { return proxy.GetRemoteContentActivityByTVSourceAndTVMode(in, out); }),
    PassThrough("SetRecommendTypeOption", "SetRecommendTypeOption",
                [](auto& in, auto& out) { return proxy.SetRecommendTypeOption(in, out); }),
};
INSTANTIATE_TEST_SUITE_P(RemoteContentEnvironment, ProxyPassThrough, ::testing::ValuesIn(kPassThroughs),
                         CaseName<PassThroughCase>);

}  // namespace
