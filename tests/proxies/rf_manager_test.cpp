// The broadcast channel proxy: its typed methods as harness rows, and the
// counts and Reset, whose results the rows do not fit, as a table of their own.
#include "ZundeProvider.h"
#include "json_text.h"
#include "proxy_harness.h"
#include "test_service.h"

static std::string OutputText(const FCRFNetworkChannelTable& table) {
  return zunde::testing::OutputText(table.GetRFNetworkChannelList());
}
static std::string OutputText(const FCRemoteProgram& program) { return program.strTitle; }

namespace {

using namespace zunde::testing;
using Proxy = FCRFNetworkChannelManager_Proxy;
using Mode = FCRFNetworkChannelAPI::ENavigationMode;
const std::string kClass = "FCRFNetworkChannelManager_Proxy::";

std::string Styled(const std::string& text) { return Json::StyledWriter().write(Parsed(text)); }
FCRemoteProgram Program(const std::string& title) {
  FCRemoteProgram program;
  program.strTitle = title;
  return program;
}
// The request of GetNext/GetPrevMetaProgram from programme "A": its whole JSON form.
const std::string kProgramA = [] {
  Json::Value a;
  FCRemoteProgram::ToJson(Program("A"), a);
  return Json::StyledWriter().write(a);
}();

// Typed methods log "[16][3]" + `entry` on entry and "[16][0]" on failure; the meta
// programme methods "DBG_LV[3]" through the two-layer call, CheckMetaProgramExist no entry.
ProxyCase Row(const std::string& method, const std::string& request, const std::string& reply,
              const std::string& outputs, std::function<Observed()> call, const std::string& entry,
              const std::string& form = "[16][") {
  const std::string failed = form + "0][" + kClass + method + "] fail to ";
  return {method, method, request, reply, true, outputs, std::move(call),
          {0, 4, entry.empty() ? "" : form + "3]" + entry}, {2, 5, failed + "communicate using d-bus\n"},
          {2, 5, failed + "parse json data\n"}};
}
ProxyCase Level(const std::string& method, const std::string& request, const std::string& reply,
                const std::string& outputs, std::function<Observed()> call) {
  return Row(method, request, reply, outputs, std::move(call), "[" + kClass + method + "] called\n", "DBG_LV[");
}

const ProxyCase kCases[] = {
    Row("SetNavigationMode", Styled(R"({"navigation mode": 2})"), R"({"ret": true})", "",
        Observe<Proxy>([](Proxy& p) { return p.SetNavigationMode(Mode(2)); }),
        kClass + "SetNavigationMode() Called, navigationMode : 2\n"),
    Row("GetNavigationMode", "", R"({"ret": true, "navigation mode": 1})", "1",
        Observe<Proxy>([](Proxy& p, Mode& m) { return p.GetNavigationMode(m); }, Mode(9)),
        kClass + "GetNavigationMode(), navigationMode : 9\n"),
    Row("SetGenreForNavigation", Styled(R"({"genre": "news"})"), R"({"ret": true})", "",
        Observe<Proxy>([](Proxy& p) { return p.SetGenreForNavigation("news"); }),
        kClass + "SetGenreForNavigation(), genre : news \n"),
    Row("GetGenreForNavigation", "", R"({"ret": true, "genre": "sport"})", "sport",
        Observe<Proxy>([](Proxy& p, std::string& g) { return p.GetGenreForNavigation(g); }, std::string("-")),
        kClass + "GetGenreForNavigation(), genre : -\n"),
    Row("GetRFNetworkChannelMapByGenre", Styled(R"({"genre": "news"})"),
        R"({"ret": true, "genre": "x", "service list": [{"TCServiceId": "5"}, {"TCServiceId": "5"}]})", "[5, 5]",
        Observe<Proxy>([](Proxy& p, auto& t) { return p.GetRFNetworkChannelMapByGenre("news", t); },
                       FCRFNetworkChannelTable()),
        kClass + "GetRFNetworkChannelMapByGenre(), key(genre) : news\n"),
    Row("GetRFNetworkChannelUpByGenre", Styled(R"({"genre": "news", "TCServiceId": "18446744073709551615"})"),
        R"({"ret": true, "TCServiceId": "18446744073709551615"})", "18446744073709551615 | 18446744073709551615",
        Observe<Proxy>([](Proxy& p, auto& c, auto& n) { return p.GetRFNetworkChannelUpByGenre("news", c, n); },
                       ~0ULL, 0ULL),
        kClass + "GetRFNetworkChannelUpByGenre(), key(genre) : news\n"),
    Row("GetRFNetworkChannelDownByGenre", Styled(R"({"genre": "", "TCServiceId": "3"})"), R"({"ret": true})",
        "3 | 0",
        Observe<Proxy>([](Proxy& p, auto& c, auto& n) { return p.GetRFNetworkChannelDownByGenre("", c, n); },
                       3ULL, 9ULL),
        kClass + "GetRFNetworkChannelDownByGenre(), key(genre) : \n"),
    Level("GetPresentMetaProgram", Styled(R"({"TCServiceId": "5"})"), R"({"ret": true, "title": "News"})", "News",
          Observe<Proxy>([](Proxy& p, FCRemoteProgram& o) { return p.GetPresentMetaProgram(5, o); }, Program("-"))),
    Level("GetNextMetaProgram", kProgramA, R"({"ret": true, "title": "B"})", "B",
          Observe<Proxy>([](Proxy& p, auto& o) { return p.GetNextMetaProgram(Program("A"), o); }, Program("-"))),
    Level("GetPrevMetaProgram", kProgramA, R"({"ret": true, "title": "Z"})", "Z",
          Observe<Proxy>([](Proxy& p, auto& o) { return p.GetPrevMetaProgram(Program("A"), o); }, Program("-"))),
    Level("GetMetaProgramMap", Styled(R"({"TCServiceId": "5", "duration": 3600, "start_time": 1000})"),
          R"({"ret": true, "meta_program_map": [{"key": 7, "title": "A"}, {"key": 7, "title": "B"},
              {"key": 8, "title": "C"}]})", "{6: -, 7: B, 8: C}",
          Observe<Proxy>([](Proxy& p, auto& o) { return p.GetMetaProgramMap(5, 1000, 3600, o); },
                         std::map<unsigned int, FCRemoteProgram>{{6, Program("-")}})),
    Row("CheckMetaProgramExist", "", R"({"ret": true})", "",
        Observe<Proxy>([](Proxy& p) { return p.CheckMetaProgramExist(); }), "", "DBG_LV["),
};
INSTANTIATE_TEST_SUITE_P(RFChannels, ProxyMethod, ::testing::ValuesIn(kCases), CaseName<ProxyCase>);

