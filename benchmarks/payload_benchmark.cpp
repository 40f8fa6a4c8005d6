// What applications feel: every library call next to a bare libdbus client
// doing the same exchange with the same service in the same run, large
// replies next to the bare transfer plus a jsoncpp parse of the same text,
// four threads on the shared connection, and peak memory for a 4 MiB reply.
// Run:
//   build/benchmarks/payload_benchmark --benchmark_min_time=0.2 --benchmark_repetitions=3
// The ratios follow the table (on standard error with --benchmark_format=json).
#include <benchmark/benchmark.h>
#include <json/json.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "FCElementData.h"
#include "FCRemoteContentOnTV_MSO_Proxy.h"
#include "FCRemoteContentOnTV_Proxy.h"
#include "bench_support.h"
#include "ratio_reporter.h"

namespace {

using namespace zunde::bench;
using PassThrough = bool (FCRemoteContentOnTV_MSO_Proxy::*)(std::string const&, std::string&);

const char* const kSmallReply = R"({"ret": true, "country": "DE", "language": "de"})";
const std::string kSmallRequest = "{\n   \"country\" : \"DE\",\n   \"language\" : \"de\"\n}\n";
const std::string kActivityRequest = "{\n   \"activityID\" : 1\n}\n";
const auto kActivity = static_cast<FCRemoteContent_MSOAPI::Act>(1);

// One payload size: the member that carries it and the pass-through method calling that member.
struct Size {
  const char* label;
  std::size_t bytes;
  const char* member;
  PassThrough call;
};
const Size kSizes[] = {
    {"100B", 100, "GetCertRule", &FCRemoteContentOnTV_MSO_Proxy::GetCertRule},
    {"64KiB", 64 * 1024, "GetGenreList", &FCRemoteContentOnTV_MSO_Proxy::GetGenreList},
    {"4MiB", 4 * 1024 * 1024, "GetVODProviders", &FCRemoteContentOnTV_MSO_Proxy::GetVODProviders},
};

DBusConnection* sharedBare = nullptr;  // one connection for every bare benchmark and thread

void Payload(benchmark::State& state, std::size_t bytes) {
  state.counters["payload"] = static_cast<double>(bytes);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
}

// One call of each kind, for the benchmarks run alone and for those run in turns.
bool BareSmallCall() { return BareCall(sharedBare, "GetRemoteContentEnv", kSmallRequest); }

bool TypedSmallCall(FCRemoteContentOnTV_Proxy& proxy) {
  std::string country;
  std::string language;
  return proxy.GetRemoteContentEnv(country, language);
}

bool ParseOnce(const std::string& text) {
  Json::Value root;
  return Json::Reader().parse(text, root, true);
}

bool TypedChannelsCall(FCRemoteContentOnTV_MSO_Proxy& proxy) {
  std::vector<FCRemoteChannel> channels;
  return proxy.GetFullChannelList(kActivity, channels);
}

void BareSmall(benchmark::State& state) {
  for (auto _ : state) {
    if (!BareSmallCall()) state.SkipWithError("no reply");
  }
  Payload(state, kSmallRequest.size());
}

void TypedSmall(benchmark::State& state) {
  FCRemoteContentOnTV_Proxy proxy;
  for (auto _ : state) benchmark::DoNotOptimize(TypedSmallCall(proxy));
  Payload(state, kSmallRequest.size());
}

// Request and reply of the same size; big requests are dropped from the service's record as they come.
void BareSized(benchmark::State& state, const Size& size) {
  const std::string text = PaddedText(size.bytes);
  Script(size.member, text);
  for (auto _ : state) {
    if (!BareCall(sharedBare, size.member, text)) state.SkipWithError("no reply");
    state.PauseTiming();
    ForgetCalls();
    state.ResumeTiming();
  }
  Payload(state, size.bytes);
}

void PassThroughSized(benchmark::State& state, const Size& size) {
  const std::string text = PaddedText(size.bytes);
  Script(size.member, text);
  FCRemoteContentOnTV_MSO_Proxy proxy;
  for (auto _ : state) {
    std::string reply;
    if (!(proxy.*size.call)(text, reply)) state.SkipWithError("no reply");
    state.PauseTiming();
    ForgetCalls();
    state.ResumeTiming();
  }
  Payload(state, size.bytes);
}

// A large reply three ways: bare transfer, jsoncpp alone, and the typed method.
void BareLarge(benchmark::State& state, const char* member, const std::string& text) {
  Script(member, text);
  for (auto _ : state) {
    if (!BareCall(sharedBare, member, kActivityRequest)) state.SkipWithError("no reply");
  }
  Payload(state, text.size());
}

void ParseLarge(benchmark::State& state, const std::string& text) {
  for (auto _ : state) benchmark::DoNotOptimize(ParseOnce(text));
  Payload(state, text.size());
}

void TypedChannels(benchmark::State& state, const std::string& text) {
  Script("GetFullChannelList", text);
  FCRemoteContentOnTV_MSO_Proxy proxy;
  for (auto _ : state) benchmark::DoNotOptimize(TypedChannelsCall(proxy));
  Payload(state, text.size());
}

void TypedProgramMap(benchmark::State& state, const std::string& text) {
  Script("GetProgramMap", text);
  FCRemoteContentOnTV_MSO_Proxy proxy;
  for (auto _ : state) {
    std::vector<std::string> channelIds{"PS0", "PS1"};
    FCFilterCriteria criteria;
    std::map<std::string, std::vector<FCRemoteProgram> > programs;
    benchmark::DoNotOptimize(proxy.GetProgramMap(kActivity, channelIds, 1767225600, 7 * 24 * 3600, criteria, programs));
  }
  Payload(state, text.size());
}

void Register(const std::string& channels500, const std::string& channels5000, const std::string& week) {
  benchmark::RegisterBenchmark("Bare/Small", BareSmall)->UseRealTime();
  benchmark::RegisterBenchmark("Typed/Small", TypedSmall)->UseRealTime();
  auto envProxy = std::make_shared<FCRemoteContentOnTV_Proxy>();
  const std::vector<Step> smallSteps{{"bare", [] { BareSmallCall(); }},
                                     {"typed", [envProxy] { TypedSmallCall(*envProxy); }}};
  benchmark::RegisterBenchmark("InTurns/Small", InTurns, smallSteps)->UseRealTime();
  for (const Size& size : kSizes) {
    benchmark::RegisterBenchmark(("Bare/" + std::string(size.label)).c_str(), BareSized, size)->UseRealTime();
    benchmark::RegisterBenchmark(("PassThrough/" + std::string(size.label)).c_str(), PassThroughSized, size)
        ->UseRealTime();
  }
  const std::pair<const char*, const std::string*> lineUps[] = {{"Channels500", &channels500},
                                                                {"Channels5000", &channels5000}};
  for (const auto& [label, text] : lineUps) {
    benchmark::RegisterBenchmark(("Bare/" + std::string(label)).c_str(), BareLarge, "GetFullChannelList", *text)
        ->UseRealTime();
    benchmark::RegisterBenchmark(("Parse/" + std::string(label)).c_str(), ParseLarge, *text)->UseRealTime();
    benchmark::RegisterBenchmark(("Typed/" + std::string(label)).c_str(), TypedChannels, *text)->UseRealTime();
  }
  auto msoProxy = std::make_shared<FCRemoteContentOnTV_MSO_Proxy>();
  const std::vector<Step> lineUpSteps{
      {"bare", [] { BareCall(sharedBare, "GetFullChannelList", kActivityRequest); }},
      {"parse", [&channels5000] { ParseOnce(channels5000); }},
      {"typed", [msoProxy] { TypedChannelsCall(*msoProxy); }}};
  benchmark::RegisterBenchmark("InTurns/Channels5000", [&channels5000, lineUpSteps](benchmark::State& state) {
    Script("GetFullChannelList", channels5000);
    InTurns(state, lineUpSteps);
  })->UseRealTime();
  benchmark::RegisterBenchmark("Bare/ProgramMapWeek", BareLarge, "GetProgramMap", week)->UseRealTime();
  benchmark::RegisterBenchmark("Parse/ProgramMapWeek", ParseLarge, week)->UseRealTime();
  benchmark::RegisterBenchmark("Typed/ProgramMapWeek", TypedProgramMap, week)->UseRealTime();
  benchmark::RegisterBenchmark("Bare/Small", BareSmall)->Threads(4)->UseRealTime();
  benchmark::RegisterBenchmark("Typed/Small", TypedSmall)->Threads(4)->UseRealTime();
}

template <typename Reporter>
void PrintRatios(const Reporter& r, FILE* out, long bareBytes, long libraryBytes) {
  std::fprintf(out, "\nRatios:\n");
  Ratio(out, "typed small call / bare round trip", r.Time("Typed/Small") / r.Time("Bare/Small"), 0);
  Ratio(out, "  the same, timed in turns", r.Time("InTurns/Small.typed") / r.Time("InTurns/Small.bare"), 1.10);
  for (const Size& size : kSizes) {
    const std::string what = std::string("pass-through ") + size.label + " / bare round trip";
    Ratio(out, what.c_str(), r.Time(std::string("PassThrough/") + size.label) / r.Time(std::string("Bare/") + size.label),
          0);
  }
  for (const char* label : {"Channels500", "Channels5000", "ProgramMapWeek"}) {
    const std::string name(label);
    const std::string what = name + " / (bare transfer + jsoncpp parse)";
    Ratio(out, what.c_str(), r.Time("Typed/" + name) / (r.Time("Bare/" + name) + r.Time("Parse/" + name)),
          0);
  }
  Ratio(out, "  Channels5000, timed in turns",
        r.Time("InTurns/Channels5000.typed") /
            (r.Time("InTurns/Channels5000.bare") + r.Time("InTurns/Channels5000.parse")),
        1.25);
  Ratio(out, "typed small call, 4 threads / bare, 4 threads on one connection",
        r.Time("Typed/Small@4") / r.Time("Bare/Small@4"), 1.10);
  const double reply = 4.0 * 1024 * 1024;
  Ratio(out, "peak memory above idle, 4 MiB reply, bare libdbus / reply size", bareBytes / reply, 0);
  Ratio(out, "peak memory above idle, 4 MiB reply, pass-through / reply size", libraryBytes / reply, 2.25);
}

}  // namespace

