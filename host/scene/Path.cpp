#include "host/scene/Path.h"

#include "host/scene/Cubic.h"

#include <algorithm>

namespace scene {

void Path::curve(const AcGePoint2d& c1, const AcGePoint2d& c2, const AcGePoint2d& end, bool goesOn) {
  verbs.push_back(goesOn ? Verb::curveOn : Verb::curve);
  points.insert(points.end(), {c1, c2, end});
}

void Path::append(PathView other) {
  verbs.insert(verbs.end(), other.verbs.begin(), other.verbs.end());
  points.insert(points.end(), other.points.begin(), other.points.end());
}

void Path::clear() {
  verbs.clear();
  points.clear();
}

ge::Box2d BoxOf(PathView path) {
  ge::Box2d box;
  for (const AcGePoint2d& p : path.points) {
    box.minX = std::min(box.minX, p.x);
    box.minY = std::min(box.minY, p.y);
    box.maxX = std::max(box.maxX, p.x);
    box.maxY = std::max(box.maxY, p.y);
  }
  return box;
}

std::vector<std::vector<AcGePoint2d>> Flatten(PathView path) {
  constexpr int kChords = 8;
  std::vector<std::vector<AcGePoint2d>> parts;
  std::size_t at = 0;
  for (const Verb verb : path.verbs) {
    if (verb == Verb::move || parts.empty()) parts.emplace_back();
    auto& part = parts.back();
    switch (verb) {
    case Verb::move:
    case Verb::line:
      part.push_back(path.points[at]);
      break;
    case Verb::curve:
    case Verb::curveOn: {
      const Cubic cubic{part.empty() ? path.points[at] : part.back(), path.points[at], path.points[at + 1],
                        path.points[at + 2]};
      for (int i = 1; i <= kChords; ++i) part.push_back(cubic.at(static_cast<double>(i) / kChords));
      break;
    }
    case Verb::close:
      if (!part.empty()) part.push_back(AcGePoint2d(part.front()));
      break;
    }
    at += PointsOf(verb);
  }
  return parts;
}

} // namespace scene
