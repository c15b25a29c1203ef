// What vectors of space promise: angles and their ranges, directions, and what a zero vector does.
#include "host/ge/AcGeVector3d.h"
#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/AcGePlane.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

TEST(AcGeVector3d, AxesFormARightHandedSystem) {
  EXPECT_EQ(AcGeVector3d::kXAxis.crossProduct(AcGeVector3d::kYAxis), AcGeVector3d::kZAxis);
  EXPECT_EQ(AcGeVector3d::kYAxis.crossProduct(AcGeVector3d::kZAxis), AcGeVector3d::kXAxis);
  EXPECT_DOUBLE_EQ(AcGeVector3d::kXAxis.dotProduct(AcGeVector3d::kYAxis), 0.0);
}

TEST(AcGeVector3d, LengthKeepsItsDigitsAtTheEndsOfTheRange) {
  EXPECT_DOUBLE_EQ(AcGeVector3d(3, 4, 12).length(), 13.0);
  EXPECT_DOUBLE_EQ(AcGeVector3d(3e200, 4e200, 12e200).length(), 13e200);
  EXPECT_DOUBLE_EQ(AcGeVector3d(3e-200, 4e-200, 12e-200).length(), 13e-200);
}

TEST(AcGeVector3d, AngleToIsPreciseNearZeroAndPi) {
  const double small = 1e-9;
  EXPECT_NEAR(AcGeVector3d(1, 0, 0).angleTo(AcGeVector3d(1, small, 0)), small, 1e-20);
  EXPECT_NEAR(AcGeVector3d(1, 0, 0).angleTo(AcGeVector3d(-1, small, 0)), kPi - small, 1e-15);
}

TEST(AcGeVector3d, AngleToWithAReferenceRunsAFullTurn) {
  const AcGeVector3d x = AcGeVector3d::kXAxis;
  const AcGeVector3d z = AcGeVector3d::kZAxis;
  EXPECT_NEAR(x.angleTo(AcGeVector3d::kYAxis, z), kPi / 2, 1e-15);
  EXPECT_NEAR(x.angleTo(-AcGeVector3d::kYAxis, z), 3 * kPi / 2, 1e-15);
  EXPECT_NEAR(x.angleTo(-AcGeVector3d::kYAxis, -z), kPi / 2, 1e-15);
  EXPECT_DOUBLE_EQ(x.angleTo(x, z), 0.0);
  EXPECT_NEAR(x.angleTo(-x, z), kPi, 1e-15);
}

TEST(AcGeVector3d, AngleWithAZeroVectorIsZero) {
  EXPECT_EQ(AcGeVector3d::kIdentity.angleTo(AcGeVector3d::kXAxis), 0.0);
  EXPECT_EQ(AcGeVector3d::kXAxis.angleTo(AcGeVector3d::kIdentity, AcGeVector3d::kZAxis), 0.0);
}

TEST(AcGeVector3d, AngleOnPlaneCountsFromThePlanesFirstAxis) {
  const AcGePlane plane(AcGePoint3d(5, 5, 5), AcGeVector3d::kYAxis, -AcGeVector3d::kXAxis);
  EXPECT_NEAR(AcGeVector3d(0, 1, 9).angleOnPlane(plane), 0.0, 1e-15);
  EXPECT_NEAR(AcGeVector3d(1, 0, -3).angleOnPlane(plane), 3 * kPi / 2, 1e-15);
}

TEST(AcGeVector3d, NormalOfAZeroVectorIsThatVectorAndSaysSo) {
  AcGeVector3d tiny(1e-12, 0, 0);
  AcGeError status = AcGe::eOk;
  tiny.normalize(AcGeTol(), status);
  EXPECT_EQ(status, AcGe::k0This);
  EXPECT_EQ(tiny.x, 1e-12);
  AcGeVector3d two(0, 0, -2);
  two.normalize(AcGeTol(), status);
  EXPECT_EQ(status, AcGe::eOk);
  EXPECT_EQ(two.z, -1.0);
}

