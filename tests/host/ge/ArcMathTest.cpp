// Arcs, extents and windows: hand-checked cases and the inputs that damaged drawings bring.
#include "host/ge/ArcMath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using namespace ge;

constexpr double kPi = std::numbers::pi;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(ArcFromBulge, BulgeOneIsAHalfCircleToTheRight) {
  const auto arc = ArcFromBulge(AcGePoint2d(0, 0), AcGePoint2d(2, 0), 1.0);
  ASSERT_TRUE(arc);
  EXPECT_EQ(arc->center, AcGePoint2d(1, 0));
  EXPECT_DOUBLE_EQ(arc->radius, 1.0);
  EXPECT_DOUBLE_EQ(arc->startAngle, kPi);
  EXPECT_DOUBLE_EQ(arc->sweep, kPi);
  EXPECT_NEAR(std::remainder(arc->EndAngle(), 2 * kPi), 0.0, 1e-15);
  EXPECT_EQ(arc->PointAt(1.5 * kPi), AcGePoint2d(1, -1));
}

TEST(ArcFromBulge, ANegativeBulgeRunsClockwise) {
  const auto arc = ArcFromBulge(AcGePoint2d(0, 0), AcGePoint2d(2, 0), -1.0);
  ASSERT_TRUE(arc);
  EXPECT_DOUBLE_EQ(arc->sweep, -kPi);
  EXPECT_TRUE(arc->Covers(0.5 * kPi));
  EXPECT_FALSE(arc->Covers(1.5 * kPi));
}

TEST(ArcFromBulge, AQuarterHasTheTangentOfAnEighthTurn) {
  const auto arc = ArcFromBulge(AcGePoint2d(1, 0), AcGePoint2d(0, 1), std::tan(kPi / 8));
  ASSERT_TRUE(arc);
  EXPECT_TRUE(arc->center.isEqualTo(AcGePoint2d::kOrigin));
  EXPECT_NEAR(arc->radius, 1.0, 1e-15);
  EXPECT_NEAR(arc->sweep, kPi / 2, 1e-15);
}

TEST(ArcFromBulge, WhatIsNoArcIsNothing) {
  const AcGePoint2d a(1, 1);
  const AcGePoint2d b(2, 2);
  EXPECT_FALSE(ArcFromBulge(a, b, 0.0));
  EXPECT_FALSE(ArcFromBulge(a, b, 1e-300));
  EXPECT_FALSE(ArcFromBulge(a, a, 1.0));
  EXPECT_FALSE(ArcFromBulge(a, b, std::nan("")));
  EXPECT_FALSE(ArcFromBulge(a, b, kInfinity));
  EXPECT_FALSE(ArcFromBulge(a, AcGePoint2d(kInfinity, 0), 1.0));
  EXPECT_FALSE(ArcFromBulge(a, AcGePoint2d(1e10, 0), 1e305));
}

TEST(ArcFromBulge, AnEnormousBulgeIsAnEnormousCircle) {
  const auto arc = ArcFromBulge(AcGePoint2d(0, 0), AcGePoint2d(4, 0), 1e300);
  ASSERT_TRUE(arc);
  EXPECT_DOUBLE_EQ(arc->radius, 1e300);
  EXPECT_DOUBLE_EQ(arc->sweep, 2 * kPi);
}

TEST(ArcFromBulge, TheEndsComeBackFarFromTheOrigin) {
  const AcGePoint2d a(5e8, 4e8);
  const AcGePoint2d b(5e8 + 3, 4e8 + 4);
  const auto arc = ArcFromBulge(a, b, 0.3);
  ASSERT_TRUE(arc);
  EXPECT_LT(arc->PointAt(arc->startAngle).distanceTo(a), 1e-6);
  EXPECT_LT(arc->PointAt(arc->EndAngle()).distanceTo(b), 1e-6);
}

