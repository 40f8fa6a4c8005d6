// The entry: the initialised flag, the per-process API objects and Reset.
// The flag and the objects live as long as the process, so each test leaves
// the flag as it found it (false).
#include <gtest/gtest.h>

#include "ZundeProvider.h"
#include "log_capture.h"
#include "proxy_harness.h"

namespace {

using namespace zunde::testing;

class Entry : public ::testing::Test {
 protected:
  void SetUp() override {
    FCAPI::is_initailzed = false;
    LogCapture::Clear();
  }
  void TearDown() override { FCAPI::is_initailzed = false; }
};

TEST_F(Entry, InitializeAndFinalizeEachFailWhenRepeated) {
  EXPECT_FALSE(FCAPI::Finalize());
  EXPECT_TRUE(FCAPI::Initialize());
  EXPECT_FALSE(FCAPI::Initialize());
  EXPECT_TRUE(FCAPI::Finalize());
  EXPECT_FALSE(FCAPI::Finalize());
  EXPECT_EQ(LogCapture::Lines().size(), 5u);  // Finalize writes no line of its own when it succeeds
  EXPECT_TRUE(Logged({0, 4, "DBG_LV[0][FCAPI::Initialize] called\n"}));
  EXPECT_TRUE(Logged({2, 5, "DBG_LV[0][FCAPI::Initialize] already initialized\n"}));
  EXPECT_TRUE(Logged({2, 5, "DBG_LV[0][FCAPI::Finalize] already finalized\n"}));
}

TEST_F(Entry, ObjectsAreMadeOnceAndOutliveFinalize) {
  FCRemoteContentAPI* remote = FCAPI::GetRemoteContentAPI();  // the flag gates nothing
  ASSERT_NE(remote, nullptr);
  EXPECT_TRUE(FCAPI::Initialize());
  EXPECT_TRUE(FCAPI::Finalize());
  EXPECT_TRUE(FCAPI::Initialize());
  EXPECT_EQ(FCAPI::GetRemoteContentAPI(), remote);
  EXPECT_EQ(FCAPI::GetMBRNetworkChannelAPI(), FCAPI::GetMBRNetworkChannelAPI());
  EXPECT_EQ(FCAPI::GetRFNetworkChannelAPI(), FCAPI::GetRFNetworkChannelAPI());
  EXPECT_EQ(FCAPI::GetRemoteContentMSOAPI(), FCAPI::GetRemoteContentMSOAPI());
  EXPECT_EQ(FCAPI::GetMatchFinder(), FCAPI::GetMatchFinder());
  EXPECT_EQ(FCAPI::GetVirtualChannelsAPI(), FCAPI::GetVirtualChannelsAPI());
}

TEST_F(Entry, FactoryMakesANewObjectAtEachCall) {
  FCBrisvelObjectFactory* factory = FCBrisvelObjectFactory::GetInstance();
  ASSERT_EQ(FCBrisvelObjectFactory::GetInstance(), factory);
  FCRemoteContentAPI* one = factory->GetRemoteContentAPI();
  FCRemoteContentAPI* two = factory->GetRemoteContentAPI();
  EXPECT_NE(one, two);
  EXPECT_NE(one, FCAPI::GetRemoteContentAPI());
  delete one;
  delete two;
}

// Reset: an empty request to "Reset", its own lines, the reply's "ret".
Observed CallReset() {
  Observed observed;
  observed.result = FCAPI::Reset();
  return observed;
}

const ProxyCase kReset[] = {{"Reset", "Reset", "", R"({"ret": true})", true, "", CallReset,
                             ExpectedLine{0, 4, "DBG_LV[0][FCAPI::Reset] called\n"},
                             ExpectedLine{2, 5, "DBG_LV[0][FCAPI::Reset] fail to communicate using d-bus\n"},
                             ExpectedLine{2, 5, "DBG_LV[0][FCAPI::Reset] fail to parse json data\n"}}};
INSTANTIATE_TEST_SUITE_P(Entry, ProxyMethod, ::testing::ValuesIn(kReset), CaseName<ProxyCase>);

}  // namespace
