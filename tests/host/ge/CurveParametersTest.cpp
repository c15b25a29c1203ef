// Parameters, distances and points of curves, by the values that each kind must give.
#include "host/ge/CurveParameters.h"
#include "host/ge/CurveClosest.h"

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

void ExpectPoint(const CurveResult<AcGePoint3d>& got, const AcGePoint3d& expected) {
  ASSERT_EQ(got.status, CurveStatus::kOk);
  EXPECT_LE(got.value.distanceTo(expected), 1e-12)
      << got.value.x << ", " << got.value.y << ", " << got.value.z;
}

TEST(CurveParameters, ALineCountsItsLength) {
  const Curve line = Line(1, 1, 4, 5);
  EXPECT_EQ(StartParameter(line).value, 0.0);
  EXPECT_EQ(EndParameter(line).value, 5.0);
  EXPECT_EQ(Length(line).value, 5.0);
  ExpectPoint(PointAtParameter(line, 2.5), {2.5, 3, 0});
  ExpectPoint(PointAtDistance(line, 5.0), {4, 5, 0});
  EXPECT_NEAR(ParameterAtPoint(line, {2.5, 3, 0}).value, 2.5, 1e-12);
}

TEST(CurveParameters, AnArcCountsItsAngles) {
  const Curve arc = Curve::Arc({1, 2, 3}, kUp, 5, 1.5 * kPi, 0.5 * kPi); // over zero
  EXPECT_DOUBLE_EQ(StartParameter(arc).value, 1.5 * kPi);
  EXPECT_DOUBLE_EQ(EndParameter(arc).value, 2.5 * kPi);
  EXPECT_NEAR(Length(arc).value, 5 * kPi, 1e-12);
  ExpectPoint(StartPoint(arc), {1, -3, 3});
  ExpectPoint(EndPoint(arc), {1, 7, 3});
  ExpectPoint(PointAtParameter(arc, 2 * kPi), {6, 2, 3});
  EXPECT_NEAR(DistanceAtPoint(arc, {6, 2, 3}).value, 2.5 * kPi, 1e-12);
  EXPECT_NEAR(DistanceAtParameter(arc, 2 * kPi).value, 2.5 * kPi, 1e-12);
}

TEST(CurveParameters, ACircleRunsFromZeroToATurn) {
  const Curve circle = Curve::Circle({0, 0, 0}, kUp, 2);
  EXPECT_EQ(StartParameter(circle).value, 0.0);
  EXPECT_DOUBLE_EQ(EndParameter(circle).value, 2 * kPi);
  ExpectPoint(StartPoint(circle), {2, 0, 0});
  ExpectPoint(EndPoint(circle), {2, 0, 0});
  EXPECT_EQ(ParameterAtPoint(circle, {2, 0, 0}).value, 0.0);
  EXPECT_NEAR(ParameterAtPoint(circle, {0, -2, 0}).value, 1.5 * kPi, 1e-12);
}

TEST(CurveParameters, APolylineCountsVertices) {
  const Curve hook = Hook();
  EXPECT_EQ(EndParameter(hook).value, 2.0);
  EXPECT_NEAR(Length(hook).value, 10 + 5 * kPi, 1e-12);
  ExpectPoint(PointAtParameter(hook, 0.25), {2.5, 0, 0});
  ExpectPoint(PointAtParameter(hook, 1.5), {15, 5, 0});
  ExpectPoint(PointAtDistance(hook, 10 + 2.5 * kPi), {15, 5, 0});
  EXPECT_NEAR(ParameterAtPoint(hook, {15, 5, 0}).value, 1.5, 1e-12);
  EXPECT_EQ(ParameterAtPoint(hook, {10, 0, 0}).value, 1.0);
  EXPECT_EQ(ParameterAtPoint(hook, {10, 10, 0}).value, 2.0);
}

TEST(CurveParameters, AClosedPolylineEndsWhereItStarts) {
  const Curve square = Poly({{{0, 0}}, {{10, 0}}, {{10, 10}}, {{0, 10}}}, true);
  EXPECT_EQ(EndParameter(square).value, 4.0);
  EXPECT_EQ(Length(square).value, 40.0);
  ExpectPoint(EndPoint(square), {0, 0, 0});
  ExpectPoint(PointAtParameter(square, 3.5), {0, 5, 0});
  EXPECT_EQ(ParameterAtPoint(square, {0, 0, 0}).value, 0.0);
}

