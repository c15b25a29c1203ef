// Cutting curves into parts.
#include "host/ge/CurveSplit.h"

#include "host/ge/CurveTolerance.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ge {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

double Key(const CurvePlace& place) {
  return static_cast<double>(place.piece) + place.fraction;
}

struct Cut {
  CurvePlace place;
  double distance = 0.0;
};

// Where each piece begins, and at the end the whole length: taken once, so that many cuts cost no square.
std::vector<double> PieceDistances(const Curve& curve) {
  std::vector<double> distances{0.0};
  for (const CurvePiece& piece : curve.Pieces()) distances.push_back(distances.back() + piece.length);
  return distances;
}

double Magnitude(const CurveFrame& frame) {
  const AcGePoint3d& o = frame.origin;
  return std::max({std::fabs(o.x), std::fabs(o.y), std::fabs(o.z)});
}

CurvePiece SubPiece(const Curve& curve, const CurvePiece& piece, double from, double to) {
  if (from == 0.0 && to == 1.0) return piece;
  const double offset = Magnitude(curve.Frame());
  if (!piece.isArc) return StraightPiece(PointAt(piece, from), PointAt(piece, to), offset);
  const double sweep = piece.arc.sweep * (to - from);
  if (curve.Kind() == CurveKind::kPolyline)
    return BulgePiece(PointAt(piece, from), PointAt(piece, to), std::tan(sweep / 4.0), offset);
  PlanarArc arc = piece.arc;
  arc.startAngle = NormalizeAngle(arc.startAngle + arc.sweep * from);
  arc.sweep = sweep;
  return ArcPiece(arc, offset);
}

// A place so near a vertex that the rest of the piece would have no length is moved to it.
CurvePlace AtVertex(const Curve& curve, CurvePlace place) {
  const CurvePiece& piece = curve.Pieces()[place.piece];
  const double tolerance = CurveTolerance(piece.magnitude);
  if (place.fraction * piece.length <= tolerance)
    place.fraction = 0.0;
  else if ((1.0 - place.fraction) * piece.length <= tolerance)
    place.fraction = 1.0;
  return place;
}

void AddBetween(const Curve& curve, const CurvePlace& from, const CurvePlace& to,
                std::vector<CurvePiece>& into) {
  const auto pieces = curve.Pieces();
  for (std::size_t i = from.piece; i <= to.piece; ++i) {
    const double start = i == from.piece ? from.fraction : 0.0;
    const double end = i == to.piece ? to.fraction : 1.0;
    if (start < end) into.push_back(SubPiece(curve, pieces[i], start, end));
  }
}

CurvePiece FullTurnFrom(const CurvePiece& piece, double fraction, double offset) {
  PlanarArc arc = piece.arc;
  arc.startAngle = NormalizeAngle(arc.startAngle + arc.sweep * fraction);
  return ArcPiece(arc, offset);
}

// An arc or circle from one angle on, past its own start if need be.
CurvePiece AroundStart(const Curve& curve, double from, double to) {
  const CurvePiece& piece = curve.Pieces().front();
  const double offset = Magnitude(curve.Frame());
  if (to <= from) to += 1.0;
  CurvePiece turned = FullTurnFrom(piece, from, offset);
  if (to - from >= 1.0) return turned;
  turned.arc.sweep = kTurn * (to - from);
  return ArcPiece(turned.arc, offset);
}

} // namespace

