#include "test_service.h"

#include <dbus/dbus.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "child_process.h"
#include "control_protocol.h"

namespace zunde::testing {
namespace {

pid_t servicePid = -1;

// A control argument sent as an array of bytes rather than as a string.
struct Bytes {
  const std::string& data;
};

void Append(DBusMessageIter* args, const std::string& text) {
  const char* chars = text.c_str();
  dbus_message_iter_append_basic(args, DBUS_TYPE_STRING, &chars);
}
void Append(DBusMessageIter* args, int32_t value) { dbus_message_iter_append_basic(args, DBUS_TYPE_INT32, &value); }
void Append(DBusMessageIter* args, uint32_t value) { dbus_message_iter_append_basic(args, DBUS_TYPE_UINT32, &value); }
void Append(DBusMessageIter* args, Bytes bytes) {
  const char* data = bytes.data.data();
  DBusMessageIter array;
  dbus_message_iter_open_container(args, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE_AS_STRING, &array);
  dbus_message_iter_append_fixed_array(&array, DBUS_TYPE_BYTE, &data, static_cast<int>(bytes.data.size()));
  dbus_message_iter_close_container(args, &array);
}

// Calls `method` of the control interface with `args` and returns its reply (null, failing the test, on an
// error). The control connection is private, so that the library's shared connection sees none of it.
template <typename... Args>
DBusMessage* Control(const char* method, const Args&... args) {
  static DBusConnection* connection = [] {
    DBusConnection* made = dbus_bus_get_private(DBUS_BUS_SYSTEM, nullptr);
    if (made == nullptr) {
      std::fprintf(stderr, "test service control: no bus\n");
      std::exit(2);
    }
    dbus_connection_set_exit_on_disconnect(made, FALSE);
    return made;
  }();
  DBusMessage* message = dbus_message_new_method_call("com.velmora.FCCallListener", test_service::kControlPath,
                                                      test_service::kControlInterface, method);
  DBusMessageIter iter;
  dbus_message_iter_init_append(message, &iter);
  (Append(&iter, args), ...);
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

void Script(const std::string& member, const std::string& action, int32_t status = 0, int32_t length = -1,
            const std::string& payload = "", uint32_t delayMs = 0) {
  Done(Control("Script", member, action, status, length, Bytes{payload}, delayMs));
}

}  // namespace

void TestService::Start() {
  const StartedChild service = StartChild([](int writeFd) {
    dup2(writeFd, STDOUT_FILENO);
    close(writeFd);
    execl(ZUNDE_TEST_SERVICE_PATH, "zunde-test-service", static_cast<char*>(nullptr));
    std::perror("zunde-test-service");
  });
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

std::vector<ReceivedCall> TestService::TakeCalls() {
  std::vector<ReceivedCall> calls;
  DBusMessage* reply = Control("TakeCalls");
  if (reply == nullptr) return calls;
  DBusMessageIter args, array, entry, bytes;
  dbus_message_iter_init(reply, &args);
  for (dbus_message_iter_recurse(&args, &array); dbus_message_iter_get_arg_type(&array) == DBUS_TYPE_STRUCT;
       dbus_message_iter_next(&array)) {
    const char* member = nullptr;
    const char* data = nullptr;
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
  Done(Control("Emit", member, first, static_cast<int32_t>(payload.size()), Bytes{payload}, destination));
}

}  // namespace zunde::testing
