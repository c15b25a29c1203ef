// Seeded random curves for property tests: scattered ones, and ones on a grid, where ends, vertices, tangents
// and stretches coincide all the time.
#pragma once

#include "host/ge/Curve.h"

#include <cmath>
#include <cstdlib>
#include <numbers>
#include <random>
#include <vector>

namespace random_curves {

// ZP_CURVE_ROUNDS multiplies the number of random cases; 1 without it.
inline int Rounds(int usual) {
  const char* factor = std::getenv("ZP_CURVE_ROUNDS");
  return usual * (factor ? std::max(1, std::atoi(factor)) : 1);
}

struct Maker {
  std::mt19937 random;
  bool grid = false;
  double shift = 0.0; // of all coordinates
  double unit = 1.0;  // of all lengths

  explicit Maker(unsigned seed) : random(seed) {}

  int Whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
  double Real(double from, double to) { return std::uniform_real_distribution<double>(from, to)(random); }

  double Coordinate() { return shift + unit * (grid ? Whole(-4, 4) : Real(-100.0, 100.0)); }
  double Angle() { return grid ? Whole(0, 7) * std::numbers::pi / 4.0 : Real(0.0, 2.0 * std::numbers::pi); }
  double Radius() { return unit * (grid ? Whole(1, 5) : std::pow(10.0, Real(-1.0, 3.0))); }
  double Bulge() {
    if (Whole(0, 1)) return 0.0;
    const double size =
        grid ? (Whole(0, 1) ? 1.0 : std::tan(std::numbers::pi / 8.0)) : std::pow(10.0, Real(-2.5, 1.0));
    return Whole(0, 1) ? size : -size;
  }

  ge::Curve Line() {
    const double x1 = Coordinate(), y1 = Coordinate(), x2 = Coordinate(), y2 = Coordinate();
    return ge::Curve::Line({x1, y1, 0}, {x2, y2, 0});
  }
  ge::Curve Round(bool whole) {
    const double x = Coordinate(), y = Coordinate(), radius = Radius(), start = Angle(), end = Angle();
    if (whole) return ge::Curve::Circle({x, y, 0}, {0, 0, 1}, radius);
    return ge::Curve::Arc({x, y, 0}, {0, 0, 1}, radius, start, end);
  }
  ge::Curve Polyline(int most) {
    std::vector<ge::PolylineVertex> vertices(static_cast<std::size_t>(Whole(2, most)));
    for (ge::PolylineVertex& v : vertices) {
      v.point.x = Coordinate();
      v.point.y = Coordinate();
      v.bulge = Bulge();
    }
    return ge::Curve::Polyline(vertices, Whole(0, 3) == 0);
  }
  ge::Curve Any(int mostVertices) {
    const int kind = Whole(0, 7);
    if (kind < 3) return Line();
    return kind < 6 ? Round(kind == 5) : Polyline(mostVertices);
  }
};

} // namespace random_curves
