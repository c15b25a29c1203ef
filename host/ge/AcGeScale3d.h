// Three scale factors along the axes, as a block reference has them.
#pragma once

#include "host/ge/AcGeContext.h"

class AcGeScale3d {
 public:
  static const AcGeScale3d kIdentity; // 1, 1, 1

  double sx = 1.0;
  double sy = 1.0;
  double sz = 1.0;

  constexpr AcGeScale3d() = default;
  constexpr explicit AcGeScale3d(double factor) : sx(factor), sy(factor), sz(factor) {}
  constexpr AcGeScale3d(double xx, double yy, double zz) : sx(xx), sy(yy), sz(zz) {}
  AcGeScale3d& set(double xx, double yy, double zz);

  // Each factor within tol.equalPoint() of the other's.
  bool isEqualTo(const AcGeScale3d& other, const AcGeTol& tol = AcGeContext::gTol) const;
  bool operator==(const AcGeScale3d& other) const { return isEqualTo(other); }
  // All three have the same magnitude; their signs may differ.
  bool isProportional(const AcGeTol& tol = AcGeContext::gTol) const;
};
