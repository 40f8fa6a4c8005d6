// The scriptable test service, run as a separate process on the test bus,
// and the test's side of its control interface.
#ifndef ZUNDE_TESTS_TEST_SERVICE_H
#define ZUNDE_TESTS_TEST_SERVICE_H

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zunde::testing {

// One call the service received: the API method's name, the length argument
// and the exact payload bytes.
struct ReceivedCall {
  std::string member;
  int32_t length = 0;
  std::string payload;
};

class TestService {
 public:
  // Starts the service and waits until it owns the listener's name.
  static void Start();
  static void Stop();

  // Answers `member` ("*": every unscripted member) with status, length
  // (-1: the payload's true length) and payload.
  static void Reply(const std::string& member, const std::string& payload, int32_t status = 0,
                    int32_t length = -1, uint32_t delayMs = 0);
  static void ReplyWithoutArguments(const std::string& member);
  static void ReplyWithError(const std::string& member);
  // Answers `member` with status 0 and the call's own payload.
  static void Echo(const std::string& member, uint32_t delayMs = 0);
  // Ends the service, without an answer, `delayMs` after `member` is called.
  static void ExitOn(const std::string& member, uint32_t delayMs = 0);

  static std::vector<ReceivedCall> TakeCalls();
  // The one call received since the last TakeCalls; fails the test otherwise.
  static ReceivedCall TakeOnlyCall();

  // Emits a signal from the service; an empty destination broadcasts.
  static void Emit(const std::string& member, const std::string& first, const std::string& payload,
                   const std::string& destination = "");
  // Pads the payloads of the replies and signals that follow with spaces to
  // at least `size` bytes; 0 stops padding.
  static void PadPayloads(uint32_t size);
};

// A test that has the service running.
class ServiceTest : public ::testing::Test {
 protected:
  void SetUp() override { TestService::Start(); }
  void TearDown() override { TestService::Stop(); }
};

}  // namespace zunde::testing

#endif
