// Distances and moves of plane points.
#include "host/ge/AcGePoint2d.h"

constinit const AcGePoint2d AcGePoint2d::kOrigin{0.0, 0.0};

AcGePoint2d& AcGePoint2d::set(double xx, double yy) {
  return *this = AcGePoint2d(xx, yy);
}

double AcGePoint2d::distanceTo(const AcGePoint2d& p) const {
  return (*this - p).length();
}

bool AcGePoint2d::isEqualTo(const AcGePoint2d& p, const AcGeTol& tol) const {
  return distanceTo(p) <= tol.equalPoint();
}

AcGePoint2d& AcGePoint2d::rotateBy(double angle, const AcGePoint2d& about) {
  return *this = about + (*this - about).rotateBy(angle);
}

AcGePoint2d& AcGePoint2d::scaleBy(double factor, const AcGePoint2d& about) {
  return *this = about + (*this - about) * factor;
}
