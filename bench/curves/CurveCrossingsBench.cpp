// All intersections among the curves of a large plan: with the spatial index, and by the double loop that a
// tool would write without it. The same result of both is checked ahead.
#include "bench/curves/RandomCurves.h"
#include "host/db/CurveCrossings.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

// A floor that grows with the number of curves: so many square metres for each. Ten are those of 1,000 curves
// in a hall of 100 m.
std::vector<ge::Curve> planOf(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  const double squareMillimetres = static_cast<double>(state.range(1)) * 1e6;
  return RandomCurves(count, kMixed, std::sqrt(count * squareMillimetres));
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
}

void CrossingsByIndex(benchmark::State& state) {
  const auto curves = planOf(state);
  if (state.range(0) <= 10000 && byPairs(curves) != byIndex(curves))
    state.SkipWithError("not the same points");
  std::size_t points = 0;
  for (auto _ : state) benchmark::DoNotOptimize(points = byIndex(curves));
  state.counters["points"] = static_cast<double>(points);
}

BENCHMARK(CrossingsByPairs)
    ->Args({1000, 10})
    ->Args({10000, 10})
    ->Args({10000, 40})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(CrossingsByIndex)
    ->Args({1000, 10})
    ->Args({10000, 10})
    ->Args({10000, 40})
    ->Args({100000, 10})
    ->Unit(benchmark::kMillisecond);

} // namespace
