// Splitting, reversing, trimming, extending and transforming curves, areas and central angles.
#include "host/ge/AcGeCircArc3d.h"
#include "host/ge/AcGePlane.h"
#include "host/ge/CurveArea.h"
#include "host/ge/CurveEnds.h"
#include "host/ge/CurveSplit.h"
#include "host/ge/CurveTransform.h"
#include "host/ge/ThreePointArc.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace {

using namespace ge;

constexpr double kPi = std::numbers::pi;
const AcGeVector3d kUp(0, 0, 1);

Curve Line(double x1, double y1, double x2, double y2) {
  return Curve::Line({x1, y1, 0}, {x2, y2, 0});
}

Curve Poly(std::vector<PolylineVertex> vertices, bool closed = false) {
  return Curve::Polyline(vertices, closed);
}

// 10 along x, then a half circle of radius 5 back over the top.
Curve Hook() {
  return Poly({{{0, 0}}, {{10, 0}, 1}, {{10, 10}}});
}

Curve Square() {
  return Poly({{{0, 0}}, {{10, 0}}, {{10, 10}}, {{0, 10}}}, true);
}

void ExpectNear(const AcGePoint3d& got, const AcGePoint3d& expected) {
  EXPECT_LE(got.distanceTo(expected), 1e-11) << got.x << ", " << got.y << ", " << got.z;
}

void ExpectEnds(const Curve& curve, const AcGePoint3d& start, const AcGePoint3d& end) {
  ExpectNear(StartPoint(curve).value, start);
  ExpectNear(EndPoint(curve).value, end);
}

std::vector<Curve> Split(const Curve& curve, std::vector<double> parameters) {
  const auto parts = SplitAtParameters(curve, parameters);
  EXPECT_EQ(parts.status, CurveStatus::kOk);
  return parts.value;
}

TEST(CurveSplit, AnOpenCurveGivesOnePieceMoreThanCuts) {
  const auto line = Split(Line(0, 0, 10, 0), {7, 3});
  ASSERT_EQ(line.size(), 3u);
  ExpectEnds(line[1], {3, 0, 0}, {7, 0, 0});
  const auto arc = Split(Curve::Arc({0, 0, 0}, kUp, 5, 1.5 * kPi, 0.5 * kPi), {2 * kPi});
  ASSERT_EQ(arc.size(), 2u);
  EXPECT_EQ(arc[1].Kind(), CurveKind::kArc);
  ExpectEnds(arc[1], {5, 0, 0}, {0, 5, 0});
  const auto hook = Split(Hook(), {1.5});
  ASSERT_EQ(hook.size(), 2u);
  ExpectEnds(hook[0], {0, 0, 0}, {15, 5, 0});
  EXPECT_NEAR(hook[0].Vertices()[1].bulge, std::tan(kPi / 8), 1e-15);
  EXPECT_EQ(hook[0].Vertices()[0].bulge, 0.0);
}

TEST(CurveSplit, AtAVertexNoSegmentIsLost) {
  const auto parts = Split(Hook(), {1.0});
  ASSERT_EQ(parts.size(), 2u);
  EXPECT_EQ(parts[0].Vertices().size(), 2u);
  EXPECT_EQ(parts[1].Vertices().size(), 2u);
  EXPECT_EQ(parts[1].Vertices()[0].bulge, 1.0);
}

TEST(CurveSplit, AClosedCurveGivesAsManyPiecesAsCuts) {
  const auto circle = Split(Curve::Circle({0, 0, 0}, kUp, 5), {kPi / 2, kPi});
  ASSERT_EQ(circle.size(), 2u);
  ExpectEnds(circle[0], {0, 5, 0}, {-5, 0, 0});
  ExpectEnds(circle[1], {-5, 0, 0}, {0, 5, 0});
  EXPECT_NEAR(Length(circle[1]).value, 7.5 * kPi, 1e-12);
  const auto opened = Split(Curve::Circle({0, 0, 0}, kUp, 5), {kPi / 2});
  ASSERT_EQ(opened.size(), 1u);
  EXPECT_NEAR(Length(opened[0]).value, 10 * kPi, 1e-12);
  ExpectEnds(opened[0], {0, 5, 0}, {0, 5, 0});
  const auto square = Split(Square(), {0.5, 2.5});
  ASSERT_EQ(square.size(), 2u);
  ExpectEnds(square[1], {5, 10, 0}, {5, 0, 0});
  EXPECT_EQ(square[1].Vertices().size(), 4u);
  EXPECT_FALSE(square[1].IsClosed());
}

