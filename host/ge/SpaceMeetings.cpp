// Candidates from each kind of pair, kept when they are within the tolerance of both pieces.
#include "host/ge/SpaceMeetings.h"

#include "host/ge/PairPlane.h"
#include "host/ge/PieceCarriers.h"

#include <cmath>

namespace ge {
namespace {

class SpaceMeeting {
 public:
  SpaceMeeting(const SpacePiece& first, const SpacePiece& second, double tolerance)
      : m_first(first), m_second(second), m_tolerance(tolerance) {}

  PieceMeetings Solve() {
    AddEnds();
    if (m_first.reached.piece->isArc && m_second.reached.piece->isArc)
      AddOnCommonLine();
    else if (m_first.reached.piece->isArc)
      AddPiercing(m_second, m_first);
    else
      AddPiercing(m_first, m_second);
    return m_result;
  }

 private:
  void Add(const AcGePoint3d& p, MeetingAt at, double fraction);
  void AddEnds();
  void AddSolution(const AcGePoint3d& p);
  void AddPiercing(const SpacePiece& line, const SpacePiece& arc);
  void AddOnCommonLine();

  const SpacePiece& m_first;
  const SpacePiece& m_second;
  const double m_tolerance;
  PieceMeetings m_result;
};

void SpaceMeeting::Add(const AcGePoint3d& p, MeetingAt at, double fraction) {
  if (m_result.pointCount == static_cast<int>(std::size(m_result.points))) return;
  for (int i = 0; i < m_result.pointCount; ++i) {
    const PieceMeeting& other = m_result.points[i];
    if (m_first.frame->ToWorld(other.point).distanceTo(p) <= m_tolerance) return;
    // The same meeting, when the pieces stay together from the one to the other.
    if (m_second.DistanceTo(m_first.PointAt((other.fraction + fraction) / 2.0)) <= m_tolerance) return;
  }
  m_result.Add(PieceMeeting{fraction, m_first.frame->ToPlane(p), at});
}

void SpaceMeeting::AddEnds() {
  const auto add = [&](const SpacePiece& of, const SpacePiece& other, bool has, double end, MeetingAt at) {
    const AcGePoint3d p = of.PointAt(end);
    if (!has || other.DistanceTo(p) > m_tolerance) return;
    Add(p, at, &of == &m_first ? end : NearestFraction(m_first.reached, m_first.frame->ToPlane(p)));
  };
  add(m_first, m_second, m_first.reached.HasStart(), 0.0, MeetingAt::kFirstStart);
  add(m_first, m_second, m_first.reached.HasEnd(), 1.0, MeetingAt::kFirstEnd);
  add(m_second, m_first, m_second.reached.HasStart(), 0.0, MeetingAt::kSecondStart);
  add(m_second, m_first, m_second.reached.HasEnd(), 1.0, MeetingAt::kSecondEnd);
}

void SpaceMeeting::AddSolution(const AcGePoint3d& p) {
  if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z)) return;
  const double fraction = m_first.FractionAt(p);
  if (!Reaches(m_first.reached, fraction) || !Reaches(m_second.reached, m_second.FractionAt(p))) return;
  if (m_first.DistanceTo(p) > m_tolerance || m_second.DistanceTo(p) > m_tolerance) return;
  Add(p, MeetingAt::kBetween, fraction);
}

void SpaceMeeting::AddPiercing(const SpacePiece& line, const SpacePiece& arc) {
  const CurvePiece& piece = *line.reached.piece;
  const AcGePoint3d start = line.PointAt(0.0);
  const AcGePoint3d end = line.PointAt(1.0);
  const double startHeight = arc.frame->Height(start);
  const double rise = arc.frame->Height(end) - startHeight;
  if (rise != 0.0) AddSolution(line.PointAt(-startHeight / rise));
  // A line that dips under the tolerance only little by little may meet the circle beside that point.
  const CurvePiece shadow = StraightPiece(arc.frame->ToPlane(start), arc.frame->ToPlane(end));
  if (!(shadow.length > m_tolerance) || !(piece.length > 0.0)) return;
  const auto meetings = MeetCarriers({&shadow, true, true}, arc.reached, m_tolerance);
  for (int i = 0; i < meetings.count; ++i)
    AddSolution(line.PointAt(ge::FractionAt(shadow, meetings.points[i])));
}

