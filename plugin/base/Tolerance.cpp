#include "plugin/base/Tolerance.h"

#include <cmath>

namespace ZP {

// a == b first: the difference of two infinities is not a number.
bool IsEqual(double a, double b, double tolerance) {
  return a == b || std::abs(a - b) <= tolerance;
}

bool Greater(double a, double b) {
  return a - b > kTolerance;
}

bool Less(double a, double b) {
  return b - a > kTolerance;
}

bool GreaterOrEqual(double a, double b) {
  return a == b || b - a <= kTolerance;
}

bool LessOrEqual(double a, double b) {
  return a == b || a - b <= kTolerance;
}

} // namespace ZP
