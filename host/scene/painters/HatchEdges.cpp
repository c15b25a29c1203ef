#include "host/scene/painters/HatchEdges.h"

#include "host/scene/PathPen.h"
#include "host/scene/SplineCurve.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace scene {
namespace {

constexpr double kFullTurn = 2 * std::numbers::pi;

double radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

AcGePoint3d inPlane(const AcGePoint2d& p) {
  return {p.x, p.y, 0};
}

// The parameter of an ellipse where the direction from its centre has an angle, in the same turn.
double parameterOf(double angle, double ratio) {
  const double turns = std::floor((angle + std::numbers::pi) / kFullTurn);
  const double within = angle - turns * kFullTurn;
  return std::atan2(std::sin(within), std::cos(within) * ratio) + turns * kFullTurn;
}

void addArc(PathPen& path, const AcGePoint2d& centre, const AcGeVector2d& major, double ratio, double start,
            double end, bool anticlockwise) {
  if (end <= start) end += kFullTurn;
  const AcGeVector3d u(major.x, major.y, 0);
  // Clockwise ones count their angles the other way round.
  const AcGeVector3d v = AcGeVector3d(-major.y, major.x, 0) * (anticlockwise ? ratio : -ratio);
  path.arc(inPlane(centre), u, v, start, end - start);
}

Path readSpline(TagCursor& cursor) {
  SplineCurve curve;
  curve.degree = static_cast<int>(std::clamp<long long>(cursor.integer(94, 3), 0, 100));
  const bool rational = cursor.integer(73) != 0;
  cursor.integer(74);
  cursor.integer(95);
  cursor.integer(96);
  while (cursor.code() == 40) curve.knots.push_back(cursor.real(40));
  while (cursor.code() == 10) {
    curve.controls.push_back(inPlane(cursor.point(10)));
    if (cursor.code() == 42) {
      const double weight = cursor.real(42, 1);
      if (rational) curve.weights.push_back(weight);
    }
  }
  // Fit points, where their number says that there are some: the same code counts source objects behind.
  if (cursor.code() == 97) {
    TagCursor ahead = cursor;
    ahead.step();
    if (ahead.code() == 11 || ahead.code() == 12 || ahead.code() == 72 || ahead.code() == 97) cursor = ahead;
  }
  while (cursor.code() == 11) curve.fits.push_back(inPlane(cursor.point(11)));
  for (const int tangent : {12, 13})
    if (cursor.code() == tangent) cursor.point(tangent);
  PathPen path{AcGeMatrix3d()};
  curve.addTo(path);
  return std::move(path.path());
}

Path reversed(const Path& path) {
  Path back;
  if (path.points.empty()) return back;
  std::size_t at = path.points.size() - 1;
  back.move(path.points[at]);
  for (std::size_t i = path.verbs.size(); i-- > 1;) {
    const auto& p = path.points;
    if (PointsOf(path.verbs[i]) == 3) {
      back.curve(p[at - 1], p[at - 2], p[at - 3], false);
      at -= 3;
    } else {
      back.line(p[at - 1]);
      at -= 1;
    }
  }
  return back;
}

} // namespace

double TagCursor::real(int wanted, double otherwise) {
  if (code() != wanted) return otherwise;
  return RealOf(m_tags[m_at++], otherwise);
}

long long TagCursor::integer(int wanted, long long otherwise) {
  if (code() != wanted) return otherwise;
  return IntegerOf(m_tags[m_at++], otherwise);
}

AcGePoint2d TagCursor::point(int wanted) {
  const double x = real(wanted);
  return {x, real(wanted + 10)};
}

Path ReadHatchEdge(TagCursor& cursor) {
  enum Kind : long long { kLine = 1, kArc = 2, kEllipse = 3, kSpline = 4 };
  PathPen path{AcGeMatrix3d()};
  switch (cursor.integer(72)) {
  case kLine: {
    path.move(inPlane(cursor.point(10)));
    path.line(inPlane(cursor.point(11)));
    break;
  }
  case kArc: {
    const AcGePoint2d centre = cursor.point(10);
    const double radius = cursor.real(40);
    const double start = radians(cursor.real(50));
    const double end = radians(cursor.real(51));
    addArc(path, centre, AcGeVector2d(radius, 0), 1, start, end, cursor.integer(73, 1) != 0);
    break;
  }
  case kEllipse: {
    const AcGePoint2d centre = cursor.point(10);
    const AcGeVector2d major = cursor.point(11).asVector();
    const double ratio = cursor.real(40, 1);
    const double start = parameterOf(radians(cursor.real(50)), ratio);
    const double end = parameterOf(radians(cursor.real(51)), ratio);
    addArc(path, centre, major, ratio, start, end, cursor.integer(73, 1) != 0);
    break;
  }
  case kSpline:
    return readSpline(cursor);
  default:
    break;
  }
  return std::move(path.path());
}

Path ReadHatchPolyline(TagCursor& cursor) {
  struct Vertex {
    AcGePoint2d point;
    double bulge = 0;
  };
  cursor.integer(72);
  cursor.integer(73);
  cursor.integer(93);
  std::vector<Vertex> vertices;
  while (cursor.code() == 10) {
    const AcGePoint2d point = cursor.point(10);
    vertices.push_back({point, cursor.real(42)});
  }
  PathPen path{AcGeMatrix3d()};
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const Vertex& from = vertices[i];
    if (i == 0) path.move(inPlane(from.point));
    path.bulge(inPlane(from.point), inPlane(vertices[(i + 1) % vertices.size()].point), from.bulge);
  }
  if (!path.isEmpty()) path.close();
  return std::move(path.path());
}

Path JoinHatchEdges(const std::vector<Path>& edges) {
  Path loop;
  for (std::size_t i = 0; i < edges.size(); ++i) {
    Path edge = edges[i];
    if (edge.points.size() < 2) continue;
    if (loop.isEmpty()) {
      // The first is turned so that its end meets the second.
      if (i + 1 < edges.size() && edges[i + 1].points.size() > 1) {
        const Path& next = edges[i + 1];
        const auto near = [&](const AcGePoint2d& p) {
          return std::min(p.distanceTo(next.points.front()), p.distanceTo(next.points.back()));
        };
        if (near(edge.points.front()) < near(edge.points.back())) edge = reversed(edge);
      }
      loop.append(edge.view());
      continue;
    }
    const AcGePoint2d last = loop.points.back();
    if (last.distanceTo(edge.points.back()) < last.distanceTo(edge.points.front())) edge = reversed(edge);
    edge.verbs.front() = Verb::line;
    loop.append(edge.view());
  }
  if (!loop.isEmpty()) loop.close();
  return loop;
}

} // namespace scene