TEST(ArcFromAngles, RunsCounterClockwiseAndEqualAnglesMakeACircle) {
  EXPECT_DOUBLE_EQ(ArcFromAngles(AcGePoint2d(), 1, 1.5 * kPi, 0.5 * kPi).sweep, kPi);
  EXPECT_DOUBLE_EQ(ArcFromAngles(AcGePoint2d(), 1, 1.0, 1.0).sweep, 2 * kPi);
  EXPECT_DOUBLE_EQ(ArcFromAngles(AcGePoint2d(), 1, 0.0, 2 * kPi).sweep, 2 * kPi);
  EXPECT_DOUBLE_EQ(ArcFromAngles(AcGePoint2d(), 1, -0.5 * kPi, 0).startAngle, 1.5 * kPi);
}

TEST(NormalizeAngle, StaysBelowAFullTurn) {
  EXPECT_EQ(NormalizeAngle(-1e-300), 0.0);
  EXPECT_EQ(NormalizeAngle(2 * kPi), 0.0);
  EXPECT_DOUBLE_EQ(NormalizeAngle(-kPi / 2), 1.5 * kPi);
  EXPECT_LT(NormalizeAngle(1e22), 2 * kPi);
  EXPECT_EQ(NormalizeAngle(kInfinity), 0.0);
  EXPECT_EQ(NormalizeAngle(std::nan("")), 0.0);
}

TEST(ArcExtents, AddsOnlyTheQuadrantsThatTheArcPasses) {
  const Box2d box = ArcExtents(ArcFromAngles(AcGePoint2d(10, 20), 2, kPi / 4, 3 * kPi / 4));
  EXPECT_DOUBLE_EQ(box.maxY, 22.0);
  EXPECT_NEAR(box.minY, 20 + std::sqrt(2.0), 1e-12);
  EXPECT_NEAR(box.minX, 10 - std::sqrt(2.0), 1e-12);
  EXPECT_NEAR(box.maxX, 10 + std::sqrt(2.0), 1e-12);
}

TEST(ArcExtents, AFullCircleHasExactExtents) {
  const Box2d box = ArcExtents(ArcFromAngles(AcGePoint2d(1, 2), 3, 0.7, 0.7));
  EXPECT_EQ(box.minX, -2.0);
  EXPECT_EQ(box.maxX, 4.0);
  EXPECT_EQ(box.minY, -1.0);
  EXPECT_EQ(box.maxY, 5.0);
}

TEST(ArcExtents, ZeroRadiusIsAPointAndWhatIsNotFiniteIsEmpty) {
  const Box2d point = ArcExtents(ArcFromAngles(AcGePoint2d(1, 2), 0, 0, 1));
  EXPECT_EQ(point.minX, 1.0);
  EXPECT_EQ(point.maxY, 2.0);
  EXPECT_TRUE(ArcExtents(ArcFromAngles(AcGePoint2d(std::nan(""), 2), 1, 0, 1)).IsEmpty());
  EXPECT_TRUE(ArcExtents(ArcFromAngles(AcGePoint2d(1, 2), kInfinity, 0, 1)).IsEmpty());
}

TEST(BulgeExtents, HoldsTheEndsExactlyWhenTheArcIsNearlyStraight) {
  const Box2d box = BulgeExtents(AcGePoint2d(0, 0), AcGePoint2d(1000, 0), 1e-7);
  EXPECT_EQ(box.minX, 0.0);
  EXPECT_EQ(box.maxX, 1000.0);
  EXPECT_NEAR(box.minY, -5e-5, 2e-6);
}

TEST(BulgeExtents, SkipsACoordinateThatIsNotFinite) {
  const Box2d box = BulgeExtents(AcGePoint2d(std::nan(""), 0), AcGePoint2d(3, 4), 1.0);
  EXPECT_EQ(box.minX, 3.0);
  EXPECT_EQ(box.maxX, 3.0);
  EXPECT_TRUE(BulgeExtents(AcGePoint2d(kInfinity, 0), AcGePoint2d(3, std::nan("")), 1.0).IsEmpty());
}

