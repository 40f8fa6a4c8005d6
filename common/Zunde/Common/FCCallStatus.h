// How the last remote call of the calling thread ended.
//
// Every API method answers with a plain result (false, -1, null); the reason
// behind it is kept per thread until that thread's next call:
//
//   std::string country, language;
//   if (!FCAPI::GetRemoteContentAPI()->GetRemoteContentEnv(country, language)) {
//     const FCCallStatus status = FCAPI::GetLastCallStatus();
//     if (status.kind == FCCallStatus::eCallServiceSaidNo)
//       std::printf("%s: the service said no: %s\n", status.member.c_str(), status.reason.c_str());
//   }
//
// Reading the status changes nothing: it stays until the thread calls again.
#ifndef ZUNDE_FCCALLSTATUS_H
#define ZUNDE_FCCALLSTATUS_H

#include <string>

struct FCCallStatus {
  enum EKind {
    // The call went through and the service's "ret" was true (or, for calls
    // that do not read "ret", the service answered at all).
    eCallOk = 0,
    // A check of the library refused the call; nothing was sent. Also the
    // outcome of a method the library answers itself with false.
    eCallRefused = 1,
    // libdbus reported an error: no bus, no service, no reply.
    eCallBusFailure = 2,
    // The reply was not JSON, or not what the method reads from it.
    eCallBadReply = 3,
    // The service answered "ret" false.
    eCallServiceSaidNo = 4,
  };

  EKind kind = eCallOk;
  // The name the request carries to the service, e.g. "GetFullChannelList";
  // also given when the library refused the call before sending it.
  std::string member;
  // Empty for eCallOk. Otherwise: libdbus's error name and message, the check
  // that refused, what was wrong with the reply, or the service's "error"
  // text when its reply has one.
  std::string reason;
};

#endif
