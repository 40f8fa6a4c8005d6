// zunde-service on a generated XMLTV guide of 500 channels and 14 days
// (about 300,000 programmes): how long the load takes and how much memory
// the service then holds, and GetProgramMap of every channel for 3 hours
// against a bare libdbus server answering the same reply bytes on a bus of
// its own, timed in turns, the service's answer both made anew and kept.
// Run:
//   build/benchmarks/guide_benchmark --benchmark_min_time=0.3 --benchmark_repetitions=5
#include <benchmark/benchmark.h>
#include <json/json.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <memory>
#include <thread>

#include "FCElementData.h"
#include "FCMarshal.h"
#include "FCRemoteContentOnTV_MSO_Proxy.h"
#include "bench_support.h"
#include "child_process.h"
#include "test_bus.h"

namespace {

using namespace zunde::bench;

const char kListener[] = "com.velmora.FCCallListener";
const int kMinutes[] = {20, 30, 45, 25, 60, 35, 15, 40};  // about 43 programmes a day
const char* const kCategories[] = {"News", "Drama", "Sport", "Film", "Children", "Documentary"};

std::string XmltvTime(time_t utc) {
  struct tm parts {};
  gmtime_r(&utc, &parts);
  char text[32];
  std::strftime(text, sizeof text, "%Y%m%d%H%M%S +0000", &parts);
  return text;
}

// From yesterday's midnight, `days` days of `channels` channels; the count of programmes.
long WriteGuide(const std::string& path, int channels, int days) {
  FILE* file = std::fopen(path.c_str(), "w");
  std::fprintf(file, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tv generator-info-name=\"guide_benchmark\">\n");
  for (int c = 0; c < channels; ++c) {
    std::fprintf(file, "  <channel id=\"ch%d.example\"><display-name>Channel %d</display-name><lcn>%d</lcn></channel>\n", c,
                 c, c + 1);
  }
  const time_t first = (std::time(nullptr) / 86400 - 1) * 86400;
  long count = 0;
  for (int c = 0; c < channels; ++c) {
    int turn = c;
    for (time_t start = first; start < first + days * 86400L; ++turn, ++count) {
      const time_t stop = start + kMinutes[turn % 8] * 60;
      std::fprintf(file,
                   "  <programme start=\"%s\" stop=\"%s\" channel=\"ch%d.example\"><title lang=\"en\">Programme %d of "
                   "channel %d</title><desc lang=\"en\">What happens in programme %d.</desc><category lang=\"en\">%s"
                   "</category><episode-num system=\"dd_progid\">EP%06d.%04d</episode-num></programme>\n",
                   XmltvTime(start).c_str(), XmltvTime(stop).c_str(), c, turn, c, turn, kCategories[turn % 6], c,
                   turn % 10000);
      start = stop;
    }
  }
  std::fprintf(file, "</tv>\n");
  std::fclose(file);
  return count;
}

long PeakKiB(pid_t pid) {
  std::ifstream status("/proc/" + std::to_string(pid) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.compare(0, 6, "VmHWM:") == 0) return std::atol(line.c_str() + 6);
  }
  return -1;
}

struct Loaded {
  pid_t pid;
  double seconds;
};

Loaded StartService(const std::string& dir, const std::string& guide) {
  const auto start = std::chrono::steady_clock::now();
  const zunde::testing::StartedChild child = zunde::testing::StartChild([&](int writeFd) {
    dup2(writeFd, STDOUT_FILENO);
    close(writeFd);
    execl(ZUNDE_SERVICE_PATH, "zunde-service", "--data-dir", dir.c_str(), "--xmltv", guide.c_str(),
          static_cast<char*>(nullptr));
  });
  if (child.firstLine != "zunde-service ready") std::abort();
  return {child.pid, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count()};
}

// A second bus, for the bare server: it owns the same name as the service.
std::string StartSecondBus(pid_t& pid) {
  const zunde::testing::StartedChild child = zunde::testing::StartChild([](int writeFd) {
    const std::string fd = "--print-address=" + std::to_string(writeFd);
    execlp("dbus-daemon", "dbus-daemon", "--config-file=" ZUNDE_TEST_BUS_CONFIG, "--nofork", fd.c_str(),
           static_cast<char*>(nullptr));
  });
  pid = child.pid;
  return child.firstLine;
}

DBusConnection* ConnectTo(const std::string& address) {
  DBusConnection* connection = dbus_connection_open_private(address.c_str(), nullptr);
  if (connection == nullptr || !dbus_bus_register(connection, nullptr)) std::abort();
  dbus_connection_set_exit_on_disconnect(connection, FALSE);
  return connection;
}

