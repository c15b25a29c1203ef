#include "host/scene/painters/LinearDimension.h"

#include "host/afx/Numbers.h"
#include "host/scene/painters/Arrow.h"
#include "host/scene/painters/DimensionStyle.h"
#include "host/scene/text/TextLine.h"

#include <cmath>

namespace scene {
namespace {

constexpr long long kKindMask = 7;
constexpr long long kAligned = 1;

void line(Pen& pen, const AcGePoint3d& from, const AcGePoint3d& to) {
  PathPen path = pen.path();
  path.move(from);
  path.line(to);
  pen.stroke(path, {.solid = true});
}

// The text typed for it, with the measure in place of <>.
CString textOf(const EntityTags& tags, double measured, int decimals) {
  const CString measure(afx::FixedDouble(measured, decimals, true));
  CString text = tags.text(1);
  if (text.IsEmpty()) return measure;
  text.Replace(L"<>", measure);
  return text;
}

} // namespace

bool DrawLinearDimension(Pen& pen) {
  const EntityTags& tags = pen.tags();
  const long long kind = tags.integer(70) & kKindMask;
  if (kind > kAligned || !tags.has(13) || !tags.has(14) || !tags.has(10)) return false;
  const AcGePoint3d first = tags.point(13);
  const AcGePoint3d second = tags.point(14);
  const AcGePoint3d end = tags.point(10); // where the dimension line ends, above the second point
  const double angle =
      kind == kAligned ? std::atan2(second.y - first.y, second.x - first.x) : tags.radians(50);
  const AcGeVector3d along(std::cos(angle), std::sin(angle), 0);
  const double length = (first - end).dotProduct(along);
  const AcGePoint3d begin = end + along * length;
  if (!(std::fabs(length) > 0)) return false;
  const DimensionStyle style = DimensionStyleOf(pen);
  line(pen, first, begin);
  line(pen, second, end);
  line(pen, begin, end);
  DrawArrow(pen, begin, (end - begin).normal(), style.arrow);
  DrawArrow(pen, end, (begin - end).normal(), style.arrow);
  TextLine text;
  text.text = textOf(tags, std::fabs(length) * style.lengthFactor, style.decimals);
  text.style = pen.style(CString(L"Standard"));
  text.height = style.text;
  // Never upside down.
  text.rotation = std::remainder(angle, 2 * std::acos(-1.0));
  if (std::cos(text.rotation) < -1e-9) text.rotation += std::acos(-1.0);
  const AcGeVector3d up(-std::sin(text.rotation), std::cos(text.rotation), 0);
  text.position = begin + (end - begin) / 2 + up * (style.text * 0.4);
  text.horizontal = Horizontal::center;
  DrawTextLine(pen, text);
  return true;
}

} // namespace scene
