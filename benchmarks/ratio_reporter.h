// Ratios of benchmark times, printed after the table: a reporter that keeps
// each run's time per call, and one line per ratio with its target.
#ifndef ZUNDE_BENCH_RATIO_REPORTER_H
#define ZUNDE_BENCH_RATIO_REPORTER_H

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace zunde::bench {

// Keeps each run's time per call, keyed "Name" or "Name@4" for four threads, for the ratios; with
// --benchmark_repetitions the median of the repetitions counts.
template <typename Base>
class RatioReporter : public Base {
 public:
  using Run = benchmark::BenchmarkReporter::Run;
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.iterations == 0) continue;
      std::string key = run.run_name.function_name;
      if (run.threads > 1) key += "@" + std::to_string(run.threads);
      times_[key].push_back(run.GetAdjustedRealTime());
      for (const auto& counter : run.counters) times_[key + "." + counter.first].push_back(counter.second);
    }
    Base::ReportRuns(runs);
  }
  double Time(const std::string& key) const {
    const auto found = times_.find(key);
    if (found == times_.end()) return 0;
    std::vector<double> times = found->second;
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
  }

 private:
  std::map<std::string, std::vector<double> > times_;
};

inline void Ratio(FILE* out, const char* what, double value, double target) {
  if (!std::isfinite(value) || value <= 0) {
    std::fprintf(out, "  %-58s    n/a  (not run)\n", what);
  } else if (target > 0) {
    std::fprintf(out, "  %-58s %6.2f  (target <= %.2f: %s)\n", what, value, target, value <= target ? "met" : "MISSED");
  } else {
    std::fprintf(out, "  %-58s %6.2f\n", what, value);
  }
}

// Whether the command line asks for the table as JSON; ask before
// benchmark::Initialize, which takes its own flags away.
inline bool JsonRequested(int argc, char** argv) {
  for (int i = 1; i < argc; ++i)
    if (std::string(argv[i]) == "--benchmark_format=json") return true;
  return false;
}

// Runs the benchmarks, then `print(reporter, out)`: the ratios follow the
// table on standard output, or go to standard error when it is JSON.
template <typename PrintRatios>
void RunAndPrintRatios(bool json, PrintRatios print) {
  if (json) {
    RatioReporter<benchmark::JSONReporter> reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    print(reporter, stderr);
  } else {
    RatioReporter<benchmark::ConsoleReporter> reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    print(reporter, stdout);
  }
}

}  // namespace zunde::bench

#endif
