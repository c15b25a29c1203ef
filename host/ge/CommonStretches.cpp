// Counts the directions in which common stretches leave a point. This treats the seam of a closed curve, the
// vertices inside a long common run and curves that touch themselves alike.
#include "host/ge/CommonStretches.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace ge {
namespace {

struct Ray {
  const CurvePiece* piece = nullptr;
  double fraction = 0.0; // of the point
  double sense = 1.0;    // along the piece or against it
  double length = 0.0;   // to the stretch's end
};

AcGePoint2d OnRay(const Ray& ray, double distance) {
  return PointAt(*ray.piece, ray.fraction + ray.sense * distance / ray.piece->length);
}

bool SameWay(const Ray& a, const Ray& b, double tolerance) {
  const double distance = std::min({a.length, b.length, a.piece->length}) / 2.0;
  return OnRay(a, distance).distanceTo(OnRay(b, distance)) <= 4.0 * tolerance;
}

// Where the point lies in the stretch, brought into its range on a circle.
std::optional<double> Inside(const CurvePiece& piece, const PieceStretch& range, const AcGePoint2d& p,
                             double tolerance) {
  const double slack = tolerance / piece.length;
  double fraction = FractionAt(piece, p);
  if (piece.isArc) {
    const double turn = 2.0 * std::numbers::pi / std::fabs(piece.arc.sweep);
    if (fraction < range.from - slack)
      fraction += turn;
    else if (fraction > range.to + slack)
      fraction -= turn;
  }
  if (fraction < range.from - slack || fraction > range.to + slack) return std::nullopt;
  if (PointAt(piece, fraction).distanceTo(p) > tolerance) return std::nullopt;
  return fraction;
}

bool IsLoop(const CurvePiece& piece, const PieceStretch& range) {
  return piece.isArc && std::fabs(piece.arc.sweep) * (range.to - range.from) > 2.0 * std::numbers::pi - 1e-9;
}

} // namespace

bool LiesWithin(const Curve& first, const std::vector<CurveStretch>& stretches, const AcGePoint2d& p,
                double tolerance) {
  std::optional<Ray> found;
  for (const CurveStretch& stretch : stretches) {
    const CurvePiece& piece = first.Pieces()[stretch.piece];
    const auto fraction = Inside(piece, stretch.range, p, tolerance);
    if (!fraction) continue;
    if (IsLoop(piece, stretch.range)) return true;
    const Ray rays[] = {{&piece, *fraction, 1.0, (stretch.range.to - *fraction) * piece.length},
                        {&piece, *fraction, -1.0, (*fraction - stretch.range.from) * piece.length}};
    for (const Ray& ray : rays) {
      if (!(ray.length > tolerance)) continue;
      if (found && !SameWay(*found, ray, tolerance)) return true;
      if (!found) found = ray;
    }
  }
  return false;
}

} // namespace ge