TEST(CurveParameters, BeyondTheEndsIsOutOfRange) {
  const Curve curves[] = {Line(0, 0, 10, 0), Curve::Arc({0, 0, 0}, kUp, 5, 1, 2),
                          Curve::Circle({0, 0, 0}, kUp, 5), Hook()};
  for (const Curve& curve : curves) {
    const double start = StartParameter(curve).value;
    const double end = EndParameter(curve).value;
    EXPECT_EQ(PointAtParameter(curve, start - 1e-3).status, CurveStatus::kOutOfRange);
    EXPECT_EQ(PointAtParameter(curve, end + 1e-3).status, CurveStatus::kOutOfRange);
    EXPECT_EQ(PointAtDistance(curve, -1e-3).status, CurveStatus::kOutOfRange);
    EXPECT_EQ(PointAtDistance(curve, Length(curve).value + 1e-3).status, CurveStatus::kOutOfRange);
    EXPECT_EQ(DistanceAtParameter(curve, std::nan("")).status, CurveStatus::kNotFinite);
    ExpectPoint(PointAtParameter(curve, end + 1e-13), EndPoint(curve).value);
  }
}

TEST(CurveParameters, APointBesideTheCurveIsNotOnIt) {
  EXPECT_EQ(ParameterAtPoint(Line(0, 0, 10, 0), {5, 1e-6, 0}).status, CurveStatus::kNotOnCurve);
  EXPECT_EQ(ParameterAtPoint(Line(0, 0, 10, 0), {11, 0, 0}).status, CurveStatus::kNotOnCurve);
  EXPECT_EQ(DistanceAtPoint(Hook(), {5, 0, 1}).status, CurveStatus::kNotOnCurve);
  EXPECT_EQ(DistanceAtPoint(Hook(), {INFINITY, 0, 1}).status, CurveStatus::kNotFinite);
}

TEST(CurveParameters, WhereACurveMeetsItselfTheFirstPlaceCounts) {
  const Curve eight = Poly({{{0, 0}}, {{10, 10}}, {{10, 0}}, {{0, 10}}});
  EXPECT_NEAR(ParameterAtPoint(eight, {5, 5, 0}).value, 0.5, 1e-12);
}

TEST(CurveParameters, DerivativesAreByTheParameter) {
  const auto line = FirstDerivative(Line(0, 0, 0, 10), 3);
  EXPECT_TRUE(line.value.isEqualTo({0, 1, 0}));
  const auto arc = FirstDerivative(Curve::Arc({0, 0, 0}, kUp, 5, 0, 3), kPi / 2);
  EXPECT_TRUE(arc.value.isEqualTo({-5, 0, 0}));
  EXPECT_TRUE(FirstDerivative(Hook(), 0.5).value.isEqualTo({10, 0, 0}));
  EXPECT_TRUE(FirstDerivative(Hook(), 1.0).value.isEqualTo({5 * kPi, 0, 0})); // of the arc that begins there
  EXPECT_TRUE(FirstDerivative(Hook(), 2.0).value.isEqualTo({-5 * kPi, 0, 0}));
  EXPECT_EQ(FirstDerivative(Line(1, 1, 1, 1), 0).status, CurveStatus::kDegenerate);
}

TEST(CurveParameters, CurvesInSpaceKeepTheirPlane) {
  const Curve upright = Curve::Arc({0, 0, 10}, {0, -1, 0}, 5, 0, kPi); // x axis to the right, y axis up
  ExpectPoint(StartPoint(upright), {5, 0, 10});
  ExpectPoint(PointAtParameter(upright, kPi / 2), {0, 0, 15});
  const Curve slanted = Curve::Line({0, 0, 0}, {2, 3, 6});
  EXPECT_DOUBLE_EQ(Length(slanted).value, 7.0);
  ExpectPoint(PointAtDistance(slanted, 3.5), {1, 1.5, 3});
  const Curve below = Curve::Polyline(std::vector<PolylineVertex>{{{1, 2}}, {{4, 6}}}, false, -kUp, 5);
  ExpectPoint(StartPoint(below), {-1, 2, -5});
  ExpectPoint(EndPoint(below), {-4, 6, -5});
}

TEST(CurveParameters, CurvesWithoutLengthAnswerForTheirPoint) {
  const Curve curves[] = {Line(3, 4, 3, 4), Curve::Circle({3, 4, 0}, kUp, 0), Poly({{{3, 4}}}),
                          Poly({{{3, 4}, 1}, {{3, 4}, 1}}, true)};
  for (const Curve& curve : curves) {
    EXPECT_EQ(Length(curve).value, 0.0);
    ExpectPoint(StartPoint(curve), {3, 4, 0});
    ExpectPoint(PointAtDistance(curve, 0), {3, 4, 0});
    EXPECT_EQ(ParameterAtPoint(curve, {3, 4, 0}).value, 0.0);
    EXPECT_EQ(DistanceAtPoint(curve, {3, 4, 0}).value, 0.0);
    EXPECT_EQ(ClosestPoint(curve, {0, 0, 0}, true).value.distance, 5.0);
  }
  EXPECT_EQ(EndParameter(Poly({{{3, 4}}})).value, 0.0);
}

