// What the test service answers, and what it has been asked.
#ifndef ZUNDE_TEST_SERVICE_SERVICE_SCRIPT_H
#define ZUNDE_TEST_SERVICE_SERVICE_SCRIPT_H

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zunde::test_service {

enum class Action { Reply, NoArguments, Error, Exit, Echo };

struct Answer {
  Action action = Action::Reply;
  int32_t status = 0;
  int32_t length = -1;  // -1: the payload's true length
  std::vector<unsigned char> payload;
  uint32_t delayMs = 0;
};

struct ReceivedCall {
  std::string member;
  int32_t length = 0;
  std::vector<unsigned char> payload;
};

// The action named `text`, or nothing for an unknown name.
std::optional<Action> ParseAction(const std::string& text);

class ServiceScript {
 public:
  void Set(const std::string& member, Answer answer);
  // The answer for `member`: its own script, else the "*" script, else none.
  std::optional<Answer> AnswerFor(const std::string& member) const;

  void Record(ReceivedCall call);
  std::vector<ReceivedCall> TakeCalls();

 private:
  std::map<std::string, Answer> answers_;
  std::vector<ReceivedCall> calls_;
};

}  // namespace zunde::test_service

#endif
