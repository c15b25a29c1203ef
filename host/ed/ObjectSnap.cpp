#include "host/ed/ObjectSnap.h"

#include "host/db/AcDbEntity.h"
#include "host/db/TransformingDraw.h"
#include "host/ed/EntitySearch.h"
#include "host/ge/ArcMath.h"
#include "host/ge/CurveClosest.h"
#include "host/ge/CurveIntersection.h"

#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace ed {
namespace {

constexpr std::size_t kMostMeetings = 40; // curves near the cursor that are brought to meet

double flatDistance(const AcGePoint3d& a, const AcGePoint3d& b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

// Takes what entities draw and keeps the best candidate.
class SnapDraw : public TransformingDraw {
 public:
  SnapDraw(const AcGePoint3d& cursor, double aperture, long modes)
      : m_cursor(cursor), m_aperture(aperture), m_modes(modes), m_distance(aperture) {}

  bool beginEntity(const AcDbEntity& entity) override { return IsDrawn(entity); }

  void circularArc(const AcGePoint3d& centre, double radius, const AcGeVector3d& normal,
                   const AcGeVector3d& xAxis, double startAngle, double sweep) override {
    if (m_transforms > 0 || normal.x != 0 || normal.y != 0) {
      m_ofArc = true;
      TransformingDraw::circularArc(centre, radius, normal, xAxis, startAngle, sweep);
      m_ofArc = false;
      return;
    }
    const double turn = normal.z < 0 ? -1.0 : 1.0; // seen from below, arcs run clockwise
    const double first = std::atan2(xAxis.y, xAxis.x) + turn * startAngle;
    arc(centre, radius, turn > 0 ? first : first - sweep, sweep);
  }
  void pushModelTransform(const AcGeMatrix3d& matrix) override {
    ++m_transforms;
    TransformingDraw::pushModelTransform(matrix);
  }
  void popModelTransform() override {
    --m_transforms;
    TransformingDraw::popModelTransform();
  }

  std::optional<Snap> result() {
    if (m_modes & kSnapIntersection) meet();
    if (m_best) return m_best;
    if (!(m_modes & kSnapNearest) || m_nearest > m_aperture) return std::nullopt;
    return Snap{kSnapNearest, m_onCurve};
  }

 private:
  void worldPoint(const AcGePoint3d& at) override { offer(kSnapPoint, at); }
  void worldText(const AcGePoint3d& at, const AcGeVector3d&, const AcGeVector3d&, const CString&) override {
    offer(kSnapPoint, at);
  }
  void worldPolyline(std::span<const AcGePoint3d> points) override {
    for (std::size_t i = 1; i < points.size(); ++i) segment(points[i - 1], points[i]);
  }

  void offer(long kind, const AcGePoint3d& point) {
    const double distance = flatDistance(point, m_cursor);
    if (!(m_modes & kind) || !(distance <= m_distance)) return;
    if (m_best && distance == m_distance) return;
    m_distance = distance;
    m_best = Snap{kind, point};
  }

  // Chords of an arc in an insertion have no ends of their own.
  void segment(const AcGePoint3d& a, const AcGePoint3d& b) {
    if (ge::DistanceToSegment({m_cursor.x, m_cursor.y}, {a.x, a.y}, {b.x, b.y}) > m_aperture) return;
    if (!m_ofArc) {
      offer(kSnapEnd, a);
      offer(kSnapEnd, b);
      offer(kSnapMiddle, a + (b - a) * 0.5);
    }
    keep(ge::Curve::Line(a, b));
  }

  void arc(const AcGePoint3d& centre, double radius, double start, double sweep) {
    const auto curve = std::fabs(sweep) >= 2 * std::numbers::pi
                           ? ge::Curve::Circle(centre, AcGeVector3d::kZAxis, radius)
                           : ge::Curve::Arc(centre, AcGeVector3d::kZAxis, radius, start, start + sweep);
    const ge::PlanarArc planar{{centre.x, centre.y}, radius, ge::NormalizeAngle(start), sweep};
    const auto at = [&](double angle) {
      return AcGePoint3d(centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle), centre.z);
    };
    const bool near = ge::DistanceToArc({m_cursor.x, m_cursor.y}, planar) <= m_aperture;
    offer(kSnapCentre, centre);
    if (!near) return;
    if (sweep < 2 * std::numbers::pi) {
      offer(kSnapEnd, at(start));
      offer(kSnapEnd, at(start + sweep));
      offer(kSnapMiddle, at(start + sweep / 2));
    }
    for (int i = 0; i < 4; ++i)
      if (const double angle = i * std::numbers::pi / 2; planar.Covers(angle))
        offer(kSnapQuadrant, at(angle));
    keep(curve);
    // On its arc, far from everything else, the centre is what can be meant.
    if ((m_modes & kSnapCentre) && !m_best) m_best = Snap{kSnapCentre, centre};
  }

  void keep(const ge::Curve& curve) {
    if (m_modes & kSnapNearest) {
      const auto closest = ge::ClosestPoint(curve, m_cursor);
      if (closest.status == ge::CurveStatus::kOk) {
        const double distance = flatDistance(closest.value.point, m_cursor);
        if (distance < m_nearest) {
          m_nearest = distance;
          m_onCurve = closest.value.point;
        }
      }
    }
    if (m_curves.size() < kMostMeetings) m_curves.push_back(curve);
  }

  void meet() {
    for (std::size_t i = 0; i < m_curves.size(); ++i)
      for (std::size_t j = i + 1; j < m_curves.size(); ++j)
        for (const auto& meeting : ge::Intersect(m_curves[i], m_curves[j]).points)
          offer(kSnapIntersection, meeting.point);
  }

  AcGePoint3d m_cursor;
  double m_aperture;
  long m_modes;
  double m_distance;
  std::optional<Snap> m_best;
  double m_nearest = std::numeric_limits<double>::infinity();
  AcGePoint3d m_onCurve;
  std::vector<ge::Curve> m_curves;
  int m_transforms = 0;
  bool m_ofArc = false;
};

struct SnapTitle {
  long kind;
  const wchar_t* name;
};
constexpr SnapTitle kTitles[] = {
    {kSnapEnd, L"端点"},        {kSnapMiddle, L"中点"},       {kSnapCentre, L"圆心"},   {kSnapPoint, L"节点"},
    {kSnapQuadrant, L"象限点"}, {kSnapIntersection, L"交点"}, {kSnapNearest, L"最近点"}};

} // namespace

std::optional<Snap> SnapTo(std::span<const AcDbObjectId> entities, const AcGePoint3d& cursor, double aperture,
                           long modes) {
  if ((modes & kSnapOff) || !(aperture > 0)) return std::nullopt;
  SnapDraw draw(cursor, aperture, modes);
  for (const auto& id : entities) {
    const auto* entity = AcDbEntity::cast(id.object());
    if (entity && IsDrawn(*entity)) entity->worldDraw(draw);
  }
  return draw.result();
}

const wchar_t* SnapName(long kind) {
  for (const auto& title : kTitles)
    if (title.kind == kind) return title.name;
  return L"";
}

} // namespace ed
