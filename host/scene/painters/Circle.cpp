// CIRCLE and ARC.
#include "host/db/AcDbArc.h"
#include "host/db/AcDbCircle.h"
#include "host/ge/ArbitraryAxis.h"
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

#include <cmath>
#include <numbers>

namespace scene {
namespace {

constexpr double kFullTurn = 2 * std::numbers::pi;

template <typename Round> void drawArc(Pen& pen, const Round& round, double start, double sweep) {
  const double radius = std::fabs(round.radius());
  if (!(radius > 0)) return pen.leaveOut(L"半径为零的圆或圆弧");
  const ge::ObjectAxes axes = ge::ArbitraryAxis(round.normal());
  PathPen path = pen.path();
  path.arc(round.center(), axes.xAxis * radius, axes.yAxis * radius, start, sweep);
  if (sweep == kFullTurn) path.close();
  pen.stroke(path, {.throughVertices = true});
}

} // namespace

void painters::Circle(Pen& pen) {
  if (const auto* circle = AcDbCircle::cast(&pen.entity())) drawArc(pen, *circle, 0, kFullTurn);
}

void painters::Arc(Pen& pen) {
  const auto* arc = AcDbArc::cast(&pen.entity());
  if (!arc) return;
  const double start = std::remainder(arc->startAngle(), kFullTurn);
  double sweep = std::fmod(arc->endAngle() - start, kFullTurn);
  if (sweep <= 1e-12) sweep += kFullTurn;
  drawArc(pen, *arc, start, sweep);
}

} // namespace scene
