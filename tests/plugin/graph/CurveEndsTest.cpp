// Moving the ends of the curves of a drawing.
#include <numbers>

#include "host/db/AcDbCurves.h"
#include "plugin/graph/CurveEnds.h"
#include "tests/support/WorkingDrawing.h"

#include <gtest/gtest.h>

namespace {

struct Ends {
  AcGePoint3d start;
  AcGePoint3d end;
};

Ends EndsOf(const AcDbCurve& curve) {
  Ends ends;
  curve.getStartPoint(ends.start);
  curve.getEndPoint(ends.end);
  return ends;
}

double LengthOf(const AcDbCurve& curve) {
  double parameter = 0;
  double length = 0;
  curve.getEndParam(parameter);
  curve.getDistAtParam(parameter, length);
  return length;
}

// Five vertices with a bulge at the third and widths that tell the segments apart.
void Fill(AcDbPolyline& polyline, bool closed = false) {
  const AcGePoint2d points[] = {{0, 0}, {100, 0}, {100, 100}, {200, 100}, {200, 0}};
  for (unsigned i = 0; i < 5; ++i) polyline.addVertexAt(i, points[i], i == 2 ? -1.0 : 0.0, 1.0 + i, 1.0 + i);
  polyline.setClosed(closed);
}

double WidthAt(const AcDbPolyline& polyline, unsigned vertex) {
  double from = 0;
  double to = 0;
  polyline.getWidthsAt(vertex, from, to);
  return from;
}

double BulgeAt(const AcDbPolyline& polyline, unsigned vertex) {
  double bulge = 0;
  polyline.getBulgeAt(vertex, bulge);
  return bulge;
}

TEST(CurveEnds, OfALineAreTrimmedAndExtended) {
  AcDbLine line({0, 0, 0}, {100, 0, 0});
  EXPECT_TRUE(ZP::ChangeCurveStart(&line, {30, 0, 0}));
  EXPECT_EQ(AcGePoint3d(30, 0, 0), line.startPoint());
  EXPECT_EQ(AcGePoint3d(100, 0, 0), line.endPoint());
  EXPECT_TRUE(ZP::ChangeCurveEnd(&line, {170, 0, 0}));
  EXPECT_EQ(AcGePoint3d(30, 0, 0), line.startPoint());
  EXPECT_EQ(AcGePoint3d(170, 0, 0), line.endPoint());
}

TEST(CurveEnds, OfAnArcAreTrimmedAndExtendedOnItsCircle) {
  constexpr double pi = std::numbers::pi;
  AcDbArc arc({0, 0, 0}, {0, 0, 1}, 100, 0, pi);
  EXPECT_TRUE(ZP::ChangeCurveStart(&arc, {0, 100, 0}));
  EXPECT_NEAR(pi / 2, arc.startAngle(), 1e-12);
  EXPECT_NEAR(pi, arc.endAngle(), 1e-12);
  EXPECT_TRUE(ZP::ChangeCurveEnd(&arc, {0, -100, 0}));
  EXPECT_NEAR(pi / 2, arc.startAngle(), 1e-12);
  EXPECT_NEAR(3 * pi / 2, arc.endAngle(), 1e-12);
  EXPECT_EQ(100, arc.radius());
}

TEST(CurveEnds, OfAPolylineLeaveItsOtherSegmentsWithTheirBulgesAndWidths) {
  AcDbPolyline polyline;
  Fill(polyline);
  EXPECT_TRUE(ZP::ChangeCurveStart(&polyline, {100, 40, 0})); // within the second segment
  ASSERT_EQ(4u, polyline.numVerts());
  EXPECT_EQ(AcGePoint3d(100, 40, 0), EndsOf(polyline).start);
  EXPECT_EQ(-1, BulgeAt(polyline, 1));
  EXPECT_EQ(2, WidthAt(polyline, 0));
  EXPECT_EQ(3, WidthAt(polyline, 1));
  EXPECT_EQ(4, WidthAt(polyline, 2));
  EXPECT_TRUE(ZP::ChangeCurveEnd(&polyline, {200, 25, 0}));
  ASSERT_EQ(4u, polyline.numVerts());
  EXPECT_EQ(AcGePoint3d(200, 25, 0), EndsOf(polyline).end);
  EXPECT_EQ(-1, BulgeAt(polyline, 1));
  EXPECT_EQ(4, WidthAt(polyline, 2));
}

TEST(CurveEnds, OfAPolylineMayLieOnABulge) {
  AcDbPolyline polyline;
  Fill(polyline);
  const double whole = LengthOf(polyline);
  const AcGePoint3d top(150, 150, 0); // of the half circle of radius 50
  EXPECT_TRUE(ZP::ChangeCurveEnd(&polyline, top));
  EXPECT_TRUE(EndsOf(polyline).end.isEqualTo(top));
  EXPECT_NEAR(200 + 25 * std::numbers::pi, LengthOf(polyline), 1e-9);
  AcDbPolyline rest;
  Fill(rest);
  EXPECT_TRUE(ZP::ChangeCurveStart(&rest, top));
  EXPECT_NEAR(whole, LengthOf(polyline) + LengthOf(rest), 1e-9);
  EXPECT_EQ(3, WidthAt(rest, 0));
  EXPECT_EQ(4, WidthAt(rest, 1));
}

TEST(CurveEnds, OfAPolylineAreExtendedAlongItsEndSegments) {
  AcDbPolyline polyline;
  Fill(polyline);
  EXPECT_TRUE(ZP::ChangeCurveStart(&polyline, {-60, 0, 0}));
  EXPECT_TRUE(ZP::ChangeCurveEnd(&polyline, {200, -60, 0}));
  ASSERT_EQ(5u, polyline.numVerts());
  EXPECT_EQ(AcGePoint3d(-60, 0, 0), EndsOf(polyline).start);
  EXPECT_EQ(AcGePoint3d(200, -60, 0), EndsOf(polyline).end);
  for (unsigned i = 0; i < 4; ++i) EXPECT_EQ(1.0 + i, WidthAt(polyline, i)) << i;
  EXPECT_EQ(-1, BulgeAt(polyline, 2));
}

TEST(CurveEnds, OfAClosedPolylineOpenItAtItsFirstVertex) {
  AcDbPolyline from;
  Fill(from, true);
  EXPECT_TRUE(ZP::ChangeCurveStart(&from, {200, 60, 0}));
  EXPECT_FALSE(from.isClosed());
  EXPECT_EQ(AcGePoint3d(200, 60, 0), EndsOf(from).start);
  EXPECT_EQ(AcGePoint3d(0, 0, 0), EndsOf(from).end);
  EXPECT_NEAR(60 + 200, LengthOf(from), 1e-9);
  EXPECT_EQ(4, WidthAt(from, 0));
  EXPECT_EQ(5, WidthAt(from, 1));
  AcDbPolyline to;
  Fill(to, true);
  EXPECT_TRUE(ZP::ChangeCurveEnd(&to, {100, 60, 0}));
  EXPECT_FALSE(to.isClosed());
  EXPECT_NEAR(160, LengthOf(to), 1e-9);
}

TEST(CurveEnds, StayWhereThePointLiesElsewhere) {
  AcDbLine line({0, 0, 0}, {100, 0, 0});
  EXPECT_FALSE(ZP::ChangeCurveStart(&line, {50, 1, 0}));
  EXPECT_FALSE(ZP::ChangeCurveEnd(&line, {-10, 0, 0}));
  EXPECT_EQ(AcGePoint3d(0, 0, 0), line.startPoint());
  EXPECT_EQ(AcGePoint3d(100, 0, 0), line.endPoint());
}

TEST(CurveEnds, StayWhereNothingWouldBeLeft) {
  AcDbLine line({0, 0, 0}, {100, 0, 0});
  EXPECT_FALSE(ZP::ChangeCurveStart(&line, {100, 0, 0}));
  EXPECT_FALSE(ZP::ChangeCurveEnd(&line, {0, 0, 0}));
  AcDbLine point({5, 5, 0}, {5, 5, 0});
  EXPECT_FALSE(ZP::ChangeCurveStart(&point, {5, 5, 0}));
  EXPECT_EQ(AcGePoint3d(100, 0, 0), line.endPoint());
}

TEST(CurveEnds, OfACircleAndOfNothingCantBeMoved) {
  AcDbCircle circle({0, 0, 0}, {0, 0, 1}, 100);
  EXPECT_FALSE(ZP::ChangeCurveStart(&circle, {100, 0, 0}));
  EXPECT_FALSE(ZP::ChangeCurveEnd(&circle, {100, 0, 0}));
  EXPECT_FALSE(ZP::ChangeCurveStart(nullptr, {0, 0, 0}));
  EXPECT_FALSE(ZP::ChangeCurveEnd(nullptr, {0, 0, 0}));
}

TEST(CurveEnds, OfACurveThatIsOpenForReadStay) {
  WorkingDrawing drawing;
  const AcDbObjectPointer<AcDbLine> line(drawing.AppendLine(), AcDb::kForRead);
  EXPECT_FALSE(ZP::ChangeCurveStart(line, {10, 0, 0}));
  EXPECT_EQ(AcGePoint3d(0, 0, 0), line->startPoint());
}

} // namespace
