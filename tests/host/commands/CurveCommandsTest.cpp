// ARC and PLINE.
#include "host/db/AcDbArc.h"
#include "host/db/AcDbPolyline.h"
#include "tests/host/commands/CommandFixture.h"

#include <numbers>

namespace {

using std::numbers::pi;

class CurveCommands : public CommandFixture {
 protected:
  // The one arc that the lines make: centre, radius and angles.
  void expectArc(const AcGePoint3d& centre, double radius, double startAngle, double endAngle) {
    const auto* arc = only<AcDbArc>();
    ASSERT_NE(nullptr, arc);
    EXPECT_TRUE(centre.isEqualTo(arc->center(), AcGeTol())) << arc->center().x << ' ' << arc->center().y;
    EXPECT_NEAR(radius, arc->radius(), 1e-9);
    EXPECT_NEAR(0, std::remainder(startAngle - arc->startAngle(), 2 * pi), 1e-9);
    EXPECT_NEAR(0, std::remainder(endAngle - arc->endAngle(), 2 * pi), 1e-9);
  }
  static double bulgeOf(const AcDbPolyline& polyline, unsigned index) {
    double bulge = 0;
    EXPECT_EQ(Acad::eOk, polyline.getBulgeAt(index, bulge));
    return bulge;
  }
};

} // namespace

TEST_F(CurveCommands, ArcGoesThroughThreePoints) {
  run(L"ARC", {L"5,0", L"0,5", L"-5,0"});
  expectArc({0, 0, 0}, 5, 0, pi);
}

TEST_F(CurveCommands, AClockwiseArcIsTurnedRound) {
  run(L"ARC", {L"-5,0", L"0,5", L"5,0"});
  expectArc({0, 0, 0}, 5, 0, pi);
  EXPECT_EQ(1.0, only<AcDbArc>()->normal().z);
}

TEST_F(CurveCommands, AnArcThroughPointsOfDifferentHeightLiesInTheirPlane) {
  run(L"ARC", {L"5,0,0", L"0,0,5", L"-5,0,0"});
  const auto* arc = only<AcDbArc>();
  ASSERT_NE(nullptr, arc);
  AcGePoint3d start;
  arc->getStartPoint(start);
  EXPECT_TRUE(start.isEqualTo({5, 0, 0})) << start.x << ' ' << start.y << ' ' << start.z;
  EXPECT_NEAR(1, std::fabs(arc->normal().y), 1e-12);
}

TEST_F(CurveCommands, PointsOnALineMakeNoArc) {
  run(L"ARC", {L"0,0", L"1,0", L"2,0"});
  EXPECT_EQ(0u, entityCount());
  EXPECT_GE(reason().Find(L"一条直线"), 0);
}

TEST_F(CurveCommands, ArcAboutACentreRunsAnticlockwise) {
  run(L"ARC", {L"10,0", L"C", L"0,0", L"0,3"});
  expectArc({0, 0, 0}, 10, 0, pi / 2);
  run(L"U");
  run(L"ARC", {L"C", L"0,0", L"10,0", L"A", L"-90"});
  expectArc({0, 0, 0}, 10, -pi / 2, 0);
}

TEST_F(CurveCommands, ArcBetweenPointsTakesAnAngleOrARadius) {
  run(L"ARC", {L"0,0", L"E", L"10,0", L"A", L"180"});
  expectArc({5, 0, 0}, 5, pi, 2 * pi);
  run(L"U");
  run(L"ARC", {L"0,0", L"E", L"10,0", L"R", L"5"});
  expectArc({5, 0, 0}, 5, pi, 2 * pi);
  run(L"U");
  run(L"ARC", {L"0,0", L"E", L"6,0", L"R", L"5"});
  expectArc({3, 4, 0}, 5, std::atan2(-4, -3), std::atan2(-4, 3));
  run(L"U");
  run(L"ARC", {L"0,0", L"E", L"6,0", L"R", L"-5"});
  expectArc({3, -4, 0}, 5, std::atan2(4, -3), std::atan2(4, 3));
}

