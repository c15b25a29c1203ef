// SPLINE, and HELIX, whose curve is stored as one.
#include "host/scene/Pen.h"
#include "host/scene/SplineCurve.h"
#include "host/scene/painters/Painters.h"

#include <algorithm>

void scene::painters::Spline(Pen& pen) {
  constexpr long long kClosed = 1;
  const EntityTags& tags = pen.tags();
  SplineCurve curve;
  curve.degree = static_cast<int>(std::clamp<long long>(tags.integer(71, 3), 0, 100));
  curve.controls = tags.points(10);
  curve.fits = tags.points(11);
  // A helix has codes of its own behind its spline.
  int markers = 0;
  for (const DxfTag& tag : tags) {
    if (tag.code == 100 && ++markers == 2) break;
    if (tag.code == 40) curve.knots.push_back(RealOf(tag));
    if (tag.code == 41) curve.weights.push_back(RealOf(tag, 1));
  }
  if (curve.controls.empty() && (tags.integer(70) & kClosed) != 0 && !curve.fits.empty())
    curve.fits.push_back(AcGePoint3d(curve.fits.front()));
  PathPen path = pen.path();
  if (!curve.addTo(path)) return pen.leaveOut(L"控制点不足的样条曲线");
  pen.stroke(path, {.throughVertices = true});
}
