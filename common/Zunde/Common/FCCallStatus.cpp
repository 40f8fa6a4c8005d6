#include "FCCallStatus_internal.h"

#include "BrisvelDefine.h"

namespace zunde {
namespace {

FCCallStatus& Current() {
  thread_local FCCallStatus status;
  return status;
}

}  // namespace

void BeginCall(const char* member) {
  FCCallStatus& status = Current();
  status.kind = FCCallStatus::eCallOk;
  status.member = member ? member : "";
  status.reason.clear();
}

void EndCall(FCCallStatus::EKind kind, std::string reason) {
  Current().kind = kind;
  Current().reason = std::move(reason);
}

bool Refuse(const char* member, const char* reason) {
  BeginCall(member);
  EndCall(FCCallStatus::eCallRefused, reason);
  return false;
}

bool AnswerLocally(const char* member, bool result) {
  BeginCall(member);
  if (!result) EndCall(FCCallStatus::eCallRefused, "the library answers this method itself, without the service");
  return result;
}

bool EndWithRet(const Json::Value& reply) {
  const Json::Value& ret = reply["ret"];
  if (ret.asBool()) return true;
  const Json::Value& error = reply["error"];
  EndCall(FCCallStatus::eCallServiceSaidNo,
          error.isString() ? error.asString() : ret.isNull() ? "its reply has no \"ret\"" : "it answered \"ret\": false");
  return false;
}

}  // namespace zunde

FCCallStatus FCAPI::GetLastCallStatus() { return zunde::Current(); }
