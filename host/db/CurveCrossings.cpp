#include "host/db/CurveCrossings.h"

#include "host/db/SpatialIndex.h"

#include <algorithm>
#include <cmath>

ge::Box2d entity::planBox(const ge::Curve& curve) {
  ge::Box2d box;
  if (curve.Status() != ge::CurveStatus::kOk) return box;
  const AcGeVector3d normal = curve.Normal();
  const bool isFlat = normal.x == 0 && normal.y == 0 && normal.z == 1;
  if (curve.Kind() != ge::CurveKind::kLine && isFlat) {
    box = curve.Box();
  } else {
    for (std::size_t i = 0; i < curve.Pieces().size(); ++i) {
      const AcGePoint3d start = curve.PieceStart(i);
      const AcGePoint3d end = curve.PieceEnd(i);
      ge::Box2d piece;
      piece.Add(AcGePoint2d(start.x, start.y));
      piece.Add(AcGePoint2d(end.x, end.y));
      if (curve.Pieces()[i].isArc) piece = piece.Grown(2 * curve.Pieces()[i].arc.radius);
      box.Add(piece);
    }
  }
  return box.Grown(curve.Tolerance());
}

std::vector<entity::CurveCrossing> entity::allCrossings(std::span<const ge::Curve> curves) {
  std::vector<SpatialIndex::Entry> entries(curves.size());
  for (std::size_t i = 0; i < curves.size(); ++i) entries[i] = {planBox(curves[i]), i};
  const SpatialIndex index(entries);
  std::vector<CurveCrossing> crossings;
  std::vector<std::size_t> near;
  for (std::size_t i = 0; i < curves.size(); ++i) {
    near.clear();
    index.visit(entries[i].box, [&](std::size_t j) {
      if (j > i) near.push_back(j);
    });
    std::sort(near.begin(), near.end());
    for (const std::size_t j : near) {
      auto meetings = ge::Intersect(curves[i], curves[j]);
      if (!meetings.points.empty() || meetings.overlap) crossings.push_back({i, j, std::move(meetings)});
    }
  }
  return crossings;
}
