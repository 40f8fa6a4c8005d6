#include "session.h"

#include <ZundeProvider.h>

#include <cstdio>
#include <cstdlib>

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

int ReportUnreachable() {
  const char* bus = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
  std::fprintf(stderr,
               "zunde-cli: zunde-service does not answer on the bus %s; start it with "
               "`zunde-service --data-dir DIR` on that bus, or keep one running with "
               "`eval \"$(scripts/dev-env.sh start)\"` (installed: zunde-dev-env)\n",
               bus && *bus ? bus : "(the system bus)");
  return kUnreachable;
}

int ReportFailure(const std::string& what) {
  if (!ServiceAnswers()) return ReportUnreachable();
  std::fprintf(stderr, "zunde-cli: %s: the service answered \"ret\": false\n", what.c_str());
  return kRefused;
}

}  // namespace zcli
