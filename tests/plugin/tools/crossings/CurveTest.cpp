// Pipes that are no straight lines.
#include "host/ge/CurveParameters.h"
#include "tests/plugin/tools/crossings/CrossingsFixture.h"

namespace {

constexpr double kPi = std::numbers::pi;

class CrossingCurves : public CrossingsFixture {
 protected:
  static double lengthOf(const AcDbObjectId& id) {
    const AcDbObjectPointer<AcDbCurve> curve(id, AcDb::kForRead);
    double parameter = 0;
    double length = 0;
    curve->getEndParam(parameter);
    curve->getDistAtParam(parameter, length);
    return length;
  }
  static AcDbObjectId arc(const AcGePoint3d& center, double radius, double from, double to,
                          double elevation) {
    return withElevation(add(new AcDbArc(center, {0, 0, 1}, radius, from, to)), elevation);
  }
  // On a chord as long as the symbol's radius, measured on the arc.
  static double cutOff(double radius) { return 2 * radius * std::asin(kRadius / 2 / radius); }
};

TEST_F(CrossingCurves, ALowerArcStopsAtTheCircleAndKeepsItsShape) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto low = arc({0, 500, 0}, 500, -kPi / 2, 0, 2.0);
  addKw({high, low});
  const AcDbObjectPointer<AcDbArc> left(low, AcDb::kForRead);
  EXPECT_TRUE(left->center().isEqualTo({0, 500, 0}));
  EXPECT_EQ(500, left->radius());
  EXPECT_NEAR(500 * kPi / 2 - cutOff(500), lengthOf(low), 1e-9);
  AcGePoint3d start;
  left->getStartPoint(start);
  EXPECT_NEAR(kRadius, start.distanceTo({0, 0, 0}), 1e-9);
  expectSound();
}

TEST_F(CrossingCurves, AnArcThatTheJointLiesOnIsSplitInTwoArcs) {
  const auto branch = pipe({0, 0, 0}, {0, -900, 0}, 3.0);
  const auto low = arc({0, 500, 0}, 500, kPi, 0, 2.0);
  addKw({branch, low});
  const auto arcs = all<AcDbArc>();
  ASSERT_EQ(2u, arcs.size());
  for (const auto& part : arcs) EXPECT_NEAR(500 * kPi / 2 - cutOff(500), lengthOf(part), 1e-9);
}

TEST_F(CrossingCurves, AHigherArcIsSplitAtTheJoint) {
  const auto branch = pipe({0, 0, 0}, {0, -900, 0}, 1.0);
  const auto high = arc({0, 500, 0}, 500, kPi, 0, 2.0);
  addKw({branch, high});
  const auto arcs = all<AcDbArc>();
  ASSERT_EQ(2u, arcs.size());
  expectRuns(arcs[0], {-500, 500, 0}, {0, 0, 0});
  expectRuns(arcs[1], {0, 0, 0}, {500, 500, 0});
}

TEST_F(CrossingCurves, OnlyTheSegmentAtTheJointOfAPolylineIsCut) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  const auto low = polyline({{0, 0}, {0, 400}, {600, 400}, {600, 900}}, 2.0);
  {
    const AcDbObjectPointer<AcDbPolyline> opened(low, AcDb::kForWrite);
    opened->setBulgeAt(1, 0.5);
    for (unsigned i = 0; i < 4; ++i) opened->setWidthsAt(i, 10.0 + i, 10.0 + i);
  }
  addKw({high, low});
  const AcDbObjectPointer<AcDbPolyline> left(low, AcDb::kForRead);
  ASSERT_EQ(4u, left->numVerts());
  expectRuns(low, {0, 50, 0}, {600, 900, 0});
  double bulge = 0;
  left->getBulgeAt(1, bulge);
  EXPECT_EQ(0.5, bulge);
  for (unsigned i = 0; i < 4; ++i) {
    double from = 0;
    double to = 0;
    left->getWidthsAt(i, from, to);
    EXPECT_EQ(10.0 + i, from) << i;
  }
}

TEST_F(CrossingCurves, ALowerPolylineIsSplitWithItsBulgesOnBothSides) {
  const auto branch = pipe({500, 0, 0}, {500, 900, 0}, 3.0);
  const auto low = polyline({{-500, 0}, {0, 0}, {1000, 0}, {1500, 0}}, 2.0);
  {
    const AcDbObjectPointer<AcDbPolyline> opened(low, AcDb::kForWrite);
    opened->setBulgeAt(0, 0.3);
    opened->setBulgeAt(2, -0.7);
  }
  addKw({branch, low});
  const auto parts = all<AcDbPolyline>();
  ASSERT_EQ(2u, parts.size());
  expectRuns(parts[0], {-500, 0, 0}, {450, 0, 0});
  expectRuns(parts[1], {550, 0, 0}, {1500, 0, 0});
  double bulge = 0;
  AcDbObjectPointer<AcDbPolyline>(parts[0], AcDb::kForRead)->getBulgeAt(0, bulge);
  EXPECT_EQ(0.3, bulge);
  AcDbObjectPointer<AcDbPolyline>(parts[1], AcDb::kForRead)->getBulgeAt(1, bulge);
  EXPECT_EQ(-0.7, bulge);
}