TEST(CurveSplit, EndsAndRepeatedCutsDoNotCount) {
  EXPECT_EQ(Split(Line(0, 0, 10, 0), {0, 10, 5, 5, 5 + 1e-12}).size(), 2u);
  EXPECT_EQ(Split(Line(0, 0, 10, 0), {}).size(), 1u);
  EXPECT_EQ(Split(Square(), {0, 4}).size(), 1u);
  const double beyond[] = {5, 11};
  EXPECT_EQ(SplitAtParameters(Line(0, 0, 10, 0), beyond).status, CurveStatus::kOutOfRange);
}

TEST(CurveReverse, EndsChangePlacesAndTheWayIsTheSame) {
  const Curve curves[] = {Line(1, 2, 3, 4), Curve::Arc({1, 2, 3}, {1, 2, 5}, 5, 0.3, 4), Hook()};
  for (const Curve& curve : curves) {
    const Curve reversed = Reversed(curve).value;
    ExpectEnds(reversed, EndPoint(curve).value, StartPoint(curve).value);
    const double length = Length(curve).value;
    EXPECT_NEAR(Length(reversed).value, length, 1e-12);
    ExpectNear(PointAtDistance(reversed, length / 3).value, PointAtDistance(curve, length * 2 / 3).value);
  }
  EXPECT_TRUE(Reversed(Curve::Circle({1, 2, 3}, kUp, 5)).value.Normal().isEqualTo(-kUp));
}

TEST(CurveEnds, ALineEndsExactlyAtThePoint) {
  const Curve line = Line(0, 0, 10, 0);
  ExpectEnds(MoveStart(line, {4, 0, 0}).value, {4, 0, 0}, {10, 0, 0});
  ExpectEnds(MoveStart(line, {-4, 0, 0}).value, {-4, 0, 0}, {10, 0, 0});
  ExpectEnds(MoveEnd(line, {14, 0, 0}).value, {0, 0, 0}, {14, 0, 0});
  EXPECT_EQ(MoveEnd(line, {-1, 0, 0}).status, CurveStatus::kOutOfRange);
  EXPECT_EQ(MoveEnd(line, {0, 0, 0}).status, CurveStatus::kDegenerate);
  EXPECT_EQ(MoveEnd(line, {5, 1, 0}).status, CurveStatus::kNotOnCurve);
  EXPECT_EQ(MoveEnd(line, {5, NAN, 0}).status, CurveStatus::kNotFinite);
  EXPECT_EQ(MoveEnd(Line(1, 1, 1, 1), {1, 1, 0}).status, CurveStatus::kDegenerate);
}

TEST(CurveEnds, AnArcKeepsItsCircleAndItsOtherEnd) {
  const Curve arc = Curve::Arc({0, 0, 0}, kUp, 5, 0, kPi / 2);
  const Curve longer = MoveEnd(arc, {-5, 0, 0}).value;
  EXPECT_NEAR(Length(longer).value, 5 * kPi, 1e-12);
  ExpectEnds(longer, {5, 0, 0}, {-5, 0, 0});
  const Curve earlier = MoveStart(arc, {0, -5, 0}).value;
  ExpectEnds(earlier, {0, -5, 0}, {0, 5, 0});
  EXPECT_NEAR(Length(MoveStart(arc, {4, 3, 0}).value).value, 5 * std::atan2(4, 3), 1e-12);
  EXPECT_EQ(MoveEnd(arc, {5, 0, 0}).status, CurveStatus::kDegenerate);
  EXPECT_EQ(MoveEnd(Curve::Circle({0, 0, 0}, kUp, 5), {5, 0, 0}).status, CurveStatus::kNotApplicable);
}

