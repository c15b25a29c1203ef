// All intersections among the curves of a large plan: with the spatial index, and by the double loop that a
// tool would write without it. The same result of both is checked ahead.
#include "bench/curves/RandomCurves.h"
#include "host/db/CurveCrossings.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

// A floor that grows with the number of curves: 10 square metres for each, as 1,000 have in a hall of 100 m.
std::vector<ge::Curve> planOf(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  return RandomCurves(count, kMixed, std::sqrt(count * 1e7));
}

std::size_t byPairs(const std::vector<ge::Curve>& curves) {
  std::size_t points = 0;
  for (std::size_t i = 0; i < curves.size(); ++i)
    for (std::size_t j = i + 1; j < curves.size(); ++j)
      points += ge::Intersect(curves[i], curves[j]).points.size();
  return points;
}

std::size_t byIndex(const std::vector<ge::Curve>& curves) {
  std::size_t points = 0;
  for (const auto& crossing : entity::allCrossings(curves)) points += crossing.meetings.points.size();
  return points;
}

void CrossingsByPairs(benchmark::State& state) {
  const auto curves = planOf(state);
  std::size_t points = 0;
  for (auto _ : state) benchmark::DoNotOptimize(points = byPairs(curves));
  state.counters["points"] = static_cast<double>(points);
  state.SetComplexityN(state.range(0));
}

void CrossingsByIndex(benchmark::State& state) {
  const auto curves = planOf(state);
  if (state.range(0) <= 10000 && byPairs(curves) != byIndex(curves))
    state.SkipWithError("not the same points");
  std::size_t points = 0;
  for (auto _ : state) benchmark::DoNotOptimize(points = byIndex(curves));
  state.counters["points"] = static_cast<double>(points);
  state.SetComplexityN(state.range(0));
}

BENCHMARK(CrossingsByPairs)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(CrossingsByIndex)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity()->Unit(benchmark::kMillisecond);

} // namespace
