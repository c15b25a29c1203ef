// Comparisons of scale factors.
#include "host/ge/AcGeScale3d.h"

#include <cmath>

constinit const AcGeScale3d AcGeScale3d::kIdentity{1.0, 1.0, 1.0};

AcGeScale3d& AcGeScale3d::set(double xx, double yy, double zz) {
  return *this = AcGeScale3d(xx, yy, zz);
}

bool AcGeScale3d::isEqualTo(const AcGeScale3d& other, const AcGeTol& tol) const {
  const double limit = tol.equalPoint();
  return std::fabs(sx - other.sx) <= limit && std::fabs(sy - other.sy) <= limit &&
         std::fabs(sz - other.sz) <= limit;
}

bool AcGeScale3d::isProportional(const AcGeTol& tol) const {
  const double limit = tol.equalPoint();
  return std::fabs(std::fabs(sx) - std::fabs(sy)) <= limit &&
         std::fabs(std::fabs(sx) - std::fabs(sz)) <= limit;
}
