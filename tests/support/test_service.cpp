#include "test_service.h"

#include <dbus/dbus.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdlib>

#include "child_process.h"
#include "control_protocol.h"

namespace zunde::testing {
namespace {

pid_t servicePid = -1;

// Calls `method` of the control interface with arguments as dbus_message_append_args takes them, and
// returns its reply (null, failing the test, on an error). The control connection is private, so that
// the library's shared connection sees none of it.
DBusMessage* Control(const char* method, int firstType = DBUS_TYPE_INVALID, ...) {
  static DBusConnection* connection = [] {
    DBusConnection* made = dbus_bus_get_private(DBUS_BUS_SYSTEM, nullptr);
    if (made == nullptr) std::abort();  // the test bus runs before any test does
    dbus_connection_set_exit_on_disconnect(made, FALSE);
    return made;
  }();
  DBusMessage* message = dbus_message_new_method_call("com.velmora.FCCallListener", test_service::kControlPath,
                                                      test_service::kControlInterface, method);
  va_list args;
  va_start(args, firstType);
  dbus_message_append_args_valist(message, firstType, args);
  va_end(args);
  DBusError error;
  dbus_error_init(&error);
  DBusMessage* reply = dbus_connection_send_with_reply_and_block(connection, message, 10000, &error);
  dbus_message_unref(message);
  if (reply == nullptr) ADD_FAILURE() << "control call " << method << " failed: " << error.message;
  dbus_error_free(&error);
  return reply;
}

void Done(DBusMessage* reply) {
  if (reply != nullptr) dbus_message_unref(reply);
}

void Script(const std::string& member, const char* action, int32_t status = 0, int32_t length = -1,
            const std::string& payload = "", uint32_t delayMs = 0) {
  const char* name = member.c_str();
  const char* bytes = payload.data();
  Done(Control("Script", DBUS_TYPE_STRING, &name, DBUS_TYPE_STRING, &action, DBUS_TYPE_INT32, &status, DBUS_TYPE_INT32,
               &length, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE, &bytes, int(payload.size()), DBUS_TYPE_UINT32, &delayMs,
               DBUS_TYPE_INVALID));
}

}  // namespace

void TestService::Start() {
  const StartedChild service = StartChild(
      [](int) { execl(ZUNDE_TEST_SERVICE_PATH, "zunde-test-service", static_cast<char*>(nullptr)); });
  servicePid = service.pid;
  ASSERT_EQ(service.firstLine, test_service::kReadyLine) << "the test service did not start";
}

void TestService::Stop() { StopChild(servicePid); }

void TestService::Reply(const std::string& member, const std::string& payload, int32_t status, int32_t length,
                        uint32_t delayMs) {
  Script(member, "reply", status, length, payload, delayMs);
}
void TestService::ReplyWithoutArguments(const std::string& member) { Script(member, "no-arguments"); }
void TestService::ReplyWithError(const std::string& member) { Script(member, "error"); }
void TestService::Echo(const std::string& member, uint32_t delayMs) { Script(member, "echo", 0, -1, "", delayMs); }
void TestService::ExitOn(const std::string& member, uint32_t delayMs) { Script(member, "exit", 0, -1, "", delayMs); }

std::vector<ReceivedCall> TestService::TakeCalls() {
  std::vector<ReceivedCall> calls;
  DBusMessage* reply = Control("TakeCalls");
  if (reply == nullptr) return calls;
  DBusMessageIter args, array, entry, bytes;
  dbus_message_iter_init(reply, &args);
  for (dbus_message_iter_recurse(&args, &array); dbus_message_iter_get_arg_type(&array) == DBUS_TYPE_STRUCT;
       dbus_message_iter_next(&array)) {
    const char *member = nullptr, *data = nullptr;
    int count = 0;
    ReceivedCall& call = calls.emplace_back();
    dbus_message_iter_recurse(&array, &entry);
    dbus_message_iter_get_basic(&entry, &member);
    dbus_message_iter_next(&entry);
    dbus_message_iter_get_basic(&entry, &call.length);
    dbus_message_iter_next(&entry);
    dbus_message_iter_recurse(&entry, &bytes);
    dbus_message_iter_get_fixed_array(&bytes, &data, &count);
    call.member = member;
    call.payload.assign(data, static_cast<size_t>(count));
  }
  Done(reply);
  return calls;
}

ReceivedCall TestService::TakeOnlyCall() {
  const auto calls = TakeCalls();
  EXPECT_EQ(calls.size(), 1u) << "expected exactly one call";
  return calls.empty() ? ReceivedCall{} : calls.front();
}

void TestService::Emit(const std::string& member, const std::string& first, const std::string& payload,
                       const std::string& destination) {
  const char *name = member.c_str(), *firstText = first.c_str(), *to = destination.c_str(), *bytes = payload.data();
  const int32_t length = static_cast<int32_t>(payload.size());
  Done(Control("Emit", DBUS_TYPE_STRING, &name, DBUS_TYPE_STRING, &firstText, DBUS_TYPE_INT32, &length, DBUS_TYPE_ARRAY,
               DBUS_TYPE_BYTE, &bytes, length, DBUS_TYPE_STRING, &to, DBUS_TYPE_INVALID));
}

void TestService::PadPayloads(uint32_t size) { Done(Control("Pad", DBUS_TYPE_UINT32, &size, DBUS_TYPE_INVALID)); }

}  // namespace zunde::testing
