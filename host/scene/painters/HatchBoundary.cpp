#include "host/scene/painters/HatchBoundary.h"

#include "host/scene/painters/HatchEdges.h"

#include <algorithm>
#include <numbers>

namespace scene {
namespace {

// Finding which loop lies in which takes every pair of them.
constexpr std::size_t kMostNested = 300;

Path readLoop(TagCursor& cursor) {
  constexpr long long kPolyline = 2;
  const long long flags = cursor.integer(92);
  if ((flags & kPolyline) != 0) return ReadHatchPolyline(cursor);
  cursor.integer(93);
  std::vector<Path> edges;
  while (cursor.code() == 72) edges.push_back(ReadHatchEdge(cursor));
  return JoinHatchEdges(edges);
}

bool isInside(const std::vector<AcGePoint2d>& polygon, const AcGePoint2d& p) {
  bool inside = false;
  for (std::size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
    const AcGePoint2d& a = polygon[i];
    const AcGePoint2d& b = polygon[j];
    if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y)) inside = !inside;
  }
  return inside;
}

// Drops loops that lie within as many others as given, or more.
void dropIslands(std::vector<Path>& loops, int depth) {
  if (loops.size() > kMostNested) return;
  std::vector<std::vector<AcGePoint2d>> polygons;
  for (const Path& loop : loops) {
    auto parts = Flatten(loop.view());
    polygons.push_back(parts.empty() ? std::vector<AcGePoint2d>() : std::move(parts.front()));
  }
  std::vector<Path> kept;
  for (std::size_t i = 0; i < loops.size(); ++i) {
    int within = 0;
    for (std::size_t j = 0; j < loops.size(); ++j)
      if (i != j && !polygons[i].empty() && !polygons[j].empty() &&
          isInside(polygons[j], polygons[i].front()))
        ++within;
    if (within < depth) kept.push_back(std::move(loops[i]));
  }
  loops = std::move(kept);
}

HatchLines readLines(TagCursor& cursor) {
  HatchLines lines;
  lines.angle = cursor.real(53) * std::numbers::pi / 180;
  lines.base.x = cursor.real(43);
  lines.base.y = cursor.real(44);
  lines.offset.x = cursor.real(45);
  lines.offset.y = cursor.real(46);
  cursor.integer(79);
  while (cursor.code() == 49) lines.dashes.push_back(cursor.real(49));
  return lines;
}

} // namespace

HatchData ReadHatch(const EntityTags& tags) {
  enum Style : long long { kOuter = 1, kIgnoreIslands = 2 };
  HatchData hatch;
  TagCursor cursor(tags.own());
  while (!cursor.atEnd() && cursor.code() != 91) {
    if (cursor.code() == 70) hatch.solid = IntegerOf(cursor.tag()) == 1;
    if (cursor.code() == 2 && dxf::trimBlanks(cursor.tag().value) == "SOLID") hatch.solid = true;
    cursor.step();
  }
  long long style = 0;
  while (!cursor.atEnd()) {
    if (cursor.code() == 92) {
      Path loop = readLoop(cursor);
      if (!loop.isEmpty()) hatch.loops.push_back(std::move(loop));
    } else if (cursor.code() == 53) {
      hatch.lines.push_back(readLines(cursor));
    } else {
      if (cursor.code() == 75) style = IntegerOf(cursor.tag());
      cursor.step();
    }
  }
  if (style == kOuter) dropIslands(hatch.loops, 2);
  if (style == kIgnoreIslands) dropIslands(hatch.loops, 1);
  return hatch;
}

} // namespace scene
