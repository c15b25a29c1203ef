// Operations on random curves held against dense sampling and against each other, curves in space included;
// and numbers that no drawing should hold, which must neither crash nor loop.
#include "host/ge/AcGePlane.h"
#include "host/ge/CurveArea.h"
#include "host/ge/CurveClosest.h"
#include "host/ge/CurveEnds.h"
#include "host/ge/CurveIntersection.h"
#include "host/ge/CurveSplit.h"
#include "host/ge/CurveTransform.h"
#include "tests/host/ge/RandomCurves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

using namespace ge;
using random_curves::Maker;
using random_curves::Rounds;

constexpr int kSamples = 200;

double Between(const Curve& curve, double share) {
  const double start = StartParameter(curve).value;
  return start + (EndParameter(curve).value - start) * share;
}

std::vector<AcGePoint3d> Sample(const Curve& curve) {
  std::vector<AcGePoint3d> points;
  for (int i = 0; i <= kSamples; ++i)
    points.push_back(PointAtParameter(curve, Between(curve, static_cast<double>(i) / kSamples)).value);
  return points;
}

TEST(CurveProperty, NoSampleIsNearerThanTheClosestPoint) {
  Maker make(31);
  for (int round = 0; round < Rounds(5000); ++round) {
    make.grid = round % 2;
    const Curve curve = make.Any(5);
    const AcGePoint3d p(make.Coordinate(), make.Coordinate(), make.Coordinate());
    const auto closest = ClosestPoint(curve, p);
    ASSERT_TRUE(closest);
    double least = std::numeric_limits<double>::infinity();
    for (const AcGePoint3d& sample : Sample(curve)) least = std::min(least, sample.distanceTo(p));
    ASSERT_LE(closest.value.distance, least + 1e-9);
    const double step = Length(curve).value / kSamples * static_cast<double>(curve.Pieces().size()) * 100;
    ASSERT_GE(closest.value.distance, least - step);
    ASSERT_LE(PointAtParameter(curve, closest.value.parameter).value.distanceTo(closest.value.point), 1e-9);
    const auto extended = ClosestPoint(curve, p, true);
    ASSERT_LE(extended.value.distance, closest.value.distance + 1e-9);
  }
}

TEST(CurveProperty, ParametersDistancesAndPointsAgree) {
  Maker make(32);
  for (int round = 0; round < Rounds(20000); ++round) {
    const Curve curve = make.Any(5);
    const double t = Between(curve, make.Real(0, 1));
    const AcGePoint3d p = PointAtParameter(curve, t).value;
    const double d = DistanceAtParameter(curve, t).value;
    ASSERT_LE(PointAtDistance(curve, d).value.distanceTo(p), 1e-9);
    ASSERT_NEAR(ParameterAtDistance(curve, d).value, t, 1e-9 * (1 + t));
    const auto back = ParameterAtPoint(curve, p);
    ASSERT_TRUE(back);
    ASSERT_LE(PointAtParameter(curve, back.value).value.distanceTo(p), 1e-9);
    // The derivative is the limit of the difference.
    const double step = 1e-7 * (EndParameter(curve).value - StartParameter(curve).value);
    const auto ahead = PointAtParameter(curve, t + step);
    const auto slope = FirstDerivative(curve, t);
    if (!ahead || !slope || std::floor(t) != std::floor(t + step)) continue;
    ASSERT_LE(((ahead.value - p) / step - slope.value).length(), 1e-4 * (1 + slope.value.length()));
  }
}

TEST(CurveProperty, LengthAndAreaAreThoseOfTheSampledPolygon) {
  Maker make(33);
  for (int round = 0; round < Rounds(3000); ++round) {
    const Curve curve = make.Any(5);
    double length = 0;
    double area = 0;
    // Vertex by vertex, so that the samples hold the corners.
    std::vector<AcGePoint3d> points;
    for (std::size_t i = 0; i < curve.Pieces().size(); ++i) {
      for (int k = 0; k <= kSamples; ++k)
        points.push_back(curve.PieceWorldPoint(i, static_cast<double>(k) / kSamples));
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
      const AcGePoint3d& a = points[i];
      const AcGePoint3d& b = points[(i + 1) % points.size()];
      if (i + 1 < points.size()) length += a.distanceTo(b);
      area += (a.x * b.y - a.y * b.x) / 2;
    }
    const double real = Length(curve).value;
    ASSERT_NEAR(length, real, 1e-4 * real);
    ASSERT_NEAR(area, SignedArea(curve).value, 1e-3 * real * real + 1e-9);
  }
}

