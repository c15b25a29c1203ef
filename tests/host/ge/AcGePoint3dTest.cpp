// What points and planes promise: distances, projections and plane coordinates.
#include "host/ge/AcGePoint3d.h"
#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/AcGePlane.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

const AcGePlane kTilted(AcGePoint3d(1, 2, 3), AcGeVector3d(1, 1, 1));

TEST(AcGePoint3d, PointsDifferByVectors) {
  const AcGePoint3d a(1, 2, 3);
  const AcGePoint3d b(4, 6, 3);
  EXPECT_EQ(b - a, AcGeVector3d(3, 4, 0));
  EXPECT_EQ(a + (b - a), b);
  EXPECT_DOUBLE_EQ(a.distanceTo(b), 5.0);
  EXPECT_EQ(AcGePoint3d::kOrigin + b.asVector(), b);
}

TEST(AcGePoint3d, ComponentsGoByIndex) {
  AcGePoint3d p(7, 8, 9);
  p[1] = -1.0;
  EXPECT_EQ(p[0], 7.0);
  EXPECT_EQ(p[1], -1.0);
  EXPECT_EQ(p[2], 9.0);
}

TEST(AcGePoint3d, EqualityTakesTheToleranceOnItsBorder) {
  AcGeTol tol;
  tol.setEqualPoint(0.5);
  EXPECT_TRUE(AcGePoint3d(0, 0, 0).isEqualTo(AcGePoint3d(0.5, 0, 0), tol));
  EXPECT_FALSE(AcGePoint3d(0, 0, 0).isEqualTo(AcGePoint3d(0.5000001, 0, 0), tol));
  EXPECT_FALSE(AcGePoint3d(0, 0, 0) == AcGePoint3d(1e-9, 0, 0));
}

TEST(AcGePoint3d, RotatesAboutAnAxisThroughAPoint) {
  const AcGePoint3d turned =
      AcGePoint3d(2, 1, 5).rotateBy(std::numbers::pi / 2, AcGeVector3d::kZAxis, AcGePoint3d(1, 1, 0));
  EXPECT_EQ(turned, AcGePoint3d(1, 2, 5));
  EXPECT_EQ(AcGePoint3d(2, 1, 5).scaleBy(2, AcGePoint3d(1, 1, 1)), AcGePoint3d(3, 1, 9));
}

TEST(AcGePoint3d, OrthogonalProjectionIsTheClosestPointOfThePlane) {
  const AcGePoint3d p(4, -7, 11);
  const AcGePoint3d foot = p.orthoProject(kTilted);
  EXPECT_TRUE(kTilted.isOn(foot));
  EXPECT_TRUE((p - foot).isParallelTo(kTilted.normal()));
  EXPECT_NEAR(kTilted.distanceTo(p), p.distanceTo(foot), 1e-12);
}

TEST(AcGePoint3d, ProjectionAlongADirectionStaysOnItsLine) {
  const AcGePoint3d p(4, -7, 11);
  const AcGeVector3d direction(0, 0, 1);
  const AcGePoint3d hit = p.project(kTilted, direction);
  EXPECT_TRUE(kTilted.isOn(hit));
  EXPECT_EQ(hit.x, 4.0);
  EXPECT_EQ(hit.y, -7.0);
  EXPECT_EQ(p.project(AcGePlane::kXYPlane, AcGeVector3d::kXAxis), p);
  EXPECT_EQ(p.project(AcGePlane::kXYPlane, AcGeVector3d::kIdentity), p);
}

TEST(AcGePoint3d, MirrorInAPlaneTwiceComesBack) {
  const AcGePoint3d p(4, -7, 11);
  AcGePoint3d q = p;
  q.mirror(kTilted);
  EXPECT_NEAR(kTilted.signedDistanceTo(q), -kTilted.signedDistanceTo(p), 1e-12);
  EXPECT_TRUE(q.mirror(kTilted).isEqualTo(p));
}

TEST(AcGePlane, PlaneCoordinatesAndSpaceCorrespond) {
  const AcGePoint2d flat(3, -2);
  const AcGePoint3d p(kTilted, flat);
  EXPECT_TRUE(kTilted.isOn(p));
  EXPECT_EQ(p.convert2d(kTilted), flat);
  EXPECT_EQ((p + kTilted.normal() * 5.0).convert2d(kTilted), flat);
}

TEST(AcGePlane, TheCoefficientsGiveTheSignedDistance) {
  double a;
  double b;
  double c;
  double d;
  kTilted.getCoefficients(a, b, c, d);
  const AcGePoint3d p(4, -7, 12);
  EXPECT_NEAR(a * p.x + b * p.y + c * p.z + d, kTilted.signedDistanceTo(p), 1e-12);
  EXPECT_GT(kTilted.signedDistanceTo(AcGePoint3d(9, 9, 9)), 0.0);
}

TEST(AcGePlane, TheSecondAxisIsMadePerpendicular) {
  const AcGePlane plane(AcGePoint3d::kOrigin, AcGeVector3d(5, 0, 0), AcGeVector3d(3, 2, 0));
  AcGePoint3d origin;
  AcGeVector3d x;
  AcGeVector3d y;
  plane.getCoordSystem(origin, x, y);
  EXPECT_EQ(x, AcGeVector3d::kXAxis);
  EXPECT_EQ(y, AcGeVector3d::kYAxis);
}

TEST(AcGePlane, AxesThatSpanNothingGiveTheWorldsDirections) {
  const AcGePlane plane(AcGePoint3d(0, 0, 4), AcGeVector3d(1, 1, 0), AcGeVector3d(2, 2, 0));
  EXPECT_EQ(plane.normal(), AcGeVector3d::kZAxis);
  EXPECT_EQ(AcGePlane(AcGePoint3d(), AcGeVector3d::kIdentity).normal(), AcGeVector3d::kZAxis);
}

TEST(AcGePlane, NamedPlanesHaveTheirNormals) {
  EXPECT_EQ(AcGePlane::kXYPlane.normal(), AcGeVector3d::kZAxis);
  EXPECT_EQ(AcGePlane::kYZPlane.normal(), AcGeVector3d::kXAxis);
  EXPECT_EQ(AcGePlane::kZXPlane.normal(), AcGeVector3d::kYAxis);
}

TEST(AcGePlane, MovesWithATransformation) {
  AcGePlane plane = AcGePlane::kXYPlane;
  plane.transformBy(AcGeMatrix3d::translation(AcGeVector3d(0, 0, 2)) *
                    AcGeMatrix3d::rotation(std::numbers::pi / 2, AcGeVector3d::kXAxis));
  EXPECT_EQ(plane.pointOnPlane(), AcGePoint3d(0, 0, 2));
  EXPECT_EQ(plane.normal(), -AcGeVector3d::kYAxis);
}

} // namespace
