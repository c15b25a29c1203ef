// Brings two curves into one plane, lets their pieces meet, and puts the meetings together.
#include "host/ge/CurveIntersection.h"

#include "host/ge/ClosePieces.h"
#include "host/ge/CommonStretches.h"
#include "host/ge/CurveClosest.h"
#include "host/ge/CurveTolerance.h"
#include "host/ge/PairPlane.h"
#include "host/ge/SpaceMeetings.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace ge {
namespace {

struct Found {
  CurveMeeting meeting;
  MeetingAt at = MeetingAt::kBetween;
  double tolerance = 0.0;
};

// Up to so many pairs of pieces comparing all boxes is quicker than sorting them.
constexpr std::size_t kFewPairs = 64;

class CurvePair {
 public:
  CurvePair(const Curve& first, const Curve& second, ExtendCurves extend)
      : m_first(first), m_second(second),
        m_firstExtended(extend == ExtendCurves::kFirst || extend == ExtendCurves::kBoth),
        m_secondExtended(extend == ExtendCurves::kSecond || extend == ExtendCurves::kBoth),
        m_tolerance(std::max(first.Tolerance(), second.Tolerance())) {}

  CurveIntersections Solve();

 private:
  // What nearly all pairs of a drawing are, told by their boxes alone.
  bool AreClearlyApart() const;
  void VisitCommonPlane();
  void VisitFewPieces();
  void VisitSpace();
  void VisitPair(std::size_t i, std::size_t j);
  void Take(const PieceMeetings& meetings, std::size_t i, std::size_t j, double tolerance,
            const CurveFrame& frame);
  AcGePoint3d WorldPoint(const PieceMeeting& meeting, std::size_t i, std::size_t j,
                         const CurveFrame& frame) const;
  double ParameterOn(std::size_t piece, double fraction) const;
  void DropInnerPoints();
  void DropDuplicates();
  ReachedPiece Reached(const Curve& curve, std::size_t i, bool extended,
                       std::span<const CurvePiece> pieces) const;

