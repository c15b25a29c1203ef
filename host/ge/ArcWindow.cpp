// What a selection window takes: whether a segment or an arc touches a rectangle or lies within it.
#include "host/ge/ArcMath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ge {
namespace {

bool IsFinite(const AcGePoint2d& p) {
  return std::isfinite(p.x) && std::isfinite(p.y);
}

// Whether the line through a along a direction leaves all corners strictly on one side.
bool LineMisses(const AcGePoint2d& a, AcGeVector2d along, const Box2d& box) {
  // Keeps the products below within range for drawings whose coordinates are damaged.
  const double size = std::max(std::fabs(along.x), std::fabs(along.y));
  if (size > 1e100) along /= size;
  const AcGePoint2d corners[] = {
      {box.minX, box.minY}, {box.maxX, box.minY}, {box.maxX, box.maxY}, {box.minX, box.maxY}};
  int left = 0;
  int right = 0;
  for (const AcGePoint2d& corner : corners) {
    const double side = along.crossProduct(corner - a);
    left += side > 0.0 ? 1 : 0;
    right += side < 0.0 ? 1 : 0;
  }
  return left == 4 || right == 4;
}

// Whether the arc meets the part [low, high] of the line at the given offset from the centre. The offset runs
// along x for a vertical line and along y for a horizontal one; low and high are measured from the centre
// too.
bool ArcMeetsEdge(const PlanarArc& arc, double offset, double low, double high, bool vertical) {
  // A line that just touches may miss the circle by the rounding of its offset.
  const double rounding =
      4.0 * std::numeric_limits<double>::epsilon() * (arc.radius + std::hypot(arc.center.x, arc.center.y));
  if (!(std::fabs(offset) <= arc.radius + rounding)) return false;
  const double clamped = std::clamp(offset, -arc.radius, arc.radius);
  const double half = std::sqrt(arc.radius - clamped) * std::sqrt(arc.radius + clamped);
  for (const double along : {half, -half}) {
    if (!(along >= low && along <= high)) continue;
    const AcGeVector2d direction = vertical ? AcGeVector2d(clamped, along) : AcGeVector2d(along, clamped);
    if (arc.Covers(direction.angle())) return true;
  }
  return false;
}

} // namespace

bool SegmentTouchesBox(const AcGePoint2d& a, const AcGePoint2d& b, const Box2d& box) {
  if (!IsFinite(a) || !IsFinite(b)) return false;
  return box.Overlaps(Box2d::FromCorners(a, b)) && !LineMisses(a, b - a, box);
}

bool ArcTouchesBox(const PlanarArc& arc, const Box2d& box) {
  // The extents of an arc that is not finite are empty and overlap nothing.
  if (!box.Overlaps(ArcExtents(arc))) return false;
  if (box.Contains(arc.PointAt(arc.startAngle)) || box.Contains(arc.PointAt(arc.startAngle + arc.sweep))) {
    return true;
  }
  // With both ends outside, an arc that enters the rectangle does so through its border.
  const double left = box.minX - arc.center.x;
  const double right = box.maxX - arc.center.x;
  const double bottom = box.minY - arc.center.y;
  const double top = box.maxY - arc.center.y;
  return ArcMeetsEdge(arc, left, bottom, top, true) || ArcMeetsEdge(arc, right, bottom, top, true) ||
         ArcMeetsEdge(arc, bottom, left, right, false) || ArcMeetsEdge(arc, top, left, right, false);
}

bool BulgeTouchesBox(const AcGePoint2d& start, const AcGePoint2d& end, double bulge, const Box2d& box) {
  const auto arc = ArcFromBulge(start, end, bulge);
  if (!arc) return SegmentTouchesBox(start, end, box);
  return box.Contains(start) || box.Contains(end) || ArcTouchesBox(*arc, box);
}

bool SegmentInsideBox(const AcGePoint2d& a, const AcGePoint2d& b, const Box2d& box) {
  return box.Contains(a) && box.Contains(b);
}

bool ArcInsideBox(const PlanarArc& arc, const Box2d& box) {
  return box.Contains(ArcExtents(arc));
}

bool BulgeInsideBox(const AcGePoint2d& start, const AcGePoint2d& end, double bulge, const Box2d& box) {
  return SegmentInsideBox(start, end, box) && box.Contains(BulgeExtents(start, end, bulge));
}

} // namespace ge