TEST(CurveEnds, APolylineIsCutWhereItRunsAndExtendedWhereItEnds) {
  const Curve cut = MoveStart(Hook(), {15, 5, 0}).value;
  ExpectEnds(cut, {15, 5, 0}, {10, 10, 0});
  EXPECT_NEAR(Length(cut).value, 2.5 * kPi, 1e-12);
  const Curve before = MoveStart(Hook(), {-3, 0, 0}).value;
  ExpectEnds(before, {-3, 0, 0}, {10, 10, 0});
  EXPECT_EQ(before.Vertices().size(), 3u);
  // The half circle goes on round to its far side.
  const Curve round = MoveEnd(Hook(), {5, 5, 0}).value;
  ExpectEnds(round, {0, 0, 0}, {5, 5, 0});
  EXPECT_NEAR(Length(round).value, 10 + 7.5 * kPi, 1e-12);
  const Curve back = MoveStart(Poly({{{10, 0}, 1}, {{10, 10}}, {{0, 10}}}), {5, 5, 0}).value;
  ExpectEnds(back, {5, 5, 0}, {0, 10, 0});
  EXPECT_NEAR(Length(back).value, 10 + 7.5 * kPi, 1e-12);
  EXPECT_EQ(MoveEnd(Hook(), {0, 7, 0}).status, CurveStatus::kNotOnCurve);
  EXPECT_EQ(MoveEnd(Hook(), {0, 0, 0}).status, CurveStatus::kDegenerate);
  EXPECT_EQ(MoveEnd(Hook(), {15, 5, 1}).status, CurveStatus::kNotOnCurve);
}

TEST(CurveEnds, CoincidentVerticesAtAnEndMoveWithIt) {
  const Curve stub = Poly({{{0, 0}}, {{0, 0}}, {{10, 0}}, {{10, 0}}});
  const Curve longer = MoveEnd(stub, {12, 0, 0}).value;
  ExpectEnds(longer, {0, 0, 0}, {12, 0, 0});
  EXPECT_EQ(Length(longer).value, 12.0);
}

TEST(CurveEnds, AClosedPolylineIsOpenedAtItsFirstVertex) {
  const Curve before = MoveEnd(Square(), {10, 4, 0}).value;
  ExpectEnds(before, {0, 0, 0}, {10, 4, 0});
  EXPECT_FALSE(before.IsClosed());
  const Curve after = MoveStart(Square(), {10, 4, 0}).value;
  ExpectEnds(after, {10, 4, 0}, {0, 0, 0});
  EXPECT_EQ(Length(after).value, 26.0);
}

TEST(CurveArea, IsSignedByTheSense) {
  EXPECT_EQ(SignedArea(Square()).value, 100.0);
  EXPECT_EQ(SignedArea(Reversed(Square()).value).value, -100.0);
  EXPECT_EQ(Area(Reversed(Square()).value).value, 100.0);
  EXPECT_NEAR(SignedArea(Curve::Circle({7, 8, 9}, kUp, 5)).value, 25 * kPi, 1e-12);
  EXPECT_NEAR(SignedArea(Poly({{{0, 0}, 1}, {{10, 0}, 1}}, true)).value, 25 * kPi, 1e-12);
  EXPECT_NEAR(SignedArea(Poly({{{0, 0}, -1}, {{10, 0}, -1}}, true)).value, -25 * kPi, 1e-12);
  EXPECT_EQ(SignedArea(Line(0, 0, 5, 5)).value, 0.0);
}

