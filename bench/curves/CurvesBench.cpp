// All intersections among n random curves, each with each, as a drawing tool without an index would take
// them. The floor is the same double loop over the boxes alone.
#include "bench/curves/RandomCurves.h"
#include "host/ge/CurveIntersection.h"

#include <benchmark/benchmark.h>

namespace {

void AllPairs(benchmark::State& state, CurveSort kind, ge::ExtendCurves extend) {
  const auto curves = RandomCurves(static_cast<int>(state.range(0)), kind);
  std::size_t points = 0;
  for (auto _ : state) {
    points = 0;
    for (std::size_t i = 0; i < curves.size(); ++i) {
      for (std::size_t j = i + 1; j < curves.size(); ++j)
        points += ge::Intersect(curves[i], curves[j], extend).points.size();
    }
    benchmark::DoNotOptimize(points);
  }
  const double pairs = static_cast<double>(curves.size()) * static_cast<double>(curves.size() - 1) / 2.0;
  state.counters["pairs/s"] =
      benchmark::Counter(pairs, benchmark::Counter::kIsIterationInvariantRate, benchmark::Counter::kIs1000);
  state.counters["points"] = static_cast<double>(points);
}

// What no method can do without: looking at both boxes of every pair.
void BoxesOnly(benchmark::State& state) {
  const auto curves = RandomCurves(static_cast<int>(state.range(0)), kLines);
  std::vector<ge::Box2d> boxes;
  for (const ge::Curve& curve : curves) boxes.push_back(curve.Pieces().front().box);
  std::size_t overlaps = 0;
  for (auto _ : state) {
    overlaps = 0;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      for (std::size_t j = i + 1; j < boxes.size(); ++j) overlaps += boxes[i].Overlaps(boxes[j]) ? 1 : 0;
    }
    benchmark::DoNotOptimize(overlaps);
  }
  const double pairs = static_cast<double>(boxes.size()) * static_cast<double>(boxes.size() - 1) / 2.0;
  state.counters["pairs/s"] =
      benchmark::Counter(pairs, benchmark::Counter::kIsIterationInvariantRate, benchmark::Counter::kIs1000);
  state.counters["points"] = 0;
}

// Two polylines of n segments that cross n times: the sweep inside one pair.
void LongPolylines(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  std::vector<ge::PolylineVertex> teeth;
  std::vector<ge::PolylineVertex> level;
  for (int i = 0; i <= count; ++i) {
    teeth.push_back({{static_cast<double>(i), i % 2 ? 1.0 : -1.0}, 0.0});
    level.push_back({{i + 0.25, 0.0}, 0.0});
  }
  const ge::Curve first = ge::Curve::Polyline(teeth, false);
  const ge::Curve second = ge::Curve::Polyline(level, false);
  for (auto _ : state) benchmark::DoNotOptimize(ge::Intersect(first, second).points.size());
  state.SetComplexityN(count);
}

using ge::ExtendCurves;

BENCHMARK(BoxesOnly)->Arg(1000);
BENCHMARK_CAPTURE(AllPairs, lines, kLines, ExtendCurves::kNone)->Arg(1000);
BENCHMARK_CAPTURE(AllPairs, arcs, kArcs, ExtendCurves::kNone)->Arg(1000);
BENCHMARK_CAPTURE(AllPairs, polylines, kPolylines, ExtendCurves::kNone)->Arg(1000);
BENCHMARK_CAPTURE(AllPairs, mixed, kMixed, ExtendCurves::kNone)->Arg(500)->Arg(1000)->Arg(2000);
BENCHMARK_CAPTURE(AllPairs, extended_lines, kLines, ExtendCurves::kBoth)->Arg(1000);
BENCHMARK_CAPTURE(AllPairs, extended_mixed, kMixed, ExtendCurves::kBoth)->Arg(1000);
BENCHMARK(LongPolylines)->RangeMultiplier(4)->Range(256, 65536)->Complexity();

} // namespace

BENCHMARK_MAIN();
