// Finds what two curves have in common by dense sampling and refinement in long double, without any formula
// of the kernel: the reference for its property tests.
#pragma once

#include "host/ge/CurveIntersection.h"

#include <vector>

namespace oracle {

using Real = long double;

struct Vec {
  Real x = 0;
  Real y = 0;
};

// A segment or an arc by its definition, and the range of its parameter, which is 0 to 1 unless extended.
struct Part {
  bool isArc = false;
  Vec a; // of a segment
  Vec b;
  Vec center; // of an arc
  Real radius = 0;
  Real start = 0;
  Real sweep = 0;
  Real from = 0;
  Real to = 1;
  bool hasStart = true; // whether the part ends there
  bool hasEnd = true;

  Vec At(Real t) const;
  Real Length() const;
  // Signed distance from the infinite line or the circle.
  Real Side(const Vec& p) const;
  // How far beyond the part's ends the point's foot lies, along it; negative within.
  Real Beyond(const Vec& p) const;
};

struct Shape {
  std::vector<Part> parts;
  Real size = 0; // the largest coordinate or radius
};

// The shape of a flat curve in the world's plane. Extended lines reach a thousand times their length to
// either side.
Shape ShapeOf(const ge::Curve& curve, bool extended);

struct Crossing {
  Vec point;
  Real slope = 0; // how fast the first curve leaves the second one, per length
};

struct Findings {
  // Crossings well within both curves, at a clear angle, and ends of one that lie on the other.
  std::vector<Crossing> certain;
  bool overlap = false; // surely
};

Findings Explore(const Shape& first, const Shape& second);

// The distance of a point from the shape's parts; large where its foot lies beyond an end by more than the
// slack.
Real Distance(const Shape& shape, const Vec& p, Real slack);
// Whether the shapes run together on some length beside the point, or anywhere at all.
bool RunTogetherAt(const Shape& first, const Shape& second, const Vec& p, Real slack);
bool RunTogether(const Shape& first, const Shape& second, Real slack);

} // namespace oracle