TEST_F(CrossingCurves, TheJointMayLieOnTheBulgeOfAPolyline) {
  const auto low = polyline({{-500, 0}, {500, 0}}, 2.0);
  AcDbObjectPointer<AcDbPolyline>(low, AcDb::kForWrite)->setBulgeAt(0, -1); // the half circle above
  const auto branch = pipe({0, 500, 0}, {0, 1500, 0}, 3.0);
  addKw({branch, low});
  const auto parts = all<AcDbPolyline>();
  ASSERT_EQ(2u, parts.size());
  for (const auto& part : parts) EXPECT_NEAR(500 * kPi / 2 - cutOff(500), lengthOf(part), 1e-8);
}

TEST_F(CrossingCurves, ALowerRingIsCutWhereTheBranchMeetsIt) {
  const auto ring = polyline({{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}}, 2.0, true);
  const auto branch = pipe({500, 0, 0}, {500, -900, 0}, 3.0);
  addKw({ring, branch});
  const auto parts = all<AcDbPolyline>();
  ASSERT_EQ(2u, parts.size());
  expectRuns(parts[0], {0, 0, 0}, {450, 0, 0});
  expectRuns(parts[1], {550, 0, 0}, {0, 0, 0}); // the rest, round to the ring's first vertex
  EXPECT_NEAR(4000 - 2 * kRadius, lengthOf(parts[0]) + lengthOf(parts[1]), 1e-9);
  expectSound();
}

TEST_F(CrossingCurves, ALowerRingThatBeginsAtTheJointIsCutAtBothEnds) {
  const auto ring = polyline({{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}}, 2.0, true);
  const auto branch = pipe({0, 0, 0}, {-900, -300, 0}, 3.0);
  addKw({ring, branch});
  ASSERT_EQ(1u, all<AcDbPolyline>().size());
  expectRuns(ring, {50, 0, 0}, {0, 50, 0});
  EXPECT_NEAR(4000 - 2 * kRadius, lengthOf(ring), 1e-9);
}

TEST_F(CrossingCurves, ALowerRingThatBeginsOnTheCircleLosesWhatLiesInside) {
  for (const bool forward : {true, false}) {
    SCOPED_TRACE(forward);
    const double y = forward ? 0 : 5000;
    std::vector<AcGePoint2d> points = {{50, y}, {1000, y}, {1000, y + 1000}, {0, y + 1000}, {0, y}};
    if (!forward) std::reverse(points.begin() + 1, points.end());
    const auto ring = polyline(points, 2.0, true);
    const auto branch = pipe({0, y, 0}, {-900, y - 300, 0}, 3.0);
    addKw({ring, branch});
    EXPECT_NEAR(4000 - 2 * kRadius, lengthOf(ring), 1e-9);
  }
  EXPECT_EQ(2u, all<AcDbPolyline>().size());
}

TEST_F(CrossingCurves, AnOpenLoopThatBeginsAndEndsAtTheJointLosesNothingOutside) {
  const auto loop = polyline({{0, 0}, {1000, 0}, {1000, 1000}, {0, 0}}, 2.0);
  const auto branch = pipe({0, 0, 0}, {-900, 0, 0}, 3.0);
  addKw({loop, branch});
  ASSERT_EQ(1u, all<AcDbPolyline>().size());
  EXPECT_NEAR(2000 + 1000 * std::numbers::sqrt2 - 2 * kRadius, lengthOf(loop), 1e-9);
}

TEST_F(CrossingCurves, AHigherRingIsSplitAtTheJoint) {
  const auto ring = polyline({{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}}, 3.0, true);
  const auto branch = pipe({500, 0, 0}, {500, -900, 0}, 2.0);
  addKw({ring, branch});
  const auto parts = all<AcDbPolyline>();
  ASSERT_EQ(2u, parts.size());
  expectRuns(parts[0], {0, 0, 0}, {500, 0, 0});
  expectRuns(parts[1], {500, 0, 0}, {0, 0, 0});
  EXPECT_NEAR(4000, lengthOf(parts[0]) + lengthOf(parts[1]), 1e-9);
}

TEST_F(CrossingCurves, AHigherRingThatBeginsAtTheJointStaysARing) {
  const auto ring = polyline({{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}}, 3.0, true);
  const auto branch = pipe({0, 0, 0}, {-900, -300, 0}, 2.0);
  addKw({ring, branch});
  ASSERT_EQ(1u, all<AcDbPolyline>().size());
  EXPECT_NEAR(4000, lengthOf(ring), 1e-9);
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(CrossingCurves, AHigherLoopThatBeginsAndEndsAtTheJointStaysWhole) {
  const auto loop = polyline({{0, 0}, {1000, 0}, {1000, 1000}, {0, 0}}, 3.0);
  const auto branch = pipe({0, 0, 0}, {-900, 0, 0}, 2.0);
  addKw({loop, branch});
  ASSERT_EQ(1u, all<AcDbPolyline>().size());
  expectRuns(loop, {0, 0, 0}, {0, 0, 0});
  EXPECT_EQ(1u, symbols().size());
}

TEST_F(CrossingCurves, APolylineOnTheOtherSideOfItsPlaneIsCutAsItIsSeen) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0);
  auto* mirrored = new AcDbPolyline;
  mirrored->setNormal({0, 0, -1});
  mirrored->addVertexAt(0, {0, 0});
  mirrored->addVertexAt(1, {-800, 0});
  const auto low = withElevation(add(mirrored), 2.0);
  expectRuns(low, {0, 0, 0}, {800, 0, 0});
  addKw({high, low});
  expectRuns(low, {50, 0, 0}, {800, 0, 0});
}

} // namespace
