#include "bench_support.h"

#include <json/json.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <vector>

#include "FCElementData.h"
#include "FCMarshal.h"
#include "child_process.h"
#include "test_bus.h"

namespace zunde::bench {
namespace {

const char* const kListener = "com.velmora.FCCallListener";
const char* const kControlPath = "/com/velmora/zunde/TestControl";
const char* const kControlInterface = "com.velmora.zunde.TestControl";

DBusConnection* ControlConnection() {
  static DBusConnection* connection = [] {
    DBusConnection* made = dbus_bus_get_private(DBUS_BUS_SYSTEM, nullptr);
    if (made == nullptr) std::abort();
    dbus_connection_set_exit_on_disconnect(made, FALSE);
    return made;
  }();
  return connection;
}

void Control(DBusMessage* message) {
  DBusError error;
  dbus_error_init(&error);
  DBusMessage* reply = dbus_connection_send_with_reply_and_block(ControlConnection(), message, 60000, &error);
  dbus_message_unref(message);
  if (reply == nullptr) {
    std::fprintf(stderr, "control call failed: %s\n", error.message);
    std::abort();
  }
  dbus_message_unref(reply);
}

std::string Compact(const Json::Value& root) {
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "";
  return Json::writeString(builder, root);
}

long StatusKiB(const char* field) {
  std::ifstream status("/proc/self/status");
  std::string line;
  const std::string prefix = std::string(field) + ":";
  while (std::getline(status, line)) {
    if (line.compare(0, prefix.size(), prefix) == 0) return std::atol(line.c_str() + prefix.size());
  }
  return -1;
}

}  // namespace

AnsweringService::AnsweringService(const char* replyAll) {
  zunde::testing::TestBus::Start();
  pid_ = zunde::testing::StartChild([replyAll](int writeFd) {
           dup2(writeFd, STDOUT_FILENO);
           close(writeFd);
           execl(ZUNDE_TEST_SERVICE_PATH, "zunde-test-service", "--reply-all", replyAll, static_cast<char*>(nullptr));
         }).pid;
}

AnsweringService::~AnsweringService() {
  zunde::testing::StopChild(pid_);
  zunde::testing::TestBus::Stop();
}

void Script(const std::string& member, const std::string& payload, unsigned delayMs) {
  DBusMessage* message = dbus_message_new_method_call(kListener, kControlPath, kControlInterface, "Script");
  const char* name = member.c_str();
  const char* action = "reply";
  const dbus_int32_t status = 0;
  const dbus_int32_t length = -1;
  const char* bytes = payload.data();
  const dbus_uint32_t delay = delayMs;
  dbus_message_append_args(message, DBUS_TYPE_STRING, &name, DBUS_TYPE_STRING, &action, DBUS_TYPE_INT32, &status,
                           DBUS_TYPE_INT32, &length, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE, &bytes, int(payload.size()),
                           DBUS_TYPE_UINT32, &delay, DBUS_TYPE_INVALID);
  Control(message);
}

void ForgetCalls() { Control(dbus_message_new_method_call(kListener, kControlPath, kControlInterface, "TakeCalls")); }

DBusConnection* BareConnection() {
  dbus_threads_init_default();
  DBusConnection* connection = dbus_bus_get_private(DBUS_BUS_SYSTEM, nullptr);
  if (connection == nullptr) std::abort();
  dbus_connection_set_exit_on_disconnect(connection, FALSE);
  return connection;
}

bool BareCall(DBusConnection* connection, const char* member, const std::string& request) {
  DBusMessage* call = dbus_message_new_method_call(kListener, "/com/velmora/Object", kListener, "MethodCall");
  const char* bytes = request.data();
  const dbus_int32_t length = static_cast<dbus_int32_t>(request.size());
  DBusMessageIter args;
  DBusMessageIter array;
  dbus_message_iter_init_append(call, &args);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_STRING, &member);
  dbus_message_iter_append_basic(&args, DBUS_TYPE_INT32, &length);
  dbus_message_iter_open_container(&args, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE_AS_STRING, &array);
  dbus_message_iter_append_fixed_array(&array, DBUS_TYPE_BYTE, &bytes, length);
  dbus_message_iter_close_container(&args, &array);
  DBusMessage* reply = dbus_connection_send_with_reply_and_block(connection, call, -1, nullptr);
  dbus_message_unref(call);
  if (reply == nullptr) return false;
  // Reading the payload is part of the exchange: the library hands it on.
  DBusMessageIter out;
  DBusMessageIter bytesOut;
  const char* data = nullptr;
  int count = 0;
  if (dbus_message_iter_init(reply, &out) && dbus_message_iter_next(&out) && dbus_message_iter_next(&out)) {
    dbus_message_iter_recurse(&out, &bytesOut);
    dbus_message_iter_get_fixed_array(&bytesOut, &data, &count);
  }
  dbus_message_unref(reply);
  return count >= 0;
}

