#include "plugin/graph/CurveLength.h"

#include <vector>

#include "host/db/AcDbCurves.h"
#include "host/ge/CurveParameters.h"

namespace {

std::optional<ge::Curve> GeometryOf(const AcDbCurve& curve) {
  if (const auto* line = AcDbLine::cast(&curve)) return ge::Curve::Line(line->startPoint(), line->endPoint());
  if (const auto* arc = AcDbArc::cast(&curve))
    return ge::Curve::Arc(arc->center(), arc->normal(), arc->radius(), arc->startAngle(), arc->endAngle());
  if (const auto* circle = AcDbCircle::cast(&curve))
    return ge::Curve::Circle(circle->center(), circle->normal(), circle->radius());
  const auto* polyline = AcDbPolyline::cast(&curve);
  if (!polyline) return std::nullopt;
  std::vector<ge::PolylineVertex> vertices(polyline->numVerts());
  for (unsigned int i = 0; i < polyline->numVerts(); ++i) {
    polyline->getPointAt(i, vertices[i].point);
    polyline->getBulgeAt(i, vertices[i].bulge);
  }
  return ge::Curve::Polyline(vertices, polyline->isClosed(), polyline->normal(), polyline->elevation());
}

} // namespace

std::optional<double> ZP::CurveLength(const AcDbCurve& curve) {
  const auto geometry = GeometryOf(curve);
  if (!geometry) return std::nullopt;
  const auto length = ge::Length(*geometry);
  if (!length) return std::nullopt;
  return length.value;
}