TEST(CurveArea, AnOpenCurveIsClosedByItsChord) {
  EXPECT_EQ(SignedArea(Poly({{{0, 0}}, {{10, 0}}, {{10, 10}}})).value, 50.0);
  EXPECT_NEAR(SignedArea(Curve::Arc({0, 0, 0}, kUp, 5, 0, kPi)).value, 12.5 * kPi, 1e-12);
  // A quarter less its triangle.
  EXPECT_NEAR(SignedArea(Curve::Arc({0, 0, 0}, kUp, 2, 0, kPi / 2)).value, kPi - 2, 1e-12);
}

TEST(CurveArea, FlatArcsAndLargeCoordinatesKeepTheirDigits) {
  // A segment of small height h over the chord c has an area of 2/3 h c.
  const double bulge = 1e-5;
  const double area = SignedArea(Poly({{{1e7, 1e7}, bulge}, {{1e7 + 100, 1e7}}})).value;
  EXPECT_NEAR(area / (2.0 / 3.0 * (bulge * 50) * 100), 1.0, 1e-8);
}

TEST(CentralAngle, IsNegativeSeenFromBehind) {
  EXPECT_NEAR(CentralAngle(Curve::Arc({0, 0, 0}, kUp, 5, 0, 2)).value, 2.0, 1e-15);
  EXPECT_NEAR(CentralAngle(Curve::Arc({0, 0, 0}, -kUp, 5, 0, 2)).value, -2.0, 1e-15);
  EXPECT_NEAR(CentralAngle(Curve::Circle({0, 0, 0}, kUp, 5)).value, 2 * kPi, 1e-15);
  EXPECT_EQ(CentralAngle(Hook()).status, CurveStatus::kNotApplicable);
  EXPECT_NEAR(AngleOfBulge(BulgeOfAngle(-1.234)), -1.234, 1e-15);
  EXPECT_EQ(AngleOfBulge(NAN), 0.0);
}

TEST(ThreePointArc, PassesTheSecondPointOnItsWay) {
  const AcGePoint3d a(1, 2, 3), b(4, 7, 1), c(-3, 5, 2);
  const Curve arc = ArcThroughPoints(a, b, c).value;
  ExpectEnds(arc, a, c);
  EXPECT_TRUE(ParameterAtPoint(arc, b));
  const Curve clockwise = ArcThroughPoints({-5, 0, 0}, {0, 5, 0}, {5, 0, 0}).value;
  EXPECT_TRUE(clockwise.Normal().isEqualTo(-kUp));
  EXPECT_NEAR(clockwise.Radius(), 5.0, 1e-12);
  EXPECT_NEAR(CentralAngle(clockwise).value, -kPi, 1e-12);
  EXPECT_NEAR(CentralAngle(ArcThroughPoints({5, 0, 0}, {-5, 0, 0}, {0, -5, 0}).value).value, 1.5 * kPi,
              1e-12);
}

TEST(ThreePointArc, PointsOnALineHaveNone) {
  EXPECT_EQ(ArcThroughPoints({0, 0, 0}, {1, 1, 0}, {2, 2, 0}).status, CurveStatus::kDegenerate);
  EXPECT_EQ(ArcThroughPoints({0, 0, 0}, {1, 1, 0}, {0, 0, 0}).status, CurveStatus::kDegenerate);
  EXPECT_EQ(ArcThroughPoints({0, 0, 0}, {0, 0, 0}, {2, 2, 0}).status, CurveStatus::kDegenerate);
  EXPECT_EQ(ArcThroughPoints({0, NAN, 0}, {1, 1, 0}, {2, 2, 0}).status, CurveStatus::kNotFinite);
}

