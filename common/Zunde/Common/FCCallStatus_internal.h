// Keeping the outcome of the calling thread's last remote call.
//
// The remote call procedure opens the record with the member it sends
// (BeginCall), and each step that fails says why; a method the library
// answers itself says so with AnswerLocally.
#ifndef ZUNDE_FCCALLSTATUS_INTERNAL_H
#define ZUNDE_FCCALLSTATUS_INTERNAL_H

#include <json/json.h>

#include <string>

#include "FCCallStatus.h"

namespace zunde {

// A new call of `member`: the outcome is eCallOk until a step fails.
void BeginCall(const char* member);
// The call failed as `kind` says, for `reason`; the member stays.
void EndCall(FCCallStatus::EKind kind, std::string reason);
// Refuses the call of `member` before anything is sent; false, for the caller to return.
bool Refuse(const char* member, const char* reason);
// A method the library answers without the service: `result`, for the caller to return.
bool AnswerLocally(const char* member, bool result);
// The reply's "ret" as the outcome: eCallServiceSaidNo, with the reply's
// "error" text when it has one, when "ret" is false. Returns "ret".
bool EndWithRet(const Json::Value& reply);

}  // namespace zunde

#endif
