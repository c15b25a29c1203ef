// Runs the benchmarks of a program, and prints below their table what the run is for: the time of one by that
// of another.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace bench {

// Names of benchmarks, with an argument as "Import/500".
struct Ratio {
  std::string title;
  std::string above;
  std::string below;
};

// Takes the median where runs were repeated. Compares processor time, which other programs on the machine do
// not stretch, except where a benchmark uses real time because it waits for the disk.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  explicit RatioReporter(std::vector<Ratio> ratios) : m_ratios(std::move(ratios)) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      // The median comes after the single runs, and takes their place.
      if (run.error_occurred || (run.run_type != Run::RT_Iteration && run.aggregate_name != "median"))
        continue;
      const bool waits = run.run_name.time_type == "real_time";
      const std::string& args = run.run_name.args;
      m_times[run.run_name.function_name + (args.empty() ? "" : "/" + args)] =
          waits ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
    }
  }

  void Finalize() override {
    for (const Ratio& ratio : m_ratios) {
      const auto above = m_times.find(ratio.above);
      const auto below = m_times.find(ratio.below);
      if (above == m_times.end() || below == m_times.end()) continue;
      GetOutputStream() << "ratio " << ratio.title << ": " << above->second / below->second << '\n';
    }
  }

 private:
  std::vector<Ratio> m_ratios;
  std::map<std::string, double> m_times;
};

// For main.
inline int RunWithRatios(int argc, char** argv, std::vector<Ratio> ratios) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  RatioReporter reporter(std::move(ratios));
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}

} // namespace bench
