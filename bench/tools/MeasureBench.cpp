// A path that the user traces, from 1,250 to 20,000 points: the whole conversation, and its end alone.
#include <benchmark/benchmark.h>

#include <cmath>

#include "bench/tools/TypedLines.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdSession.h"
#include "plugin/tools/CZPMeasureJig.h"
#include "plugin/tools/Measuring.h"

namespace {

// An editor with a drawing for the length of a measurement.
class Editor {
 public:
  Editor() {
    EdSession::instance().reset();
    EdSession::instance().setFrontEnd(&frontEnd);
    acDocManagerPtr()->newDocument();
  }
  ~Editor() {
    acDocManagerPtr()->closeAll();
    EdSession::instance().setFrontEnd(nullptr);
    EdSession::instance().reset();
  }
  TypedLines frontEnd;
};

AcGePoint3d Corner(int i) {
  return {i * 10.0, (i % 2) * 10.0, 0};
}

std::vector<CString> PathOf(int points) {
  std::vector<CString> lines;
  for (int i = 0; i < points; ++i) {
    CString line;
    line.Format(L"%g,%g", Corner(i).x, Corner(i).y);
    lines.push_back(line);
  }
  lines.push_back(L"");
  return lines;
}

double LengthOf(int points) {
  return (points - 1) * std::sqrt(200.0) / 1000.0;
}

void PathMeasured(benchmark::State& state) {
  const int points = static_cast<int>(state.range(0));
  const auto lines = PathOf(points);
  Editor editor;
  for (auto _ : state) {
    editor.frontEnd.Type(lines);
    const double length = ZP::GetLengthFromDwg();
    if (std::fabs(length - LengthOf(points)) > 1e-6 || editor.frontEnd.refused > 0) {
      state.SkipWithError("another length");
      return;
    }
    state.PauseTiming(); // what was measured stays as erased entities
    acDocManagerPtr()->closeAll();
    acDocManagerPtr()->newDocument();
    state.ResumeTiming();
  }
  state.SetComplexityN(points);
}

// The same lines, parsed as points and nothing else.
void LinesParsed(benchmark::State& state) {
  const auto lines = PathOf(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    AcGePoint3d last;
    for (const CString& line : lines)
      if (const auto point = ed::ParsePoint(line, last)) last = *point;
    benchmark::DoNotOptimize(last);
  }
}

// The entities of the path, added to the drawing and erased again.
void LinesAdded(benchmark::State& state) {
  const int points = static_cast<int>(state.range(0));
  Editor editor;
  for (auto _ : state) {
    std::vector<AcDbObjectId> ids;
    for (int i = 1; i < points; ++i) {
      auto* line = new AcDbLine(Corner(i - 1), Corner(i));
      ArxDbgUtils::addToCurrentSpace(line);
      ids.push_back(line->objectId());
      line->close();
    }
    for (const AcDbObjectId& id : ids) AcDbObjectPointer<AcDbEntity>(id, AcDb::kForWrite)->erase();
    state.PauseTiming();
    acDocManagerPtr()->closeAll();
    acDocManagerPtr()->newDocument();
    state.ResumeTiming();
  }
}

// The polyline of a path that has been traced, and its length.
void OutlineTaken(benchmark::State& state) {
  Editor editor;
  CZPMeasureJig jig;
  const auto lines = PathOf(static_cast<int>(state.range(0)));
  editor.frontEnd.Type(lines);
  jig.MeasureLength();
  for (auto _ : state) benchmark::DoNotOptimize(jig.GetOutLine().GetLength());
}

BENCHMARK(PathMeasured)
    ->Arg(1250)
    ->Arg(2500)
    ->Arg(5000)
    ->Arg(10000)
    ->Arg(20000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(LinesParsed)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(LinesAdded)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(OutlineTaken)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace
