// Crossing bends over grids of pipes: by the tool, and by comparing everything with everything; and the part
// of it that finds the joints. That both ways draw the same is checked ahead of the comparison.
#include "bench/RatioReporter.h"
#include "bench/crossings/PipeGrid.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugin/tools/crossings/Joints.h"
#include "tests/support/CrossingPlans.h"
#include "tests/support/TempInstall.h"

#include <benchmark/benchmark.h>

namespace {

constexpr double kRadius = 50;

std::size_t SymbolsOf(const AcDbDatabase& drawing) {
  const auto* space = AcDbBlockTableRecord::cast(drawing.modelSpaceId().object());
  return static_cast<std::size_t>(
      std::count_if(space->entities().begin(), space->entities().end(),
                    [](const AcDbObjectId& id) { return AcDbBlockReference::cast(id.object()) != nullptr; }));
}

// As a command does it, with every change kept for undo.
template <typename Bends> void Run(WorkingDrawing& drawing, Bends& bends, const AcDbObjectIdArray& ids) {
  drawing.Database().undo().beginCommand(L"BENDS");
  bends.AddKw(ids);
  drawing.Database().undo().endCommand();
}

template <typename Bends> void Measure(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  std::size_t symbols = 0;
  for (auto _ : state) {
    state.PauseTiming();
    {
      WorkingDrawing drawing;
      const AcDbObjectIdArray ids = DrawPipeGrid(drawing, count);
      Bends bends(true, kRadius);
      state.ResumeTiming();
      Run(drawing, bends, ids);
      state.PauseTiming();
      symbols = SymbolsOf(drawing);
    }
    state.ResumeTiming();
  }
  state.counters["bends"] = static_cast<double>(symbols);
  state.counters["per_pipe"] =
      benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Bends(benchmark::State& state) {
  Measure<ZPKwCl>(state);
}

void PlainLoops(benchmark::State& state) {
  Measure<PlainCrossings>(state);
}

void JointsAlone(benchmark::State& state) {
  WorkingDrawing drawing;
  const AcDbObjectIdArray ids = DrawPipeGrid(drawing, static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(crossings::FindJoints(ids));
}

// One place where all pipes end, of seven elevations.
void Star(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    {
      WorkingDrawing drawing;
      AcDbObjectIdArray ids;
      for (int i = 0; i < count; ++i) {
        AcGePoint3d tip(10000, 0, 0);
        tip.rotateBy(2 * std::numbers::pi * i / count, AcGeVector3d::kZAxis);
        ids.append(drawing.Append(new AcDbLine({0, 0, 0}, tip)));
        CZPMainPipe(ids.last()).SetElevation(i % 7);
      }
      ZPKwCl bends(true, kRadius);
      state.ResumeTiming();
      Run(drawing, bends, ids);
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  state.counters["per_pipe"] =
      benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

bool DrawTheSame(int count) {
  const auto drawn = [&](auto&& bends) {
    WorkingDrawing drawing;
    const AcDbObjectIdArray ids = DrawPipeGrid(drawing, count);
    Run(drawing, bends, ids);
    return DumpCrossings(drawing, AcDbObjectIdArray());
  };
  return drawn(ZPKwCl(true, kRadius)) == drawn(PlainCrossings(true, kRadius));
}

void PlainLoopsDrawTheSame(benchmark::State& state) {
  for (auto _ : state)
    if (!DrawTheSame(static_cast<int>(state.range(0)))) state.SkipWithError("not the same drawing");
}

BENCHMARK(Bends)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(JointsAlone)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Star)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainLoops)->Arg(1000)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainLoopsDrawTheSame)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  const TempInstall install;
  CZPManagerLayer::GetInstance()->RemoveAll();
  return bench::RunWithRatios(argc, argv,
                              {{"PlainLoops to Bends, 10000", "PlainLoops/10000", "Bends/10000"},
                               {"Bends 10000 to 1000", "Bends/10000", "Bends/1000"},
                               {"Bends 100000 to 10000", "Bends/100000", "Bends/10000"},
                               {"JointsAlone to Bends, 100000", "JointsAlone/100000", "Bends/100000"},
                               {"Star 10000 to 1000", "Star/10000", "Star/1000"}});
}
