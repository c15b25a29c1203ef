// The algebra of matrices: product, inverse, determinant and what they tell about the axes. How the usual
// transformations are built stands in AcGeMatrix3dBuild.cpp.
#include "host/ge/AcGeMatrix3d.h"

#include <algorithm>
#include <cmath>

constinit const AcGeMatrix3d AcGeMatrix3d::kIdentity{};

namespace {

AcGeVector3d Axis(const AcGeMatrix3d& m, int column) {
  return {m.entry[0][column], m.entry[1][column], m.entry[2][column]};
}

} // namespace

AcGeMatrix3d& AcGeMatrix3d::setToProduct(const AcGeMatrix3d& left, const AcGeMatrix3d& right) {
  AcGeMatrix3d result;
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      double sum = 0.0;
      for (int k = 0; k < 4; ++k) sum += left.entry[row][k] * right.entry[k][column];
      result.entry[row][column] = sum;
    }
  }
  return *this = result;
}

AcGeMatrix3d AcGeMatrix3d::operator*(const AcGeMatrix3d& right) const {
  return AcGeMatrix3d().setToProduct(*this, right);
}

AcGeMatrix3d& AcGeMatrix3d::operator*=(const AcGeMatrix3d& right) {
  return setToProduct(*this, right);
}

AcGeMatrix3d& AcGeMatrix3d::preMultBy(const AcGeMatrix3d& left) {
  return setToProduct(left, *this);
}

AcGeMatrix3d& AcGeMatrix3d::postMultBy(const AcGeMatrix3d& right) {
  return setToProduct(*this, right);
}

double AcGeMatrix3d::det() const {
  return Axis(*this, 0).dotProduct(Axis(*this, 1).crossProduct(Axis(*this, 2)));
}

bool AcGeMatrix3d::isSingular(const AcGeTol& tol) const {
  AcGeVector3d unit[3];
  for (int column = 0; column < 3; ++column) {
    const AcGeVector3d axis = Axis(*this, column);
    const double size = axis.length();
    if (!(size > 0.0) || !std::isfinite(size)) return true;
    unit[column] = axis / size;
  }
  return !(std::fabs(unit[0].dotProduct(unit[1].crossProduct(unit[2]))) > tol.equalVector());
}

bool AcGeMatrix3d::inverse(AcGeMatrix3d& inverse, const AcGeTol& tol) const {
  if (isSingular(tol)) return false;
  // Rows of the inverse are the cross products of the axes over the determinant. Doing it with axes of unit
  // length first keeps very large and very small scales within range.
  double size[3];
  AcGeVector3d unit[3];
  for (int i = 0; i < 3; ++i) {
    size[i] = Axis(*this, i).length();
    unit[i] = Axis(*this, i) / size[i];
  }
  const AcGeVector3d rows[3] = {unit[1].crossProduct(unit[2]), unit[2].crossProduct(unit[0]),
                                unit[0].crossProduct(unit[1])};
  const double volume = unit[0].dotProduct(rows[0]);
  const AcGeVector3d origin = translation();
  AcGeMatrix3d result;
  for (int i = 0; i < 3; ++i) {
    const AcGeVector3d row = rows[i] / volume / size[i];
    result.entry[i][0] = row.x;
    result.entry[i][1] = row.y;
    result.entry[i][2] = row.z;
    result.entry[i][3] = -row.dotProduct(origin);
  }
  inverse = result;
  return true;
}

AcGeMatrix3d AcGeMatrix3d::inverse() const {
  AcGeMatrix3d result = *this;
  inverse(result);
  return result;
}

AcGeMatrix3d& AcGeMatrix3d::invert() {
  return *this = inverse();
}

AcGeMatrix3d AcGeMatrix3d::transpose() const {
  AcGeMatrix3d result;
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) result.entry[column][row] = entry[row][column];
  }
  return result;
}

AcGeMatrix3d& AcGeMatrix3d::transposeIt() {
  return *this = transpose();
}

bool AcGeMatrix3d::isEqualTo(const AcGeMatrix3d& other, const AcGeTol& tol) const {
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      if (!(std::fabs(entry[row][column] - other.entry[row][column]) <= tol.equalVector())) return false;
    }
  }
  return true;
}

bool AcGeMatrix3d::isScaledOrtho(const AcGeTol& tol) const {
  return !isSingular(tol) && Axis(*this, 0).isPerpendicularTo(Axis(*this, 1), tol) &&
         Axis(*this, 1).isPerpendicularTo(Axis(*this, 2), tol) &&
         Axis(*this, 2).isPerpendicularTo(Axis(*this, 0), tol);
}

bool AcGeMatrix3d::isUniScaledOrtho(const AcGeTol& tol) const {
  if (!isScaledOrtho(tol)) return false;
  const double longest = scale();
  for (int column = 0; column < 3; ++column) {
    // Relative to the size: a block in metres turned into millimetres is still uniform.
    if (longest - Axis(*this, column).length() > tol.equalVector() * longest) return false;
  }
  return true;
}

double AcGeMatrix3d::scale() const {
  return std::max({Axis(*this, 0).length(), Axis(*this, 1).length(), Axis(*this, 2).length()});
}
