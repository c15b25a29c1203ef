#include "host/plot/NearPath.h"

#include "host/scene/InfiniteLine.h"

#include <algorithm>

namespace plot {
namespace {

using Polygon = std::vector<AcGePoint2d>;

// The part of the stretch between two points that lies in the box.
bool cutStretch(AcGePoint2d& from, AcGePoint2d& to, const ge::Box2d& box) {
  if (box.Contains(from) && box.Contains(to)) return true;
  const auto forward = scene::CutToBox(from, to, true, box);
  const auto backward = scene::CutToBox(to, from, true, box);
  if (!forward || !backward) return false;
  from = forward->first;
  to = backward->first;
  return true;
}

// Sutherland and Hodgman's way, one side of the box at a time.
template <typename Inside, typename Cross>
Polygon cutSide(const Polygon& polygon, const Inside& inside, const Cross& cross) {
  Polygon out;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const AcGePoint2d& from = polygon[i];
    const AcGePoint2d& to = polygon[(i + 1) % polygon.size()];
    if (inside(from)) out.push_back(from);
    if (inside(from) != inside(to)) out.push_back(cross(from, to));
  }
  return out;
}

AcGePoint2d atX(const AcGePoint2d& a, const AcGePoint2d& b, double x) {
  return {x, a.y + (b.y - a.y) * ((x - a.x) / (b.x - a.x))};
}

AcGePoint2d atY(const AcGePoint2d& a, const AcGePoint2d& b, double y) {
  return {a.x + (b.x - a.x) * ((y - a.y) / (b.y - a.y)), y};
}

Polygon cutPolygon(Polygon p, const ge::Box2d& box) {
  using Point = AcGePoint2d;
  p = cutSide(
      p, [&](const Point& q) { return q.x >= box.minX; },
      [&](const Point& a, const Point& b) { return atX(a, b, box.minX); });
  p = cutSide(
      p, [&](const Point& q) { return q.x <= box.maxX; },
      [&](const Point& a, const Point& b) { return atX(a, b, box.maxX); });
  p = cutSide(
      p, [&](const Point& q) { return q.y >= box.minY; },
      [&](const Point& a, const Point& b) { return atY(a, b, box.minY); });
  return cutSide(
      p, [&](const Point& q) { return q.y <= box.maxY; },
      [&](const Point& a, const Point& b) { return atY(a, b, box.maxY); });
}

} // namespace

scene::Path CutStrokes(scene::PathView path, const ge::Box2d& box) {
  scene::Path out;
  for (const Polygon& part : scene::Flatten(path)) {
    bool joined = false;
    for (std::size_t i = 0; i + 1 < part.size(); ++i) {
      AcGePoint2d from = part[i];
      AcGePoint2d to = part[i + 1];
      if (!cutStretch(from, to, box)) {
        joined = false;
        continue;
      }
      if (!joined) out.move(from);
      out.line(to);
      joined = box.Contains(part[i + 1]);
    }
  }
  return out;
}

scene::Path CutFill(scene::PathView path, const ge::Box2d& box) {
  scene::Path out;
  for (Polygon& part : scene::Flatten(path)) {
    const Polygon cut = cutPolygon(std::move(part), box);
    for (std::size_t i = 0; i < cut.size(); ++i) i == 0 ? out.move(cut[i]) : out.line(cut[i]);
    if (!cut.empty()) out.close();
  }
  return out;
}

} // namespace plot
