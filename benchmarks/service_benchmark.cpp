// zunde-service at scale, through the library, against the same reply
// bytes served by the bare libdbus test service, timed in turns in one run:
// GetFullChannelList of the 5,000-channel line-up, GetProgramMap of every
// tunable channel for three hours, and SetZipCode with a 10,000-channel
// map against the same change with an empty map.
//
// Each server owns the service's name on a bus of its own, so each side's
// calls come from a worker process of its own; the workers time their calls
// and this process takes the turns.
// Run:
//   build/benchmarks/service_benchmark --benchmark_min_time=1 --benchmark_repetitions=5
//       --benchmark_report_aggregates_only=true   (one command line)
#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include "FCMarshal.h"
#include "FCRemoteContentOnTV_MSO_Proxy.h"
#include "MBRNetworkChannelManager_Proxy.h"
#include "bench_support.h"
#include "child_process.h"
#include "dispatcher.h"
#include "test_bus.h"

namespace {

using namespace zunde::service;
using Clock = std::chrono::steady_clock;

enum Step : char { kFullList, kProgramMap, kZipCodeLargeMap, kZipCodeEmptyMap, kQuit };
// A step asked for with this bit follows a change, which makes the service
// forget the answers it kept: its answer is made anew.
const char kAfterChange = 0x40;

const int kLineupSize = 5000;
const int kLargeMap = 10000;
const auto kActivity = static_cast<FCRemoteContent_MSOAPI::Act>(0);
const time_t kStart = std::time(nullptr) / 3600 * 3600;  // the same hour on both sides

std::vector<std::string> TunableSourceIds(const Catalogue& catalogue) {
  std::vector<std::string> ids;
  for (const LineupChannel& entry : catalogue.LineupOf(0)->channels) {
    if (entry.tunable) ids.push_back(entry.channel.str_program_source_id);
  }
  return ids;
}

// --- what a worker does ---

struct Calls {
  std::vector<std::string> sourceIds;
  FCRemoteContentOnTV_MSO_Proxy mso;
  FCMBRNetworkChannelManager_Proxy mbr;

  bool Run(Step step) {
    switch (step) {
      case kFullList: {
        std::vector<FCRemoteChannel> channels;
        return mso.GetFullChannelList(kActivity, channels);
      }
      case kProgramMap: {
        FCFilterCriteria none;
        std::map<std::string, std::vector<FCRemoteProgram> > programs;
        return mso.GetProgramMap(kActivity, sourceIds, static_cast<int>(kStart), 3 * 3600, none, programs);
      }
      case kZipCodeLargeMap:
      case kZipCodeEmptyMap: {
        std::string zip = "12345";
        return mbr.SetZipCode(static_cast<FCMBRNetworkChannelAPI::EActivityID>(step == kZipCodeLargeMap ? 1 : 2), zip);
      }
      case kQuit: break;
    }
    return false;
  }
};

void SetLargeMap(Calls& calls) {
  FCMBRNetworkChannelTable table;
  for (int i = 0; i < kLargeMap; ++i) {
    FCMBRNetworkChannel channel;
    channel.SetMajor(1 + i / 100);
    channel.SetMinor(i % 100);
    channel.SetChannelID(i);
    table.AppendNetworkChannel(channel);
  }
  calls.mbr.SetMBRNetworkChannelMap(static_cast<FCMBRNetworkChannelAPI::EActivityID>(1), table);
}

pid_t StartServer(const std::vector<std::string>& args) {
  std::vector<std::string> copy = args;
  std::vector<char*> argv;
  for (std::string& arg : copy) argv.push_back(arg.data());
  argv.push_back(nullptr);
  return zunde::testing::StartChild([&](int writeFd) {
           dup2(writeFd, STDOUT_FILENO);
           close(writeFd);
           execv(argv[0], argv.data());
         }).pid;
}

// The real service on a fresh data folder and the built-in 5,000-channel set.
pid_t StartService(Calls& calls, std::string& dataDir) {
  char dir[] = "/tmp/zunde-service-bench-XXXXXX";
  dataDir = mkdtemp(dir);
  const pid_t pid =
      StartServer({ZUNDE_SERVICE_PATH, "--data-dir", dataDir, "--lineup-size", std::to_string(kLineupSize)});
  SetLargeMap(calls);
  return pid;
}

// The test service answering each member with the service's own reply
// bytes, made by the service's dispatcher in this process.
pid_t StartBare(Calls& calls, std::string& dataDir) {
  const pid_t pid = StartServer({ZUNDE_TEST_SERVICE_PATH, "--reply-all", R"({"ret":true})"});
  char dir[] = "/tmp/zunde-bare-bench-XXXXXX";
  dataDir = mkdtemp(dir);
  Store store(dataDir + "/store.db");
  Catalogue catalogue = DefaultCatalogue(kLineupSize);
  catalogue.now = std::time(nullptr);
  Dispatcher dispatcher(store, catalogue);
  std::vector<Event> events;
  Json::Value request;
  request["activityID"] = 0;
  zunde::bench::Script("GetFullChannelList", dispatcher.Answer("GetFullChannelList", Json::FastWriter().write(request), events));
  FCFilterCriteria none;
  FCMarshal::SourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteriaToJson(calls.sourceIds, static_cast<int>(kStart),
                                                                            3 * 3600, none, request);
  zunde::bench::Script("GetProgramMap", dispatcher.Answer("GetProgramMap", Json::FastWriter().write(request), events));
  zunde::bench::ForgetCalls();
  return pid;
}

// Runs steps as this process reads them, answering each with its seconds.
[[noreturn]] void Work(bool bare, int commands, int results) {
  zunde::testing::TestBus::Start();
  Calls calls;
  calls.sourceIds = TunableSourceIds(DefaultCatalogue(kLineupSize));
  std::string dataDir;
  pid_t server = bare ? StartBare(calls, dataDir) : StartService(calls, dataDir);
  // The first answers are made; what the turns time is the service as it runs.
  for (Step warmUp : {kFullList, kProgramMap}) calls.Run(warmUp);
  if (bare) zunde::bench::ForgetCalls();
  const double ready = 0;
  if (write(results, &ready, sizeof ready) != sizeof ready) _exit(1);
  Step step;
  while (read(commands, &step, 1) == 1 && step != kQuit) {
    if (step & kAfterChange) {
      step = static_cast<Step>(step & ~kAfterChange);
      calls.Run(kZipCodeEmptyMap);
    }
    const auto start = Clock::now();
    const bool answered = calls.Run(step);
    double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    if (!answered) seconds = -1;
    if (bare) zunde::bench::ForgetCalls();
    if (write(results, &seconds, sizeof seconds) != sizeof seconds) break;
  }
  zunde::testing::StopChild(server);
  zunde::testing::TestBus::Stop();
  std::system(("rm -rf " + dataDir).c_str());
  _exit(0);
}

// --- this process ---

struct Worker {
  pid_t pid = -1;
  int commands = -1;
  int results = -1;