TEST(CurveProperty, ThePartsOfASplitMakeTheWhole) {
  Maker make(34);
  for (int round = 0; round < Rounds(10000); ++round) {
    const Curve curve = make.Any(6);
    std::vector<double> cuts;
    for (int i = make.Whole(0, 4); i > 0; --i) cuts.push_back(Between(curve, make.Real(0, 1)));
    const auto parts = SplitAtParameters(curve, cuts);
    ASSERT_TRUE(parts);
    ASSERT_EQ(parts.value.size(), cuts.empty() ? 1u : cuts.size() + (curve.IsClosed() ? 0u : 1u));
    double length = 0;
    for (std::size_t i = 0; i < parts.value.size(); ++i) {
      const Curve& part = parts.value[i];
      length += Length(part).value;
      ASSERT_TRUE(IsOnCurve(curve, PointAtDistance(part, Length(part).value * 0.4).value));
      const Curve& before = parts.value[i > 0 ? i - 1 : 0];
      ASSERT_TRUE(i == 0 || StartPoint(part).value.distanceTo(EndPoint(before).value) <= 1e-9);
    }
    ASSERT_NEAR(length, Length(curve).value, 1e-9 * (1 + length));
  }
}

// A part of a bulge has a centre of its own that rounding may have moved far along the radius. Still it is
// the same curve.
TEST(CurveProperty, APartRunsAlongTheWhole) {
  Maker make(39);
  make.shift = 10000;
  for (int round = 0; round < Rounds(5000); ++round) {
    const PolylineVertex vertices[] = {
        {{make.Coordinate(), make.Coordinate()}, std::pow(10.0, make.Real(-2, 0))},
        {{make.Coordinate(), make.Coordinate()}}};
    const Curve whole = Curve::Polyline(vertices, false);
    const double middle = make.Real(0.2, 0.8);
    const double cuts[] = {middle - 0.05, middle + 0.05};
    const Curve part = SplitAtParameters(whole, cuts).value[1];
    const auto meetings = Intersect(part, whole);
    ASSERT_TRUE(meetings.overlap) << round;
    ASSERT_EQ(meetings.points.size(), 2u) << round;
    ASSERT_LE(meetings.points[0].point.distanceTo(StartPoint(part).value), 1e-9);
    ASSERT_LE(meetings.points[1].point.distanceTo(EndPoint(part).value), 1e-9);
  }
}

TEST(CurveProperty, AMovedEndStandsAtThePointAndTheRestStays) {
  Maker make(35);
  for (int round = 0; round < Rounds(20000); ++round) {
    make.grid = round % 2;
    const Curve curve = make.Any(4);
    // Points on the curve or, for those that pass the range, on its extension.
    const AcGePoint3d far(make.Real(-300, 300), make.Real(-300, 300), 0);
    const auto closest = ClosestPoint(curve, far, true);
    const AcGePoint3d p = closest.value.point;
    const auto started = MoveStart(curve, p);
    const auto ended = MoveEnd(curve, p);
    if (started) {
      ASSERT_LE(StartPoint(started.value).value.distanceTo(p), 2e-9);
      ASSERT_LE(EndPoint(started.value).value.distanceTo(EndPoint(curve).value), 2e-9);
    }
    if (ended) {
      ASSERT_LE(EndPoint(ended.value).value.distanceTo(p), 2e-9);
      ASSERT_LE(StartPoint(ended.value).value.distanceTo(StartPoint(curve).value), 2e-9);
    }
    // Cut at the same place the two rests make the whole.
    const bool once = curve.Kind() != CurveKind::kPolyline && curve.Kind() != CurveKind::kCircle;
    if (!once || !started || !ended || !IsOnCurve(curve, p)) continue;
    ASSERT_NEAR(Length(started.value).value + Length(ended.value).value, Length(curve).value, 1e-7);
  }
}

AcGeMatrix3d RandomPlacement(Maker& make) {
  const AcGeVector3d axis(make.Real(-1, 1), make.Real(-1, 1), make.Real(-1, 1));
  const AcGeVector3d shift(make.Real(-50, 50), make.Real(-50, 50), make.Real(-50, 50));
  AcGeMatrix3d matrix = AcGeMatrix3d::translation(shift) * AcGeMatrix3d::rotation(make.Real(0, 6), axis);
  if (make.Whole(0, 1)) matrix *= AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d(1, 2, 3), axis));
  return matrix;
}