// As drawing tools fill an arc entity: angles of the reference vector, plus its angle on the plane.
TEST(AcGeCircArc3d, ItsAnglesPlusTheReferenceVectorsAreThoseOfAnArc) {
  for (const AcGePoint3d& middle : {AcGePoint3d(0, 5, 0), AcGePoint3d(-4, -3, 0), AcGePoint3d(1, 1, 7)}) {
    const AcGePoint3d start(3, 4, 0), end(-4, 3, 0);
    const AcGeCircArc3d arc(start, middle, end);
    const double offset = arc.refVec().angleOnPlane(AcGePlane(arc.center(), arc.normal()));
    const Curve same =
        Curve::Arc(arc.center(), arc.normal(), arc.radius(), arc.startAng() + offset, arc.endAng() + offset);
    ExpectEnds(same, start, end);
    EXPECT_TRUE(ParameterAtPoint(same, middle));
    ExpectNear(arc.startPoint(), start);
    ExpectNear(arc.endPoint(), end);
  }
  EXPECT_EQ(AcGeCircArc3d({0, 0, 0}, {1, 0, 0}, {2, 0, 0}).radius(), 0.0);
}

// Every point of the image is the image of a point, whatever the matrix and the kind.
TEST(CurveTransform, EveryPointIsWhereTheMatrixPutsIt) {
  const Curve curves[] = {Line(1, 2, 30, 4),
                          Curve::Arc({1, 2, 3}, {1, 2, 5}, 5, 0.3, 4),
                          Curve::Arc({1, 2, 0}, kUp, 5, 5, 1),
                          Hook(),
                          Square(),
                          Curve::Polyline(Hook().Vertices(), false, {1, -2, 0.01}, 7)};
  const AcGeMatrix3d matrices[] = {
      AcGeMatrix3d::translation({1e6, -3, 8}),
      AcGeMatrix3d::rotation(1.1, {1, 2, 3}, {4, 5, 6}),
      AcGeMatrix3d::scaling(2.5, {1, 1, 1}),
      AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d(1, 2, 3), AcGeVector3d(1, 0, 0))),
      AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d(1, 2, 3), AcGeVector3d(0, 0, 1))),
      AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d(1, 2, 3), AcGeVector3d(3, -1, 2))),
      AcGeMatrix3d::mirroring(AcGePoint3d(1, 2, 3)),
  };
  for (const Curve& curve : curves) {
    for (const AcGeMatrix3d& matrix : matrices) {
      const auto moved = Transformed(curve, matrix);
      ASSERT_TRUE(moved);
      EXPECT_NEAR(Length(moved.value).value, Length(curve).value * matrix.scale(), 1e-9);
      EXPECT_EQ(moved.value.IsClosed(), curve.IsClosed());
      for (double d = 0; d < Length(curve).value; d += 0.7)
        EXPECT_TRUE(ParameterAtPoint(moved.value, matrix * PointAtDistance(curve, d).value)) << d;
    }
  }
}

TEST(CurveTransform, AMirroredArcStartsWhereItEnded) {
  const Curve arc = Curve::Arc({0, 0, 0}, kUp, 5, 0, kPi / 2);
  const Curve mirrored = Transformed(arc, AcGeMatrix3d::mirroring(AcGePlane::kYZPlane)).value;
  EXPECT_TRUE(mirrored.Normal().isEqualTo(kUp));
  ExpectEnds(mirrored, {0, 5, 0}, {-5, 0, 0});
}

TEST(CurveTransform, UnevenScalingIsForLinesAlone) {
  AcGeMatrix3d uneven;
  uneven(0, 0) = 2;
  EXPECT_TRUE(Transformed(Line(0, 0, 1, 1), uneven));
  EXPECT_EQ(Transformed(Curve::Circle({}, kUp, 1), uneven).status, CurveStatus::kNotUniform);
  EXPECT_EQ(Transformed(Hook(), uneven).status, CurveStatus::kNotUniform);
  EXPECT_EQ(Transformed(Hook(), AcGeMatrix3d::scaling(0)).status, CurveStatus::kNotUniform);
  uneven(0, 0) = NAN;
  EXPECT_EQ(Transformed(Line(0, 0, 1, 1), uneven).status, CurveStatus::kNotFinite);
  EXPECT_EQ(Transformed(Hook(), uneven).status, CurveStatus::kNotFinite);
}

} // namespace
