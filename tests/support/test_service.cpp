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
const char* const kListener = "com.velmora.FCCallListener";

DBusConnection* ControlConnection() {
  static DBusConnection* connection = [] {
    DBusError error;
    dbus_error_init(&error);
    DBusConnection* made = dbus_bus_get_private(DBUS_BUS_SYSTEM, &error);
    if (made == nullptr) {
      std::fprintf(stderr, "test service control: %s\n", error.message);
      std::exit(2);
    }
    dbus_connection_set_exit_on_disconnect(made, FALSE);
    return made;
  }();
  return connection;
}

DBusMessage* NewControl(const char* method) {
  return dbus_message_new_method_call(kListener, test_service::kControlPath, test_service::kControlInterface, method);
}

void AppendBytes(DBusMessageIter* args, const std::string& bytes) {
  const char* data = bytes.data();
  DBusMessageIter array;
  dbus_message_iter_open_container(args, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE_AS_STRING, &array);
  dbus_message_iter_append_fixed_array(&array, DBUS_TYPE_BYTE, &data, static_cast<int>(bytes.size()));
  dbus_message_iter_close_container(args, &array);
}

std::string ReadBytes(DBusMessageIter* args) {
  DBusMessageIter array;
  dbus_message_iter_recurse(args, &array);
  const char* data = nullptr;
  int count = 0;
  dbus_message_iter_get_fixed_array(&array, &data, &count);
  return std::string(data, static_cast<size_t>(count));
}

// Sends a control call and returns its reply; fails the test on an error.
DBusMessage* Control(DBusMessage* message) {
  DBusError error;
  dbus_error_init(&error);
  DBusMessage* reply = dbus_connection_send_with_reply_and_block(ControlConnection(), message, 10000, &error);
  dbus_message_unref(message);
  if (reply == nullptr) {
    ADD_FAILURE() << "control call failed: " << error.message;
    dbus_error_free(&error);
  }
  return reply;
}

void Script(const std::string& member, const char* action, int32_t status, int32_t length, const std::string& payload,
            uint32_t delayMs) {
  DBusMessage* message = NewControl("Script");
  const char* memberText = member.c_str();
  DBusMessageIter args;
  dbus_message_iter_init_append(message, &args);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_STRING, &memberText);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_STRING, &action);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_INT32, &status);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_INT32, &length);
  AppendBytes(&args, payload);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_UINT32, &delayMs);
  if (DBusMessage* reply = Control(message)) dbus_message_unref(reply);
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

void TestService::ReplyWithoutArguments(const std::string& member) { Script(member, "no-arguments", 0, -1, "", 0); }

void TestService::ReplyWithError(const std::string& member) { Script(member, "error", 0, -1, "", 0); }

void TestService::ExitWithoutAnswer(const std::string& member) { Script(member, "exit", 0, -1, "", 0); }

std::vector<ReceivedCall> TestService::TakeCalls() {
  std::vector<ReceivedCall> calls;
  DBusMessage* reply = Control(NewControl("TakeCalls"));
  if (reply == nullptr) return calls;
  DBusMessageIter args;
  DBusMessageIter array;
  dbus_message_iter_init(reply, &args);
  dbus_message_iter_recurse(&args, &array);
  while (dbus_message_iter_get_arg_type(&array) == DBUS_TYPE_STRUCT) {
    DBusMessageIter entry;
    dbus_message_iter_recurse(&array, &entry);
    ReceivedCall call;
    const char* member = nullptr;
    dbus_message_iter_get_basic(&entry, &member);
    call.member = member;
    dbus_message_iter_next(&entry);
    dbus_message_iter_get_basic(&entry, &call.length);
    dbus_message_iter_next(&entry);
    call.payload = ReadBytes(&entry);
    calls.push_back(call);
    dbus_message_iter_next(&array);
  }
  dbus_message_unref(reply);
  return calls;
}

ReceivedCall TestService::TakeOnlyCall() {
  const auto calls = TakeCalls();
  EXPECT_EQ(calls.size(), 1u) << "expected exactly one call";
  return calls.empty() ? ReceivedCall{} : calls.front();
}

void TestService::Emit(const std::string& member, const std::string& first, const std::string& payload,
                       const std::string& destination, int32_t length) {
  DBusMessage* message = NewControl("Emit");
  const char* memberText = member.c_str();
  const char* firstText = first.c_str();
  const char* destinationText = destination.c_str();
  const int32_t lengthArgument = length == -1 ? static_cast<int32_t>(payload.size()) : length;
  DBusMessageIter args;
  dbus_message_iter_init_append(message, &args);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_STRING, &memberText);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_STRING, &firstText);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_INT32, &lengthArgument);
  AppendBytes(&args, payload);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_STRING, &destinationText);
  if (DBusMessage* reply = Control(message)) dbus_message_unref(reply);
}

}  // namespace zunde::testing
