#include "running_service.h"

#include <dbus/dbus.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "FCIPCNames_internal.h"
#include "child_process.h"

namespace zunde::testing {
namespace {
pid_t servicePid = -1;
}

void RunningService::Start(const std::string& dataDir, int slowReplyMs, const std::vector<std::string>& more) {
  std::vector<std::string> args = {"zunde-service", "--data-dir", dataDir, "--slow-reply-ms", std::to_string(slowReplyMs)};
  args.insert(args.end(), more.begin(), more.end());
  std::vector<char*> argv;
  for (std::string& arg : args) argv.push_back(arg.data());
  argv.push_back(nullptr);
  const StartedChild child = StartChild([&](int writeFd) {
    dup2(writeFd, STDOUT_FILENO);
    close(writeFd);
    execv(ZUNDE_SERVICE_PATH, argv.data());
  });
  servicePid = child.pid;
  ASSERT_EQ(child.firstLine, "zunde-service ready");
}

int RunningService::Stop() {
  if (servicePid <= 0) return -1;
  kill(servicePid, SIGTERM);
  int status = 0;
  waitpid(servicePid, &status, 0);
  servicePid = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void RunningService::Kill() {
  if (servicePid <= 0) return;
  kill(servicePid, SIGKILL);
  waitpid(servicePid, nullptr, 0);
  servicePid = -1;
}

// The answer text of a request sent as it stands by another caller: a
// connection of its own, as another application would have.
std::string Raw(const char* member, const std::string& request) {
  static DBusConnection* other = dbus_bus_get_private(DBUS_BUS_SYSTEM, nullptr);
  DBusMessage* call = dbus_message_new_method_call(zunde::bus::kCallListener, zunde::bus::kCallObjectPath,
                                                   zunde::bus::kCallListener, zunde::bus::kCallMember);
  const char* data = request.data();
  const dbus_int32_t length = static_cast<dbus_int32_t>(request.size());
  dbus_message_append_args(call, DBUS_TYPE_STRING, &member, DBUS_TYPE_INT32, &length, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE,
                           &data, length, DBUS_TYPE_INVALID);
  DBusMessage* reply = dbus_connection_send_with_reply_and_block(other, call, 10000, nullptr);
  dbus_message_unref(call);
  if (reply == nullptr) return "no answer";
  dbus_int32_t status = 0;
  const char* bytes = nullptr;
  int count = 0;
  dbus_message_get_args(reply, nullptr, DBUS_TYPE_INT32, &status, DBUS_TYPE_INT32, &length, DBUS_TYPE_ARRAY,
                        DBUS_TYPE_BYTE, &bytes, &count, DBUS_TYPE_INVALID);
  std::string text(bytes, static_cast<size_t>(count));
  dbus_message_unref(reply);
  return text;
}

}  // namespace zunde::testing
