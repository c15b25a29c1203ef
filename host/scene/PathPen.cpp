#include "host/scene/PathPen.h"

#include "host/ge/ArcMath.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace scene {
namespace {

// Beyond this, differences of a millimetre no longer exist in a double, and painters lose their sums.
constexpr double kFarthest = 1e15;

} // namespace

AcGePoint2d PathPen::map(const AcGePoint3d& p) const {
  const auto& m = m_matrix.entry;
  return {m[0][0] * p.x + m[0][1] * p.y + m[0][2] * p.z + m[0][3],
          m[1][0] * p.x + m[1][1] * p.y + m[1][2] * p.z + m[1][3]};
}

void PathPen::move(const AcGePoint3d& p) {
  m_path.move(map(p));
}

void PathPen::line(const AcGePoint3d& p) {
  m_path.line(map(p));
}

void PathPen::curve(const AcGePoint3d& c1, const AcGePoint3d& c2, const AcGePoint3d& end, bool goesOn) {
  m_path.curve(map(c1), map(c2), map(end), goesOn);
}

void PathPen::arc(const AcGePoint3d& centre, const AcGeVector3d& u, const AcGeVector3d& v, double start,
                  double sweep, bool begin) {
  constexpr double kFullTurn = 2 * std::numbers::pi;
  sweep = std::clamp(sweep, -kFullTurn, kFullTurn);
  const auto at = [&](double t) { return centre + u * std::cos(t) + v * std::sin(t); };
  const auto tangent = [&](double t) { return v * std::cos(t) - u * std::sin(t); };
  const int pieces = std::max(1, static_cast<int>(std::ceil(std::fabs(sweep) / kFullTurn * 8 - 1e-9)));
  const double step = sweep / pieces;
  const double reach = 4.0 / 3.0 * std::tan(step / 4);
  if (begin) move(at(start));
  for (int i = 0; i < pieces; ++i) {
    const double from = start + step * i;
    const double to = i + 1 == pieces ? start + sweep : from + step;
    curve(at(from) + tangent(from) * reach, at(to) - tangent(to) * reach, at(to), i > 0);
  }
}

void PathPen::bulge(const AcGePoint3d& from, const AcGePoint3d& to, double bulge) {
  const auto found = ge::ArcFromBulge({from.x, from.y}, {to.x, to.y}, bulge);
  if (!found) return line(to);
  arc(AcGePoint3d(found->center.x, found->center.y, from.z), AcGeVector3d(found->radius, 0, 0),
      AcGeVector3d(0, found->radius, 0), found->startAngle, found->sweep, false);
  m_path.points.back() = map(to); // neighbours meet without a gap
}

bool PathPen::isBroken() const {
  return std::any_of(m_path.points.begin(), m_path.points.end(), [](const AcGePoint2d& p) {
    return !(std::fabs(p.x) < kFarthest && std::fabs(p.y) < kFarthest);
  });
}

} // namespace scene
