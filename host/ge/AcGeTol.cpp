// Setting the tolerances. See AcGeContext for the ones that comparisons use by default.
#include "host/ge/AcGeTol.h"

AcGeTol& AcGeTol::setEqualPoint(double tolerance) {
  m_equalPoint = tolerance;
  return *this;
}

AcGeTol& AcGeTol::setEqualVector(double tolerance) {
  m_equalVector = tolerance;
  return *this;
}
