// Intersections that go wrong easily, each by name with the points that it must give.
#include "host/ge/CurveIntersection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <ostream>
#include <string>
#include <vector>

namespace {

using namespace ge;

constexpr double kPi = std::numbers::pi;
const AcGeVector3d kUp(0, 0, 1);

Curve Line(double x1, double y1, double x2, double y2) {
  return Curve::Line({x1, y1, 0}, {x2, y2, 0});
}

Curve Circle(double x, double y, double radius) {
  return Curve::Circle({x, y, 0}, kUp, radius);
}

// Degrees.
Curve Arc(double x, double y, double radius, double start, double end) {
  return Curve::Arc({x, y, 0}, kUp, radius, start * kPi / 180, end * kPi / 180);
}

Curve Poly(std::vector<PolylineVertex> vertices, bool closed = false) {
  return Curve::Polyline(vertices, closed);
}

struct Case {
  std::string name;
  Curve first;
  Curve second;
  ExtendCurves extend = ExtendCurves::kNone;
  std::vector<AcGePoint3d> points;
  bool overlap = false;
  double accuracy = 1e-9;
};

void PrintTo(const Case& c, std::ostream* out) {
  *out << c.name;
}

class HardCase : public testing::TestWithParam<Case> {};

std::string Text(const CurveIntersections& meetings) {
  std::string text = "got";
  for (const CurveMeeting& m : meetings.points)
    text += " (" + std::to_string(m.point.x) + ", " + std::to_string(m.point.y) + ", " +
            std::to_string(m.point.z) + ")";
  return text;
}

void ExpectPoints(const CurveIntersections& meetings, const std::vector<AcGePoint3d>& points,
                  double accuracy) {
  ASSERT_EQ(meetings.points.size(), points.size()) << Text(meetings);
  for (std::size_t i = 0; i < points.size(); ++i)
    EXPECT_LE(meetings.points[i].point.distanceTo(points[i]), accuracy) << i << " " << Text(meetings);
}

TEST_P(HardCase, GivesItsPointsInTheOrderOfTheFirstCurve) {
  const Case& c = GetParam();
  const CurveIntersections meetings = Intersect(c.first, c.second, c.extend);
  ASSERT_EQ(meetings.status, CurveStatus::kOk);
  EXPECT_EQ(meetings.overlap, c.overlap);
  ExpectPoints(meetings, c.points, c.accuracy);
}

// The other way round the same points come in the order of the other curve.
TEST_P(HardCase, GivesTheSamePointsTheOtherWayRound) {
  const Case& c = GetParam();
  const ExtendCurves turned = c.extend == ExtendCurves::kFirst    ? ExtendCurves::kSecond
                              : c.extend == ExtendCurves::kSecond ? ExtendCurves::kFirst
                                                                  : c.extend;
  const CurveIntersections meetings = Intersect(c.second, c.first, turned);
  EXPECT_EQ(meetings.overlap, c.overlap);
  ASSERT_EQ(meetings.points.size(), c.points.size()) << Text(meetings);
  for (const AcGePoint3d& p : c.points) {
    EXPECT_TRUE(std::ranges::any_of(meetings.points, [&](const CurveMeeting& m) {
      return m.point.distanceTo(p) <= c.accuracy;
    })) << Text(meetings);
  }
}

using P = AcGePoint3d;
const double kHalf = std::sqrt(0.5);

std::vector<Case> LineCases() {
  return {
      {"Cross", Line(0, 0, 10, 10), Line(0, 10, 10, 0), {}, {P(5, 5, 0)}},
      {"MissButWouldMeet", Line(0, 0, 1, 1), Line(0, 10, 10, 0), {}, {}},
      {"FirstExtended", Line(0, 0, 1, 1), Line(0, 10, 10, 0), ExtendCurves::kFirst, {P(5, 5, 0)}},
      {"SecondExtendedDoesNotHelp", Line(0, 0, 1, 1), Line(0, 10, 10, 0), ExtendCurves::kSecond, {}},
      {"BothExtended", Line(0, 0, 1, 1), Line(0, 10, 1, 9), ExtendCurves::kBoth, {P(5, 5, 0)}},
      {"SharedEnd", Line(0, 0, 10, 0), Line(10, 0, 20, 5), {}, {P(10, 0, 0)}},
      {"SharedEndInLine", Line(0, 0, 10, 0), Line(10, 0, 20, 0), {}, {P(10, 0, 0)}},
      {"EndOnMiddle", Line(0, 0, 10, 0), Line(5, 0, 5, 8), {}, {P(5, 0, 0)}},
      {"Parallel", Line(0, 0, 10, 0), Line(0, 1, 10, 1), {}, {}},
      {"ParallelExtended", Line(0, 0, 10, 0), Line(0, 1, 10, 1), ExtendCurves::kBoth, {}},
      {"CollinearApart", Line(0, 0, 10, 0), Line(11, 0, 20, 0), {}, {}},
      {"CollinearOverlap", Line(0, 0, 10, 0), Line(20, 0, 4, 0), {}, {P(4, 0, 0), P(10, 0, 0)}, true},
      {"CollinearInside", Line(0, 0, 10, 0), Line(2, 0, 7, 0), {}, {P(2, 0, 0), P(7, 0, 0)}, true},
      {"SameLine", Line(0, 0, 10, 3), Line(10, 3, 0, 0), {}, {P(0, 0, 0), P(10, 3, 0)}, true},
      {"CollinearFirstExtended",
       Line(0, 0, 1, 0),
       Line(4, 0, 9, 0),
       ExtendCurves::kFirst,
       {P(4, 0, 0), P(9, 0, 0)},
       true},
      {"CollinearBothExtendedHasNoEnds", Line(0, 0, 1, 0), Line(4, 0, 9, 0), ExtendCurves::kBoth, {}, true},
      {"VeryShallow", Line(0, 0, 1e6, 0), Line(0, -1, 1e6, 1), {}, {P(5e5, 0, 0)}},
      {"FarFromOrigin",
       Line(1e7, 1e7, 1e7 + 10, 1e7 + 10),
       Line(1e7, 1e7 + 10, 1e7 + 10, 1e7),
       {},
       {P(1e7 + 5, 1e7 + 5, 0)}},
      {"FarSharedEnd",
       Line(1e7 + 0.1, 1e7 + 0.7, 1e7 + 3.3, 1e7 + 0.9),
       Line(1e7 + 3.3, 1e7 + 0.9, 1e7 + 5.1, 1e7 + 9.9),
       {},
       {P(1e7 + 3.3, 1e7 + 0.9, 0)},
       false,
       0.0},
      {"FarEndOnMiddle",
       Line(1e7, 1e7, 1e7 + 30, 1e7 + 10),
       Line(1e7 + 3, 1e7 + 1, 1e7 + 3, 1e7 + 9),
       {},
       {P(1e7 + 3, 1e7 + 1, 0)},
       false,
       0.0},
      {"Tiny", Line(0, 0, 2e-8, 2e-8), Line(0, 2e-8, 2e-8, 0), {}, {P(1e-8, 1e-8, 0)}, false, 1e-15},
      {"Huge", Line(-1e15, -1e15, 1e15, 1e15), Line(-1e15, 1e15, 1e15, -1e15), {}, {P(0, 0, 0)}},
      {"NoLengthOnLine", Line(3, 0, 3, 0), Line(0, 0, 10, 0), {}, {P(3, 0, 0)}},
      {"NoLengthBesideLine", Line(3, 1, 3, 1), Line(0, 0, 10, 0), ExtendCurves::kBoth, {}},
      {"NoLengthTwice", Line(3, 1, 3, 1), Line(3, 1, 3, 1), {}, {P(3, 1, 0)}},
  };
}

std::vector<Case> CircleCases() {
  return {
      {"Secant", Line(-10, 0, 10, 0), Circle(0, 0, 5), {}, {P(-5, 0, 0), P(5, 0, 0)}},
      {"SecantBackwards", Line(10, 0, -10, 0), Circle(0, 0, 5), {}, {P(5, 0, 0), P(-5, 0, 0)}},
      {"Tangent", Line(-10, 5, 10, 5), Circle(0, 0, 5), {}, {P(0, 5, 0)}},
      {"TangentAtLinesEnd", Line(0, 5, 10, 5), Circle(0, 0, 5), {}, {P(0, 5, 0)}},
      {"TangentFar",
       Line(1e7 - 10, 1e7 + 5, 1e7 + 10, 1e7 + 5),
       Circle(1e7, 1e7, 5),
       {},
       {P(1e7, 1e7 + 5, 0)},
       false,
       1e-7},
      {"ChordInside", Line(-1, 0, 1, 0), Circle(0, 0, 5), {}, {}},
      {"ChordInsideExtended",
       Line(-1, 0, 1, 0),
       Circle(0, 0, 5),
       ExtendCurves::kFirst,
       {P(-5, 0, 0), P(5, 0, 0)}},
      {"EndOnCircle", Line(5, 0, 20, 0), Circle(0, 0, 5), {}, {P(5, 0, 0)}},
      {"BothEndsOnCircle", Line(-3, 4, 3, 4), Circle(0, 0, 5), {}, {P(-3, 4, 0), P(3, 4, 0)}},
      {"ArcOverZero", Line(0, 0, 10, 0), Arc(0, 0, 5, 350, 10), {}, {P(5, 0, 0)}},
      {"ArcOverZeroOtherSide", Line(0, 0, -10, 0), Arc(0, 0, 5, 350, 10), {}, {}},
      {"ArcOverZeroExtended",
       Line(0, 0, -10, 0),
       Arc(0, 0, 5, 350, 10),
       ExtendCurves::kSecond,
       {P(-5, 0, 0)}},
      {"ArcStartsOnLine", Line(-10, 0, 10, 0), Arc(0, 0, 5, 0, 90), {}, {P(5, 0, 0)}},
      {"HalfCircleOnItsDiameter", Line(-10, 0, 10, 0), Arc(0, 0, 5, 0, 180), {}, {P(-5, 0, 0), P(5, 0, 0)}},
      {"FilletTangent", Line(-10, 0, 0, 0), Arc(0, 5, 5, 270, 0), {}, {P(0, 0, 0)}},
      {"FilletOvershot", Line(-10, 0, 1e-6, 0), Arc(0, 5, 5, 270, 0), {}, {P(0, 0, 0)}, false, 1e-6},
      {"ShallowCrossingAtLinesEnd",
       Line(5.2e-5, 5 - 3e-10, 10, 5 - 3e-10),
       Circle(0, 0, 5),
       {},
       {P(5.2e-5, 5 - 3e-10, 0)},
       false,
       1e-12},
      {"TwoCircles", Circle(0, 0, 5), Circle(6, 0, 5), {}, {P(3, 4, 0), P(3, -4, 0)}},
      {"TangentOutside", Circle(0, 0, 5), Circle(8, 0, 3), {}, {P(5, 0, 0)}},
      {"TangentInside", Circle(0, 0, 5), Circle(2, 0, 3), {}, {P(5, 0, 0)}},
      {"TangentInsideOtherSide", Circle(-2, 0, 3), Circle(0, 0, 5), {}, {P(-5, 0, 0)}},
      {"Concentric", Circle(0, 0, 5), Circle(0, 0, 4), {}, {}},
      {"OneInsideTheOther", Circle(0, 0, 5), Circle(1, 1, 2), {}, {}},
      {"EqualCirclesHaveNoEnds", Circle(3, 4, 5), Circle(3, 4, 5), {}, {}, true},
      {"ArcOnItsCircle", Circle(0, 0, 5), Arc(0, 0, 5, 90, 180), {}, {P(0, 5, 0), P(-5, 0, 0)}, true},
      {"ArcOverZeroOnItsCircle", Circle(0, 0, 5), Arc(0, 0, 5, 270, 90), {}, {P(0, 5, 0), P(0, -5, 0)}, true},
      {"ArcsOverlap",
       Arc(0, 0, 5, 0, 90),
       Arc(0, 0, 5, 45, 180),
       {},
       {P(5 * kHalf, 5 * kHalf, 0), P(0, 5, 0)},
       true},
      {"ArcsOverlapTwice",
       Arc(0, 0, 5, 0, 270),
       Arc(0, 0, 5, 180, 90),
       {},
       {P(5, 0, 0), P(0, 5, 0), P(-5, 0, 0), P(0, -5, 0)},
       true},
      {"ArcsMeetEndToEnd", Arc(0, 0, 5, 0, 90), Arc(0, 0, 5, 90, 180), {}, {P(0, 5, 0)}},
      {"ArcsMeetAtBothEnds", Arc(0, 0, 5, 0, 180), Arc(0, 0, 5, 180, 0), {}, {P(5, 0, 0), P(-5, 0, 0)}},
      {"ArcsExtendedToOneCircle", Arc(0, 0, 5, 0, 90), Arc(0, 0, 5, 120, 180), ExtendCurves::kBoth, {}, true},
      {"ArcExtendedOverTheOther",
       Arc(0, 0, 5, 0, 90),
       Arc(0, 0, 5, 180, 270),
       ExtendCurves::kFirst,
       {P(-5, 0, 0), P(0, -5, 0)},
       true},
      {"FullTurnArc", Arc(0, 0, 5, 30, 30), Line(-10, 0, 10, 0), {}, {P(-5, 0, 0), P(5, 0, 0)}},
      {"HugeRadius", Line(0, -1, 0, 1), Circle(0, -1e9, 1e9), {}, {P(0, 0, 0)}, false, 1e-6},
      {"TinyCircle",
       Line(-1, 0, 1, 0),
       Circle(0, 0, 1e-6),
       {},
       {P(-1e-6, 0, 0), P(1e-6, 0, 0)},
       false,
       1e-15},
      {"NoRadiusOnLine", Line(-1, 0, 1, 0), Circle(0.5, 0, 0), {}, {P(0.5, 0, 0)}},
      {"NoRadiusBesideLine", Line(-1, 0, 1, 0), Circle(0.5, 1, 0), {}, {}},
      {"SmallOnHuge", Circle(0, 0, 1), Circle(0, -1e8, 1e8), {}, {P(1, 0, 0), P(-1, 0, 0)}, false, 1e-7},
  };
}

std::vector<Case> PolylineCases() {
  const Curve square = Poly({{{0, 0}}, {{10, 0}}, {{10, 10}}, {{0, 10}}}, true);
  const Curve zigzag = Poly({{{0, 0}}, {{5, 5}}, {{10, 0}}});
  const Curve round = Poly({{{0, 0}, 1}, {{10, 0}, 1}}, true); // the circle of diameter 10
  const Curve stub = Poly({{{0, 0}}, {{0, 0}}, {{1, 0}}, {{1, 0}}});
  return {
      {"LineThroughCorner", Line(-5, 5, 5, -5), square, {}, {P(0, 0, 0)}},
      {"LineAcross", Line(-5, 5, 15, 5), square, {}, {P(0, 5, 0), P(10, 5, 0)}},
      {"LineAlongSide", Line(-5, 0, 15, 0), square, {}, {P(0, 0, 0), P(10, 0, 0)}, true},
      {"SideAndCornersAreOneStretch",
       square,
       Poly({{{5, 0}}, {{10, 0}}, {{10, 10}}, {{5, 10}}, {{5, 20}}}),
       {},
       {P(5, 0, 0), P(5, 10, 0)},
       true},
      {"StretchOverTheSeam",
       square,
       Poly({{{5, 0}}, {{0, 0}}, {{0, 5}}}),
       {},
       {P(5, 0, 0), P(0, 5, 0)},
       true},
      {"SameSquareHasNoEnds", square, Poly({{{10, 10}}, {{0, 10}}, {{0, 0}}, {{10, 0}}}, true), {}, {}, true},
      {"SameOpenPolyline", zigzag, zigzag, {}, {P(0, 0, 0), P(10, 0, 0)}, true},
      {"VertexTouchesLine", zigzag, Line(0, 5, 10, 5), {}, {P(5, 5, 0)}},
      {"OrderFollowsThePolyline", zigzag, Line(10, 1, 0, 1), {}, {P(1, 1, 0), P(9, 1, 0)}},
      {"ExtendedEnds", zigzag, Line(-20, -3, 20, -3), ExtendCurves::kFirst, {P(-3, -3, 0), P(13, -3, 0)}},
      {"InnerSegmentsAreNotExtended", zigzag, Line(6, 6, 8, 8), ExtendCurves::kFirst, {}},
      {"ClosedHasNoExtension", square, Line(-5, -5, -5, 15), ExtendCurves::kFirst, {}},
      {"BulgesMakeACircle", round, Line(5, -10, 5, 10), {}, {P(5, -5, 0), P(5, 5, 0)}},
      {"BulgesOnEqualCircle", round, Circle(5, 0, 5), {}, {}, true},
      {"ArcOfBulgeExtended",
       Poly({{{0, 0}, 1}, {{10, 0}}}),
       Line(5, 1, 5, 9),
       ExtendCurves::kFirst,
       {P(5, 5, 0)}},
      {"CoincidentVertices", stub, Line(0.5, -1, 0.5, 1), {}, {P(0.5, 0, 0)}},
      {"CoincidentVerticesExtended", stub, Line(7, -1, 7, 1), ExtendCurves::kFirst, {P(7, 0, 0)}},
      {"ExtendedLineOverVertices",
       Poly({{{0, 0}}, {{10, 0}}, {{20, 0}}}),
       Line(3, 0, 5, 0),
       ExtendCurves::kBoth,
       {},
       true},
      {"RayOverSegment",
       Poly({{{0, 0}}, {{10, 0}}, {{10, 9}}}),
       Line(-7, 0, -3, 0),
       ExtendCurves::kFirst,
       {P(-7, 0, 0), P(-3, 0, 0)},
       true},
      {"OneVertex", Poly({{{3, 0}}}), Line(0, 0, 10, 0), ExtendCurves::kBoth, {P(3, 0, 0)}},
      {"HugeBulgeCountsAsStraight", Poly({{{0, 0}, 1e300}, {{10, 0}}}), Line(5, -1, 5, 1), {}, {P(5, 0, 0)}},
      {"BulgeOfNoNumberCountsAsStraight",
       Poly({{{0, 0}, std::nan("")}, {{10, 0}}}),
       Line(5, -1, 5, 1),
       {},
       {P(5, 0, 0)}},
      {"FlatBulge",
       Poly({{{0, 0}, 1e-6}, {{1000, 0}}}),
       Line(500, -1, 500, 1),
       {},
       {P(500, -5e-4, 0)},
       false,
       1e-6},
  };
}

std::vector<Case> SpaceCases() {
  const Curve upright = Curve::Circle({0, 0, 0}, {0, 1, 0}, 5); // in the xz plane
  const AcGeVector3d slant(0, 1, 1);
  return {
      {"LinesInSpaceMeet",
       Curve::Line({0, 0, 0}, {10, 10, 10}),
       Curve::Line({0, 10, 0}, {10, 0, 10}),
       {},
       {P(5, 5, 5)}},
      {"SkewLines", Curve::Line({0, 0, 0}, {10, 10, 10}), Curve::Line({0, 10, 1}, {10, 0, 11}), {}, {}},
      {"SkewLinesExtended",
       Curve::Line({0, 0, 0}, {1, 0, 0}),
       Curve::Line({5, 5, 1}, {5, 6, 1}),
       ExtendCurves::kBoth,
       {}},
      {"LinesInSpaceExtended",
       Curve::Line({0, 0, 0}, {1, 1, 1}),
       Curve::Line({0, 10, 0}, {1, 9, 1}),
       ExtendCurves::kBoth,
       {P(5, 5, 5)}},
      {"RiserOnMain", Curve::Line({3, 4, 0}, {3, 4, 3000}), Line(0, 4, 10, 4), {}, {P(3, 4, 0)}},
      {"RisersInLine",
       Curve::Line({3, 4, 0}, {3, 4, 3}),
       Curve::Line({3, 4, 2}, {3, 4, 9}),
       {},
       {P(3, 4, 2), P(3, 4, 3)},
       true},
      {"LinesAtOtherElevations", Curve::Line({0, 0, 1}, {10, 10, 1}), Line(0, 10, 10, 0), {}, {}},
      {"CirclesAtOtherElevations", Circle(0, 0, 5), Curve::Circle({6, 0, 1}, kUp, 5), {}, {}},
      {"SameElevationOtherNormal",
       Curve::Circle({0, 0, 7}, kUp, 5),
       Curve::Circle({6, 0, 7}, -kUp, 5),
       {},
       {P(3, 4, 7), P(3, -4, 7)}},
      {"ArcSeenFromBehind",
       Curve::Arc({0, 0, 0}, -kUp, 5, 0, kPi / 2),
       Line(-10, 4, 10, 4),
       {},
       {P(-3, 4, 0)}},
      {"LinePiercesCircle", Curve::Line({5, 0, -3}, {5, 0, 3}), Circle(0, 0, 5), {}, {P(5, 0, 0)}},
      {"LinePiercesCircleDownwards", Curve::Line({5, 0, 3}, {5, 0, -3}), Circle(0, 0, 5), {}, {P(5, 0, 0)}},
      {"UprightCircleCrossesNearATangent",
       Circle(0, 0, 5),
       Curve::Circle({3 + 1e-5, 5, 0}, {0, 1, 0}, 3),
       {},
       {P(1e-5, 5, 0)}},
      {"LinePiercesInside", Curve::Line({1, 0, -3}, {1, 0, 3}), Circle(0, 0, 5), {}, {}},
      {"LineEndsOnCircle", Curve::Line({5, 0, 0}, {9, 9, 9}), Circle(0, 0, 5), {}, {P(5, 0, 0)}},
      {"CirclesAtRightAngles", Circle(0, 0, 5), upright, {}, {P(5, 0, 0), P(-5, 0, 0)}},
      {"LineInUprightPlane", Curve::Line({-9, 0, 3}, {9, 0, 3}), upright, {}, {P(-4, 0, 3), P(4, 0, 3)}},
      {"UprightArcsOverlap",
       upright,
       Curve::Arc({0, 0, 0}, {0, -1, 0}, 5, 0, kPi / 2),
       {},
       {P(0, 0, 5), P(5, 0, 0)},
       true},
      {"SlantedPlane",
       Curve::Circle({1, 2, 3}, slant, 5),
       Curve::Line({-9, 2, 3}, {9, 2, 3}),
       {},
       {P(-4, 2, 3), P(6, 2, 3)}},
      {"SlantedPolylines",
       Curve::Polyline(std::vector<PolylineVertex>{{{0, 0}}, {{10, 0}}}, false, slant, 5),
       Curve::Polyline(std::vector<PolylineVertex>{{{5, -5}}, {{5, 5}}}, false, slant, 5),
       {},
       {P(-5, 5 * kHalf, 5 * kHalf)}},
  };
}

std::string NameOf(const testing::TestParamInfo<Case>& info) {
  return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Lines, HardCase, testing::ValuesIn(LineCases()), NameOf);
INSTANTIATE_TEST_SUITE_P(Circles, HardCase, testing::ValuesIn(CircleCases()), NameOf);
INSTANTIATE_TEST_SUITE_P(Polylines, HardCase, testing::ValuesIn(PolylineCases()), NameOf);
INSTANTIATE_TEST_SUITE_P(Space, HardCase, testing::ValuesIn(SpaceCases()), NameOf);

TEST(CurveIntersection, AnUnusableCurveGivesItsStatusAndNoPoints) {
  const Curve bad = Line(std::nan(""), 0, 1, 1);
  const Curve infinite = Line(0, 0, INFINITY, 1);
  const Curve negative = Circle(0, 0, -1);
  EXPECT_EQ(Intersect(bad, Circle(0, 0, 1)).status, CurveStatus::kNotFinite);
  EXPECT_EQ(Intersect(Circle(0, 0, 1), infinite).status, CurveStatus::kNotFinite);
  EXPECT_EQ(Intersect(Circle(0, 0, 1), negative).status, CurveStatus::kDegenerate);
  EXPECT_EQ(Intersect(Poly({}), Circle(0, 0, 1)).status, CurveStatus::kDegenerate);
  EXPECT_TRUE(Intersect(bad, Circle(0, 0, 1)).points.empty());
}

TEST(CurveIntersection, ParametersBelongToTheFirstCurve) {
  const auto line = Intersect(Line(0, 0, 10, 0), Line(4, -1, 4, 1));
  ASSERT_EQ(line.points.size(), 1u);
  EXPECT_NEAR(line.points[0].parameter, 4.0, 1e-12);
  const auto before = Intersect(Line(0, 0, 10, 0), Line(-4, -1, -4, 1), ExtendCurves::kFirst);
  ASSERT_EQ(before.points.size(), 1u);
  EXPECT_NEAR(before.points[0].parameter, -4.0, 1e-12);
  const auto corner = Intersect(Poly({{{0, 0}}, {{5, 5}}, {{10, 0}}}), Line(5, 0, 5, 9));
  ASSERT_EQ(corner.points.size(), 1u);
  EXPECT_EQ(corner.points[0].parameter, 1.0);
}

// What callers compare with AcGePoint3d::isEqualTo afterwards must not be spoilt by rounding.
TEST(CurveIntersection, AnEndIsReturnedAsItStandsFarFromTheOrigin) {
  const AcGePoint3d joint(12345678.9, 98765432.1, 0);
  const Curve main = Curve::Line(joint - AcGeVector3d(300.1, 200.2, 0), joint);
  const Curve branch = Curve::Line(joint, joint + AcGeVector3d(77.7, -3.3, 0));
  const auto meetings = Intersect(main, branch);
  ASSERT_EQ(meetings.points.size(), 1u);
  EXPECT_EQ(meetings.points[0].point.x, joint.x);
  EXPECT_EQ(meetings.points[0].point.y, joint.y);
}

// A curve of one piece and a thousand pieces of it agree everywhere.
TEST(CurveIntersection, LongPolylinesAreSweptInOrder) {
  std::vector<PolylineVertex> saw;
  for (int i = 0; i <= 3000; ++i) saw.push_back({{static_cast<double>(i), i % 2 ? 1.0 : -1.0}, 0.0});
  const Curve teeth = Poly(saw);
  const auto meetings = Intersect(teeth, Line(3000, 0, 0, 0));
  ASSERT_EQ(meetings.points.size(), 3000u);
  for (int i = 0; i < 3000; ++i) EXPECT_NEAR(meetings.points[i].point.x, i + 0.5, 1e-12);
  const auto itself = Intersect(teeth, teeth);
  EXPECT_TRUE(itself.overlap);
  EXPECT_EQ(itself.points.size(), 2u);
}

} // namespace
