// The set-top-box channel manager proxy, one row per method.
#include <algorithm>
#include <cstring>
#include <ctime>

#include "BrisvelDefine.h"
#include "MBRNetworkChannelManager_Proxy.h"
#include "log_capture.h"
#include "proxy_harness.h"

// Records as text: a channel by its major, a programme by its id.
static std::string OutputText(const FCMBRNetworkChannel& c) { return std::to_string(c.GetMajor()); }
static std::string OutputText(const FCMBRNetworkProgram& p) { return p.GetProgramID(); }
static std::string OutputText(const FCMBRNetworkChannelTable& t) {
  return zunde::testing::OutputText(t.GetNetworkChannelList());
}
static std::string OutputText(const FCMBRNetworkProgramTable& t) {
  return zunde::testing::OutputText(t.GetNetworkProgramMap());
}

namespace {

using namespace zunde::testing;
using P = FCMBRNetworkChannelManager_Proxy;
using A = FCMBRNetworkChannelAPI::EActivityID;
using Channel = FCMBRNetworkChannel;
using Table = FCMBRNetworkChannelTable;
using Programs = FCMBRNetworkProgramTable;
using Str = std::string;

const A k4 = static_cast<A>(4), k5 = static_cast<A>(5), k9 = static_cast<A>(9), kNone = static_cast<A>(-1);
const auto kQuery = static_cast<FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery>(2);
const auto kFav = FCMBRNetworkChannel::eFavorite3;
const Str kClass = "FCMBRNetworkChannelManager_Proxy::";
Channel kChannel;  // the default channel, whose keys travel flat in the requests
A act = k4;        // the activity the rows call with; the refusals run them again with others

// The exact request bytes: `compact` as Json::StyledWriter writes it, with
// the channel's keys beside its own when `channel`.
Str Styled(const Str& compact, bool channel = false) {
  Json::Value root;
  Json::Reader().parse(compact, root);
  if (channel) FCMBRNetworkChannel::MBRNetworkChannelToJson(kChannel, root);
  return Json::StyledWriter().write(root);
}
Table OneChannel() {
  Table table;
  table.AppendNetworkChannel(kChannel);
  return table;
}

Str Entry(const Str& text) { return "[16][3]" + kClass + text; }
// Entry lines go to the main log at information priority, SetMBRNetworkProgramMap's at debug.
ExpectedLine Info(const Str& text) { return {0, text.rfind("[16][4]", 0) == 0 ? 3 : 4, text}; }
ExpectedLine Failure(const Str& method, const char* what) {
  return {2, 5, (method == "GetFeaturedMBRChannels" ? "DBG_LV[0][" : "[16][0][") + kClass + method + "] " + what};
}

ProxyCase Row(const Str& method, const Str& request, const Str& reply, const Str& outputs,
              std::function<Observed()> call, const Str& entry = "", const Str& member = "") {
  return {method, member.empty() ? method : member, request, reply, true, outputs, std::move(call), Info(entry),
          Failure(method, "fail to communicate using d-bus\n"), Failure(method, "fail to parse json data\n")};
}
// A method without outputs, answered {"ret": true}.
template <typename F>
ProxyCase Sends(const Str& method, const Str& request, F f, const Str& entry = "") {
  return Row(method, request, R"({"ret":true})", "", Observe<P>(f), entry);
}
ProxyCase IgnoringReply(ProxyCase row) {
  row.readsReply = false;
  return row;
}

const Str kOne = R"({"activityID":4})";
const Str kChannelReply = R"({"ret":true,"m_major":7})";
const Str kTableReply = R"({"ret":true,"MBR channel table":[{"m_major":7}]})";

const ProxyCase kCases[] = {
    Row("AllocateActivityIDBySourceID", Styled(R"({"source":3})"), R"({"ret":true,"activityID":2})", "2",
        Observe<P>([](P& p, A& a) { return p.AllocateActivityIDBySourceID(3, a); }, k9)),
    Row("DeleteActivityID", Styled(kOne), R"({"ret":true,"activityID":3})", "",
        Observe<P>([](P& p) { return p.DeleteActivityID(act); })),
    Sends("SetActivityIDSourceID", Styled(R"({"activityID":4,"source":7})"),
          [](P& p) { return p.SetActivityIDSourceID(act, static_cast<ESource>(7)); },
          "[16][3]SetActivityIDSourceID(), activityId(4), sourceId(7)(If failed, same source could exists on other "
          "activityId)\n"),
    Row("GetActivityIDBySourceID", Styled(R"({"source":-1})"), R"({"ret":true,"activityID":3})", "3",
        Observe<P>([](P& p, A& a) { return p.GetActivityIDBySourceID(-1, a); }, k9),
        Entry("GetActivityIDBySourceID, sourceId(-1)\n")),
    Sends("SetZipCode", Styled(R"({"activityID":4,"zip code":"z"})"),
          [](P& p) { Str z = "z"; return p.SetZipCode(act, z); }, Entry("SetZipCode(), activityId(4)\n")),
    Row("GetZipCode", Styled(kOne), R"({"ret":true,"zip code":"z"})", "z",
        Observe<P>([](P& p, Str& z) { return p.GetZipCode(act, z); }, Str("-")),
        Entry("GetZipCode(), activityId(4)\n")),
    Sends("SetDeviceType", Styled(R"({"activityID":4,"device type":"d"})"),
          [](P& p) { Str d = "d"; return p.SetDeviceType(act, d); },
          Entry("SetDeviceType(), activityId(4), deviceType[d]\n")),
    Row("GetDeviceType", Styled(kOne), R"({"ret":true,"device type":"d"})", "d",
        Observe<P>([](P& p, Str& d) { return p.GetDeviceType(act, d); }, Str("-")),
        "[16][3]GetDeviceType(), activityId(4)\n"),
    Sends("SetHeadEndID", Styled(R"({"activityID":4,"headend id":"h"})"),
          [](P& p) { Str h = "h"; return p.SetHeadEndID(act, h); }, Entry("SetHeadEndID(), activityId(4)\n")),
    Row("GetHeadEndID", Styled(kOne), R"({"ret":true,"headend id":"h"})", "h",
        Observe<P>([](P& p, Str& h) { return p.GetHeadEndID(act, h); }, Str("-")),
        Entry("GetHeadEndID(), activityId(4)\n")),
    Sends("SetLocation", Styled(R"({"activityID":4,"location":"l"})"),
          [](P& p) { Str l = "l"; return p.SetLocation(act, l); },
          Entry("SetLocation(), activityId(4), location[l]\n")),
    Row("GetLocation", Styled(kOne), R"({"ret":true,"location":"l"})", "l",
        Observe<P>([](P& p, Str& l) { return p.GetLocation(act, l); }, Str("-")),
        Entry("GetLocation(), activityId(4)\n")),
    Sends("ConstructMBRNetworkChannelMap", Styled(R"({"activityID":9})"),
          [](P& p) { return p.ConstructMBRNetworkChannelMap(k9); }),
    Sends("ConstructMBRNetworkProgramMap", Styled(kOne), [](P& p) { return p.ConstructMBRNetworkProgramMap(act); },
          "[16][3]ConstructMBRNetworkProgramMap(), activityID : 4\n"),
    Row("GetCurrentMBRNetworkProgram", Styled(kOne, true), R"({"ret":true,"m_programID":"p"})", "p",
        Observe<P>([](P& p, FCMBRNetworkProgram& o) { return p.GetCurrentMBRNetworkProgram(act, kChannel, o); },
                   FCMBRNetworkProgram())),
    Row("GetCurrentMBRNetworkProgrambyCurrentTime", Styled(R"({"activityID":4,"current time":3000000000})", true),
        R"({"ret":true,"m_programID":"p"})", "p",
        Observe<P>([](P& p, FCMBRNetworkProgram& o) {
          return p.GetCurrentMBRNetworkProgrambyCurrentTime(act, 3000000000UL, kChannel, o);
        }, FCMBRNetworkProgram()), "", "GetCurrentMBRNetworkProgrambyCurrentTimebyCurrentTime"),
    Sends("SetMBRNetworkChannelMap", Styled(kOne), [](P& p) { Table t; return p.SetMBRNetworkChannelMap(act, t); },
          Entry("SetMBRNetworkChannelMap(), activityID : 4\n")),
    Row("GetMBRNetworkChannelMap", Styled(R"({"activityID":4,"query type":2})"), kTableReply, "[-1, 7]",
        Observe<P>([](P& p, Table& t) { return p.GetMBRNetworkChannelMap(act, t, kQuery); }, OneChannel()),
        Entry("GetMBRNetworkChannelMap(), activityID : 4, queryType : 2\n")),
    Row("GetMBRNetworkChannelUp", Styled(kOne, true), kChannelReply, "7",
        Observe<P>([](P& p, Channel& c) { return p.GetMBRNetworkChannelUp(act, kChannel, c); }, Channel()),
        "[16][3]GetMBRNetworkChannelUp()\n"),
    Row("GetMBRNetworkChannelDown", Styled(kOne, true), kChannelReply, "7",
        Observe<P>([](P& p, Channel& c) { return p.GetMBRNetworkChannelDown(act, kChannel, c); }, Channel()),
        Entry("GetMBRNetworkChannelDown()\n")),
    Row("GetMBRNetworkChannelByMajorMinor", Styled(R"({"activityID":4,"major":7,"minor":1})"), kChannelReply, "7",
        Observe<P>([](P& p, Channel& c) { return p.GetMBRNetworkChannelByMajorMinor(act, 7, 1, c); }, Channel()),
        Entry("GetMBRNetworkChannelByMajorMinor()\n")),
    Sends("SaveMBRNetworkChannelMap", Styled(kOne), [](P& p) { return p.SaveMBRNetworkChannelMap(act); }),
    Sends("AddNewMBRNetworkChannel", Styled(kOne, true), [](P& p) { return p.AddNewMBRNetworkChannel(act, kChannel); },
          Entry("AddNewMBRNetworkChannel()\n")),
    Sends("SetRememberMBRNetworkChannel", Styled(R"({"activityID":4,"ret":true})", true),
          [](P& p) { return p.SetRememberMBRNetworkChannel(act, kChannel, true); }),
    Sends("ExistMBRNetworkChannelByMajorMinor", Styled(R"({"activityID":4,"major":7,"minor":1})"),
          [](P& p) { return p.ExistMBRNetworkChannelByMajorMinor(act, 7, 1); }),
    Sends("AddFavoriteMBRNetworkChannel", Styled(R"({"activityID":4,"favorite":3})", true),
          [](P& p) { return p.AddFavoriteMBRNetworkChannel(act, kFav, kChannel); }),
    Sends("DeleteFavoriteMBRNetworkChannel", Styled(R"({"activityID":4,"favorite":3})", true),
          [](P& p) { return p.DeleteFavoriteMBRNetworkChannel(act, kFav, kChannel); }),
    Sends("SetMBRNetworkProgramMap", Styled(R"({"channelID":"c"})"),
          [](P& p) { Programs t; return p.SetMBRNetworkProgramMap(t, "c"); },
          "[16][4]" + kClass + "SetMBRNetworkProgramMap(), channelID : c\n"),
    Row("GetMBRNetworkProgrmaMap", Styled(R"({"channelID":"c"})"),
        R"({"ret":true,"mbrProgramTable":[{"m_programID":"p","first":100}]})", "{100: p}",
        Observe<P>([](P& p, Programs& t) { return p.GetMBRNetworkProgrmaMap(t, "c"); }, Programs()),
        "[16][3]GetMBRNetworkProgrmaMap(), channelID : c\n"),
    Sends("RemoveMBRNetworkChannel", Styled(kOne, true), [](P& p) { return p.RemoveMBRNetworkChannel(act, kChannel); }),
    Row("GetMaxNumberOfMajorMinor", Styled(kOne), R"({"ret":true,"major":9,"minor":2})", "9 | 2",
        Observe<P>([](P& p, int& j, int& n) { return p.GetMaxNumberOfMajorMinor(act, j, n); }, -5, -5)),
    Sends("ExistChannelInActivityID", Styled(R"({"activityID":4,"query type":2})"),
          [](P& p) { return p.ExistChannelInActivityID(act, kQuery); }),
    // No result: it succeeded when it wrote neither failure line, the reply unread.
    IgnoringReply(Row("ClearMBRProgramMap", "", "not json", "", Observe<P>([](P& p) {
                        p.ClearMBRProgramMap();
                        return !LogCapture::Find("ClearMBRProgramMap] fail to communicate using d-bus\n") &&
                               !LogCapture::Find("ClearMBRProgramMap] fail to parse json data\n");
                      }), Entry("ClearMBRProgramMap()\n"))),
    Row("GetFeaturedMBRChannels", Styled(kOne), kTableReply, "[-1, 7]",
        Observe<P>([](P& p, Table& t) { return p.GetFeaturedMBRChannels(act, t); }, OneChannel()),
        "DBG_LV[3][GetFeaturedMBRChannels] activityID : 4\n"),
    Sends("SetEditedMBRNetworkChannel", Styled(kOne, true),
          [](P& p) { return p.SetEditedMBRNetworkChannel(act, kChannel); }),
    Sends("NotifyMBRChannelEditCompleted", Styled(kOne), [](P& p) { return p.NotifyMBRChannelEditCompleted(act); }),
    Row("GetMBRNetworkChannelByChannelIDOriginMajor", Styled(R"({"activityID":4,"channel id":"70","major":"7"})"),
        kChannelReply, "7", Observe<P>([](P& p, Channel& c) {
          return p.GetMBRNetworkChannelByChannelIDOriginMajor(act, "70", "7", c);
        }, Channel())),
};
INSTANTIATE_TEST_SUITE_P(MBRChannelManager, ProxyMethod, ::testing::ValuesIn(kCases), CaseName<ProxyCase>);

// The row `method` run again with `activity`: refused, writing `line` if the entry line comes first.
RefusedCase Refusing(const Str& method, const Str& line = "", A activity = k5) {
  const auto row = std::find_if(std::begin(kCases), std::end(kCases), [&](auto& r) { return r.name == method; });
  return {method + (activity < 0 ? "_Negative" : ""), [call = row->call, activity] {
            act = activity;
            const Observed observed = call();
            act = k4;
            return observed;
          }, line};
}
// A method that calls nothing at all.
template <typename F, typename... Outs>
RefusedCase Refused(const Str& name, F f, Outs... initial) {
  return {name, Observe<P>(f, initial...), ""};
}

const RefusedCase kRefused[] = {
    {"AllocateActivityIDBySourceID", Observe<P>([](P& p, A& a) { return p.AllocateActivityIDBySourceID(-1, a); }, k9),
     "[16][2]" + kClass + "AllocateActivityIDBySourceID() return false. source is invalid!\n"},
    Refusing("DeleteActivityID"), Refusing("DeleteActivityID", "", kNone), Refusing("SetActivityIDSourceID"),
    Refusing("GetLocation"), Refusing("GetMBRNetworkChannelMap"), Refusing("GetMBRNetworkChannelUp"),
    Refusing("GetMBRNetworkChannelDown"), Refusing("GetMBRNetworkChannelByMajorMinor"),
    Refusing("SaveMBRNetworkChannelMap"), Refusing("AddNewMBRNetworkChannel"), Refusing("SetRememberMBRNetworkChannel"),
    Refusing("ExistMBRNetworkChannelByMajorMinor"), Refusing("AddFavoriteMBRNetworkChannel"),
    Refusing("DeleteFavoriteMBRNetworkChannel"), Refusing("RemoveMBRNetworkChannel"),
    Refusing("GetMaxNumberOfMajorMinor"), Refusing("ExistChannelInActivityID"), Refusing("GetFeaturedMBRChannels"),
    Refusing("SetEditedMBRNetworkChannel"), Refusing("NotifyMBRChannelEditCompleted"),
    Refusing("GetMBRNetworkChannelByChannelIDOriginMajor"),
    Refusing("SetZipCode", Entry("SetZipCode(), activityId(5)\n")),
    Refusing("GetZipCode", Entry("GetZipCode(), activityId(5)\n")),
    Refusing("SetDeviceType", Entry("SetDeviceType(), activityId(5), deviceType[d]\n")),
    Refusing("GetDeviceType", "[16][3]GetDeviceType(), activityId(5)\n"),
    Refusing("SetHeadEndID", Entry("SetHeadEndID(), activityId(5)\n")),
    Refusing("GetHeadEndID", Entry("GetHeadEndID(), activityId(5)\n")),
    Refusing("SetLocation", Entry("SetLocation(), activityId(5), location[l]\n")),
    Refusing("ConstructMBRNetworkProgramMap", "[16][3]ConstructMBRNetworkProgramMap(), activityID : 5\n"),
    Refusing("SetMBRNetworkChannelMap", Entry("SetMBRNetworkChannelMap(), activityID : 5\n")),
    Refused("SetAdditionalInfo", [](P& p, Str& i) { return p.SetAdditionalInfo(k4, i); }, Str("i")),
    Refused("GetAdditionalInfo", [](P& p, Str& i) { return p.GetAdditionalInfo(k4, i); }, Str("-")),
    Refused("SetZipCode_Int", [](P& p) { return p.SetZipCode(k4, 12345); }),
    Refused("GetZipCode_Int", [](P& p, int& z) { return p.GetZipCode(k4, z); }, -5),
    Refused("SetCurrentMBRNetworkChannel", [](P& p) { return p.SetCurrentMBRNetworkChannel(k4, kChannel); }),
    Refused("GetCurrentMBRNetworkChannel", [](P& p, Channel& c) { return p.GetCurrentMBRNetworkChannel(k4, c); },
            Channel()),
    Refused("RegisterMBRNetworkChannelHistory", [](P& p) { return p.RegisterMBRNetworkChannelHistory(nullptr); }),
};
INSTANTIATE_TEST_SUITE_P(MBRChannelManager, ProxyRefused, ::testing::ValuesIn(kRefused), CaseName<RefusedCase>);

// The first word of a pointer to a virtual member function: its slot's byte
// offset in the virtual table (plus one, on the Itanium ABI).
template <typename Member>
std::ptrdiff_t SlotWord(Member member) {
  std::ptrdiff_t word;
  std::memcpy(&word, &member, sizeof word);
  return word;
}

// Reset calls nothing; the entry hands out this proxy, whose own operations
// follow the interface's three defaults.
TEST(MBRChannelManager, ResetSlotsAndClock) {
  EXPECT_TRUE(P().Reset());
  EXPECT_TRUE(Logged(Info(Entry("Reset()\n"))));
  EXPECT_NE(dynamic_cast<P*>(FCAPI::GetMBRNetworkChannelAPI()), nullptr);
  const std::ptrdiff_t last = SlotWord(&FCMBRNetworkChannelAPI::RegisterMBRNetworkChannelHistory), slot = sizeof(void*);
  EXPECT_EQ(SlotWord(static_cast<bool (P::*)(A, int)>(&P::SetZipCode)), last + slot);
  EXPECT_EQ(SlotWord(static_cast<bool (P::*)(A, int&)>(&P::GetZipCode)), last + 2 * slot);
  EXPECT_EQ(SlotWord(&P::t_EpochTime), last + 3 * slot);
  EXPECT_NEAR(static_cast<double>(P().t_EpochTime()), static_cast<double>(std::time(nullptr)), 1.0);
}

}  // namespace
