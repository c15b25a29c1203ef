// Transformation of what entities store: normal, centre, angles, vertices.
#include "host/ge/CurveTransform.h"

#include <cmath>

namespace ge {
namespace {

Curve TransformedArc(const Curve& curve, const AcGeMatrix3d& matrix, const AcGeVector3d& normal,
                     bool mirrored) {
  const CurveFrame& from = curve.Frame();
  const PlanarArc& arc = curve.Pieces().front().arc;
  // The angle where the new arc starts, from the direction alone, so that a distant centre costs no digits.
  const double angle = mirrored ? arc.startAngle + arc.sweep : arc.startAngle;
  const AcGeVector3d out = matrix * (from.xAxis * std::cos(angle) + from.yAxis * std::sin(angle));
  const CurveFrame axes = CurveFrame::OfNormal(normal, 0.0);
  const double start = AcGeVector2d(out.dotProduct(axes.xAxis), out.dotProduct(axes.yAxis)).angle();
  const double radius = arc.radius * matrix.scale();
  if (curve.Kind() == CurveKind::kCircle) return Curve::Circle(matrix * curve.Center(), normal, radius);
  // A full turn must not become an arc without a sweep.
  const double end = curve.IsClosed() ? start : start + arc.sweep;
  return Curve::Arc(matrix * curve.Center(), normal, radius, start, end);
}

Curve TransformedPolyline(const Curve& curve, const AcGeMatrix3d& matrix, const AcGeVector3d& normal,
                          bool mirrored) {
  const CurveFrame level = CurveFrame::OfNormal(normal, 0.0);
  const double elevation = level.Height(matrix * curve.Frame().origin);
  const CurveFrame to = CurveFrame::OfNormal(normal, elevation);
  std::vector<PolylineVertex> vertices = curve.Vertices();
  for (PolylineVertex& v : vertices) {
    v.point = to.ToPlane(matrix * curve.Frame().ToWorld(v.point));
    if (mirrored) v.bulge = -v.bulge;
  }
  return Curve::Polyline(vertices, curve.IsClosed(), normal, elevation);
}

} // namespace

CurveResult<Curve> Transformed(const Curve& curve, const AcGeMatrix3d& matrix) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  const auto finish = [](Curve moved) -> CurveResult<Curve> {
    if (moved.Status() != CurveStatus::kOk) return moved.Status();
    return moved;
  };
  if (curve.Kind() == CurveKind::kLine)
    return finish(Curve::Line(matrix * curve.PieceStart(0), matrix * curve.PieceEnd(0)));
  for (const auto& row : matrix.entry) {
    for (const double entry : row) {
      if (!std::isfinite(entry)) return CurveStatus::kNotFinite;
    }
  }
  if (!matrix.isUniScaledOrtho()) return CurveStatus::kNotUniform;
  const AcGeVector3d turned = matrix * curve.Normal();
  const double size = turned.length();
  if (!(size > 0.0)) return CurveStatus::kNotUniform;
  const bool mirrored = matrix.det() < 0.0;
  if (curve.Kind() == CurveKind::kPolyline)
    return finish(TransformedPolyline(curve, matrix, turned / size, mirrored));
  return finish(TransformedArc(curve, matrix, turned / size, mirrored));
}

} // namespace ge
