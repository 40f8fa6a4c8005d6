// zunde-test-service: a scriptable stand-in for the service, for tests.
//
// Connects to the system bus (DBUS_SYSTEM_BUS_ADDRESS), owns the listener's
// name, records every call and answers as a test scripts it; see
// control_protocol.h. Malformed control calls get an error reply.
#include <dbus/dbus.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "FCIPCNames_internal.h"
#include "control_protocol.h"
#include "service_script.h"

namespace {

using namespace zunde::test_service;

// Reads the arguments of a message one after the other, checking each type.
class ArgumentReader {
 public:
  explicit ArgumentReader(DBusMessage* message) { valid_ = dbus_message_iter_init(message, &iter_); }

  bool String(std::string& out) {
    const char* text = nullptr;
    if (!Basic(DBUS_TYPE_STRING, &text)) return false;
    out = text;
    return true;
  }
  bool Int32(int32_t& out) { return Basic(DBUS_TYPE_INT32, &out); }
  bool UInt32(uint32_t& out) { return Basic(DBUS_TYPE_UINT32, &out); }
  bool Bytes(std::vector<unsigned char>& out) {
    if (!valid_ || dbus_message_iter_get_arg_type(&iter_) != DBUS_TYPE_ARRAY ||
        dbus_message_iter_get_element_type(&iter_) != DBUS_TYPE_BYTE) {
      return false;
    }
    DBusMessageIter array;
    dbus_message_iter_recurse(&iter_, &array);
    const unsigned char* data = nullptr;
    int count = 0;
    dbus_message_iter_get_fixed_array(&array, &data, &count);
    out.assign(data, data + count);
    Next();
    return true;
  }

 private:
  bool Basic(int type, void* out) {
    if (!valid_ || dbus_message_iter_get_arg_type(&iter_) != type) return false;
    dbus_message_iter_get_basic(&iter_, out);
    Next();
    return true;
  }
  void Next() { valid_ = dbus_message_iter_next(&iter_); }

  DBusMessageIter iter_;
  bool valid_ = false;
};

bool AppendBytes(DBusMessageIter* args, const std::vector<unsigned char>& bytes) {
  static const unsigned char kNoBytes = 0;
  const unsigned char* data = bytes.empty() ? &kNoBytes : bytes.data();
  DBusMessageIter array;
  return dbus_message_iter_open_container(args, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE_AS_STRING, &array) &&
         dbus_message_iter_append_fixed_array(&array, DBUS_TYPE_BYTE, &data, static_cast<int>(bytes.size())) &&
         dbus_message_iter_close_container(args, &array);
}

class TestService {
 public:
  explicit TestService(DBusConnection* connection) : connection_(connection) {}

  ServiceScript& Script() { return script_; }

  // How long the main loop may wait for traffic before a delayed answer is
  // due: -1 when none is waiting.
  int MsUntilNextAnswer() const {
    if (delayed_.empty()) return -1;
    const auto due = std::min_element(delayed_.begin(), delayed_.end(), [](const Delayed& a, const Delayed& b) {
                       return a.due < b.due;
                     })->due;
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(due - Clock::now()).count();
    return static_cast<int>(std::max<long long>(left, 0));
  }

  void AnswerDelayedCallsDue() {
    const auto now = Clock::now();
    for (auto it = delayed_.begin(); it != delayed_.end();) {
      if (it->due > now) {
        ++it;
        continue;
      }
      Act(it->call, it->answer);
      dbus_message_unref(it->call);
      it = delayed_.erase(it);
    }
  }

  DBusHandlerResult Handle(DBusMessage* message) {
    if (dbus_message_is_method_call(message, zunde::bus::kCallListener, zunde::bus::kCallMember)) {
      AnswerCall(message);
      return DBUS_HANDLER_RESULT_HANDLED;
    }
    if (dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_METHOD_CALL &&
        dbus_message_has_interface(message, kControlInterface)) {
      Control(message);
      return DBUS_HANDLER_RESULT_HANDLED;
    }
    return DBUS_HANDLER_RESULT_NOT_YET_HANDLED;
  }

