// A group of 10,000 entities in a drag: moved, turned and shown for each move of the cursor, beside the same
// done to its points alone.
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbText.h"
#include "host/db/ExtentsDraw.h"
#include "plugin/tools/CZPMultiEntity.h"

namespace {

constexpr double kStep = 250;  // mm between neighbours
constexpr double kMove = 10;   // mm for each update
constexpr double kTurn = 0.01; // radians for each update
constexpr int kPolylinePoints = 8;

AcGePoint3d At(int i) {
  return {(i % 100) * kStep, (i / 100) * kStep, 0};
}

// A block as valves have it: an outline and two lines.
AcDbObjectId ValveBlock(AcDbDatabase& drawing) {
  const AcDbObjectPointer<AcDbBlockTable> blocks(drawing.blockTableId(), AcDb::kForWrite);
  auto* block = new AcDbBlockTableRecord;
  block->setName(L"阀");
  AcDbObjectId id;
  blocks->add(id, block);
  auto* outline = new AcDbPolyline;
  for (const auto& [x, y] : {std::pair{-100, -50}, {100, 50}, {100, -50}, {-100, 50}})
    outline->addVertexAt(outline->numVerts(), AcGePoint2d(x, y));
  outline->setClosed(true);
  for (AcDbEntity* part :
       {static_cast<AcDbEntity*>(outline), static_cast<AcDbEntity*>(new AcDbLine({0, 0, 0}, {0, 90, 0})),
        static_cast<AcDbEntity*>(new AcDbLine({-40, 90, 0}, {40, 90, 0}))}) {
    block->appendAcDbEntity(part);
    part->close();
  }
  block->close();
  return id;
}

// Of ten entities five are lines, two polylines, one each an arc, a text and an insertion.
AcDbEntity* Entity(int i, const AcDbObjectId& valve) {
  const AcGePoint3d at = At(i);
  switch (i % 10) {
  case 0:
    return new AcDbBlockReference(at, valve);
  case 1:
    return new AcDbText(at, L"DN50 h+2.800", {}, 35);
  case 2:
    return new AcDbArc(at, AcGeVector3d::kZAxis, 60, 0.3, 4.0);
  case 3:
  case 4: {
    auto* polyline = new AcDbPolyline;
    for (int k = 0; k < kPolylinePoints; ++k)
      polyline->addVertexAt(static_cast<unsigned>(k), AcGePoint2d(at.x + 25 * k, at.y + 40 * (k % 2)));
    return polyline;
  }
  default:
    return new AcDbLine(at, at + AcGeVector3d(200, 100, 0));
  }
}

class Composed {
 public:
  explicit Composed(int size) : m_drawing(true) {
    acdbHostApplicationServices()->setWorkingDatabase(&m_drawing);
    const AcDbObjectId valve = ValveBlock(m_drawing);
    for (int i = 0; i < size; ++i) group.AddEntityToGroup(Entity(i, valve), 0);
  }
  ~Composed() {
    group.Close(-1);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
  }

  // The next place and angle of a drag.
  void Move() {
    ++m_moves;
    group.SetPosition({kMove * m_moves, kMove * (m_moves % 7), 0}, 0);
  }
  void Turn() { group.SetRotation(kTurn * ++m_turns, 0); }
  void Show() {
    ExtentsDraw draw;
    group.subWorldDraw(&draw);
    benchmark::DoNotOptimize(draw.extents());
  }

  CZPMultiEntity group;

 private:
  AcDbDatabase m_drawing;
  int m_moves = 0;
  int m_turns = 0;
};

template <class Update> void Measure(benchmark::State& state, Update update) {
  Composed composed(static_cast<int>(state.range(0)));
  for (auto _ : state) update(composed);
  state.counters["updates/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void GroupMoved(benchmark::State& state) {
  Measure(state, [](Composed& composed) { composed.Move(); });
}

void GroupTurned(benchmark::State& state) {
  Measure(state, [](Composed& composed) { composed.Turn(); });
}

void GroupShown(benchmark::State& state) {
  Measure(state, [](Composed& composed) { composed.Show(); });
}

// What a drag with a turn does for each move of the cursor.
void GroupDragged(benchmark::State& state) {
  Measure(state, [](Composed& composed) {
    composed.Move();
    composed.Turn();
    composed.Show();
  });
}

// As many points as the group's entities have, through the same two matrices and into a box.
void PointsDragged(benchmark::State& state) {
  const int size = static_cast<int>(state.range(0));
  std::vector<AcGePoint3d> points;
  for (int i = 0; i < size; ++i) {
    // An insertion is its place and, shown, eight points; an arc and a text are two.
    constexpr int kPoints[] = {9, 2, 2, kPolylinePoints, kPolylinePoints, 2, 2, 2, 2, 2};
    for (int k = 0; k < kPoints[i % 10]; ++k) points.push_back(At(i) + AcGeVector3d(k * 10.0, k * 5.0, 0));
  }
  int updates = 0;
  for (auto _ : state) {
    ++updates;
    const auto moved = AcGeMatrix3d::translation({kMove, kMove * (updates % 7), 0});
    for (AcGePoint3d& point : points) point = moved * point;
    const auto turned = AcGeMatrix3d::rotation(kTurn, AcGeVector3d::kZAxis, points.front());
    for (AcGePoint3d& point : points) point = turned * point;
    AcDbExtents box;
    for (const AcGePoint3d& point : points) box.addPoint(point);
    benchmark::DoNotOptimize(box);
  }
}

BENCHMARK(GroupMoved)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(GroupTurned)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(GroupShown)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(GroupDragged)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(PointsDragged)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace
