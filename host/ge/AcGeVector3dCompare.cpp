// The questions a vector answers about another: equal, parallel, codirectional, perpendicular.
#include "host/ge/AcGeVector3d.h"

#include <cmath>

namespace {

// Which of the two vectors has no direction, the first before the second.
AcGeError FindZero(const AcGeVector3d& self, const AcGeVector3d& other, const AcGeTol& tol) {
  if (self.isZeroLength(tol)) return AcGe::k0This;
  if (other.isZeroLength(tol)) return AcGe::k0Arg1;
  return AcGe::eOk;
}

} // namespace

bool AcGeVector3d::isEqualTo(const AcGeVector3d& v, const AcGeTol& tol) const {
  return (*this - v).length() <= tol.equalVector();
}

bool AcGeVector3d::isUnitLength(const AcGeTol& tol) const {
  return std::fabs(length() - 1.0) <= tol.equalVector();
}

bool AcGeVector3d::isZeroLength(const AcGeTol& tol) const {
  return length() <= tol.equalVector();
}

bool AcGeVector3d::isParallelTo(const AcGeVector3d& v, const AcGeTol& tol) const {
  AcGeError ignored;
  return isParallelTo(v, tol, ignored);
}

bool AcGeVector3d::isParallelTo(const AcGeVector3d& v, const AcGeTol& tol, AcGeError& status) const {
  return isCodirectionalTo(v, tol, status) || isCodirectionalTo(-v, tol, status);
}

bool AcGeVector3d::isCodirectionalTo(const AcGeVector3d& v, const AcGeTol& tol) const {
  AcGeError ignored;
  return isCodirectionalTo(v, tol, ignored);
}

bool AcGeVector3d::isCodirectionalTo(const AcGeVector3d& v, const AcGeTol& tol, AcGeError& status) const {
  status = FindZero(*this, v, tol);
  return status == AcGe::eOk && normal(tol).isEqualTo(v.normal(tol), tol);
}

bool AcGeVector3d::isPerpendicularTo(const AcGeVector3d& v, const AcGeTol& tol) const {
  AcGeError ignored;
  return isPerpendicularTo(v, tol, ignored);
}

bool AcGeVector3d::isPerpendicularTo(const AcGeVector3d& v, const AcGeTol& tol, AcGeError& status) const {
  status = FindZero(*this, v, tol);
  return status == AcGe::eOk && std::fabs(normal(tol).dotProduct(v.normal(tol))) <= tol.equalVector();
}