CurveResult<Curve> PartBetween(const Curve& curve, const CurvePlace& fromPlace, const CurvePlace& toPlace) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  const CurvePlace from = AtVertex(curve, fromPlace);
  const CurvePlace to = AtVertex(curve, toPlace);
  const bool forward = Key(from) < Key(to);
  if (!forward && !curve.IsClosed()) return CurveStatus::kDegenerate;
  const CurveKind kind = curve.Kind() == CurveKind::kCircle ? CurveKind::kArc : curve.Kind();
  if (kind == CurveKind::kLine)
    return Curve::Line(curve.PieceWorldPoint(0, from.fraction), curve.PieceWorldPoint(0, to.fraction));
  std::vector<CurvePiece> pieces;
  if (kind == CurveKind::kArc && curve.IsClosed()) {
    pieces.push_back(AroundStart(curve, from.fraction, to.fraction));
  } else if (forward) {
    AddBetween(curve, from, to, pieces);
  } else {
    AddBetween(curve, from, {curve.Pieces().size() - 1, 1.0}, pieces);
    AddBetween(curve, {0, 0.0}, to, pieces);
  }
  return Curve::OfPieces(kind, curve.Frame(), std::move(pieces), false);
}

CurveResult<std::vector<Curve>> SplitAtParameters(const Curve& curve, std::span<const double> parameters) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  const std::vector<double> distances = PieceDistances(curve);
  const double tolerance = curve.Tolerance();
  const Cut first{{0, 0.0}, 0.0};
  const Cut last{{curve.Pieces().size() - 1, 1.0}, distances.back()};
  std::vector<Cut> cuts;
  for (const double parameter : parameters) {
    const auto found = PlaceAtParameter(curve, parameter);
    if (!found) return found.status;
    const CurvePlace& place = found.value;
    const double distance = distances[place.piece] + place.fraction * curve.Pieces()[place.piece].length;
    if (distance > tolerance && distance < last.distance - tolerance)
      cuts.push_back({AtVertex(curve, place), distance});
    else if (curve.IsClosed())
      cuts.push_back(first);
  }
  std::sort(cuts.begin(), cuts.end(), [](const Cut& a, const Cut& b) { return Key(a.place) < Key(b.place); });
  const auto same = [&](const Cut& a, const Cut& b) { return b.distance - a.distance <= tolerance; };
  cuts.erase(std::unique(cuts.begin(), cuts.end(), same), cuts.end());
  if (cuts.empty()) return std::vector<Curve>{curve};
  if (curve.IsClosed()) {
    cuts.push_back(cuts.front());
  } else {
    cuts.insert(cuts.begin(), first);
    cuts.push_back(last);
  }
  std::vector<Curve> parts;
  for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
    auto part = PartBetween(curve, cuts[i].place, cuts[i + 1].place);
    if (!part) return part.status;
    parts.push_back(std::move(part.value));
  }
  return parts;
}

CurveResult<Curve> Reversed(const Curve& curve) {
  if (curve.Status() != CurveStatus::kOk) return curve.Status();
  if (curve.Kind() == CurveKind::kLine) return Curve::Line(curve.PieceEnd(0), curve.PieceStart(0));
  if (IsLoneVertex(curve)) return curve;
  if (curve.Kind() == CurveKind::kPolyline) {
    std::vector<CurvePiece> pieces;
    for (const CurvePiece& piece : curve.Pieces()) pieces.push_back(Reversed(piece));
    std::reverse(pieces.begin(), pieces.end());
    return Curve::OfPieces(CurveKind::kPolyline, curve.Frame(), std::move(pieces), curve.IsClosed());
  }
  const CurveFrame& from = curve.Frame();
  const CurveFrame to = CurveFrame::OfNormal(-from.normal, -from.Elevation());
  const PlanarArc& old = curve.Pieces().front().arc;
  // The direction to the old end, as a vector, so that a distant centre costs no digits.
  const double angle = old.startAngle + old.sweep;
  const AcGeVector3d out = from.xAxis * std::cos(angle) + from.yAxis * std::sin(angle);
  PlanarArc arc;
  arc.center = to.ToPlane(curve.Center());
  arc.radius = old.radius;
  arc.startAngle = AcGeVector2d(out.dotProduct(to.xAxis), out.dotProduct(to.yAxis)).angle();
  arc.sweep = old.sweep;
  if (curve.Kind() == CurveKind::kCircle) arc.startAngle = 0.0;
  return Curve::OfPieces(curve.Kind(), to, {ArcPiece(arc, Magnitude(to))}, false);
}

} // namespace ge
