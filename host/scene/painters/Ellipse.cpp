// ELLIPSE: centre and major axis in world coordinates, the minor axis by its ratio, from one parameter to
// another.
#include "host/scene/Pen.h"
#include "host/scene/painters/Painters.h"

#include <cmath>
#include <numbers>

void scene::painters::Ellipse(Pen& pen) {
  constexpr double kFullTurn = 2 * std::numbers::pi;
  const AcGeVector3d major = pen.tags().point(11).asVector();
  const AcGeVector3d minor = pen.tags().normal().crossProduct(major) * pen.tags().real(40, 1);
  if (major.length() == 0) return pen.leaveOut(L"轴长为零的椭圆");
  const double start = pen.tags().real(41);
  double sweep = std::fmod(pen.tags().real(42, kFullTurn) - start, kFullTurn);
  if (sweep <= 1e-9) sweep += kFullTurn;
  PathPen path = pen.path();
  path.arc(pen.tags().point(10), major, minor, std::remainder(start, kFullTurn), sweep);
  if (sweep >= kFullTurn - 1e-9) path.close();
  pen.stroke(path, {.throughVertices = true});
}
