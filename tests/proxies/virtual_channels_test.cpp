// The virtual channels proxy, one row per operation; the KPI gate with the
// disclaimer setting and the feature capability given by the platform files.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>

#include "FCVirtualChannels_Proxy.h"
#include "FCVirtualProgramData.h"
#include "json_text.h"
#include "proxy_harness.h"
#include "test_service.h"

using P = FCVirtualChannels_Proxy;
using ProgramMap = std::map<unsigned int, FCVirtualProgramData>;

// Programmes by title: the rest of their reading is the records' business.
static std::string OutputText(const FCVirtualProgramData& program) { return program.GetTitle(); }
static std::string OutputText(const FCVirtualProgramId& id) { return id.ToString(); }
static std::string OutputText(const FCVirtualChannelInfo& info) { return info.ToString(); }
static std::string OutputText(const FCVirtualConfig& c) { return c.GetChPosition() + "," + c.GetBannerVcToTv(); }

namespace {

using namespace zunde::testing;
using Prog = FCVirtualProgramData;
using Id = FCVirtualProgramId;

std::string Styled(const std::string& json) { return Json::StyledWriter().write(Parsed(json)); }
// The JSON form of a default programme id.
const std::string kId = R"("program_id": {"TCServiceId": "0", "event_id": "", "start_time": 0, "duration": 0})";
const std::string kDash = "-";
// A default programme for the service 7.
const std::string kOnDemand =
    R"({"TCServiceId": "7", "content_type": "", "content_uri": "", "duration": 0, "id": "", "playlist_item_index": -1,
        "poster": {"index": "", "url": ""}, "program_data": {"TCServiceId": "0"}, "relative_offset": -1,
        "short_desc": "", "starttime": "1970-01-01T00:00:00Z", "title": ""})";

// The platform files of this process, holding the disclaimer setting and the
// feature capability that SendLogKPI reads at each call.
const std::string kSetting = "/tmp/zunde-setting-" + std::to_string(getpid()), kCapability = kSetting + "-capability";
bool SendKPI(P& p, int type, const std::string& disclaimer = "1", const std::string& feature = "true") {
  std::ofstream(kSetting) << "db/menu/corvina/homedatacontrol/defaultdisclaimeragree=" << disclaimer;
  std::ofstream(kCapability) << "SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT=" << feature;
  setenv("ZUNDE_VCONF_FILE", kSetting.c_str(), 1);
  setenv("ZUNDE_SYSTEM_INFO_FILE", kCapability.c_str(), 1);
  std::string event = "ev", category = "cat", desc = "d";
  const bool sent = p.SendLogKPI(static_cast<P::EKPIType>(type), event, category, desc);
  for (const std::string* file : {&kSetting, &kCapability}) std::remove(file->c_str());
  return sent;
}

ExpectedLine Line(const std::string& member, const std::string& text, int level = 0, int logId = 2, int prio = 5) {
  return {logId, prio, "DBG_LV[" + std::to_string(level) + "][FCVirtualChannels_Proxy::" + member + "] " + text};
}

// `request` is compact JSON; the proxy sends it as Json::StyledWriter writes it.
ProxyCase Row(const std::string& name, const std::string& request, const std::string& reply, const std::string& outputs,
              std::function<Observed()> call, bool result = true, const std::string& member = "") {
  const std::string m = member.empty() ? name : member;
  return {name, m, Styled(request), reply, result, outputs, std::move(call), Line(m, "called\n", 3, 0, 4),
          Line(m, "fail to communicate using d-bus\n"), Line(m, "fail to parse json data\n")};
}

// Reset and KivoProgramInfoIsAvailable send nothing and write lines of their own.
ProxyCase Bracketed(const std::string& member, const std::string& start, std::function<Observed()> call) {
  return {member, member, "", R"({"ret": true})", true, "", std::move(call),
          {0, 4, "[16][0][FCConnectedContent_Proxy::" + member + "] " + start},
          Line(member, "fail to communicate using d-bus\n"),
          {2, 5, "[16][0][FCConnectedContent_Proxy::ParseReturnValue] fail to parse json output data\n"}};
}

// The download id is the result; shown as an output, which a failed call (0) leaves as it was.
bool ImageInto(P& p, long& id, std::string& path) {
  if (long got = p.GetProgramImage(Id(), P::EProgramLogoType(1), path)) id = got;
  return false;
}

