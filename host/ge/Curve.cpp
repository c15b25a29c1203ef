// Construction of curves from what entities store, and back.
#include "host/ge/Curve.h"

#include "host/ge/CurveTolerance.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <utility>

namespace ge {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

bool Usable(std::initializer_list<double> numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [](double n) { return std::fabs(n) <= kLargestNumber; });
}

bool Usable(const AcGePoint3d& p) {
  return Usable({p.x, p.y, p.z});
}

double Magnitude(const AcGePoint3d& p) {
  return std::max({std::fabs(p.x), std::fabs(p.y), std::fabs(p.z)});
}

} // namespace

Curve Curve::Line(const AcGePoint3d& start, const AcGePoint3d& end) {
  Curve curve(CurveKind::kLine);
  curve.m_start = start;
  curve.m_end = end;
  if (!Usable(start) || !Usable(end)) {
    curve.m_status = CurveStatus::kNotFinite;
    return curve;
  }
  curve.m_frame = CurveFrame::OfLine(start, end);
  curve.m_only = StraightPiece(curve.m_frame.ToPlane(start), curve.m_frame.ToPlane(end));
  curve.m_only.magnitude = std::max(Magnitude(start), Magnitude(end));
  curve.Measure();
  return curve;
}

Curve Curve::Arc(const AcGePoint3d& center, const AcGeVector3d& normal, double radius, double startAngle,
                 double endAngle) {
  Curve curve(CurveKind::kArc);
  if (!Usable(center) || !Usable({radius, startAngle, endAngle}))
    curve.m_status = CurveStatus::kNotFinite;
  else if (radius < 0.0)
    curve.m_status = CurveStatus::kDegenerate;
  if (curve.m_status != CurveStatus::kOk) return curve;
  curve.m_frame = CurveFrame::OfNormal(normal, 0.0);
  curve.m_frame = CurveFrame::OfNormal(normal, curve.m_frame.Height(center));
  const AcGePoint2d middle = curve.m_frame.ToPlane(center);
  curve.m_only =
      ArcPiece(ArcFromAngles(middle, radius, startAngle, endAngle), Magnitude(curve.m_frame.origin));
  curve.Measure();
  return curve;
}

Curve Curve::Circle(const AcGePoint3d& center, const AcGeVector3d& normal, double radius) {
  Curve curve = Arc(center, normal, radius, 0.0, 0.0);
  curve.m_kind = CurveKind::kCircle;
  return curve;
}

Curve Curve::Polyline(std::span<const PolylineVertex> vertices, bool closed, const AcGeVector3d& normal,
                      double elevation) {
  Curve curve(CurveKind::kPolyline);
  if (vertices.empty()) curve.m_status = CurveStatus::kDegenerate;
  bool usable = Usable({elevation});
  for (const PolylineVertex& v : vertices) usable = usable && Usable({v.point.x, v.point.y});
  if (!usable) curve.m_status = CurveStatus::kNotFinite;
  if (curve.m_status != CurveStatus::kOk) return curve;
  curve.m_closed = closed;
  curve.m_frame = CurveFrame::OfNormal(normal, elevation);
  const double offset = Magnitude(curve.m_frame.origin);
  curve.m_lone = vertices.size() == 1;
  if (curve.m_lone) {
    curve.m_only = StraightPiece(vertices[0].point, vertices[0].point, offset);
    curve.m_only.bulge = vertices[0].bulge;
    curve.Measure();
    return curve;
  }
  const std::size_t count = vertices.size() - (closed ? 0 : 1);
  if (count > 1) curve.m_pieces.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const AcGePoint2d& end = vertices[(i + 1) % vertices.size()].point;
    const CurvePiece piece = BulgePiece(vertices[i].point, end, vertices[i].bulge, offset);
    if (count > 1)
      curve.m_pieces.push_back(piece);
    else
      curve.m_only = piece;
  }
  curve.Measure();
  return curve;
}

Curve Curve::OfPieces(CurveKind kind, const CurveFrame& frame, std::vector<CurvePiece> pieces, bool closed) {
  Curve curve(kind);
  curve.m_frame = frame;
  curve.m_closed = closed;
  if (pieces.empty())
    curve.m_status = CurveStatus::kDegenerate;
  else if (pieces.size() == 1)
    curve.m_only = pieces.front();
  else
    curve.m_pieces = std::move(pieces);
  if (kind == CurveKind::kLine) {
    curve.m_start = frame.ToWorld(curve.m_only.start);
    curve.m_end = frame.ToWorld(curve.m_only.end);
  }
  curve.Measure();
  return curve;
}

bool Curve::IsClosed() const {
  if (m_kind == CurveKind::kPolyline) return m_closed;
  return m_kind == CurveKind::kCircle || m_only.IsFullTurn();
}

std::span<const CurvePiece> Curve::Pieces() const {
  if (!m_pieces.empty()) return m_pieces;
  return m_status == CurveStatus::kOk ? std::span<const CurvePiece>(&m_only, 1)
                                      : std::span<const CurvePiece>();
}

AcGePoint3d Curve::PieceStart(std::size_t index) const {
  return m_kind == CurveKind::kLine ? m_start : m_frame.ToWorld(Pieces()[index].start);
}

AcGePoint3d Curve::PieceEnd(std::size_t index) const {
  return m_kind == CurveKind::kLine ? m_end : m_frame.ToWorld(Pieces()[index].end);
}

AcGePoint3d Curve::PieceWorldPoint(std::size_t index, double fraction) const {
  if (fraction == 0.0) return PieceStart(index);
  if (fraction == 1.0) return PieceEnd(index);
  // A line in space leaves its plane out of it.
  if (m_kind == CurveKind::kLine)
    return fraction > 0.5 ? m_end - (m_end - m_start) * (1.0 - fraction)
                          : m_start + (m_end - m_start) * fraction;
  return m_frame.ToWorld(PointAt(Pieces()[index], fraction));
}

double Curve::Tolerance() const {
  return CurveTolerance(m_magnitude);
}

void Curve::Measure() {
  for (const CurvePiece& piece : Pieces()) {
    m_magnitude = std::max(m_magnitude, piece.magnitude);
    m_box.Add(piece.box);
  }
}

AcGePoint3d Curve::Center() const {
  return m_frame.ToWorld(m_only.arc.center);
}

double Curve::Radius() const {
  return m_only.arc.radius;
}

double Curve::StartAngle() const {
  return m_only.arc.startAngle;
}

double Curve::EndAngle() const {
  return m_only.arc.EndAngle();
}

std::vector<PolylineVertex> Curve::Vertices() const {
  std::vector<PolylineVertex> vertices;
  if (m_kind != CurveKind::kPolyline || m_status != CurveStatus::kOk) return vertices;
  for (const CurvePiece& piece : Pieces()) vertices.push_back({piece.start, piece.bulge});
  if (!m_closed && !m_lone) vertices.push_back({Pieces().back().end, 0.0});
  return vertices;
}

bool IsLoneVertex(const Curve& curve) {
  return curve.m_lone;
}

} // namespace ge
