// The entry: the initialised flag, the per-process API objects and Reset.
// The flag and the objects live as long as the process, so each test leaves
// the flag as it found it (false).
#include <gtest/gtest.h>

#include "ZundeProvider.h"
#include "log_capture.h"
#include "test_service.h"

namespace {

using zunde::testing::LogCapture;
using zunde::testing::ServiceTest;
using zunde::testing::TestService;

class Entry : public ::testing::Test {
 protected:
  void SetUp() override {
    FCAPI::is_initailzed = false;
    LogCapture::Clear();
  }
  void TearDown() override { FCAPI::is_initailzed = false; }
};

TEST_F(Entry, SecondInitializeFails) {
  EXPECT_TRUE(FCAPI::Initialize());
  EXPECT_FALSE(FCAPI::Initialize());
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0][FCAPI::Initialize] already initialized\n"));
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0][FCAPI::Initialize] called\n"));
}

TEST_F(Entry, FinalizeBeforeInitializeFails) {
  EXPECT_FALSE(FCAPI::Finalize());
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0][FCAPI::Finalize] already finalized\n"));
}

TEST_F(Entry, SecondFinalizeFailsAndFinalizeWritesNoCalledLine) {
  EXPECT_TRUE(FCAPI::Initialize());
  LogCapture::Clear();
  EXPECT_TRUE(FCAPI::Finalize());
  EXPECT_TRUE(LogCapture::Lines().empty());
  EXPECT_FALSE(FCAPI::Finalize());
}

TEST_F(Entry, ObjectsOutliveFinalizeAndComeBackAfterInitialize) {
  EXPECT_TRUE(FCAPI::Initialize());
  FCRemoteContentAPI* remote = FCAPI::GetRemoteContentAPI();
  ASSERT_NE(remote, nullptr);
  EXPECT_TRUE(FCAPI::Finalize());
  EXPECT_TRUE(FCAPI::Initialize());
  EXPECT_EQ(FCAPI::GetRemoteContentAPI(), remote);
  EXPECT_EQ(FCAPI::GetMBRNetworkChannelAPI(), FCAPI::GetMBRNetworkChannelAPI());
  EXPECT_EQ(FCAPI::GetRFNetworkChannelAPI(), FCAPI::GetRFNetworkChannelAPI());
  EXPECT_EQ(FCAPI::GetRemoteContentMSOAPI(), FCAPI::GetRemoteContentMSOAPI());
  EXPECT_EQ(FCAPI::GetMatchFinder(), FCAPI::GetMatchFinder());
}

TEST_F(Entry, GettersWorkWithoutInitialize) {
  EXPECT_NE(FCAPI::GetRemoteContentAPI(), nullptr);
  EXPECT_FALSE(FCAPI::is_initailzed);
}

TEST_F(Entry, VirtualChannelsObjectIsMadeAtItsFirstUseAndKept) {
  FCAPI::Initialize();
  FCVirtualChannelsAPI* first = FCAPI::GetVirtualChannelsAPI();
  EXPECT_EQ(FCAPI::GetVirtualChannelsAPI(), first);
}

TEST_F(Entry, FactoryMakesANewObjectAtEachCall) {
  FCBrisvelObjectFactory* factory = FCBrisvelObjectFactory::GetInstance();
  ASSERT_NE(factory, nullptr);
  EXPECT_EQ(FCBrisvelObjectFactory::GetInstance(), factory);
  FCRemoteContentAPI* one = factory->GetRemoteContentAPI();
  FCRemoteContentAPI* two = factory->GetRemoteContentAPI();
  EXPECT_NE(one, two);
  EXPECT_NE(one, FCAPI::GetRemoteContentAPI());
  delete one;
  delete two;
}

class EntryReset : public ServiceTest {
 protected:
  void SetUp() override {
    ServiceTest::SetUp();
    LogCapture::Clear();
  }
};

TEST_F(EntryReset, SendsAnEmptyRequestToResetAndReturnsRet) {
  TestService::Reply("Reset", R"({"ret": true})");
  EXPECT_TRUE(FCAPI::Reset());
  const auto call = TestService::TakeOnlyCall();
  EXPECT_EQ(call.member, "Reset");
  EXPECT_EQ(call.payload, "");
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0][FCAPI::Reset] called\n"));

  TestService::Reply("Reset", R"({"ret": false})");
  EXPECT_FALSE(FCAPI::Reset());
}

TEST_F(EntryReset, UnparsableReplyFails) {
  TestService::Reply("Reset", "");
  EXPECT_FALSE(FCAPI::Reset());
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0][FCAPI::Reset] fail to parse json data\n"));
}

TEST_F(EntryReset, AbsentServiceFails) {
  TestService::Stop();
  EXPECT_FALSE(FCAPI::Reset());
  EXPECT_TRUE(LogCapture::Find("DBG_LV[0][FCAPI::Reset] fail to communicate using d-bus\n"));
}

TEST_F(EntryReset, ProxyResetIsADifferentServiceCall) {
  TestService::Reply("*", R"({"ret": true})");
  EXPECT_TRUE(FCAPI::GetRemoteContentAPI()->Reset());
  EXPECT_TRUE(FCAPI::Reset());
  const auto calls = TestService::TakeCalls();
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[0].member, "FCRemoteContent_Reset");
  EXPECT_EQ(calls[1].member, "Reset");
}

}  // namespace
