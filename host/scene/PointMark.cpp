#include "host/scene/PointMark.h"

#include <cmath>

namespace scene {
namespace {

void stroke(Path& path, const AcGePoint2d& from, const AcGePoint2d& to) {
  path.move(from);
  path.line(to);
}

void circle(Path& path, const AcGePoint2d& c, double r) {
  constexpr double k = 0.5522847498; // of the radius, for a quarter
  path.move({c.x + r, c.y});
  path.curve({c.x + r, c.y + k * r}, {c.x + k * r, c.y + r}, {c.x, c.y + r}, false);
  path.curve({c.x - k * r, c.y + r}, {c.x - r, c.y + k * r}, {c.x - r, c.y}, true);
  path.curve({c.x - r, c.y - k * r}, {c.x - k * r, c.y - r}, {c.x, c.y - r}, true);
  path.curve({c.x + k * r, c.y - r}, {c.x + r, c.y - k * r}, {c.x + r, c.y}, true);
  path.close();
}

} // namespace

Path PointMark(int mode, const AcGePoint2d& at, double size) {
  enum Figure { kDot, kNothing, kCross, kSlanted, kTick };
  constexpr int kCircle = 32;
  constexpr int kSquare = 64;
  const double h = size / 2;
  Path path;
  switch (mode & 7) {
  case kDot:
    stroke(path, at, at);
    break;
  case kCross: // twice as wide as the figures around it
    stroke(path, {at.x - size, at.y}, {at.x + size, at.y});
    stroke(path, {at.x, at.y - size}, {at.x, at.y + size});
    break;
  case kSlanted:
    stroke(path, {at.x - size, at.y - size}, {at.x + size, at.y + size});
    stroke(path, {at.x - size, at.y + size}, {at.x + size, at.y - size});
    break;
  case kTick:
    stroke(path, at, {at.x, at.y + h});
    break;
  default:
    break;
  }
  if ((mode & kCircle) != 0) circle(path, at, h);
  if ((mode & kSquare) != 0) {
    path.move({at.x - h, at.y - h});
    path.line({at.x + h, at.y - h});
    path.line({at.x + h, at.y + h});
    path.line({at.x - h, at.y + h});
    path.close();
  }
  return path;
}

double PointMarkSize(double pointSize, double windowHeight) {
  constexpr double kUsualPercent = 5;
  if (pointSize > 0) return pointSize;
  const double percent = pointSize < 0 ? std::fabs(pointSize) : kUsualPercent;
  return windowHeight * percent / 100;
}

} // namespace scene
