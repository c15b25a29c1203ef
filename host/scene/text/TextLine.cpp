#include "host/scene/text/TextLine.h"

#include "host/scene/text/LineText.h"
#include "host/scene/text/TextMetrics.h"

#include <cmath>

namespace scene {
namespace {

constexpr double kBelow = 1.0 / 3; // how far letters hang under the base line, of their height

struct Measured {
  std::vector<TextSpan> spans;
  std::vector<double> advances;
  double advance = 0;
};

Measured measure(Pen& pen, const TextLine& line) {
  Measured found;
  found.spans = ParseLineText(line.text.View());
  for (const TextSpan& span : found.spans) {
    found.advances.push_back(pen.metrics().advance(line.style.font, span.text));
    found.advance += found.advances.back();
  }
  return found;
}

double shareToTheLeft(Horizontal horizontal) {
  switch (horizontal) {
  case Horizontal::center:
  case Horizontal::middle:
    return 0.5;
  case Horizontal::right:
    return 1;
  default:
    return 0;
  }
}

double baselineOver(const TextLine& line, double height) {
  if (line.horizontal == Horizontal::middle) return -height / 2;
  switch (line.vertical) {
  case Vertical::bottom:
    return height * kBelow;
  case Vertical::middle:
    return -height / 2;
  case Vertical::top:
    return -height;
  default:
    return 0;
  }
}

// Characters below one another, each centred on the line downwards.
void drawVertical(Pen& pen, const TextLine& line, const AcGeMatrix3d& matrix, const AcGeVector3d& along,
                  const AcGeVector3d& up) {
  constexpr double kStep = 1.5; // heights from one character to the next
  AcGePoint3d at = line.position - up;
  for (const TextSpan& span : ParseLineText(line.text.View())) {
    for (const wchar_t c : span.text) {
      const std::wstring one(1, c);
      const double half = pen.metrics().advance(line.style.font, one) / 2;
      pen.text(one, line.style.font, matrix, at - along * half, along, up);
      at -= up * kStep;
    }
  }
}

} // namespace

void DrawDecoration(Pen& pen, const AcGeMatrix3d& toSpace, const AcGePoint3d& from, const AcGeVector3d& over,
                    double height) {
  constexpr double kThickness = 0.06; // of the text's height
  PathPen path = pen.path(toSpace);
  path.move(from);
  path.line(from + over);
  pen.stroke(path, {.width = height * kThickness, .solid = true});
}

void DrawTextLine(Pen& pen, const TextLine& line) {
  const Measured measured = measure(pen, line);
  double height = line.height;
  double width = line.widthFactor;
  double rotation = line.rotation;
  AcGePoint3d start = line.position;
  if (measured.spans.empty() || !(height > 0)) return;
  if (line.horizontal == Horizontal::aligned || line.horizontal == Horizontal::fit) {
    const AcGeVector3d over = line.second - line.position;
    const double length = std::hypot(over.x, over.y);
    if (length > 0 && measured.advance > 0) {
      rotation = std::atan2(over.y, over.x);
      if (line.horizontal == Horizontal::aligned)
        height = length / (measured.advance * width);
      else
        width = length / (measured.advance * height);
    }
  }
  const AcGeVector3d x(std::cos(rotation), std::sin(rotation), 0);
  const AcGeVector3d y(-x.y, x.x, 0);
  AcGeVector3d along = x * (height * width);
  // Nobody slants a letter further than it stays one; what is damaged in a file stays readable.
  const double oblique = std::remainder(line.style.oblique, 2 * std::acos(-1.0));
  AcGeVector3d up = y * height;
  if (std::fabs(oblique) < 1.5) up += x * (height * std::tan(oblique));
  const AcGeMatrix3d matrix = line.normal.z == 1 ? AcGeMatrix3d() : AcGeMatrix3d::planeToWorld(line.normal);
  if (line.style.font.vertical) return drawVertical(pen, line, matrix, along, up);
  if (line.style.backward) along = -along;
  start += y * (baselineOver(line, height) * (line.style.upsideDown ? -1 : 1));
  if (line.style.upsideDown) up = -up;
  start -= along * (measured.advance * shareToTheLeft(line.horizontal));
  for (std::size_t i = 0; i < measured.spans.size(); ++i) {
    const TextSpan& span = measured.spans[i];
    const AcGeVector3d over = along * measured.advances[i];
    pen.text(span.text, line.style.font, matrix, start, along, up);
    if (span.underlined) DrawDecoration(pen, matrix, start - up * 0.2, over, height);
    if (span.overlined) DrawDecoration(pen, matrix, start + up * 1.2, over, height);
    if (span.struck) DrawDecoration(pen, matrix, start + up * 0.5, over, height);
    start += over;
  }
}

} // namespace scene