const std::string kIdOnly = "{" + kId + "}";
const ProxyCase kCases[] = {
    // The map is not cleared, and of two programmes under one key the later stays.
    Row("GetProgramList", R"({"TCServiceId": "7", "start_time": 100, "duration": 3600})",
        R"({"ret": true, "virtual_program_map": [{"key": 1, "title": "a"}, {"key": 1, "title": "b"}]})", "{1: b, 5: }",
        Observe<P>([](P& p, ProgramMap& m) { return p.GetProgramList(7, 100, 3600, m); }, ProgramMap{{5, {}}})),
    Row("GetProgramWithIndicator", R"({"program_indicator": 2, )" + kId + "}", R"({"ret": true, "title": "N"})", "N",
        Observe<P>([](P& p, Prog& o) { return p.GetProgram(EProgramIndicator(2), Id(), o); }, Prog())),
    Row("GetProgram", kIdOnly, R"({"ret": true, "title": "N"})", "N",
        Observe<P>([](P& p, Prog& o) { return p.GetProgram(Id(), o); }, Prog())),
    Row("GetPresentProgram", R"({"TCServiceId": "7"})", R"({"ret": true, "title": "N"})", "N",
        Observe<P>([](P& p, Prog& o) { return p.GetPresentProgram(7, o); }, Prog())),
    Row("GetChannelLogo", R"({"TCServiceId": "7", "logoSize": 2})", R"({"ret": true, "channelLogo": "l"})", "l",
        Observe<P>([](P& p, std::string& l) { return p.GetChannelLogo(7, P::EChannelLogoSize(2), l); }, kDash)),
    Row("GetProgramThumbnail", kIdOnly, R"({"ret": true, "programLogo": "t"})", "t",
        Observe<P>([](P& p, std::string& l) { return p.GetProgramThumbnail(Id(), l); }, kDash)),
    Row("GetProgramImage", "{" + kId + R"(, "programLogoType": 1})", R"({"imageDownloadId": "42", "programLogo": "i"})",
        "42 | i", Observe<P>(ImageInto, -9L, kDash), false),
    Row("GetProgramBackground", kIdOnly, R"({"ret": true, "programLogo": "b"})", "b",
        Observe<P>([](P& p, std::string& l) { return p.GetProgramBackground(Id(), l); }, kDash)),
    Row("SetOnDemandProgram", kOnDemand, R"({"ret": true, "program_id": {"TCServiceId": "7", "event_id": "e9"}})",
        "TCServiceId: 7\nid: e9\nstart_time: 0\nduration: 0\n",
        Observe<P>([](P& p, Id& id) { return p.SetOnDemandProgram(7, Prog(), &id); }, Id())),
    Row("SetOnDemandProgram_NullId", kOnDemand, R"({"ret": true})", "",
        Observe<P>([](P& p) { return p.SetOnDemandProgram(7, Prog(), nullptr); }), true, "SetOnDemandProgram"),
    Row("UnsetOnDemandProgram", kIdOnly, R"({"ret": true})", "",
        Observe<P>([](P& p) { return p.UnsetOnDemandProgram(Id()); })),
    Row("GetOnDemandIdentifier", R"({"TCServiceId": "7"})", R"({"ret": true, "program_id": {"start_time": 100}})",
        "TCServiceId: 0\nid: \nstart_time: 100\nduration: 0\n",
        Observe<P>([](P& p, Id& id) { return p.GetOnDemandIdentifier(7, id); }, Id())),
    Row("GetVCConfig", "null", R"({"ret": true, "ch_position": {"position": "p"}, "vc_banner": {"vc_to_tv": "b"}})",
        "p,b", Observe<P>([](P& p, FCVirtualConfig& c) { return p.GetVCConfig(c); }, FCVirtualConfig())),
    Row("GetFeaturedVirtualChannelInfo", R"({"TCServiceId": "7"})",
        R"({"ret": true, "major": "501", "channel_name": "VC", "logo_collection": [{"logo": "l", "index": 3}]})",
        "channel name: VC\nchannel name: 501\nlogo[l]: 3\n",
        Observe<P>([](P& p, FCVirtualChannelInfo& i) { return p.GetFeaturedVirtualChannelInfo(7, i); },
                   FCVirtualChannelInfo())),
    Row("GetServiceIdFromOnTVProviderAndService", R"({"onTvProviderId": "pr", "onTvServiceId": "sv"})",
        R"({"ret": true, "TCServiceId": "18446744073709551615"})", "18446744073709551615",
        Observe<P>([](P& p, auto& id) { return p.GetServiceIdFromOnTVProviderAndService("pr", "sv", id); }, 0ULL)),
    Row("SendLogKPI", R"({"KPIType": 1, "EventName": "ev", "Category": "cat", "desc": "d"})", R"({"ret": true})", "",
        Observe<P>([](P& p) { return SendKPI(p, 1); })),
    Row("GetViewingAgreement", "null", R"({"ret": true})", "", Observe<P>(std::mem_fn(&P::GetViewingAgreement))),
    Bracketed("Reset", "reset start\n", Observe<P>(std::mem_fn(&P::Reset))),
    Bracketed("KivoProgramInfoIsAvailable", "start\n", Observe<P>(std::mem_fn(&P::KivoProgramInfoIsAvailable))),
};
INSTANTIATE_TEST_SUITE_P(VirtualChannels, ProxyMethod, ::testing::ValuesIn(kCases), CaseName<ProxyCase>);