int main(int argc, char** argv) {
  const bool json = JsonRequested(argc, argv);
  benchmark::Initialize(&argc, argv);
  AnsweringService service(kSmallReply);

  // Peak memory first, in fresh children, before this process has touched the library.
  const std::string big = PaddedText(kSizes[2].bytes);
  Script(kSizes[2].member, big);
  const long bareBytes = PeakBytesDuring([] { BareCall(BareConnection(), "GetRemoteContentEnv", kSmallRequest); },
                                         [] { BareCall(BareConnection(), kSizes[2].member, "{}"); });
  const long libraryBytes = PeakBytesDuring(
      [] {
        std::string reply;
        FCRemoteContentOnTV_MSO_Proxy().GetCertRule("{}", reply);
      },
      [] {
        std::string reply;
        FCRemoteContentOnTV_MSO_Proxy().GetVODProviders("{}", reply);
      });
  ForgetCalls();

  sharedBare = BareConnection();
  const std::string channels500 = ChannelListText(500);
  const std::string channels5000 = ChannelListText(5000);
  const std::string week = WeekProgramMapText(50);
  std::fprintf(stderr, "reply texts: 500 channels %zu B, 5000 channels %zu B, week map (50 channels) %zu B\n",
               channels500.size(), channels5000.size(), week.size());
  Register(channels500, channels5000, week);
  RunAndPrintRatios(json, [&](const auto& reporter, FILE* out) {
    PrintRatios(reporter, out, bareBytes, libraryBytes);
  });
  return 0;
}