// Methods whose result is no "ret", through the object FCAPI hands out: the
// result as text and one line. Member "": nothing is sent; reply "": the service is absent.
struct CountCase {
  std::string name, member, request, reply, result;
  std::function<std::string()> call;
  ExpectedLine line;
};
FCRFNetworkChannelAPI& Api() { return *FCAPI::GetRFNetworkChannelAPI(); }
std::string CountList() {
  std::vector<FCRepGenreInfo> genres;
  std::map<std::string, int> counts{{"z", 9}};
  const std::string result = OutputText(Api().GetRFNetworkChannelCountByGenreList(genres, counts));
  return result + " | " + OutputText(counts);
}
const std::string kCount = "GetRFNetworkChannelCountByGenre";

const CountCase kCounts[] = {
    {"Reset", "", "", "", "true", [] { return OutputText(Api().Reset()); }, {0, 4, "[16][3]" + kClass + "Reset()\n"}},
    {"CountRetFalse", kCount, Styled(R"({"genre": "news"})"), R"({"ret": false, "count": 7})", "7",
     [] { return OutputText(Api().GetRFNetworkChannelCountByGenre("news")); },
     {0, 4, "[16][3]" + kClass + kCount + "(), genre : news\n"}},
    {"CountServiceAbsent", kCount, Styled(R"({"genre": ""})"), "", "0",
     [] { return OutputText(Api().GetRFNetworkChannelCountByGenre("")); },
     {2, 5, "[16][0][" + kClass + kCount + "] fail to communicate using d-bus\n"}},
    {"CountListEmpty", kCount + "List", "{}\n", R"({"ret": false, "channel count map": [{"genre": "a", "count": 1},
       {"genre": "a", "count": 2}, {"genre": "z", "count": 3}]})", "true | {a: 1, z: 9}", CountList,
     {0, 4, "[16][3]" + kClass + kCount + "List(), genrelist.size : 0\n"}},
};

using RFCounts = OnTheBus<CountCase>;
TEST_P(RFCounts, AnswersWithoutRet) {
  const CountCase& row = GetParam();
  row.reply.empty() ? TestService::ReplyWithError(row.member) : TestService::Reply(row.member, row.reply);
  EXPECT_EQ(row.call(), row.result);
  EXPECT_TRUE(Logged(row.line));
  const std::vector<ReceivedCall> calls = TestService::TakeCalls();
  ASSERT_EQ(calls.size(), row.member.empty() ? 0u : 1u);
  for (const ReceivedCall& call : calls) EXPECT_EQ(call.member + " " + call.payload, row.member + " " + row.request);
}
INSTANTIATE_TEST_SUITE_P(RFChannels, RFCounts, ::testing::ValuesIn(kCounts), CaseName<CountCase>);

}  // namespace