  static Worker Fork(bool bare) {
    int toWorker[2];
    int fromWorker[2];
    if (pipe(toWorker) != 0 || pipe(fromWorker) != 0) std::abort();
    Worker worker;
    worker.pid = fork();
    if (worker.pid == 0) Work(bare, toWorker[0], fromWorker[1]);
    worker.commands = toWorker[1];
    worker.results = fromWorker[0];
    return worker;
  }
  double Time(Step step) const {
    double seconds = -1;
    if (write(commands, &step, 1) != 1 || read(results, &seconds, sizeof seconds) != sizeof seconds) return -1;
    return seconds;
  }
  void AwaitReady() const {
    double ready = -1;
    if (read(results, &ready, sizeof ready) != sizeof ready) std::abort();
  }
  void Quit() const {
    const Step quit = kQuit;
    if (write(commands, &quit, 1) == 1) waitpid(pid, nullptr, 0);
  }
};

Worker service;
Worker bare;

// The two calls in turns, each timed by its worker; the ratio is of their sums.
void InTurns(benchmark::State& state, const Worker& first, Step firstStep, const Worker& second, Step secondStep) {
  double spent[2]{};
  for (auto _ : state) {
    const double a = first.Time(firstStep);
    const double b = second.Time(secondStep);
    if (a < 0 || b < 0) state.SkipWithError("a call failed");
    spent[0] += a;
    spent[1] += b;
  }
  state.counters["first_ms"] = spent[0] / state.iterations() * 1e3;
  state.counters["second_ms"] = spent[1] / state.iterations() * 1e3;
  state.counters["ratio"] = spent[0] / spent[1];
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  service = Worker::Fork(false);
  bare = Worker::Fork(true);
  service.AwaitReady();
  bare.AwaitReady();
  // first: the service, second: the same bytes served bare.
  benchmark::RegisterBenchmark("FullChannelList/service_vs_bare", InTurns, service, kFullList, bare, kFullList)
      ->Iterations(20)
      ->UseRealTime()->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("ProgramMap/service_vs_bare", InTurns, service, kProgramMap, bare, kProgramMap)
      ->Iterations(8)
      ->UseRealTime()->Unit(benchmark::kMillisecond);
  // The same, with the service's answers made anew each time.
  const auto fresh = [](Step step) { return static_cast<Step>(step | kAfterChange); };
  benchmark::RegisterBenchmark("FullChannelListMadeAnew/service_vs_bare", InTurns, service, fresh(kFullList), bare,
                               kFullList)
      ->Iterations(10)
      ->UseRealTime()->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("ProgramMapMadeAnew/service_vs_bare", InTurns, service, fresh(kProgramMap), bare,
                               kProgramMap)
      ->Iterations(4)
      ->UseRealTime()->Unit(benchmark::kMillisecond);
  // first: a 10,000-channel map, second: an empty one.
  benchmark::RegisterBenchmark("SetZipCode/large_vs_empty_map", InTurns, service, kZipCodeLargeMap, service,
                               kZipCodeEmptyMap)
      ->UseRealTime()->Unit(benchmark::kMillisecond);
  benchmark::RunSpecifiedBenchmarks();
  service.Quit();
  bare.Quit();
  return 0;
}
