#include "service_script.h"

#include <utility>

namespace zunde::test_service {

std::optional<Action> ParseAction(const std::string& text) {
  if (text == "reply") return Action::Reply;
  if (text == "no-arguments") return Action::NoArguments;
  if (text == "error") return Action::Error;
  if (text == "exit") return Action::Exit;
  if (text == "echo") return Action::Echo;
  return std::nullopt;
}

void ServiceScript::Set(const std::string& member, Answer answer) { answers_[member] = std::move(answer); }

std::optional<Answer> ServiceScript::AnswerFor(const std::string& member) const {
  auto found = answers_.find(member);
  if (found == answers_.end()) found = answers_.find("*");
  if (found == answers_.end()) return std::nullopt;
  return found->second;
}

void ServiceScript::Record(ReceivedCall call) { calls_.push_back(std::move(call)); }

std::vector<ReceivedCall> ServiceScript::TakeCalls() { return std::exchange(calls_, {}); }

}  // namespace zunde::test_service