// A pair in the world's plane and the same pair anywhere in space have the same meetings. The grid brings the
// tangents and stretches.
TEST(CurveProperty, MeetingsMoveWithTheCurves) {
  Maker make(36);
  make.grid = true;
  for (int round = 0; round < Rounds(20000); ++round) {
    const Curve first = make.Any(4);
    const Curve second = make.Any(4);
    const AcGeMatrix3d matrix = RandomPlacement(make);
    const auto extend = static_cast<ExtendCurves>(make.Whole(0, 3));
    const auto flat = Intersect(first, second, extend);
    const auto placed =
        Intersect(Transformed(first, matrix).value, Transformed(second, matrix).value, extend);
    ASSERT_EQ(placed.overlap, flat.overlap) << round;
    ASSERT_EQ(placed.points.size(), flat.points.size()) << round;
    for (const CurveMeeting& m : flat.points) {
      const AcGePoint3d image = matrix * m.point;
      double least = std::numeric_limits<double>::infinity();
      for (const CurveMeeting& other : placed.points) least = std::min(least, other.point.distanceTo(image));
      // Where lines cross at a small angle the place is less certain than the distance.
      ASSERT_LE(least, 1e-7 * (1 + image.asVector().length())) << round;
    }
  }
}

Curve InSpace(Maker& make) {
  static const AcGeVector3d normals[] = {{0, 0, 1},  {0, 1, 0}, {1, 0, 0}, {0, 0, -1},
                                         {0, -1, 0}, {0, 1, 1}, {1, 1, 1}};
  if (make.Whole(0, 2) == 0) {
    const AcGePoint3d a(make.Whole(-3, 3), make.Whole(-3, 3), make.Whole(-3, 3));
    const AcGePoint3d b(make.Whole(-3, 3), make.Whole(-3, 3), make.Whole(-3, 3));
    return Curve::Line(a, b);
  }
  const AcGeVector3d normal = normals[make.Whole(0, 6)];
  if (make.Whole(0, 1)) {
    const AcGePoint3d center(make.Whole(-2, 2), make.Whole(-2, 2), make.Whole(-2, 2));
    return Curve::Arc(center, normal, make.Whole(1, 4), make.Angle(), make.Angle());
  }
  return Curve::Polyline(make.Polyline(4).Vertices(), make.Whole(0, 2) == 0, normal, make.Whole(-2, 2));
}

// The places where the distance from the second curve falls to nothing, by sampling and refinement.
std::vector<AcGePoint3d> Touches(const Curve& first, const Curve& second) {
  std::vector<AcGePoint3d> touches;
  const auto distance = [&](const AcGePoint3d& p) { return ClosestPoint(second, p).value.distance; };
  for (std::size_t piece = 0; piece < first.Pieces().size(); ++piece) {
    constexpr int kSteps = 32;
    double values[kSteps + 1];
    for (int i = 0; i <= kSteps; ++i) values[i] = distance(first.PieceWorldPoint(piece, i / double{kSteps}));
    for (int i = 0; i <= kSteps; ++i) {
      const int left = std::max(i - 1, 0);
      const int right = std::min(i + 1, kSteps);
      if (values[i] > values[left] || values[i] > values[right] || values[i] > 1.0) continue;
      double low = left / double{kSteps};
      double high = right / double{kSteps};
      for (int n = 0; n < 70; ++n) {
        const double a = low + (high - low) / 3;
        const double b = high - (high - low) / 3;
        if (distance(first.PieceWorldPoint(piece, a)) < distance(first.PieceWorldPoint(piece, b)))
          high = b;
        else
          low = a;
      }
      for (const double t :
           {low, high, static_cast<double>(left) / kSteps, static_cast<double>(right) / kSteps}) {
        const AcGePoint3d p = first.PieceWorldPoint(piece, t);
        if (distance(p) <= 1e-13) touches.push_back(p);
      }
    }
  }
  return touches;
}