 private:
  void AnswerCall(DBusMessage* message) {
    ArgumentReader args(message);
    ReceivedCall call;
    if (!args.String(call.member) || !args.Int32(call.length) || !args.Bytes(call.payload)) {
      SendError(message, kBadControlError, "MethodCall wants (s, i, ay)");
      return;
    }
    const std::string member = call.member;
    const std::vector<unsigned char> payload = call.payload;
    script_.Record(std::move(call));

    auto answer = script_.AnswerFor(member);
    if (!answer) {
      SendError(message, kUnscriptedError, ("no script for " + member).c_str());
      return;
    }
    if (answer->action == Action::Echo) answer->payload = payload;
    if (answer->delayMs == 0) return Act(message, *answer);
    // A delayed answer waits in a list, so that other calls are answered meanwhile.
    delayed_.push_back({Clock::now() + std::chrono::milliseconds(answer->delayMs), dbus_message_ref(message), *answer});
  }

  void Act(DBusMessage* message, const Answer& answer) {
    switch (answer.action) {
      case Action::Exit:
        dbus_connection_flush(connection_);
        std::_Exit(0);
      case Action::Error:
        SendError(message, kScriptedError, "scripted error");
        return;
      case Action::NoArguments:
        SendReply(dbus_message_new_method_return(message));
        return;
      case Action::Reply:
      case Action::Echo:
        SendPayloadReply(message, answer);
        return;
    }
  }

  void SendPayloadReply(DBusMessage* message, const Answer& answer) {
    DBusMessage* reply = dbus_message_new_method_return(message);
    const std::vector<unsigned char> payload = Padded(answer.payload);
    const int32_t length = answer.length == -1 ? static_cast<int32_t>(payload.size()) : answer.length;
    DBusMessageIter args;
    dbus_message_iter_init_append(reply, &args);
    dbus_message_iter_append_basic(&args, DBUS_TYPE_INT32, &answer.status);
    dbus_message_iter_append_basic(&args, DBUS_TYPE_INT32, &length);
    AppendBytes(&args, payload);
    SendReply(reply);
  }

  void Control(DBusMessage* message) {
    const char* member = dbus_message_get_member(message);
    if (std::strcmp(member, "Script") == 0) return ControlScript(message);
    if (std::strcmp(member, "TakeCalls") == 0) return ControlTakeCalls(message);
    if (std::strcmp(member, "Emit") == 0) return ControlEmit(message);
    if (std::strcmp(member, "Pad") == 0) return ControlPad(message);
    SendError(message, kBadControlError, "unknown control method");
  }

  void ControlScript(DBusMessage* message) {
    ArgumentReader args(message);
    std::string member;
    std::string actionName;
    Answer answer;
    if (!args.String(member) || !args.String(actionName) || !args.Int32(answer.status) ||
        !args.Int32(answer.length) || !args.Bytes(answer.payload) || !args.UInt32(answer.delayMs)) {
      SendError(message, kBadControlError, "Script wants (s, s, i, i, ay, u)");
      return;
    }
    const auto action = ParseAction(actionName);
    if (!action) {
      SendError(message, kBadControlError, ("unknown action " + actionName).c_str());
      return;
    }
    answer.action = *action;
    script_.Set(member, std::move(answer));
    SendReply(dbus_message_new_method_return(message));
  }

  void ControlTakeCalls(DBusMessage* message) {
    DBusMessage* reply = dbus_message_new_method_return(message);
    DBusMessageIter args;
    DBusMessageIter calls;
    dbus_message_iter_init_append(reply, &args);
    dbus_message_iter_open_container(&args, DBUS_TYPE_ARRAY, "(siay)", &calls);
    for (const ReceivedCall& call : script_.TakeCalls()) {
      DBusMessageIter entry;
      const char* member = call.member.c_str();
      dbus_message_iter_open_container(&calls, DBUS_TYPE_STRUCT, nullptr, &entry);
      dbus_message_iter_append_basic(&entry, DBUS_TYPE_STRING, &member);
      dbus_message_iter_append_basic(&entry, DBUS_TYPE_INT32, &call.length);
      AppendBytes(&entry, call.payload);
      dbus_message_iter_close_container(&calls, &entry);
    }
    dbus_message_iter_close_container(&args, &calls);
    SendReply(reply);
  }

