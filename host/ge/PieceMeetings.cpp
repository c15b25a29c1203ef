// Ends of either piece that lie on the other, and solutions between the ends.
#include "host/ge/PieceMeetings.h"

#include "host/ge/PieceCarriers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

namespace ge {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

class Meeting {
 public:
  Meeting(const ReachedPiece& first, const ReachedPiece& second, double tolerance)
      : m_first(first), m_second(second), m_tolerance(tolerance),
        m_carriers(MeetCarriers(first, second, tolerance)) {}

  PieceMeetings Solve();

 private:
  void AddEnd(const AcGePoint2d& p, MeetingAt at);
  void AddEnds();
  void AddSolutions();
  // Joins neighbouring ends: in a stretch, or to the one that is nearest to the solution.
  void JoinEnds();
  void JoinPair(int i, int j, double turn);
  bool AddLineStretch();
  bool AddWholeCircle();
  bool RunsAlong(double from, double to) const;
  bool ShowsCurvature(double from, double to) const;
  double ToSolution(const AcGePoint2d& p) const;
  // How much fraction a full turn is.
  double Turn() const { return 2.0 * std::numbers::pi / std::fabs(m_first.piece->arc.sweep); }
  PieceMeeting Snapped(const AcGePoint2d& p) const;
  // Whether two points are one within the tolerance; most are told apart by one coordinate.
  bool AreOne(const AcGePoint2d& p, const AcGePoint2d& q) const {
    return std::fabs(p.x - q.x) <= m_tolerance && std::fabs(p.y - q.y) <= m_tolerance &&
           p.distanceTo(q) <= m_tolerance;
  }

