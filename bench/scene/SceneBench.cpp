// The scene of a pipe plan beside reading the plan, for plans of growing size; with estimated text widths and
// with those of real fonts.
#include "bench/scene/PipePlan.h"
#include "host/db/AcDbDatabase.h"
#include "host/dxf/DrawingFile.h"
#include "host/plot/FontMetrics.h"
#include "host/plot/Plot.h"
#include "host/scene/BuildScene.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

std::unique_ptr<AcDbDatabase> read(const std::string& text) {
  auto database = std::make_unique<AcDbDatabase>(false);
  if (!dxf::ReadDrawingBytes(text, L"plan.dxf", *database).ok) std::abort();
  return database;
}

void countBytes(benchmark::State& state, const std::string& text) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
  state.SetComplexityN(state.range(0));
}

void Read(benchmark::State& state) {
  const std::string text = PipePlan(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(read(text));
  countBytes(state, text);
}

void Scene(benchmark::State& state) {
  const std::string text = PipePlan(static_cast<int>(state.range(0)));
  const auto database = read(text);
  for (auto _ : state) benchmark::DoNotOptimize(scene::BuildScene(*database, database->modelSpaceId()));
  countBytes(state, text);
}

void SceneWithFonts(benchmark::State& state) {
  const std::string text = PipePlan(static_cast<int>(state.range(0)));
  const auto database = read(text);
  const plot::FontMetrics metrics;
  scene::SceneOptions options;
  options.metrics = &metrics;
  for (auto _ : state)
    benchmark::DoNotOptimize(scene::BuildScene(*database, database->modelSpaceId(), options));
  countBytes(state, text);
}

void PlotPdf(benchmark::State& state) {
  const std::string text = PipePlan(static_cast<int>(state.range(0)));
  const auto database = read(text);
  const scene::Scene picture = scene::BuildScene(*database, database->modelSpaceId());
  for (auto _ : state) benchmark::DoNotOptimize(plot::Plot(picture, plot::Format::pdf));
  countBytes(state, text);
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond)->Complexity();
}

BENCHMARK(Read)->Apply(sizes);
BENCHMARK(Scene)->Apply(sizes);
BENCHMARK(SceneWithFonts)->Apply(sizes);
BENCHMARK(PlotPdf)->Apply(sizes);

} // namespace

BENCHMARK_MAIN();
