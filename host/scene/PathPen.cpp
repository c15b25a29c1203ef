#include "host/scene/PathPen.h"

#include "host/ge/ArcMath.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace scene {
namespace {

// Beyond this, differences of a millimetre no longer exist in a double, and painters lose their sums.
constexpr double kFarthest = 1e15;

// The memory of the path before, which serves the next one: a drawing has a million of them.
thread_local Path spare;

} // namespace

PathPen::PathPen(const AcGeMatrix3d& toScene) : m_matrix(toScene), m_path(std::exchange(spare, {})) {
  m_path.clear();
}

PathPen::~PathPen() {
  if (m_path.points.capacity() > spare.points.capacity()) spare = std::move(m_path);
}

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
  const int pieces = std::max(1, static_cast<int>(std::ceil(std::fabs(sweep) / kFullTurn * 8 - 1e-9)));
  const double step = sweep / pieces;
  const double reach = 4.0 / 3.0 * std::tan(step / 4);
  // Where a piece ends, and the way from there to its control.
  struct End {
    AcGePoint3d at;
    AcGeVector3d reach;
  };
  const auto endAt = [&](double t) {
    const double c = std::cos(t);
    const double s = std::sin(t);
    return End{centre + u * c + v * s, (v * c - u * s) * reach};
  };
  End from = endAt(start);
  if (begin) move(from.at);
  for (int i = 0; i < pieces; ++i) {
    const End to = endAt(i + 1 == pieces ? start + sweep : start + step * (i + 1));
    curve(from.at + from.reach, to.at - to.reach, to.at, i > 0);
    from = to;
  }
}

void PathPen::append(PathView path) {
  m_path.verbs.insert(m_path.verbs.end(), path.verbs.begin(), path.verbs.end());
  for (const AcGePoint2d& p : path.points) m_path.points.push_back(map({p.x, p.y, 0}));
}

void PathPen::bulge(const AcGePoint3d& from, const AcGePoint3d& to, double bulge) {
  if (bulge == 0) return line(to);
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