TEST(AcGeVector3d, DirectionsAreComparedWithoutRegardToLength) {
  const AcGeVector3d v(1, 2, 3);
  EXPECT_TRUE(v.isCodirectionalTo(v * 1e6));
  EXPECT_FALSE(v.isCodirectionalTo(-v));
  EXPECT_TRUE(v.isParallelTo(-v));
  EXPECT_TRUE(v.isPerpendicularTo(AcGeVector3d(3, 0, -1)));
  EXPECT_FALSE(v.isPerpendicularTo(v));
  EXPECT_FALSE(v.isParallelTo(AcGeVector3d(1, 2, 3.001)));
  AcGeTol coarse;
  coarse.setEqualVector(1e-2);
  EXPECT_TRUE(v.isParallelTo(AcGeVector3d(1, 2, 3.001), coarse));
}

TEST(AcGeVector3d, AComparisonOfDirectionsNamesTheZeroVector) {
  AcGeError status = AcGe::eOk;
  EXPECT_FALSE(AcGeVector3d::kIdentity.isParallelTo(AcGeVector3d::kXAxis, AcGeTol(), status));
  EXPECT_EQ(status, AcGe::k0This);
  EXPECT_FALSE(AcGeVector3d::kXAxis.isPerpendicularTo(AcGeVector3d::kIdentity, AcGeTol(), status));
  EXPECT_EQ(status, AcGe::k0Arg1);
  EXPECT_TRUE(AcGeVector3d::kXAxis.isPerpendicularTo(AcGeVector3d::kYAxis, AcGeTol(), status));
  EXPECT_EQ(status, AcGe::eOk);
}

TEST(AcGeVector3d, PerpVectorOfAPlaneVectorTurnsItAQuarterCounterClockwise) {
  EXPECT_EQ(AcGeVector3d(3, 0, 0).perpVector(), AcGeVector3d::kYAxis);
  EXPECT_EQ(AcGeVector3d(0, 5, 0).perpVector(), -AcGeVector3d::kXAxis);
  EXPECT_EQ(AcGeVector3d(0, 0, 7).perpVector(), AcGeVector3d::kXAxis);
  const AcGeVector3d v(3, -4, 0.001);
  EXPECT_TRUE(v.perpVector().isPerpendicularTo(v));
  EXPECT_TRUE(v.perpVector().isUnitLength());
  EXPECT_EQ(AcGeVector3d::kIdentity.perpVector(), AcGeVector3d::kIdentity);
}

TEST(AcGeVector3d, RotateByFollowsTheRightHand) {
  EXPECT_EQ(AcGeVector3d(1, 0, 0).rotateBy(kPi / 2, AcGeVector3d(0, 0, 4)), AcGeVector3d::kYAxis);
  EXPECT_EQ(AcGeVector3d(0, 1, 0).rotateBy(kPi / 2, AcGeVector3d::kXAxis), AcGeVector3d::kZAxis);
  EXPECT_EQ(AcGeVector3d(1, 2, 3).rotateBy(1.0, AcGeVector3d::kIdentity), AcGeVector3d(1, 2, 3));
}

TEST(AcGeVector3d, MirrorTurnsTheComponentAlongTheNormal) {
  EXPECT_EQ(AcGeVector3d(1, 2, 3).mirror(AcGeVector3d(0, 0, 2)), AcGeVector3d(1, 2, -3));
  EXPECT_EQ(AcGeVector3d(1, 2, 3).mirror(AcGeVector3d::kIdentity), AcGeVector3d(1, 2, 3));
}

TEST(AcGeVector3d, TheGlobalToleranceGovernsPlainComparison) {
  const AcGeTol before = AcGeContext::gTol;
  const AcGeVector3d near(1.0 + 1e-6, 0, 0);
  EXPECT_FALSE(near == AcGeVector3d::kXAxis);
  AcGeContext::gTol.setEqualVector(1e-5);
  EXPECT_TRUE(near == AcGeVector3d::kXAxis);
  AcGeContext::gTol = before;
}

TEST(AcGeVector3d, WhatIsNotANumberEqualsNothing) {
  const AcGeVector3d bad(std::nan(""), 0, 0);
  EXPECT_FALSE(bad == bad);
  EXPECT_FALSE(bad.isParallelTo(AcGeVector3d::kXAxis));
}

} // namespace
