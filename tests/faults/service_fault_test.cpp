// The service or the bus fails around a call: the call returns false with
// its transport lines, nothing hangs, and calls work again once the service is back.
#include <future>
#include <thread>

#include "fault_fixture.h"
#include "test_bus.h"

namespace {

using namespace zunde::testing;

void ExpectFailsThenWorksOnceTheServiceIsBack(const std::string& cause) {
  LogCapture::Clear();
  EXPECT_FALSE(CallForUser());
  ExpectTransportFailure(cause);
  TestService::Stop();
  TestService::Start();
  TestService::Reply("GetPersonalUserID", kUserReply);
  EXPECT_TRUE(CallForUser());
}

TEST_F(FaultTest, ServiceExitsInTheMiddleOfACall) {
  TestService::Start();
  TestService::ExitOn("GetPersonalUserID", 200);
  ExpectFailsThenWorksOnceTheServiceIsBack("Message recipient disconnected from message bus without replying");
}

TEST_F(FaultTest, ServiceAbsentAtStartThenAppears) {
  ExpectFailsThenWorksOnceTheServiceIsBack(
      "The name com.velmora.FCCallListener was not provided by any .service files");
}

TEST_F(FaultTest, BusDaemonGoesAwayInTheMiddleOfACallAndAfterIt) {
  TestService::Start();
  TestService::Reply("GetPersonalUserID", kUserReply, 0, -1, 5000);
  LogCapture::Clear();
  // One call on the process's connection, one on a spare.
  auto blocked = std::async(std::launch::async, CallForUser);
  auto alsoBlocked = std::async(std::launch::async, CallForUser);
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  TestBus::Stop();
  EXPECT_FALSE(blocked.get());
  EXPECT_FALSE(alsoBlocked.get());
  ExpectTransportFailure("Connection was disconnected before a reply was received");
  LogCapture::Clear();
  EXPECT_FALSE(CallForUser());
  ExpectTransportFailure("Connection is closed");
}

}  // namespace