void SpaceMeeting::AddOnCommonLine() {
  // In the plane coordinates of either arc, seen from its centre, the line a x + b y = c.
  const auto addOf = [&](const SpacePiece& of, const SpacePiece& other) {
    const CurvePiece& arc = *of.reached.piece;
    const AcGeVector2d across(other.frame->normal.dotProduct(of.frame->xAxis),
                              other.frame->normal.dotProduct(of.frame->yAxis));
    const double size = across.length();
    const double height = other.frame->Height(of.frame->ToWorld(arc.arc.center));
    if (!(size > 0.0) || std::fabs(height) / size > arc.arc.radius + m_tolerance) return;
    const AcGeVector2d n = across / size;
    const AcGePoint2d foot = arc.arc.center - n * (height / size);
    CurvePiece line = StraightPiece(foot, foot + n.perpVector());
    line.along = n.perpVector();
    const auto meetings = MeetCarriers({&line, true, true}, of.reached, m_tolerance);
    for (int i = 0; i < meetings.count; ++i) AddSolution(of.frame->ToWorld(meetings.points[i]));
  };
  addOf(m_first, m_second);
  addOf(m_second, m_first);
}

PieceMeetings MeetLinesInSpace(const SpacePiece& first, const SpacePiece& second, double tolerance) {
  const auto frame = PlaneOfLines(first.PointAt(0.0), first.PointAt(1.0), second.PointAt(0.0),
                                  second.PointAt(1.0), tolerance);
  if (!frame) return {};
  const CurvePiece a = Moved(*first.reached.piece, *first.frame, *frame);
  const CurvePiece b = Moved(*second.reached.piece, *second.frame, *frame);
  auto meetings = MeetPieces({&a, first.reached.openStart, first.reached.openEnd},
                             {&b, second.reached.openStart, second.reached.openEnd}, tolerance);
  for (int i = 0; i < meetings.pointCount; ++i) {
    AcGePoint2d& p = meetings.points[i].point;
    p = first.frame->ToPlane(frame->ToWorld(p));
  }
  return meetings;
}

} // namespace

double SpacePiece::DistanceTo(const AcGePoint3d& p) const {
  return std::hypot(ge::DistanceTo(reached, frame->ToPlane(p)), frame->Height(p));
}

PieceMeetings MeetInSpace(const SpacePiece& first, const SpacePiece& second, double tolerance) {
  if (!first.reached.piece->isArc && !second.reached.piece->isArc)
    return MeetLinesInSpace(first, second, tolerance);
  const SpacePiece& other = first.reached.piece->isArc ? second : first;
  const SpacePiece& arc = first.reached.piece->isArc ? first : second;
  // A straight piece, or an arc, in the plane of the arc.
  if (HeightOver(*other.reached.piece, *other.frame, *arc.frame) > tolerance)
    return SpaceMeeting(first, second, tolerance).Solve();
  const CurveFrame& plane = *arc.frame;
  const CurvePiece moved = Moved(*other.reached.piece, *other.frame, plane);
  const ReachedPiece reached{&moved, other.reached.openStart, other.reached.openEnd};
  auto meetings = &arc == &first ? MeetPieces(arc.reached, reached, tolerance)
                                 : MeetPieces(reached, arc.reached, tolerance);
  for (int i = 0; i < meetings.pointCount; ++i) {
    AcGePoint2d& p = meetings.points[i].point;
    p = first.frame->ToPlane(plane.ToWorld(p));
  }
  return meetings;
}

} // namespace ge