TEST(Distance, ToASegmentItsEndsAndItsMiddle) {
  const AcGePoint2d a(0, 0);
  const AcGePoint2d b(10, 0);
  EXPECT_DOUBLE_EQ(DistanceToSegment(AcGePoint2d(5, 3), a, b), 3.0);
  EXPECT_DOUBLE_EQ(DistanceToSegment(AcGePoint2d(-3, 4), a, b), 5.0);
  EXPECT_DOUBLE_EQ(DistanceToSegment(AcGePoint2d(13, 4), a, b), 5.0);
  EXPECT_DOUBLE_EQ(DistanceToSegment(AcGePoint2d(3, 4), a, a), 5.0);
}

TEST(Distance, ToAnArcItsEndsAndItsBody) {
  const PlanarArc upper = ArcFromAngles(AcGePoint2d(0, 0), 5, 0, kPi);
  EXPECT_DOUBLE_EQ(DistanceToArc(AcGePoint2d(0, 7), upper), 2.0);
  EXPECT_DOUBLE_EQ(DistanceToArc(AcGePoint2d(0, 1), upper), 4.0);
  EXPECT_NEAR(DistanceToArc(AcGePoint2d(5, -2), upper), 2.0, 1e-12);
  EXPECT_NEAR(DistanceToArc(AcGePoint2d(-1, -3), upper), 5.0, 1e-12);
  EXPECT_DOUBLE_EQ(DistanceToArc(AcGePoint2d(0, 0), upper), 5.0);
}

TEST(Distance, WhatIsNotANumberIsInfinitelyFar) {
  const AcGePoint2d bad(std::nan(""), 0);
  EXPECT_EQ(DistanceToSegment(bad, AcGePoint2d(0, 0), AcGePoint2d(1, 0)), kInfinity);
  EXPECT_EQ(DistanceToSegment(AcGePoint2d(0, 0), bad, AcGePoint2d(1, 0)), kInfinity);
  EXPECT_EQ(DistanceToArc(AcGePoint2d(0, 0), ArcFromAngles(bad, 1, 0, 1)), kInfinity);
  EXPECT_EQ(DistanceToArc(bad, ArcFromAngles(AcGePoint2d(), 1, 0, 1)), kInfinity);
  EXPECT_EQ(DistanceToBulge(AcGePoint2d(0, 0), AcGePoint2d(1, 0), AcGePoint2d(2, 0), std::nan("")), 1.0);
}

TEST(Window, ASegmentThatPassesThroughWithBothEndsOutsideTouches) {
  const Box2d box = Box2d::FromCorners(AcGePoint2d(10, 10), AcGePoint2d(0, 0));
  EXPECT_TRUE(SegmentTouchesBox(AcGePoint2d(-5, 5), AcGePoint2d(15, 6), box));
  EXPECT_TRUE(SegmentTouchesBox(AcGePoint2d(-1, 1), AcGePoint2d(1, -1), box)); // through the corner
  EXPECT_FALSE(SegmentTouchesBox(AcGePoint2d(-2, 1), AcGePoint2d(1, -2), box));
  EXPECT_FALSE(SegmentTouchesBox(AcGePoint2d(11, 0), AcGePoint2d(12, 9), box));
  EXPECT_TRUE(SegmentTouchesBox(AcGePoint2d(10, 3), AcGePoint2d(12, 3), box)); // ends on the border
  EXPECT_TRUE(SegmentTouchesBox(AcGePoint2d(4, 4), AcGePoint2d(4, 4), box));
  EXPECT_FALSE(SegmentInsideBox(AcGePoint2d(4, 4), AcGePoint2d(14, 4), box));
  EXPECT_TRUE(SegmentInsideBox(AcGePoint2d(0, 4), AcGePoint2d(10, 4), box));
}