TEST(CurveProperty, CurvesInSpaceMeetWhereTheirDistanceVanishes) {
  Maker make(37);
  make.grid = true;
  int met = 0;
  for (int round = 0; round < Rounds(12000); ++round) {
    const Curve first = InSpace(make);
    const Curve second = InSpace(make);
    const auto meetings = Intersect(first, second);
    const auto other = Intersect(second, first);
    ASSERT_EQ(meetings.points.size(), other.points.size()) << round;
    ASSERT_EQ(meetings.overlap, other.overlap) << round;
    met += meetings.points.empty() ? 0 : 1;
    for (const CurveMeeting& m : meetings.points) {
      ASSERT_LE(ClosestPoint(first, m.point).value.distance, 3e-10) << round;
      ASSERT_LE(ClosestPoint(second, m.point).value.distance, 3e-10) << round;
    }
    if (meetings.overlap) continue;
    for (const AcGePoint3d& p : Touches(first, second)) {
      double least = std::numeric_limits<double>::infinity();
      for (const CurveMeeting& m : meetings.points) least = std::min(least, m.point.distanceTo(p));
      ASSERT_LE(least, 1e-4) << round << ": " << p.x << ", " << p.y << ", " << p.z;
    }
  }
  EXPECT_GT(met, Rounds(12000) / 50);
}

bool IsFinite(const AcGePoint3d& p) {
  return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

double Odd(Maker& make) {
  static const double numbers[] = {0.0,
                                   -0.0,
                                   1.0,
                                   -1.0,
                                   2.0,
                                   0.5,
                                   1e-9,
                                   1e-150,
                                   1e-310,
                                   1e9,
                                   1e17,
                                   1e50,
                                   1e99,
                                   -1e99,
                                   1e100,
                                   1.1e100,
                                   1e160,
                                   1e300,
                                   -1e308,
                                   1e308,
                                   1e15,
                                   -1e15,
                                   std::numeric_limits<double>::infinity(),
                                   -std::numeric_limits<double>::infinity(),
                                   std::numeric_limits<double>::quiet_NaN(),
                                   std::numeric_limits<double>::denorm_min()};
  return numbers[make.Whole(0, static_cast<int>(std::size(numbers)) - (make.Whole(0, 3) ? 9 : 1))];
}

Curve OddCurve(Maker& make) {
  const auto odd = [&] { return Odd(make); };
  const auto point = [&] { return AcGePoint3d(odd(), odd(), make.Whole(0, 1) ? 0.0 : odd()); };
  const AcGeVector3d normal = make.Whole(0, 1) ? AcGeVector3d(0, 0, 1) : AcGeVector3d(odd(), odd(), odd());
  switch (make.Whole(0, 3)) {
  case 0:
    return Curve::Line(point(), point());
  case 1:
    return Curve::Arc(point(), normal, odd(), odd(), odd());
  case 2:
    return Curve::Circle(point(), normal, odd());
  default:
    break;
  }
  std::vector<PolylineVertex> vertices(static_cast<std::size_t>(make.Whole(0, 5)));
  for (PolylineVertex& v : vertices) v = {{odd(), odd()}, odd()};
  return Curve::Polyline(vertices, make.Whole(0, 1), normal, make.Whole(0, 1) ? 0.0 : odd());
}

TEST(CurveProperty, OddNumbersGiveFinitePointsOrAStatus) {
  Maker make(38);
  for (int round = 0; round < Rounds(60000); ++round) {
    const Curve first = OddCurve(make);
    const Curve second = OddCurve(make);
    const AcGePoint3d p(Odd(make), Odd(make), Odd(make));
    const auto meetings = Intersect(first, second, static_cast<ExtendCurves>(make.Whole(0, 3)));
    for (const CurveMeeting& m : meetings.points) ASSERT_TRUE(IsFinite(m.point)) << round;
    if (const auto closest = ClosestPoint(first, p, make.Whole(0, 1))) {
      ASSERT_TRUE(IsFinite(closest.value.point)) << round;
      ASSERT_TRUE(std::isfinite(closest.value.parameter)) << round;
    }
    const double t = Odd(make);
    const auto byParameter = PointAtParameter(first, t);
    ASSERT_TRUE(!byParameter || IsFinite(byParameter.value)) << round;
    const auto byDistance = PointAtDistance(first, t);
    ASSERT_TRUE(!byDistance || IsFinite(byDistance.value)) << round;
    const auto length = Length(first);
    ASSERT_TRUE(!length || std::isfinite(length.value)) << round;
    const auto area = Area(first);
    ASSERT_TRUE(!area || !std::isnan(area.value)) << round;
    const double cuts[] = {t, Odd(make)};
    (void)SplitAtParameters(first, cuts).status;
    (void)ParameterAtPoint(first, p).status;
    (void)FirstDerivative(first, t).status;
    (void)Reversed(first).status;
    (void)MoveStart(first, p).status;
    (void)MoveEnd(first, p).status;
    (void)Transformed(first, AcGeMatrix3d::rotation(Odd(make), {Odd(make), Odd(make), 1})).status;
  }
}

} // namespace
