// An affine transformation of space: points are columns, entry[row][column], the last row is 0 0 0 1. In a
// product the right factor acts first.
#pragma once

#include "host/ge/AcGePoint3d.h"

class AcGeMatrix3d {
 public:
  static const AcGeMatrix3d kIdentity;

  double entry[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};

  constexpr AcGeMatrix3d() = default;
  double operator()(unsigned int row, unsigned int column) const { return entry[row][column]; }
  double& operator()(unsigned int row, unsigned int column) { return entry[row][column]; }

  AcGeMatrix3d operator*(const AcGeMatrix3d& right) const;
  AcGeMatrix3d& operator*=(const AcGeMatrix3d& right);
  AcGeMatrix3d& preMultBy(const AcGeMatrix3d& left);
  AcGeMatrix3d& postMultBy(const AcGeMatrix3d& right);
  AcGeMatrix3d& setToProduct(const AcGeMatrix3d& left, const AcGeMatrix3d& right);

  // Writes the inverse and returns true. False, and the argument is left alone, when the matrix is singular.
  bool inverse(AcGeMatrix3d& inverse, const AcGeTol& tol = AcGeContext::gTol) const;
  // The inverse; a singular matrix gives itself. Where that can happen, ask the form with a status.
  AcGeMatrix3d inverse() const;
  AcGeMatrix3d& invert();
  // Whether the three axes fail to span space, or are not finite. The measure does not depend on the scale:
  // the volume of the axes' unit vectors is compared with tol.equalVector().
  bool isSingular(const AcGeTol& tol = AcGeContext::gTol) const;
  // The determinant, which for an affine matrix is that of its linear part. Negative for a reflection.
  double det() const;
  // Transposes the sixteen entries. The transpose of a rotation about the origin is its inverse.
  AcGeMatrix3d transpose() const;
  AcGeMatrix3d& transposeIt();

  // The greatest difference of two entries is within tol.equalVector().
  bool isEqualTo(const AcGeMatrix3d& other, const AcGeTol& tol = AcGeContext::gTol) const;
  bool operator==(const AcGeMatrix3d& other) const { return isEqualTo(other); }
  // Whether the axes are at right angles and equally long, that is: circles stay circles. A reflection may
  // be.
  bool isUniScaledOrtho(const AcGeTol& tol = AcGeContext::gTol) const;
  // Whether the axes are at right angles; their lengths may differ.
  bool isScaledOrtho(const AcGeTol& tol = AcGeContext::gTol) const;
  // The length of the longest axis.
  double scale() const;

  AcGeVector3d translation() const { return {entry[0][3], entry[1][3], entry[2][3]}; }
  AcGeMatrix3d& setTranslation(const AcGeVector3d& v);
  // Axes and origin are the columns: where the world's axes and origin go.
  void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis,
                      AcGeVector3d& zAxis) const;
  AcGeMatrix3d& setCoordSystem(const AcGePoint3d& origin, const AcGeVector3d& xAxis,
                               const AcGeVector3d& yAxis, const AcGeVector3d& zAxis);

  AcGeMatrix3d& setToIdentity();
  AcGeMatrix3d& setToTranslation(const AcGeVector3d& v);
  // Radians, counter-clockwise as seen from the tip of the axis. A zero axis gives the identity.
  AcGeMatrix3d& setToRotation(double angle, const AcGeVector3d& axis,
                              const AcGePoint3d& center = AcGePoint3d::kOrigin);
  AcGeMatrix3d& setToScaling(double factor, const AcGePoint3d& center = AcGePoint3d::kOrigin);
  AcGeMatrix3d& setToMirroring(const AcGePlane& plane);
  AcGeMatrix3d& setToMirroring(const AcGePoint3d& point);
  // Takes one coordinate system to another. The identity when the first one's axes do not span space.
  AcGeMatrix3d& setToAlignCoordSys(const AcGePoint3d& fromOrigin, const AcGeVector3d& fromX,
                                   const AcGeVector3d& fromY, const AcGeVector3d& fromZ,
                                   const AcGePoint3d& toOrigin, const AcGeVector3d& toX,
                                   const AcGeVector3d& toY, const AcGeVector3d& toZ);
  // Between the object coordinate system of an extrusion direction, or of a plane, and the world.
  AcGeMatrix3d& setToPlaneToWorld(const AcGeVector3d& normal);
  AcGeMatrix3d& setToPlaneToWorld(const AcGePlane& plane);
  AcGeMatrix3d& setToWorldToPlane(const AcGeVector3d& normal);
  AcGeMatrix3d& setToWorldToPlane(const AcGePlane& plane);

  // The same as values.
  static AcGeMatrix3d translation(const AcGeVector3d& v);
  static AcGeMatrix3d rotation(double angle, const AcGeVector3d& axis,
                               const AcGePoint3d& center = AcGePoint3d::kOrigin);
  static AcGeMatrix3d scaling(double factor, const AcGePoint3d& center = AcGePoint3d::kOrigin);
  static AcGeMatrix3d mirroring(const AcGePlane& plane);
  static AcGeMatrix3d mirroring(const AcGePoint3d& point);
  static AcGeMatrix3d alignCoordSys(const AcGePoint3d& fromOrigin, const AcGeVector3d& fromX,
                                    const AcGeVector3d& fromY, const AcGeVector3d& fromZ,
                                    const AcGePoint3d& toOrigin, const AcGeVector3d& toX,
                                    const AcGeVector3d& toY, const AcGeVector3d& toZ);
  static AcGeMatrix3d planeToWorld(const AcGeVector3d& normal);
  static AcGeMatrix3d planeToWorld(const AcGePlane& plane);
  static AcGeMatrix3d worldToPlane(const AcGeVector3d& normal);
  static AcGeMatrix3d worldToPlane(const AcGePlane& plane);
};