TEST_F(CurveCommands, ValuesThatMakeNoArcAreTold) {
  run(L"ARC", {L"0,0", L"E", L"10,0", L"R", L"4"});
  EXPECT_GE(reason().Find(L"弦长的一半"), 0);
  run(L"ARC", {L"0,0", L"E", L"0,0"});
  run(L"ARC", {L"0,0", L"E", L"10,0", L"A", L"360"});
  run(L"ARC", {L"0,0", L"C", L"0,0", L"5,5"});
  run(L"ARC", {L"1,0", L"C", L"0,0", L"A", L"0"});
  EXPECT_EQ(0u, entityCount());
  EXPECT_EQ(5u, frontEnd.refusals.size());
}

TEST_F(CurveCommands, PlineMixesSegmentsAndTangentArcs) {
  run(L"PLINE", {L"0,0", L"10,0", L"A", L"10,4", L"L", L"0,4", L""});
  const auto* polyline = only<AcDbPolyline>();
  ASSERT_NE(nullptr, polyline);
  ASSERT_EQ(4u, polyline->numVerts());
  EXPECT_NEAR(0, bulgeOf(*polyline, 0), 1e-12);
  EXPECT_NEAR(1, bulgeOf(*polyline, 1), 1e-12) << "a half circle that leaves along the first segment";
  EXPECT_NEAR(0, bulgeOf(*polyline, 2), 1e-12);
  EXPECT_FALSE(polyline->isClosed());
}

TEST_F(CurveCommands, ArcsThatFollowEachOtherStayTangent) {
  run(L"PLINE", {L"0,0", L"10,0", L"A", L"20,10", L"30,20", L""});
  const auto* polyline = only<AcDbPolyline>();
  ASSERT_NE(nullptr, polyline);
  EXPECT_NEAR(std::tan(pi / 8), bulgeOf(*polyline, 1), 1e-12) << "a quarter turn to the left";
  EXPECT_NEAR(-std::tan(pi / 8), bulgeOf(*polyline, 2), 1e-12) << "and back to the right";
}

TEST_F(CurveCommands, PlineTakesAnArcThroughASecondPoint) {
  run(L"PLINE", {L"0,0", L"A", L"S", L"5,5", L"10,0", L""});
  EXPECT_NEAR(-1, bulgeOf(*only<AcDbPolyline>(), 0), 1e-12);
  run(L"PLINE", {L"0,0", L"A", L"S", L"5,0", L"10,0", L""});
  EXPECT_GE(reason().Find(L"一条直线"), 0);
}

TEST_F(CurveCommands, PlineClosesTakesBackAndHasAWidth) {
  run(L"PLINE", {L"0,0", L"W", L"2", L"10,0", L"10,10", L"99,99", L"U", L"C"});
  const auto* polyline = only<AcDbPolyline>();
  ASSERT_NE(nullptr, polyline);
  EXPECT_EQ(3u, polyline->numVerts());
  EXPECT_TRUE(polyline->isClosed());
  double start = 0;
  double end = 0;
  polyline->getWidthsAt(1, start, end);
  EXPECT_EQ(2.0, start);
}

TEST_F(CurveCommands, PlineWithoutASegmentDrawsNothing) {
  run(L"PLINE", {L"0,0", L"U", L""});
  EXPECT_EQ(0u, entityCount());
  EXPECT_TRUE(frontEnd.said(L"没有可放弃的线段"));
  run(L"PLINE", {L"0,0", L"0,0", L""});
  EXPECT_EQ(0u, entityCount());
  EXPECT_TRUE(refused());
}

TEST_F(CurveCommands, EscapeInPlineDrawsNothing) {
  run(L"PLINE", {L"0,0", L"10,0", L"*cancel*"});
  EXPECT_EQ(0u, entityCount());
}
