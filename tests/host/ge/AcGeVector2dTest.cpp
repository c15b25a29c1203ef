// What vectors and points of the plane promise.
#include "host/ge/AcGePoint2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

TEST(AcGeVector2d, AngleLiesInOneTurn) {
  EXPECT_EQ(AcGeVector2d(1, 0).angle(), 0.0);
  EXPECT_DOUBLE_EQ(AcGeVector2d(0, -1).angle(), 3 * kPi / 2);
  EXPECT_DOUBLE_EQ(AcGeVector2d(-1, -0.0).angle(), kPi);
  EXPECT_LT(AcGeVector2d(1, -1e-300).angle(), 2 * kPi);
  EXPECT_EQ(AcGeVector2d().angle(), 0.0);
}

TEST(AcGeVector2d, AngleToHasNoSign) {
  EXPECT_DOUBLE_EQ(AcGeVector2d(2, 0).angleTo(AcGeVector2d(0, -3)), kPi / 2);
  EXPECT_DOUBLE_EQ(AcGeVector2d(2, 0).angleTo(AcGeVector2d(-1, 0)), kPi);
}

TEST(AcGeVector2d, CrossProductIsPositiveToTheLeft) {
  EXPECT_GT(AcGeVector2d::kXAxis.crossProduct(AcGeVector2d::kYAxis), 0.0);
  EXPECT_EQ(AcGeVector2d(3, 4).perpVector(), AcGeVector2d(-4, 3));
}

TEST(AcGeVector2d, DirectionsAreComparedWithoutRegardToLength) {
  EXPECT_TRUE(AcGeVector2d(1, 1).isCodirectionalTo(AcGeVector2d(5, 5)));
  EXPECT_FALSE(AcGeVector2d(1, 1).isCodirectionalTo(AcGeVector2d(-5, -5)));
  EXPECT_TRUE(AcGeVector2d(1, 1).isParallelTo(AcGeVector2d(-5, -5)));
  EXPECT_TRUE(AcGeVector2d(1, 1).isPerpendicularTo(AcGeVector2d(-5, 5)));
  EXPECT_FALSE(AcGeVector2d().isParallelTo(AcGeVector2d(1, 0)));
}

TEST(AcGeVector2d, RotateAndMirror) {
  EXPECT_EQ(AcGeVector2d(1, 0).rotateBy(kPi / 2), AcGeVector2d(0, 1));
  EXPECT_EQ(AcGeVector2d(2, 1).mirror(AcGeVector2d(1, 1)), AcGeVector2d(1, 2));
  EXPECT_EQ(AcGeVector2d(2, 1).mirror(AcGeVector2d()), AcGeVector2d(2, 1));
}

TEST(AcGePoint2d, DistanceDoesNotOverflow) {
  EXPECT_DOUBLE_EQ(AcGePoint2d(3e200, 0).distanceTo(AcGePoint2d(0, 4e200)), 5e200);
}

TEST(AcGePoint2d, RotatesAndScalesAboutAPoint) {
  EXPECT_EQ(AcGePoint2d(2, 1).rotateBy(kPi / 2, AcGePoint2d(1, 1)), AcGePoint2d(1, 2));
  EXPECT_EQ(AcGePoint2d(2, 1).scaleBy(3, AcGePoint2d(1, 1)), AcGePoint2d(4, 1));
}

TEST(AcGePoint2d, EqualityIsByDistance) {
  EXPECT_TRUE(AcGePoint2d(1, 1).isEqualTo(AcGePoint2d(1, 1 + 1e-11)));
  EXPECT_FALSE(AcGePoint2d(1, 1).isEqualTo(AcGePoint2d(1, 1 + 1e-9)));
}

} // namespace
