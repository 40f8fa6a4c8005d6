// The service's own work on its largest answers and on a setting's change,
// timed in turns with what the client spends on the same reply: the
// dispatcher's answer (as the bus hands it over) against jsoncpp's parse and
// the library's records reading that text. A ratio of service to client of
// at most 0.5 keeps a call within 1.5 times the same bytes served bare.
// Run:
//   build/benchmarks/service_benchmark --benchmark_min_time=0.3 --benchmark_repetitions=5
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>

#include "FCMarshal.h"
#include "MBRNetworkChannelTable.h"
#include "dispatcher.h"

namespace {

using namespace zunde::service;
using Clock = std::chrono::steady_clock;

// A dispatcher on a fresh store and a 5,000-channel default catalogue.
struct Served {
  Served() : catalogue(DefaultCatalogue(5000)) {
    char name[] = "/tmp/zunde-service-bench-XXXXXX";
    close(mkstemp(name));
    path = name;
    store = std::make_unique<Store>(path);
    catalogue.now = std::time(nullptr);
    dispatcher = std::make_unique<Dispatcher>(*store, catalogue);
  }
  ~Served() {
    dispatcher.reset();
    store.reset();
    for (const char* suffix : {"", "-wal", "-shm"}) unlink((path + suffix).c_str());
  }
  std::string Ask(const std::string& member, const std::string& payload) {
    std::vector<Event> events;
    return dispatcher->Answer(member, payload, events);
  }
  std::string path;
  Catalogue catalogue;
  std::unique_ptr<Store> store;
  std::unique_ptr<Dispatcher> dispatcher;
};

Served& Shared() {
  static Served served;
  return served;
}

std::string Compact(const Json::Value& value) { return Json::FastWriter().write(value); }

// The program map request for every tunable channel over three hours.
std::string ProgramMapRequest(Served& served) {
  std::vector<std::string> sourceIds;
  for (const LineupChannel& entry : served.catalogue.LineupOf(0)->channels) {
    if (entry.tunable) sourceIds.push_back(entry.channel.str_program_source_id);
  }
  Json::Value request;
  request["activityID"] = 0;
  FCFilterCriteria none;
  FCMarshal::SourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteriaToJson(
      sourceIds, static_cast<int>(served.catalogue.now), 3 * 3600, none, request);
  return Compact(request);
}

// Times `service` and `client` in turns, each on a counter of its own.
void InTurns(benchmark::State& state, const std::function<void()>& service, const std::function<void()>& client) {
  Clock::duration spent[2]{};
  for (auto _ : state) {
    auto start = Clock::now();
    service();
    spent[0] += Clock::now() - start;
    start = Clock::now();
    client();
    spent[1] += Clock::now() - start;
  }
  const double service_s = std::chrono::duration<double>(spent[0]).count() / state.iterations();
  const double client_s = std::chrono::duration<double>(spent[1]).count() / state.iterations();
  state.counters["service_ms"] = service_s * 1e3;
  state.counters["client_ms"] = client_s * 1e3;
  state.counters["ratio"] = service_s / client_s;
}

void FullChannelList(benchmark::State& state) {
  Served& served = Shared();
  const std::string request = R"({"activityID":0})";
  const std::string reply = served.Ask("GetFullChannelList", request);
  InTurns(state, [&] { benchmark::DoNotOptimize(served.Ask("GetFullChannelList", request)); },
          [&] {
            Json::Value root;
            Json::Reader().parse(reply, root);
            std::vector<FCRemoteChannel> channels;
            FCMarshal::JsonToChannelList(root, channels);
          });
  state.counters["reply_bytes"] = static_cast<double>(reply.size());
}

void ProgramMap(benchmark::State& state) {
  Served& served = Shared();
  const std::string request = ProgramMapRequest(served);
  const std::string reply = served.Ask("GetProgramMap", request);
  InTurns(state, [&] { benchmark::DoNotOptimize(served.Ask("GetProgramMap", request)); },
          [&] {
            Json::Value root;
            Json::Reader().parse(reply, root);
            std::map<std::string, std::vector<FCRemoteProgram>> programs;
            FCMarshal::JsonToProgramMap(root, programs);
          });
  state.counters["reply_bytes"] = static_cast<double>(reply.size());
}

// SetZipCode with a 10,000-channel map on activity 1 against the same
// change on activity 2, whose map is empty.
void SetZipCode(benchmark::State& state) {
  Served& served = Shared();
  FCMBRNetworkChannelTable table;
  for (int i = 0; i < 10000; ++i) {
    FCMBRNetworkChannel channel;
    channel.SetMajor(1 + i / 100);
    channel.SetMinor(i % 100);
    channel.SetChannelID(i);
    table.AppendNetworkChannel(channel);
  }
  Json::Value map;
  map["activityID"] = 1;
  FCMarshal::MBRNetworkChannelTableToJson(table, map);
  served.Ask("SetMBRNetworkChannelMap", Compact(map));
  InTurns(state, [&] { served.Ask("SetZipCode", R"({"activityID":1,"zip code":"12345"})"); },
          [&] { served.Ask("SetZipCode", R"({"activityID":2,"zip code":"12345"})"); });
}

}  // namespace

BENCHMARK(FullChannelList)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ProgramMap)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(SetZipCode)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