std::string PaddedText(std::size_t size) {
  const std::string head = "{\"ret\":true,\"pad\":\"";
  const std::string tail = "\"}";
  const std::size_t pad = size > head.size() + tail.size() ? size - head.size() - tail.size() : 0;
  return head + std::string(pad, 'x') + tail;
}

std::string ChannelListText(int count) {
  std::vector<FCRemoteChannel> channels(count);
  for (int i = 0; i < count; ++i) {
    FCRemoteChannel& channel = channels[i];
    const std::string n = std::to_string(i);
    channel.activityID = 1;
    channel.str_program_source_id = "PS" + n;
    channel.str_channel_name = "Channel " + n;
    channel.str_channel_number = n;
    channel.str_alias = "CH" + n;
    channel.str_major = n;
    channel.str_minor = "0";
    channel.str_onid = "8468";
    channel.str_tsid = std::to_string(1000 + i % 50);
    channel.str_sid = std::to_string(20000 + i);
    channel.str_frequency = "474000";
    channel.str_ptc = "21";
    channel.str_icon_url = "http://img.example.invalid/logos/" + n + ".png";
    channel.str_url_index = n;
    channel.str_dtv = "1";
    channel.str_digital_flag = "1";
    channel.str_qam_flag = "0";
    channel.genre_id = "7";
    channel.genre_name = "News";
    channel.ac_rank = "3";
  }
  Json::Value root;
  FCMarshal::ChannelListToJson(channels, root);
  root["ret"] = true;
  return Compact(root);
}

std::string WeekProgramMapText(int channels) {
  std::map<std::string, std::vector<FCRemoteProgram> > programs;
  const unsigned int weekStart = 1767225600;
  for (int c = 0; c < channels; ++c) {
    std::vector<FCRemoteProgram>& list = programs["PS" + std::to_string(c)];
    for (int hour = 0; hour < 7 * 24; ++hour) {
      FCRemoteProgram program;
      program.activityID = 1;
      program.str_program_source_id = "PS" + std::to_string(c);
      program.str_channel_name = "Channel " + std::to_string(c);
      program.str_channel_number = std::to_string(c);
      program.str_program_id = "EP" + std::to_string(c * 1000 + hour);
      program.str_lang = "de";
      program.str_starttime = "2026-01-01 00:00:00";
      program.utc_starttime = weekStart + hour * 3600u;
      program.duration = 3600;
      program.strTitle = "Programme " + std::to_string(hour);
      program.str_cert_flag = "0";
      program.genre_array = {"7", "12"};
      program.str_poster_url = "http://img.example.invalid/posters/" + std::to_string(hour) + ".jpg";
      program.str_poster_type = "1";
      program.str_short_desc = "A short description of the programme.";
      program.EndTime = program.utc_starttime + 3600u;
      list.push_back(program);
    }
  }
  Json::Value root;
  FCMarshal::ProgramMapToJson(programs, root);
  root["ret"] = true;
  return Compact(root);
}

long PeakBytesDuring(const std::function<void()>& warmUp, const std::function<void()>& receive) {
  int fds[2];
  if (pipe(fds) != 0) return -1;
  const pid_t child = fork();
  if (child == 0) {
    close(fds[0]);
    warmUp();
    long peak = -1;
    std::ofstream reset("/proc/self/clear_refs");
    reset << "5" << std::flush;  // the high-water mark starts again from what is resident now
    if (reset) {
      const long idle = StatusKiB("VmRSS");
      receive();
      peak = (StatusKiB("VmHWM") - idle) * 1024;
    }
    if (write(fds[1], &peak, sizeof peak) != sizeof peak) _exit(1);
    _exit(0);
  }
  close(fds[1]);
  long peak = -1;
  if (read(fds[0], &peak, sizeof peak) != sizeof peak) peak = -1;
  close(fds[0]);
  waitpid(child, nullptr, 0);
  return peak;
}

void InTurns(benchmark::State& state, const std::vector<Step>& steps) {
  using Clock = std::chrono::steady_clock;
  std::vector<Clock::duration> spent(steps.size());
  for (auto _ : state) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
      const auto start = Clock::now();
      steps[i].second();
      spent[i] += Clock::now() - start;
    }
  }
  for (std::size_t i = 0; i < steps.size(); ++i) {
    state.counters[steps[i].first] = std::chrono::duration<double>(spent[i]).count() / state.iterations();
  }
}

}  // namespace zunde::bench
