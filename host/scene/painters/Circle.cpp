// CIRCLE and ARC.
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

#include <cmath>
#include <numbers>

namespace scene {
namespace {

constexpr double kFullTurn = 2 * std::numbers::pi;

void drawArc(Pen& pen, double start, double sweep) {
  const double radius = std::fabs(pen.tags().real(40));
  if (!(radius > 0)) return pen.leaveOut(L"半径为零的圆或圆弧");
  PathPen path = pen.path(pen.tags().normal());
  path.arc(pen.tags().point(10), AcGeVector3d(radius, 0, 0), AcGeVector3d(0, radius, 0), start, sweep);
  if (sweep == kFullTurn) path.close();
  pen.stroke(path, {.throughVertices = true});
}

} // namespace

void painters::Circle(Pen& pen) {
  drawArc(pen, 0, kFullTurn);
}

void painters::Arc(Pen& pen) {
  const double start = std::remainder(pen.tags().radians(50), kFullTurn);
  double sweep = std::fmod(pen.tags().radians(51) - start, kFullTurn);
  if (sweep <= 1e-12) sweep += kFullTurn;
  drawArc(pen, start, sweep);
}

} // namespace scene
