// Hostile replies to one typed method of every reader shape: each row pins
// what the method does with one kind of hostile text.
#include <gtest/gtest.h>

#include "../proxies/proxy_harness.h"
#include "ZundeProvider.h"
#include "hostile_input.h"
#include "json_text.h"
#include "test_service.h"

template <class R, class = decltype(R::ToJson(std::declval<R&>(), std::declval<Json::Value&>()))>
static std::string OutputText(const R& record) {
  Json::Value form;
  R::ToJson(const_cast<R&>(record), form);
  return zunde::testing::Compact(form);
}
static std::string OutputText(const FCMBRNetworkChannel& c) { return std::to_string(c.GetMajor()); }
static std::string OutputText(const FCMBRNetworkChannelTable& t) {
  return zunde::testing::OutputText(t.GetNetworkChannelList());
}

namespace {

using namespace zunde::testing;
using Env = FCRemoteContentOnTV_Proxy;
using Mso = FCRemoteContentOnTV_MSO_Proxy;
using Mbr = FCMBRNetworkChannelManager_Proxy;
using Rf = FCRFNetworkChannelManager_Proxy;
using Vc = FCVirtualChannels_Proxy;
const auto kAct = static_cast<eRemoteContentActivity>(3);
const auto kSlot = static_cast<FCMBRNetworkChannelAPI::EActivityID>(4);
const auto kQuery = static_cast<FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery>(2);

// The hostile replies, made from a method's good reply.
enum Kind { kOver, kUnder, kCut, kNotUtf8, kDeep, kRetText, kNotObject, kTexts, kArrays, kTwice, kKinds };
const char* const kKindNames[] = {"OverBusLimit", "UnderBusLimit", "Truncated", "NotUtf8", "Nested100k",
                                  "RetIsText", "NotAnObject", "MembersAreText", "MembersAreArrays", "KeysTwice"};

// The good reply with `value` in place of "ret" (ret), or of every other member.
std::string Replaced(const std::string& good, const Json::Value& value, bool ret = false) {
  Json::Value root = Parsed(good);
  for (const std::string& name : root.getMemberNames())
    if ((name == "ret") == ret) root[name] = value;
  return Compact(root);
}
std::string Hostile(Kind kind, const std::string& good) {
  std::string text = Compact(Parsed(good));
  switch (kind) {
    case kCut: return good.substr(0, good.size() - 1);
    case kNotUtf8:
      for (size_t at = text.find(":\""); at != std::string::npos; at = text.find(":\"", at + 4))
        text.insert(at + 2, "\xff\xfe");
      return text;
    case kDeep: return std::string(100000, '[');
    case kRetText: return Replaced(good, "yes", true);
    case kNotObject: return "[" + text + "]";
    case kTexts: return Replaced(good, "x");
    case kArrays: return Replaced(good, Parsed("[[]]"));
    case kTwice: {  // every member first with a value no reader takes
      std::string first;
      for (const std::string& name : Parsed(good).getMemberNames()) first += "\"" + name + "\":[[]],";
      return text.insert(1, first);
    }
    default: return good;  // the bus limit rows pad the good reply
  }
}

// What a method does with each kind, in the order of Kind:
//   f  false, outputs untouched   g  the result and outputs of the good reply
//   t  true, outputs read         n  false, outputs read
//   x  throws a Json::Exception   a  ends the process by design
struct Method {
  std::string name, member, good;
  std::function<Observed()> call;
  std::string outcomes;
};
template <typename P, typename F, typename... Outs>
Method Of(const std::string& name, const std::string& member, const std::string& good, const std::string& outcomes,
          F f, Outs... initial) {
  return {name, member, good, Observe<P>(f, initial...), outcomes};
}
const std::string kDash = "-";

const Method kMethods[] = {
    Of<Env>("RetOnly", "SetAToken", R"({"ret":true})", "fgfgxxxggg", [](Env& p) { return p.SetAToken("t"); }),
    Of<Env>("Strings", "GetRemoteContentEnv", R"({"ret":true,"country":"DE","language":"de"})", "fgftxxxtxg",
            [](Env& p, auto& c, auto& l) { return p.GetRemoteContentEnv(c, l); }, kDash, kDash),
    Of<Env>("Number", "GetRemoteContentActivityByTVSourceAndTSTVMode", R"({"ret":true,"activityID":4})", "fgfgxxxxxg",
            [](Env& p, auto& a) { return p.GetRemoteContentActivityByTVSourceAndTVMode(1, 2, 3, a); },
            static_cast<eRemoteContentActivity>(-9)),
    Of<Mso>("Programme", "GetFCRemoteProgramByProgramSourceID", R"({"ret":true,"title":"T","duration":5})",
            "fgftxxxaag", [](Mso& p, auto& o) { return p.GetFCRemoteProgramByProgramSourceID(kAct, "p", 1, o); },
            FCRemoteProgram()),
    Of<Mso>("RecordList", "GetFullChannelList", R"({"ret":true,"channel_array":[{"str_sid":"7"}]})", "fgftxxxtxg",
            [](Mso& p, auto& v) { return p.GetFullChannelList(kAct, v); }, std::vector<FCRemoteChannel>()),
    Of<Mso>("PassThrough", "GetTunableChannelList", R"({"ret":true})", "fttttttttt",
            [](Mso& p, auto& out) { return p.GetTunableChannelList("{}", out); }, kDash),
    Of<FCMatchFinder_Proxy>("ServiceId", "GetTCServiceIdByProgramSourceID", R"({"ret":true,"TCServiceId":"12"})",
                            "fgftxxxttg", [](auto& p, auto& id) { return p.GetTCServiceIdByProgramSourceID(kAct, "p", id); },
                            0ULL),
    Of<Mbr>("ChannelTable", "GetMBRNetworkChannelMap", R"({"ret":true,"MBR channel table":[{"m_major":7}]})",
            "fgftxxxttg", [](Mbr& p, auto& t) { return p.GetMBRNetworkChannelMap(kSlot, t, kQuery); },
            FCMBRNetworkChannelTable()),
    Of<Rf>("SplitNumber", "GetNavigationMode", R"({"ret":true,"navigation mode":1})", "fgfgxxxxxg",
           [](Rf& p, auto& m) { return p.GetNavigationMode(m); }, static_cast<Rf::ENavigationMode>(9)),
    Of<Vc>("SplitRecordMap", "GetProgramList", R"({"ret":true,"virtual_program_map":[{"key":1,"title":"a"}]})",
           "fgftxxxttg", [](Vc& p, auto& m) { return p.GetProgramList(7, 100, 3600, m); },
           std::map<unsigned int, FCVirtualProgramData>()),
    Of<Vc>("RetOfRawReply", "GetPresentProgram", R"({"ret":true})", "ftntxxxttt",
           [](Vc& p, auto& out) { return p.GetPresentProgram("{}", out); }, kDash),
};

using Row = std::tuple<size_t, int>;  // a method of kMethods, a Kind
std::string RowName(const ::testing::TestParamInfo<Row>& info) {
  return kMethods[std::get<0>(info.param)].name + "_" + kKindNames[std::get<1>(info.param)];
}

class HostileReply : public ::testing::TestWithParam<Row> {
 protected:
  static void SetUpTestSuite() { TestService::Start(); }
  static void TearDownTestSuite() { TestService::Stop(); }
};

TEST_P(HostileReply, EndsAsPinned) {
  const Method& m = kMethods[std::get<0>(GetParam())];
  const Kind kind = Kind(std::get<1>(GetParam()));
  TestService::Reply(m.member, m.good);
  const Observed good = m.call();
  TestService::Reply(m.member, Hostile(kind, m.good));
  if (kind == kOver || kind == kUnder) TestService::PadPayloads(kind == kOver ? kBusLimit + 1 : kBusLimit - 4096);
  switch (m.outcomes.at(kind)) {
    case 'a': EXPECT_DEATH(m.call(), EndedByDesign()); break;
    case 'x': EXPECT_THROW(m.call(), Json::Exception); break;
    default:
      const Observed seen = m.call();
      const char outcome = m.outcomes.at(kind);
      EXPECT_EQ(seen.result, outcome == 'g' ? good.result : outcome == 't');
      EXPECT_EQ(seen.after, outcome == 'f' ? seen.before : outcome == 'g' ? good.after : seen.after);
  }
  if (kind == kOver) {  // the bus has dropped the service for sending too much
    TestService::Stop();
    TestService::Start();
  } else {
    TestService::PadPayloads(0);
  }
}
INSTANTIATE_TEST_SUITE_P(EveryReaderShape, HostileReply,
                         ::testing::Combine(::testing::Range<size_t>(0, std::size(kMethods)), ::testing::Range(0, int(kKinds))),
                         RowName);

}  // namespace
