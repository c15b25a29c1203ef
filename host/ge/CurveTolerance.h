// The distance within which curves take two points for one: AcGeContext::gTol, and on top of it the rounding
// that numbers of the given size cannot avoid. Every comparison of the curve functions asks here.
#pragma once

#include "host/ge/AcGeContext.h"

#include <limits>

namespace ge {

// Coordinates, radii and bulge arcs beyond it are refused, so that no product of two of them overflows.
inline constexpr double kLargestNumber = 1e100;
// What is shorter is a point: nothing can be divided by its length.
inline constexpr double kSmallestLength = 1e-150;

// The magnitude is the largest coordinate, or sum of a centre's coordinate and radius, that took part.
// Sixteen units in the last place cover a change of coordinate system and a centre derived from a bulge.
inline double CurveTolerance(double magnitude) {
  return AcGeContext::gTol.equalPoint() + 16.0 * std::numeric_limits<double>::epsilon() * magnitude;
}

} // namespace ge
