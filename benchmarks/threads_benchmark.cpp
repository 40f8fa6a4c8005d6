// Calls from several threads: fast calls made while another thread waits
// for a slow reply, against the same calls with nothing else in flight; and
// four threads calling a member that takes 20 ms to answer, against one.
// Run:
//   build/benchmarks/threads_benchmark --benchmark_repetitions=3 --benchmark_enable_random_interleaving=true
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include "FCRemoteContentOnTV_MSO_Proxy.h"
#include "FCRemoteContentOnTV_Proxy.h"
#include "bench_support.h"
#include "ratio_reporter.h"

namespace {

using namespace zunde::bench;

const char* const kFastReply = R"({"ret": true, "country": "DE", "language": "de"})";
const char* const kSlowMember = "GetPersonalUserID";
// Long enough to outlast a batch of fast calls on a loaded machine.
const unsigned kSlowMs = 400;
const int kBatch = 50;
const char* const kTwentyMsMember = "GetCertRule";
const unsigned kTwentyMs = 20;

bool FastCall() {
  std::string country;
  std::string language;
  return FCRemoteContentOnTV_Proxy().GetRemoteContentEnv(country, language);
}

std::chrono::steady_clock::duration TimeFastCalls(benchmark::State& state) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < kBatch; ++i) {
    if (!FastCall()) state.SkipWithError("no reply");
  }
  return std::chrono::steady_clock::now() - start;
}

// Batches of fast calls in turns, alone and while another thread waits for a
// slow reply, each timed on its own counter (seconds per call), so that the
// machine's load falls on both alike.
void FastBesideSlow(benchmark::State& state) {
  std::chrono::steady_clock::duration alone{};
  std::chrono::steady_clock::duration besideSlow{};
  for (auto _ : state) {
    alone += TimeFastCalls(state);
    std::thread slow([] {
      std::string user;
      FCRemoteContentOnTV_Proxy().GetPersonalUserID(user);
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(20));  // the slow request reaches the service
    besideSlow += TimeFastCalls(state);
    slow.join();
  }
  const double calls = static_cast<double>(state.iterations()) * kBatch;
  state.counters["alone"] = std::chrono::duration<double>(alone).count() / calls;
  state.counters["beside_slow"] = std::chrono::duration<double>(besideSlow).count() / calls;
}

void TwentyMsCall(benchmark::State& state) {
  FCRemoteContentOnTV_MSO_Proxy proxy;
  for (auto _ : state) {
    std::string reply;
    if (!proxy.GetCertRule("{}", reply)) state.SkipWithError("no reply");
  }
}

void Register() {
  benchmark::RegisterBenchmark("Threads/FastBesideSlow", FastBesideSlow)->UseRealTime();
  // Real time over the calls of every thread: wall time per call.
  benchmark::RegisterBenchmark("Threads/TwentyMs", TwentyMsCall)->Threads(1)->UseRealTime();
  benchmark::RegisterBenchmark("Threads/TwentyMs", TwentyMsCall)->Threads(4)->UseRealTime();
}

template <typename Reporter>
void PrintRatios(const Reporter& r, FILE* out) {
  std::fprintf(out, "\nRatios:\n");
  Ratio(out, "fast call beside a slow one / the same call alone",
        r.Time("Threads/FastBesideSlow.beside_slow") / r.Time("Threads/FastBesideSlow.alone"), 1.5);
  Ratio(out, "20 ms member, wall time per call: 4 threads / 1 thread",
        r.Time("Threads/TwentyMs@4") / r.Time("Threads/TwentyMs"), 0.35);
}

}  // namespace

int main(int argc, char** argv) {
  const bool json = JsonRequested(argc, argv);
  benchmark::Initialize(&argc, argv);
  AnsweringService service(kFastReply);
  Script(kSlowMember, R"({"ret": true, "in_user_id": "u"})", kSlowMs);
  Script(kTwentyMsMember, R"({"ret": true})", kTwentyMs);
  Register();
  RunAndPrintRatios(json, [](const auto& reporter, FILE* out) { PrintRatios(reporter, out); });
  return 0;
}