P proxy;
template <bool (P::*Method)(std::string const&, std::string&)>
PassThroughCase Raw(const std::string& member) {
  return {member, member, [](auto& in, auto& out) { return (proxy.*Method)(in, out); }, true, true,
          Line(member, "called\n", 3, 0, 4), Line(member, "fail to communicate using d-bus\n")};
}
const PassThroughCase kPassThroughs[] = {
    Raw<&P::GetProgramList>("GetProgramList"), Raw<&P::GetPresentProgram>("GetPresentProgram"),
    Raw<&P::GetChannelLogo>("GetChannelLogo"), Raw<&P::GetProgramThumbnail>("GetProgramThumbnail"),
    Raw<&P::GetProgramBackground>("GetProgramBackground"), Raw<&P::SetOnDemandProgram>("SetOnDemandProgram"),
    Raw<&P::UnsetOnDemandProgram>("UnsetOnDemandProgram"), Raw<&P::GetOnDemandIdentifier>("GetOnDemandIdentifier"),
    Raw<&P::GetVCConfig>("GetVCConfig"), Raw<&P::GetFeaturedVirtualChannelInfo>("GetFeaturedVirtualChannelInfo"),
    Raw<&P::GetServiceIdFromOnTVProviderAndService>("GetServiceIdFromOnTVProviderAndService"),
};
INSTANTIATE_TEST_SUITE_P(VirtualChannels, ProxyPassThrough, ::testing::ValuesIn(kPassThroughs),
                         CaseName<PassThroughCase>);

const RefusedCase kRefused[] = {
    {"GetProgram_RequestNotJson", Observe<P>([](P& p, std::string& out) { return p.GetProgram("{", out); }, kDash),
     "[16][0][FCConnectedContent_Proxy::GetProgram] fail to parse json input data\n"},
};
INSTANTIATE_TEST_SUITE_P(VirtualChannels, ProxyRefused, ::testing::ValuesIn(kRefused), CaseName<RefusedCase>);

class VirtualChannelsRaw : public OnTheBus<int> {};

TEST_F(VirtualChannelsRaw, GetProgramAsksForTheRelativeProgrammeWhenTheRequestNamesAnIndicator) {
  TestService::Reply("*", R"({"ret": true})");
  std::string out;
  EXPECT_TRUE(proxy.GetProgram(R"({"program_indicator": 1})", out));
  EXPECT_EQ(TestService::TakeOnlyCall().member, "GetProgramWithIndicator");
  EXPECT_TRUE(proxy.GetProgram("{}", out));
  EXPECT_EQ(TestService::TakeOnlyCall().member, "GetProgram");
}

TEST_F(VirtualChannelsRaw, GetProgramImageGivesTheDownloadIdOrMinusOneOrZero) {
  std::string out;
  TestService::Reply("GetProgramImage", R"({"imageDownloadId": "42"})");
  EXPECT_EQ(proxy.GetProgramImage("{}", out), 42);
  TestService::Reply("GetProgramImage", "[");
  EXPECT_EQ(proxy.GetProgramImage("{}", out), 0);
  EXPECT_EQ(out, "[");
  TestService::ReplyWithError("GetProgramImage");
  EXPECT_EQ(proxy.GetProgramImage("{}", out), -1);
}

// `refusal`: the line that refuses the event, "" when the event is sent.
struct GateCase { std::string name, disclaimer, feature; int type; std::string refusal; };
class KPIGate : public OnTheBus<GateCase> {};

TEST_P(KPIGate, SendsOnlyWithConsentAndType0OnlyWithTheFeature) {
  const GateCase& row = GetParam();
  TestService::Reply("SendLogKPI", R"({"ret": true})");
  P p;
  EXPECT_EQ(SendKPI(p, row.type, row.disclaimer, row.feature), row.refusal.empty());
  EXPECT_EQ(TestService::TakeCalls().size(), row.refusal.empty() ? 1u : 0u);
  const std::string type = std::to_string(row.type);
  EXPECT_TRUE(Logged(Line("SendLogKPI", "type = " + type + ", event name = ev, category = cat, desc = d\n", 3, 0, 4)));
  if (!row.refusal.empty()) {
    EXPECT_TRUE(Logged(Line("SendLogKPI", row.refusal)));
  }
}

INSTANTIATE_TEST_SUITE_P(
    VirtualChannels, KPIGate,
    ::testing::Values(
        GateCase{"SettingUnreadable", "", "true", 1, "db/menu/corvina/homedatacontrol/defaultdisclaimeragree Fail\n"},
        GateCase{"DisclaimerNotAccepted", "0", "true", 1, "defaultdisclaimeragree is false \n"},
        GateCase{"CapabilityUnreadable", "1", "", 1,
                 "system_info_get_value_bool(SYSTEM_INFO_KEY_VIRTUAL_CHANNEL_SUPPORT) Fail\n"},
        GateCase{"Type0WithoutTheFeature", "1", "false", 0, "Kivo is NOT Supported \n"},
        GateCase{"Type1WithoutTheFeature", "1", "false", 1, ""}),
    CaseName<GateCase>);

}  // namespace
