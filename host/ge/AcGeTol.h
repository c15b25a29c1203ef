// The two tolerances that geometric comparisons take: a distance for points, and a length for vectors, which
// for directions is compared with the difference of unit vectors.
#pragma once

class AcGeTol {
 public:
  constexpr AcGeTol() = default;

  constexpr double equalPoint() const { return m_equalPoint; }
  constexpr double equalVector() const { return m_equalVector; }
  AcGeTol& setEqualPoint(double tolerance);
  AcGeTol& setEqualVector(double tolerance);

 private:
  double m_equalPoint = 1e-10;
  double m_equalVector = 1e-10;
};