  const ReachedPiece& m_first;
  const ReachedPiece& m_second;
  const double m_tolerance;
  const CarrierMeetings m_carriers;
  int m_endCount = 0;
  PieceMeeting m_ends[4];
  bool m_dropped[4] = {};
  PieceMeetings m_result;
};

// What most ends and solutions are, told by the box. Twice the tolerance covers the rounding of an arc's
// extents.
bool LiesClearlyAside(const ReachedPiece& reached, const AcGePoint2d& p, double tolerance) {
  if (reached.openStart || reached.openEnd) return false;
  const Box2d& box = reached.piece->box;
  const double slack = 2.0 * tolerance;
  return p.x < box.minX - slack || p.x > box.maxX + slack || p.y < box.minY - slack || p.y > box.maxY + slack;
}

double Meeting::ToSolution(const AcGePoint2d& p) const {
  double least = kInfinity;
  for (int i = 0; i < m_carriers.count; ++i) least = std::min(least, p.distanceTo(m_carriers.points[i]));
  return least;
}

bool Meeting::RunsAlong(double from, double to) const {
  return DistanceTo(m_second, PointAt(*m_first.piece, (from + to) / 2.0)) <= m_tolerance;
}

bool Meeting::ShowsCurvature(double from, double to) const {
  const PlanarArc& arc = m_first.piece->arc;
  const double quarter = std::sin(arc.sweep * (to - from) / 4.0);
  return 2.0 * arc.radius * quarter * quarter > m_tolerance;
}

void Meeting::AddEnd(const AcGePoint2d& p, MeetingAt at) {
  const bool ofFirst = at == MeetingAt::kFirstStart || at == MeetingAt::kFirstEnd;
  const ReachedPiece& other = ofFirst ? m_second : m_first;
  if (LiesClearlyAside(other, p, m_tolerance) || DistanceTo(other, p) > m_tolerance) return;
  for (int i = 0; i < m_endCount; ++i) {
    if (AreOne(p, m_ends[i].point)) return;
  }
  double fraction = at == MeetingAt::kFirstEnd ? 1.0 : 0.0;
  if (!ofFirst) fraction = NearestFraction(m_first, p);
  int place = m_endCount++; // kept in the order of the first piece
  for (; place > 0 && m_ends[place - 1].fraction > fraction; --place) m_ends[place] = m_ends[place - 1];
  m_ends[place] = {fraction, p, at};
}

void Meeting::AddEnds() {
  if (m_first.HasStart()) AddEnd(m_first.piece->start, MeetingAt::kFirstStart);
  if (m_first.HasEnd()) AddEnd(m_first.piece->end, MeetingAt::kFirstEnd);
  if (m_second.HasStart()) AddEnd(m_second.piece->start, MeetingAt::kSecondStart);
  if (m_second.HasEnd()) AddEnd(m_second.piece->end, MeetingAt::kSecondEnd);
}

void Meeting::JoinPair(int i, int j, double turn) {
  const double from = m_ends[i].fraction;
  const double to = m_ends[j].fraction + turn;
  if (!RunsAlong(from, to)) return;
  const bool bothArcs = m_first.piece->isArc && m_second.piece->isArc;
  const bool bothLines = !m_first.piece->isArc && !m_second.piece->isArc;
  if (bothLines || (bothArcs && (m_carriers.coincident || ShowsCurvature(from, to))))
    m_result.Add(PieceStretch{from, to});
  else
    m_dropped[ToSolution(m_ends[i].point) <= ToSolution(m_ends[j].point) ? j : i] = true;
}

void Meeting::JoinEnds() {
  for (int i = 0; i + 1 < m_endCount; ++i) {
    // The nearest of three takes part in both comparisons.
    const int left = i > 0 && m_dropped[i] ? i - 1 : i;
    JoinPair(left, i + 1, 0.0);
  }
  // On a circle the last end has the first one behind it; a single end has itself.
  if (m_first.IsCircle() && m_endCount > 0 && (m_endCount > 1 || m_carriers.coincident))
    JoinPair(m_endCount - 1, 0, Turn());
  for (int i = 0; i < m_endCount; ++i) {
    if (!m_dropped[i]) m_result.Add(m_ends[i]);
  }
}

// An end that the extension made of no account still lends its exact coordinates.
PieceMeeting Meeting::Snapped(const AcGePoint2d& p) const {
  const CurvePiece& first = *m_first.piece;
  const CurvePiece& second = *m_second.piece;
  if (AreOne(p, first.start)) return {0.0, first.start, MeetingAt::kFirstStart};
  if (AreOne(p, first.end)) return {1.0, first.end, MeetingAt::kFirstEnd};
  if (AreOne(p, second.start))
    return {FractionAt(first, second.start), second.start, MeetingAt::kSecondStart};
  if (AreOne(p, second.end)) return {FractionAt(first, second.end), second.end, MeetingAt::kSecondEnd};
  return {FractionAt(first, p), p, MeetingAt::kBetween};
}

void Meeting::AddSolutions() {
  for (int i = 0; i < m_carriers.count; ++i) {
    const AcGePoint2d& p = m_carriers.points[i];
    if (LiesClearlyAside(m_first, p, m_tolerance) || LiesClearlyAside(m_second, p, m_tolerance)) continue;
    const double fraction = FractionAt(*m_first.piece, p);
    if (!Reaches(m_first, fraction) || !Reaches(m_second, FractionAt(*m_second.piece, p))) continue;
    bool taken = false;
    for (int e = 0; e < m_endCount && !taken; ++e) {
      double other = m_ends[e].fraction;
      // The shorter way round a circle.
      if (m_first.IsCircle() && std::fabs(other - fraction) > Turn() / 2.0)
        other += other < fraction ? Turn() : -Turn();
      taken = AreOne(p, m_ends[e].point) || RunsAlong(fraction, other);
    }
    if (!taken) m_result.Add(Snapped(p));
  }
}

// Extended lines on one carrier share a segment, a ray or the whole line.
bool Meeting::AddLineStretch() {
  if (m_first.piece->isArc || !m_carriers.coincident) return false;
  double b0 = FractionAt(*m_first.piece, m_second.piece->start);
  double b1 = FractionAt(*m_first.piece, m_second.piece->end);
  PieceMeeting from = {b0, m_second.piece->start, MeetingAt::kSecondStart};
  PieceMeeting to = {b1, m_second.piece->end, MeetingAt::kSecondEnd};
  if (m_second.openStart) from.fraction = b0 <= b1 ? -kInfinity : kInfinity;
  if (m_second.openEnd) to.fraction = b0 <= b1 ? kInfinity : -kInfinity;
  if (b0 > b1) std::swap(from, to);
  const double slack = m_tolerance / m_first.piece->length;
  if (!m_first.openStart && from.fraction <= slack)
    from = {0.0, m_first.piece->start, MeetingAt::kFirstStart};
  if (!m_first.openEnd && to.fraction >= 1.0 - slack) to = {1.0, m_first.piece->end, MeetingAt::kFirstEnd};
  if (from.fraction > to.fraction + slack) return true;
  if (std::isfinite(from.fraction)) m_result.Add(from);
  if (to.fraction - from.fraction <= slack) return true;
  if (std::isfinite(to.fraction)) m_result.Add(to);
  m_result.Add(PieceStretch{from.fraction, to.fraction});
  return true;
}

bool Meeting::AddWholeCircle() {
  if (!m_carriers.coincident || !m_first.IsCircle() || !m_second.IsCircle()) return false;
  m_result.Add(PieceStretch{0.0, Turn()});
  return true;
}

PieceMeetings Meeting::Solve() {
  if (AddLineStretch() || AddWholeCircle()) return m_result;
  AddEnds();
  JoinEnds();
  AddSolutions();
  return m_result;
}

} // namespace

PieceMeetings MeetPieces(const ReachedPiece& first, const ReachedPiece& second, double tolerance) {
  return Meeting(first, second, tolerance).Solve();
}

} // namespace ge
