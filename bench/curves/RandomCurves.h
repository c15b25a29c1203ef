// Random lines, arcs and polylines of up to 5 m on a square floor, always the same ones.
#pragma once

#include "host/ge/Curve.h"

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

enum CurveSort { kLines, kArcs, kPolylines, kMixed };

// Millimetres; the usual floor is a hall of 100 m.
inline std::vector<ge::Curve> RandomCurves(int count, CurveSort kind, double floor = 100000.0) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> place(0.0, floor);
  std::uniform_real_distribution<double> step(-5000.0, 5000.0);
  std::uniform_real_distribution<double> angle(0.0, 2.0 * std::numbers::pi);
  std::uniform_real_distribution<double> bulge(-1.0, 1.0);
  std::vector<ge::Curve> curves;
  for (int i = 0; i < count; ++i) {
    const AcGePoint3d from(place(random), place(random), 0);
    const CurveSort own = kind == kMixed ? static_cast<CurveSort>(i % 3) : kind;
    if (own == kLines) {
      const double dx = step(random);
      curves.push_back(ge::Curve::Line(from, from + AcGeVector3d(dx, step(random), 0)));
    } else if (own == kArcs) {
      const double start = angle(random);
      const double radius = std::fabs(step(random));
      curves.push_back(ge::Curve::Arc(from, AcGeVector3d::kZAxis, radius, start, angle(random)));
    } else {
      std::vector<ge::PolylineVertex> vertices{{{from.x, from.y}, bulge(random)}};
      for (int v = 0; v < 5; ++v) {
        const AcGePoint2d last = vertices.back().point;
        const double dx = step(random) / 2;
        vertices.push_back({{last.x + dx, last.y + step(random) / 2}, v % 2 ? bulge(random) : 0.0});
      }
      curves.push_back(ge::Curve::Polyline(vertices, false));
    }
  }
  return curves;
}
