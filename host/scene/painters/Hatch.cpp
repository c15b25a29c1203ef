// HATCH: filled, with a pattern of lines, or with a gradient, which is drawn in its middle colour.
#include "host/scene/Pen.h"
#include "host/scene/painters/HatchFill.h"
#include "host/scene/painters/Painters.h"

namespace scene {
namespace {

// From the plane of the hatch into the picture.
void addMapped(PathPen& path, const Path& plane, double elevation) {
  Path& out = path.path();
  out.verbs.insert(out.verbs.end(), plane.verbs.begin(), plane.verbs.end());
  for (const AcGePoint2d& p : plane.points) out.points.push_back(path.map(AcGePoint3d(p.x, p.y, elevation)));
}

std::optional<Color> gradientColor(const EntityTags& tags) {
  if (tags.integer(450) != 1) return std::nullopt;
  std::vector<long long> colors;
  for (const DxfTag& tag : tags)
    if (tag.code == 421) colors.push_back(IntegerOf(tag));
  if (colors.empty()) return std::nullopt;
  const auto middle = [&](int shift) {
    return ((colors.front() >> shift & 0xFF) + (colors.back() >> shift & 0xFF)) / 2 << shift;
  };
  return Color::fromTrueColor(middle(16) | middle(8) | middle(0));
}

} // namespace

void painters::Hatch(Pen& pen) {
  if (!pen.variables().fills) return;
  const EntityTags& tags = pen.tags();
  const HatchData hatch = ReadHatch(tags);
  if (hatch.loops.empty()) return pen.leaveOut(L"没有边界的填充");
  const double elevation = tags.point(10).z;
  PathPen boundary = pen.path(tags.normal());
  for (const Path& loop : hatch.loops) addMapped(boundary, loop, elevation);
  if (const auto gradient = gradientColor(tags)) {
    pen.leaveOut(L"渐变填充按中间色画");
    return pen.fill(boundary, gradient);
  }
  if (hatch.solid) return pen.fill(boundary);
  if (hatch.lines.empty()) return pen.leaveOut(L"没有图案的填充");
  const auto lines = FillWithLines(hatch.loops, hatch.lines, pen.limits().hatchLines);
  if (!lines) {
    pen.stroke(boundary, {.solid = true});
    return pen.leaveOut(L"图案太密的填充只画边界");
  }
  PathPen path = pen.path(tags.normal());
  addMapped(path, *lines, elevation);
  pen.stroke(path, {.solid = true});
}

} // namespace scene