  const Curve& m_first;
  const Curve& m_second;
  const bool m_firstExtended;
  const bool m_secondExtended;
  const double m_tolerance;
  PairPlane m_plane;
  std::vector<Found> m_found;
  std::vector<CurveStretch> m_stretches;
};

ReachedPiece CurvePair::Reached(const Curve& curve, std::size_t i, bool extended,
                                std::span<const CurvePiece> pieces) const {
  if (!extended) return {&pieces[i]};
  const ReachedPiece own = Reach(curve, i, true);
  return {&pieces[i], own.openStart, own.openEnd};
}

AcGePoint3d CurvePair::WorldPoint(const PieceMeeting& meeting, std::size_t i, std::size_t j,
                                  const CurveFrame& frame) const {
  switch (meeting.at) {
  case MeetingAt::kFirstStart:
    return m_first.PieceStart(i);
  case MeetingAt::kFirstEnd:
    return m_first.PieceEnd(i);
  case MeetingAt::kSecondStart:
    return m_second.PieceStart(j);
  case MeetingAt::kSecondEnd:
    return m_second.PieceEnd(j);
  case MeetingAt::kBetween:
    break;
  }
  return frame.ToWorld(meeting.point);
}

double CurvePair::ParameterOn(std::size_t piece, double fraction) const {
  // A closed curve has one place with two parameters, of which the first counts.
  if (fraction == 1.0 && m_first.IsClosed() && piece + 1 == m_first.Pieces().size())
    return ParameterOf(m_first, {});
  return ReachedParameter(m_first, piece, fraction);
}

void CurvePair::Take(const PieceMeetings& meetings, std::size_t i, std::size_t j, double tolerance,
                     const CurveFrame& frame) {
  for (int n = 0; n < meetings.pointCount; ++n) {
    const PieceMeeting& meeting = meetings.points[n];
    m_found.push_back(
        {{WorldPoint(meeting, i, j, frame), ParameterOn(i, meeting.fraction)}, meeting.at, tolerance});
  }
  for (int n = 0; n < meetings.stretchCount; ++n) m_stretches.push_back({i, meetings.stretches[n]});
}

void CurvePair::VisitPair(std::size_t i, std::size_t j) {
  const ReachedPiece first = Reached(m_first, i, m_firstExtended, m_plane.first);
  const ReachedPiece second = Reached(m_second, j, m_secondExtended, m_plane.second);
  const double tolerance = CurveTolerance(std::max(first.piece->magnitude, second.piece->magnitude));
  Take(MeetPieces(first, second, tolerance), i, j, tolerance, m_plane.frame);
}

void CurvePair::VisitCommonPlane() {
  const auto boxOf = [&](const Curve& curve, std::size_t i, bool extended,
                         std::span<const CurvePiece> pieces) {
    const ReachedPiece reached = Reached(curve, i, extended, pieces);
    const double infinity = std::numeric_limits<double>::infinity();
    if (reached.openStart || reached.openEnd) return Box2d{-infinity, -infinity, infinity, infinity};
    return pieces[i].box.Grown(m_tolerance);
  };
  const auto boxesOf = [&](const Curve& curve, bool extended, std::span<const CurvePiece> pieces) {
    std::vector<PieceBox> boxes;
    boxes.reserve(pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) boxes.push_back({i, boxOf(curve, i, extended, pieces)});
    return boxes;
  };
  if (m_plane.first.size() == 1 && m_plane.second.size() == 1) {
    if (boxOf(m_first, 0, m_firstExtended, m_plane.first)
            .Overlaps(boxOf(m_second, 0, m_secondExtended, m_plane.second)))
      VisitPair(0, 0);
    return;
  }
  if (m_plane.first.size() * m_plane.second.size() <= kFewPairs && !m_firstExtended && !m_secondExtended) {
    VisitFewPieces();
    return;
  }
  auto first = boxesOf(m_first, m_firstExtended, m_plane.first);
  auto second = boxesOf(m_second, m_secondExtended, m_plane.second);
  ForEachClosePair(first, second, [&](std::size_t i, std::size_t j) { VisitPair(i, j); });
}

// Short polylines, as most of a plan are: nothing is sorted and no memory taken.
void CurvePair::VisitFewPieces() {
  const auto overlap = [](const Box2d& a, const Box2d& b) {
    return a.minX <= b.maxX && b.minX <= a.maxX && a.minY <= b.maxY && b.minY <= a.maxY;
  };
  for (std::size_t i = 0; i < m_plane.first.size(); ++i) {
    const Box2d box = m_plane.first[i].box.Grown(2.0 * m_tolerance);
    for (std::size_t j = 0; j < m_plane.second.size(); ++j) {
      if (overlap(box, m_plane.second[j].box)) VisitPair(i, j);
    }
  }
}

void CurvePair::VisitSpace() {
  for (std::size_t i = 0; i < m_first.Pieces().size(); ++i) {
    const SpacePiece first{Reach(m_first, i, m_firstExtended), &m_first.Frame()};
    for (std::size_t j = 0; j < m_second.Pieces().size(); ++j) {
      const SpacePiece second{Reach(m_second, j, m_secondExtended), &m_second.Frame()};
      const double magnitude = std::max(first.reached.piece->magnitude, second.reached.piece->magnitude);
      const double tolerance = CurveTolerance(magnitude);
      Take(MeetInSpace(first, second, tolerance), i, j, tolerance, m_first.Frame());
    }
  }
}

void CurvePair::DropInnerPoints() {
  if (m_stretches.empty()) return;
  std::erase_if(m_found, [&](const Found& found) {
    const AcGePoint2d p = m_first.Frame().ToPlane(found.meeting.point);
    return LiesWithin(m_first, m_stretches, p, found.tolerance);
  });
}

void CurvePair::DropDuplicates() {
  // Exact ends first, then in the order of the curve; of the same place that one stays.
  std::sort(m_found.begin(), m_found.end(), [](const Found& a, const Found& b) {
    if ((a.at == MeetingAt::kBetween) != (b.at == MeetingAt::kBetween)) return a.at != MeetingAt::kBetween;
    return a.meeting.parameter < b.meeting.parameter;
  });
  std::vector<std::size_t> byX(m_found.size());
  std::iota(byX.begin(), byX.end(), std::size_t{0});
  std::sort(byX.begin(), byX.end(), [&](std::size_t a, std::size_t b) {
    return m_found[a].meeting.point.x < m_found[b].meeting.point.x;
  });
  std::vector<bool> dropped(m_found.size());
  for (std::size_t n = 0; n < byX.size(); ++n) {
    for (std::size_t k = n + 1; k < byX.size() && !dropped[byX[n]]; ++k) {
      Found& a = m_found[byX[n]];
      Found& b = m_found[byX[k]];
      const double tolerance = std::max(a.tolerance, b.tolerance);
      if (b.meeting.point.x - a.meeting.point.x > tolerance) break;
      if (dropped[byX[k]] || a.meeting.point.distanceTo(b.meeting.point) > tolerance) continue;
      const std::size_t kept = std::min(byX[n], byX[k]);
      const std::size_t gone = std::max(byX[n], byX[k]);
      // The place is where the first curve comes by first.
      m_found[kept].meeting.parameter = std::min(a.meeting.parameter, b.meeting.parameter);
      dropped[gone] = true;
    }
  }
  std::vector<Found> kept;
  for (std::size_t n = 0; n < m_found.size(); ++n) {
    if (!dropped[n]) kept.push_back(m_found[n]);
  }
  std::sort(kept.begin(), kept.end(),
            [](const Found& a, const Found& b) { return a.meeting.parameter < b.meeting.parameter; });
  m_found = std::move(kept);
}

bool CurvePair::AreClearlyApart() const {
  if (m_firstExtended || m_secondExtended || !m_first.Frame().SharesAxes(m_second.Frame())) return false;
  return !m_first.Box().Grown(m_tolerance).Overlaps(m_second.Box());
}

CurveIntersections CurvePair::Solve() {
  if (AreClearlyApart()) return {};
  FindPairPlane(m_first, m_second, m_tolerance, m_plane);
  if (m_plane.kind == PairPlaneKind::kCommon) VisitCommonPlane();
  if (m_plane.kind == PairPlaneKind::kCrossing) VisitSpace();
  CurveIntersections result;
  result.overlap = !m_stretches.empty();
  DropInnerPoints();
  if (m_found.size() > 1) DropDuplicates();
  for (const Found& found : m_found) result.points.push_back(found.meeting);
  return result;
}

} // namespace

CurveIntersections Intersect(const Curve& first, const Curve& second, ExtendCurves extend) {
  if (first.Status() != CurveStatus::kOk) return {first.Status(), {}, false};
  if (second.Status() != CurveStatus::kOk) return {second.Status(), {}, false};
  return CurvePair(first, second, extend).Solve();
}

} // namespace ge