  void ControlEmit(DBusMessage* message) {
    ArgumentReader args(message);
    std::string member;
    std::string first;
    int32_t length = 0;
    std::vector<unsigned char> payload;
    std::string destination;
    if (!args.String(member) || !args.String(first) || !args.Int32(length) || !args.Bytes(payload) ||
        !args.String(destination) || !dbus_validate_member(member.c_str(), nullptr) ||
        (!destination.empty() && !dbus_validate_bus_name(destination.c_str(), nullptr))) {
      SendError(message, kBadControlError, "Emit wants (s member, s, i, ay, s destination)");
      return;
    }
    DBusMessage* signal = dbus_message_new_signal(zunde::bus::kSignalPath, zunde::bus::kSignalInterface, member.c_str());
    if (!destination.empty()) dbus_message_set_destination(signal, destination.c_str());
    if (payload.size() < padTo_) {
      payload = Padded(payload);
      length = static_cast<int32_t>(payload.size());
    }
    const char* text = first.c_str();
    DBusMessageIter signalArgs;
    dbus_message_iter_init_append(signal, &signalArgs);
    dbus_message_iter_append_basic(&signalArgs, DBUS_TYPE_STRING, &text);
    dbus_message_iter_append_basic(&signalArgs, DBUS_TYPE_INT32, &length);
    AppendBytes(&signalArgs, payload);
    // Answered first: a signal too large for the bus ends this connection.
    SendReply(dbus_message_new_method_return(message));
    dbus_connection_send(connection_, signal, nullptr);
    dbus_message_unref(signal);
  }

  void ControlPad(DBusMessage* message) {
    ArgumentReader args(message);
    uint32_t size = 0;
    if (!args.UInt32(size)) {
      SendError(message, kBadControlError, "Pad wants (u size)");
      return;
    }
    padTo_ = size;
    SendReply(dbus_message_new_method_return(message));
  }

  std::vector<unsigned char> Padded(std::vector<unsigned char> payload) const {
    if (payload.size() < padTo_) payload.resize(padTo_, ' ');
    return payload;
  }

  void SendError(DBusMessage* message, const char* name, const char* text) {
    SendReply(dbus_message_new_error(message, name, text));
  }

  void SendReply(DBusMessage* reply) {
    if (reply == nullptr) return;
    dbus_connection_send(connection_, reply, nullptr);
    dbus_message_unref(reply);
  }

  using Clock = std::chrono::steady_clock;
  struct Delayed {
    Clock::time_point due;
    DBusMessage* call;
    Answer answer;
  };

  DBusConnection* connection_;
  ServiceScript script_;
  uint32_t padTo_ = 0;
  std::vector<Delayed> delayed_;
};

DBusHandlerResult Filter(DBusConnection*, DBusMessage* message, void* service) {
  return static_cast<TestService*>(service)->Handle(message);
}

}  // namespace

// Options: --reply-all PAYLOAD answers every member with status 0 and PAYLOAD
// until a test scripts otherwise (for benchmarks, which script nothing).
bool ApplyOptions(int argc, char** argv, ServiceScript& script) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--reply-all") == 0 && i + 1 < argc) {
      Answer answer;
      const std::string payload = argv[++i];
      answer.payload.assign(payload.begin(), payload.end());
      script.Set("*", answer);
    } else {
      std::fprintf(stderr, "usage: zunde-test-service [--reply-all PAYLOAD]\n");
      return false;
    }
  }
  return true;
}

int main(int argc, char** argv) {
  DBusError error;
  dbus_error_init(&error);
  DBusConnection* connection = dbus_bus_get_private(DBUS_BUS_SYSTEM, &error);
  if (connection == nullptr) {
    std::fprintf(stderr, "zunde-test-service: cannot connect to the system bus: %s\n", error.message);
    return 1;
  }
  const int owned = dbus_bus_request_name(connection, zunde::bus::kCallListener, DBUS_NAME_FLAG_DO_NOT_QUEUE, &error);
  if (owned != DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER) {
    std::fprintf(stderr, "zunde-test-service: cannot own %s: %s\n", zunde::bus::kCallListener,
                 dbus_error_is_set(&error) ? error.message : "name taken");
    return 1;
  }

  TestService service(connection);
  if (!ApplyOptions(argc, argv, service.Script())) return 2;
  dbus_connection_add_filter(connection, Filter, &service, nullptr);
  std::printf("%s\n", kReadyLine);
  std::fflush(stdout);
  while (dbus_connection_read_write_dispatch(connection, service.MsUntilNextAnswer())) {
    service.AnswerDelayedCallsDue();
  }
  return 0;
}