// Answers every call with `reply` the way the service does, doing nothing else.
void ServeBytes(DBusConnection* connection, const std::string* reply) {
  dbus_bus_request_name(connection, kListener, DBUS_NAME_FLAG_DO_NOT_QUEUE, nullptr);
  while (dbus_connection_read_write(connection, -1)) {
    while (DBusMessage* call = dbus_connection_pop_message(connection)) {
      if (dbus_message_is_method_call(call, kListener, "MethodCall")) {
        DBusMessage* answer = dbus_message_new_method_return(call);
        const dbus_int32_t status = 0;
        const auto length = static_cast<dbus_int32_t>(reply->size());
        const char* bytes = reply->data();
        dbus_message_append_args(answer, DBUS_TYPE_INT32, &status, DBUS_TYPE_INT32, &length, DBUS_TYPE_ARRAY,
                                 DBUS_TYPE_BYTE, &bytes, length, DBUS_TYPE_INVALID);
        dbus_connection_send(connection, answer, nullptr);
        dbus_message_unref(answer);
      }
      dbus_message_unref(call);
    }
  }
}

// The request text exactly as the library writes it, so that the service
// keeps one answer for the typed and the bare calls alike.
std::string MapRequest(std::vector<std::string> ids, time_t from) {
  Json::Value request;
  FCFilterCriteria all;
  FCMarshal::activityIDToJson(static_cast<eRemoteContentActivity>(0), request);
  FCMarshal::SourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteriaToJson(ids, static_cast<int>(from), 3 * 3600, all,
                                                                            request);
  return Json::StyledWriter().write(request);
}

bool Parses(const std::string& text) {
  Json::Value root;
  return Json::Reader().parse(text, root, true);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  char folder[] = "/tmp/zunde-guide-bench-XXXXXX";
  const std::string dir = mkdtemp(folder);
  const int channels = 500;
  const long programmes = WriteGuide(dir + "/guide.xml", channels, 14);
  std::ifstream sized(dir + "/guide.xml", std::ios::ate);
  const long fileBytes = static_cast<long>(sized.tellg());

  zunde::testing::TestBus::Start();
  Loaded service = StartService(dir, dir + "/guide.xml");
  std::fprintf(stderr, "guide: %d channels, %ld programmes, %.1f MB; loaded in %.2f s; service peak memory %ld KiB\n",
               channels, programmes, fileBytes / 1e6, service.seconds, PeakKiB(service.pid));

  const time_t from = std::time(nullptr) / 3600 * 3600;
  std::vector<std::string> ids;
  for (int c = 0; c < channels; ++c) ids.push_back("ch" + std::to_string(c) + ".example");
  const std::string request = MapRequest(ids, from);
  std::string reply;
  FCRemoteContentOnTV_MSO_Proxy proxy;
  if (!proxy.GetProgramMap(request, reply)) std::abort();
  std::fprintf(stderr, "GetProgramMap of %d channels for 3 hours: %zu B\n", channels, reply.size());

  pid_t secondBus = -1;
  const std::string address = StartSecondBus(secondBus);
  std::thread(ServeBytes, ConnectTo(address), &reply).detach();
  DBusConnection* toBare = ConnectTo(address);
  DBusConnection* toService = BareConnection();

  const auto typed = [&] {
    std::vector<std::string> asked = ids;
    FCFilterCriteria all;
    std::map<std::string, std::vector<FCRemoteProgram> > map;
    proxy.GetProgramMap(static_cast<eRemoteContentActivity>(0), asked, static_cast<int>(from), 3 * 3600, all, map);
  };
  // A change makes the service forget the answers it kept, so the next
  // call has its answer made anew; the one after is answered as kept.
  const std::string change = "{\"country\":\"US\",\"language\":\"en\"}";
  const std::vector<Step> steps{
      {"change", [&] { BareCall(toService, "SetRemoteContentEnv", change); }},
      {"bare_to_service_anew", [&] { BareCall(toService, "GetProgramMap", request); }},
      {"bare_to_service", [&] { BareCall(toService, "GetProgramMap", request); }},
      {"typed_service", typed},
      {"bare_to_bare_server", [&] { BareCall(toBare, "GetProgramMap", request); }},
      {"parse", [&] { Parses(reply); }},
  };
  benchmark::RegisterBenchmark("InTurns/ProgramMap500x3h", InTurns, steps)->UseRealTime();
  benchmark::RunSpecifiedBenchmarks();

  zunde::testing::StopChild(service.pid);
  zunde::testing::StopChild(secondBus);
  zunde::testing::TestBus::Stop();
  std::system(("rm -rf " + dir).c_str());
  return 0;
}
