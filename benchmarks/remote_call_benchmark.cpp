// What a call through the library costs next to a bare libdbus round trip
// carrying the same bytes to the same service. Run:
//   build/benchmarks/remote_call_benchmark
// The last lines print each benchmark's time as a multiple of the bare one.
#include <benchmark/benchmark.h>
#include <dbus/dbus.h>

#include <cstdio>
#include <map>
#include <string>

#include "FCIPCConnection.h"
#include "FCMessageBuffer.h"
#include "FCRemoteContentOnTV_Proxy.h"
#include "bench_support.h"

namespace {

const char* const kReply = R"({"ret": true, "country": "DE", "language": "de"})";
const std::string kRequest = "{\n   \"country\" : \"DE\",\n   \"language\" : \"de\"\n}\n";

// The same wire exchange as the library's, written directly against libdbus.
void BM_BareLibdbusRoundTrip(benchmark::State& state) {
  DBusConnection* connection = zunde::bench::BareConnection();
  for (auto _ : state) {
    if (!zunde::bench::BareCall(connection, "GetRemoteContentEnv", kRequest)) {
      state.SkipWithError("the bare call was not answered");
      break;
    }
  }
  dbus_connection_close(connection);
  dbus_connection_unref(connection);
}
BENCHMARK(BM_BareLibdbusRoundTrip)->UseRealTime();

// The library's transport alone: buffers in, buffer out.
void BM_ConnectionCall(benchmark::State& state) {
  FIIPCConnection* connection = FIIPCConnection::GetInstance();
  for (auto _ : state) {
    FCMessageBuffer request;
    FCMessageBuffer reply;
    request.PushConcatenated(kRequest.size(), const_cast<char*>(kRequest.data()));
    benchmark::DoNotOptimize(connection->Call("com.velmora.FCCallListener", "GetRemoteContentEnv", request, reply));
  }
}
BENCHMARK(BM_ConnectionCall)->UseRealTime();

// A whole typed method: request written as JSON, reply parsed, outputs filled.
void BM_TypedMethod(benchmark::State& state) {
  FCRemoteContentOnTV_Proxy proxy;
  std::string country;
  std::string language;
  for (auto _ : state) benchmark::DoNotOptimize(proxy.GetRemoteContentEnv(country, language));
}
BENCHMARK(BM_TypedMethod)->UseRealTime();

// Keeps each run's time per iteration so the ratios can be printed at the end.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration && run.iterations > 0) {
        times_[run.benchmark_name()] = run.GetAdjustedRealTime();
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }
  void PrintRatios() const {
    const auto bare = times_.find("BM_BareLibdbusRoundTrip/real_time");
    if (bare == times_.end() || bare->second <= 0) return;
    std::printf("\nTime per call as a multiple of the bare libdbus round trip:\n");
    for (const auto& [name, time] : times_) std::printf("  %-40s %6.2f\n", name.c_str(), time / bare->second);
  }

 private:
  std::map<std::string, double> times_;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  zunde::bench::AnsweringService service(kReply);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.PrintRatios();
  return 0;
}
