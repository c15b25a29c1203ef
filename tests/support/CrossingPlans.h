// Random plans for crossing bends, crowded on a coarse grid so that ends fall together, end on others, lie
// inside circles and on them; and the comparison of what two ways make of one plan.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include "host/db/AcDbBlockReference.h"
#include "host/db/Audit.h"
#include "plugin/graph/Xdata.h"
#include "tests/support/PlainCrossings.h"
#include "tests/support/WorkingDrawing.h"

class CrossingPlan {
 public:
  explicit CrossingPlan(std::uint64_t seed) : m_random(seed) {
    m_radius = Pick({50.0, 50.0, 25.0, 70.0, 100.0, 200.0});
    m_full = Chance(5);
    const double far = Pick({0.0, 0.0, 12345.678, 4123456.789});
    m_origin = AcGeVector3d(far, -far / 3, 0);
    m_cells = static_cast<int>(Pick({2.0, 3.0, 5.0, 8.0}));
  }

  // Draws the plan in the working drawing.
  AcDbObjectIdArray Draw(WorkingDrawing& drawing) {
    const int count = 2 + Number(30);
    for (int i = 0; i < count; ++i) Append(drawing, Make());
    AcDbObjectIdArray ids;
    for (const auto& id : m_drawn)
      for (int times = Chance(20) ? 2 : 1; times > 0; --times) ids.append(id);
    if (Chance(3)) std::shuffle(ids.begin(), ids.end(), m_random);
    return ids;
  }

  double Radius() const { return m_radius; }
  bool ArcOuch() const { return !m_full; }

 private:
  int Number(int below) { return static_cast<int>(m_random() % static_cast<std::uint64_t>(below)); }
  bool Chance(int in) { return Number(in) == 0; }
  double Pick(std::initializer_list<double> values) {
    return *(values.begin() + Number(static_cast<int>(values.size())));
  }
  double Fraction() { return static_cast<double>(Number(1000)) / 1000; }

  AcGePoint3d GridPoint() {
    constexpr double cell = 200;
    const double height = Chance(40) ? 10 : 0;
    return AcGePoint3d(cell * Number(m_cells), cell * Number(m_cells), height) + m_origin;
  }
  // A place on what is there already, so that joints lie on pipes of every kind.
  AcGePoint3d PlaceOnPipe() {
    if (m_drawn.empty()) return GridPoint();
    const auto id = m_drawn[static_cast<std::size_t>(Number(static_cast<int>(m_drawn.size())))];
    const AcDbObjectPointer<AcDbCurve> curve(id, AcDb::kForRead);
    double parameter = 0;
    double length = 0;
    AcGePoint3d point = GridPoint();
    if (curve && curve->getEndParam(parameter) == Acad::eOk &&
        curve->getDistAtParam(parameter, length) == Acad::eOk)
      curve->getPointAtDist(length * Pick({0, 0.25, 0.5, 1, Fraction()}), point);
    return point;
  }
  AcGePoint3d Place() { return Chance(3) ? PlaceOnPipe() : GridPoint(); }
  AcGePoint3d Beside(const AcGePoint3d& p) {
    const double angle = Number(24) * std::numbers::pi / 12;
    const double distance =
        Pick({0, m_radius / 2, m_radius, 1.5 * m_radius, 2 * m_radius, 3 * m_radius, 500 * Fraction()});
    return p + AcGeVector3d(std::cos(angle), std::sin(angle), 0) * distance;
  }

  AcDbEntity* Make() {
    switch (Number(12)) {
    case 0:
    case 1:
      return MakeArc();
    case 2:
    case 3:
    case 4:
      return MakePolyline();
    case 5: {
      const AcGePoint3d from = Place();
      return new AcDbLine(from, Beside(from));
    }
    case 6:
      return Chance(4) ? new AcDbCircle(GridPoint(), {0, 0, 1}, Pick({50, 200, 400}))
                       : static_cast<AcDbEntity*>(new AcDbLine(Place(), GridPoint()));
    default:
      return new AcDbLine(Place(), Place());
    }
  }
  AcDbEntity* MakeArc() {
    const double quarter = std::numbers::pi / 2;
    const double from = Number(4) * quarter;
    return new AcDbArc(GridPoint(), {0, 0, Chance(5) ? -1.0 : 1.0}, Pick({50, 100, 200, 200, 400}), from,
                       from + (1 + Number(4)) * quarter);
  }
  AcDbEntity* MakePolyline() {
    auto* polyline = new AcDbPolyline;
    const unsigned vertices = 2 + static_cast<unsigned>(Number(4));
    for (unsigned i = 0; i < vertices; ++i) {
      const AcGePoint3d p = Chance(2) ? Place() : GridPoint();
      polyline->addVertexAt(i, AcGePoint2d(p.x, p.y), Pick({0, 0, 0, 1, -0.5, 0.41421356237309503}));
    }
    polyline->setClosed(Chance(4));
    return polyline;
  }