TEST(Window, AnArcTouchesByItsLineAndNotByItsArea) {
  const PlanarArc circle = ArcFromAngles(AcGePoint2d(0, 0), 10, 0, 0);
  EXPECT_FALSE(ArcTouchesBox(circle, Box2d::FromCorners(AcGePoint2d(-1, -1), AcGePoint2d(1, 1))));
  EXPECT_TRUE(ArcTouchesBox(circle, Box2d::FromCorners(AcGePoint2d(-1, 9), AcGePoint2d(1, 11))));
  EXPECT_FALSE(ArcTouchesBox(circle, Box2d::FromCorners(AcGePoint2d(8, 8), AcGePoint2d(11, 11))));
  EXPECT_TRUE(
      ArcTouchesBox(circle, Box2d::FromCorners(AcGePoint2d(-20, 10), AcGePoint2d(20, 30)))); // just so
  const PlanarArc lower = ArcFromAngles(AcGePoint2d(0, 0), 10, kPi, 0);
  EXPECT_FALSE(ArcTouchesBox(lower, Box2d::FromCorners(AcGePoint2d(-1, 9), AcGePoint2d(1, 11))));
  EXPECT_TRUE(ArcTouchesBox(lower, Box2d::FromCorners(AcGePoint2d(-1, -11), AcGePoint2d(1, -9))));
}

TEST(Window, AnArcIsInsideWhenItsExtentsAre) {
  const PlanarArc upper = ArcFromAngles(AcGePoint2d(0, 0), 10, 0, kPi);
  EXPECT_TRUE(ArcInsideBox(upper, Box2d::FromCorners(AcGePoint2d(-11, -1), AcGePoint2d(11, 11))));
  EXPECT_FALSE(ArcInsideBox(upper, Box2d::FromCorners(AcGePoint2d(-11, -1), AcGePoint2d(11, 9))));
}

TEST(Window, MeaninglessInputTouchesNothing) {
  const Box2d box = Box2d::FromCorners(AcGePoint2d(-1, -1), AcGePoint2d(1, 1));
  const AcGePoint2d bad(std::nan(""), 0);
  EXPECT_FALSE(SegmentTouchesBox(bad, AcGePoint2d(0, 0), box));
  EXPECT_FALSE(SegmentTouchesBox(AcGePoint2d(kInfinity, 0), AcGePoint2d(0, 0), box));
  EXPECT_FALSE(ArcTouchesBox(ArcFromAngles(bad, 1, 0, 1), box));
  EXPECT_FALSE(ArcInsideBox(ArcFromAngles(bad, 1, 0, 1), box));
  EXPECT_FALSE(SegmentTouchesBox(AcGePoint2d(0, 0), AcGePoint2d(1, 0), Box2d()));
  EXPECT_FALSE(BulgeTouchesBox(bad, bad, 1.0, box));
  EXPECT_FALSE(BulgeInsideBox(bad, AcGePoint2d(0, 0), 1.0, box));
}

TEST(Window, AnEnormousBulgeIsAnsweredAtOnce) {
  const Box2d box = Box2d::FromCorners(AcGePoint2d(-1, -1), AcGePoint2d(1, 1));
  EXPECT_TRUE(BulgeTouchesBox(AcGePoint2d(0, 0), AcGePoint2d(4, 0), 1e300, box));
  EXPECT_FALSE(BulgeInsideBox(AcGePoint2d(0, 0), AcGePoint2d(0.5, 0), 1e300, box));
  EXPECT_GT(BulgeExtents(AcGePoint2d(0, 0), AcGePoint2d(4, 0), 1e300).maxX, 1e299);
}

TEST(Box2d, AnEmptyBoxOverlapsAndHoldsNothing) {
  const Box2d empty;
  const Box2d box = Box2d::FromCorners(AcGePoint2d(0, 0), AcGePoint2d(1, 1));
  EXPECT_TRUE(empty.IsEmpty());
  EXPECT_FALSE(box.Overlaps(empty));
  EXPECT_FALSE(box.Contains(empty));
  Box2d sum = box;
  sum.Add(empty);
  EXPECT_EQ(sum.maxX, 1.0);
  sum.Add(Box2d::FromCorners(AcGePoint2d(5, -5), AcGePoint2d(6, -6)));
  EXPECT_EQ(sum.maxX, 6.0);
  EXPECT_EQ(sum.minY, -6.0);
}

} // namespace