TEST(CurveParameters, AnUnusableCurveGivesItsStatusToEveryQuestion) {
  const Curve curve = Line(0, 0, std::nan(""), 1);
  EXPECT_EQ(Length(curve).status, CurveStatus::kNotFinite);
  EXPECT_EQ(StartPoint(curve).status, CurveStatus::kNotFinite);
  EXPECT_EQ(EndParameter(curve).status, CurveStatus::kNotFinite);
  EXPECT_EQ(PointAtParameter(curve, 0).status, CurveStatus::kNotFinite);
  EXPECT_EQ(ClosestPoint(curve, {}).status, CurveStatus::kNotFinite);
  EXPECT_EQ(Length(Poly({})).status, CurveStatus::kDegenerate);
  EXPECT_EQ(Length(Curve::Circle({}, kUp, -1)).status, CurveStatus::kDegenerate);
  EXPECT_EQ(Length(Curve::Circle({}, kUp, 1e200)).status, CurveStatus::kNotFinite);
}

TEST(CurveClosest, TheExtensionIsTheLineTheCircleAndTheOuterSegments) {
  ExpectPoint(ClosestPoint(Line(0, 0, 10, 0), {20, 5, 0}).value.point, {10, 0, 0});
  ExpectPoint(ClosestPoint(Line(0, 0, 10, 0), {20, 5, 0}, true).value.point, {20, 0, 0});
  EXPECT_NEAR(ClosestPoint(Line(0, 0, 10, 0), {-20, 5, 0}, true).value.parameter, -20.0, 1e-12);
  const Curve arc = Curve::Arc({0, 0, 0}, kUp, 5, 0, kPi / 2);
  ExpectPoint(ClosestPoint(arc, {-10, 1, 0}).value.point, {0, 5, 0});
  ExpectPoint(ClosestPoint(arc, {-10, 0, 0}, true).value.point, {-5, 0, 0});
  EXPECT_NEAR(ClosestPoint(arc, {-10, 0, 0}, true).value.parameter, kPi, 1e-12);
  const Curve bent = Poly({{{0, 0}}, {{10, 0}}, {{10, 10}}});
  ExpectPoint(ClosestPoint(bent, {-5, 1, 0}).value.point, {0, 0, 0});
  ExpectPoint(ClosestPoint(bent, {-5, 1, 0}, true).value.point, {-5, 0, 0});
  EXPECT_NEAR(ClosestPoint(bent, {-5, 1, 0}, true).value.parameter, -0.5, 1e-12);
  EXPECT_NEAR(ClosestPoint(bent, {9, 15, 0}, true).value.parameter, 2.5, 1e-12);
  const Curve square = Poly({{{0, 0}}, {{10, 0}}, {{10, 10}}, {{0, 10}}}, true);
  ExpectPoint(ClosestPoint(square, {-5, -5, 0}, true).value.point, {0, 0, 0});
}

TEST(CurveClosest, APointOffThePlaneIsMeasuredInSpace) {
  const auto closest = ClosestPoint(Curve::Circle({0, 0, 1}, kUp, 5), {8, 0, 5});
  ExpectPoint(closest.value.point, {5, 0, 1});
  EXPECT_NEAR(closest.value.distance, 5.0, 1e-12);
  ExpectPoint(ClosestPoint(Curve::Line({0, 0, 0}, {0, 0, 10}), {3, 4, 7}).value.point, {0, 0, 7});
}

TEST(CurveClosest, OnTheCurveMeansWithinTheTolerance) {
  EXPECT_TRUE(IsOnCurve(Line(0, 0, 10, 0), {5, 5e-11, 0}));
  EXPECT_FALSE(IsOnCurve(Line(0, 0, 10, 0), {5, 5e-10, 0}));
  EXPECT_FALSE(IsOnCurve(Line(0, 0, 10, 0), {50, 0, 0}));
  EXPECT_TRUE(IsOnCurve(Line(0, 0, 10, 0), {50, 0, 0}, true));
  // Far out the rounding of the coordinates themselves is allowed for.
  const Curve far = Line(1e7 + 0.1, 1e7 + 0.1, 1e7 + 7.3, 1e7 + 3.9);
  EXPECT_TRUE(IsOnCurve(far, PointAtDistance(far, 1.2345).value));
}

// The one place of the tolerance governs all of it.
TEST(CurveClosest, TheToleranceIsTheGlobalOne) {
  const AcGeTol before = AcGeContext::gTol;
  AcGeContext::gTol.setEqualPoint(0.01);
  const bool wide = IsOnCurve(Line(0, 0, 10, 0), {5, 0.005, 0});
  AcGeContext::gTol = before;
  EXPECT_TRUE(wide);
  EXPECT_FALSE(IsOnCurve(Line(0, 0, 10, 0), {5, 0.005, 0}));
}

} // namespace