  void Append(WorkingDrawing& drawing, AcDbEntity* entity) {
    const AcDbObjectId id = drawing.Append(entity);
    m_drawn.push_back(id);
    static constexpr const wchar_t* kElevations[] = {L"0", L"2.5", L"2.5", L"2.5004",
                                                     L"3", L"3",   L"-1",  L"nan"};
    if (!Chance(10)) ZP::SetXdata(id, L"相对标高", kElevations[Number(8)]);
  }

  std::mt19937_64 m_random;
  double m_radius;
  bool m_full;
  AcGeVector3d m_origin;
  int m_cells;
  std::vector<AcDbObjectId> m_drawn;
};

// The records of model space and of the blocks that it shows, in the drawing's order, then the handles of the
// curves under work.
inline std::string DumpCrossings(const AcDbDatabase& drawing, const AcDbObjectIdArray& ids) {
  std::string text;
  const auto dump = [&](const AcDbObjectId& block, const auto& nested) -> void {
    const auto* record = AcDbBlockTableRecord::cast(block.object());
    for (const auto& id : record->entities()) {
      if (id.isErased()) continue;
      text += id.object()->record().text();
      const auto* reference = AcDbBlockReference::cast(id.object());
      if (!reference) continue;
      nested(reference->blockTableRecord(), nested);
    }
  };
  dump(drawing.modelSpaceId(), dump);
  for (const auto& id : ids) text += id.handle().ascii().ToUtf8() + ' ';
  return text;
}

struct CrossingResult {
  std::string drawing;
  std::string faults; // of an audit
  int symbols = 0;
};

// A run over the plan, then a second one by another object over all that is there then, symbols included.
template <typename Bends> CrossingResult RunCrossings(std::uint64_t seed) {
  WorkingDrawing drawing;
  CrossingPlan plan(seed);
  const AcDbObjectIdArray ids = plan.Draw(drawing);
  CrossingResult result;
  const auto run = [&](const AcDbObjectIdArray& all, double radius) {
    Bends bends(plan.ArcOuch(), radius);
    bends.AddKw(all);
    if constexpr (std::is_same_v<Bends, ZPKwCl>)
      result.drawing += DumpCrossings(drawing, PlainCrossings::IdsOf(bends));
    else
      result.drawing += DumpCrossings(drawing, bends.Ids());
  };
  run(ids, plan.Radius());
  AcDbObjectIdArray all;
  const auto* space = AcDbBlockTableRecord::cast(drawing.Database().modelSpaceId().object());
  for (const auto& id : space->entities()) {
    if (id.isErased()) continue;
    all.append(id);
    result.symbols += AcDbBlockReference::cast(id.object()) ? 1 : 0;
  }
  run(all, seed % 2 == 0 ? plan.Radius() : 60);
  for (const auto& finding : acdbAudit(drawing, false)) result.faults += finding.text.ToUtf8() + '\n';
  return result;
}

// What differs between the tool and the plain way on one plan; empty when nothing does.
inline std::string CompareCrossings(std::uint64_t seed, int& symbols) {
  const CrossingResult tool = RunCrossings<ZPKwCl>(seed);
  const CrossingResult plain = RunCrossings<PlainCrossings>(seed);
  symbols += tool.symbols;
  const std::string where = "plan " + std::to_string(seed) + ": ";
  if (!tool.faults.empty()) return where + tool.faults;
  if (tool.drawing == plain.drawing) return {};
  const auto differs =
      std::mismatch(tool.drawing.begin(), tool.drawing.end(), plain.drawing.begin(), plain.drawing.end());
  const auto at = static_cast<std::size_t>(differs.first - tool.drawing.begin());
  const std::size_t from = at > 200 ? at - 200 : 0;
  return where + "the tool has\n" + tool.drawing.substr(from, 400) + "\nand the plain way\n" +
         plain.drawing.substr(from, 400);
}
