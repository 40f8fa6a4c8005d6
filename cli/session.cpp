#include "session.h"

#include <ZundeProvider.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace zcli {

Options& GlobalOptions() {
  static Options options;
  return options;
}

bool ServiceAnswers() {
  // Any member will do: even an unknown one is answered, with "ret" false.
  FCMessageBuffer request, reply;
  const std::string ping = "{}";
  request.PushConcatenated(ping.size(), const_cast<char*>(ping.data()));
  return FIIPCConnection::GetInstance()->Call("com.velmora.FCCallListener", "GetRemoteContentEnv", request, reply) !=
         -1;
}

// How to get a service on the bus the CLI uses.
std::string StartHint() {
  const char* bus = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
  return std::string("; start it with `zunde-service --data-dir DIR` on the bus ") +
         (bus && *bus ? bus : "(the system bus)") +
         ", or keep one running with `eval \"$(scripts/dev-env.sh start)\"` (installed: zunde-dev-env)";
}

int ReportUnreachable() {
  std::fprintf(stderr, "zunde-cli: zunde-service is not reachable on the bus: it does not answer%s\n",
               StartHint().c_str());
  return kUnreachable;
}

bool AnswerWasNo() { return FCAPI::GetLastCallStatus().kind == FCCallStatus::eCallServiceSaidNo; }

int ReportFailure(const std::string& what) {
  const FCCallStatus status = FCAPI::GetLastCallStatus();
  const std::string subject = what + (status.member.empty() ? "" : " (" + status.member + ")");
  const char* outcome = "the call failed";
  switch (status.kind) {
    case FCCallStatus::eCallRefused:
      outcome = "refused by the library";
      break;
    case FCCallStatus::eCallBusFailure:
      std::fprintf(stderr, "zunde-cli: %s: zunde-service is not reachable on the bus: %s%s\n", subject.c_str(),
                   status.reason.c_str(), StartHint().c_str());
      return kUnreachable;
    case FCCallStatus::eCallBadReply:
      outcome = "the service's reply could not be read";
      break;
    case FCCallStatus::eCallServiceSaidNo:
      outcome = "the service said no";
      break;
    case FCCallStatus::eCallOk:
      break;
  }
  std::fprintf(stderr, "zunde-cli: %s: %s%s%s\n", subject.c_str(), outcome, status.reason.empty() ? "" : ": ",
               status.reason.c_str());
  return kRefused;
}

}  // namespace zcli
