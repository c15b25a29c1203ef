// The intersections of random pairs held against the sampling oracle: every point lies on both curves, no
// crossing is missed, stretches are seen, and both orders of the pair agree.
#include "tests/host/ge/CurveOracle.h"
#include "tests/host/ge/RandomCurves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>

namespace {

using namespace ge;
using oracle::Real;
using oracle::Vec;
using random_curves::Maker;
using random_curves::Rounds;

Vec Flat(const AcGePoint3d& p) {
  return {p.x, p.y};
}

Real Apart(const Vec& a, const Vec& b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

std::string Describe(const Curve& curve) {
  std::ostringstream text;
  text.precision(17);
  for (const CurvePiece& p : curve.Pieces()) {
    text << "  (" << p.start.x << ", " << p.start.y << ") (" << p.end.x << ", " << p.end.y << ") bulge "
         << p.bulge;
    if (p.isArc)
      text << " centre (" << p.arc.center.x << ", " << p.arc.center.y << ") radius " << p.arc.radius
           << " from " << p.arc.startAngle << " sweep " << p.arc.sweep;
    text << '\n';
  }
  text << (curve.IsClosed() ? "  closed\n" : "  open\n");
  return text.str();
}

struct Pair {
  Curve first;
  Curve second;
  ExtendCurves extend;
};

std::string Describe(const Pair& pair, const CurveIntersections& meetings) {
  std::ostringstream text;
  text.precision(17);
  text << '\n'
       << Describe(pair.first) << Describe(pair.second) << "  extend " << static_cast<int>(pair.extend);
  if (meetings.overlap) text << " overlap";
  for (const CurveMeeting& m : meetings.points)
    text << " [" << m.point.x << ", " << m.point.y << " at " << m.parameter << ']';
  return text.str();
}

bool Extends(ExtendCurves extend, ExtendCurves which) {
  return extend == ExtendCurves::kBoth || extend == which;
}

void CheckPointsLieOnBoth(const oracle::Shape& a, const oracle::Shape& b,
                          const CurveIntersections& meetings) {
  for (const CurveMeeting& m : meetings.points) {
    const Vec p = Flat(m.point);
    const Real size = std::max({a.size, b.size, std::fabs(p.x), std::fabs(p.y)});
    const Real slack = 2 * (1e-10L + 3.6e-15L * size);
    EXPECT_LE(oracle::Distance(a, p, slack), slack) << "off the first";
    EXPECT_LE(oracle::Distance(b, p, slack), slack) << "off the second";
  }
  for (std::size_t i = 1; i < meetings.points.size(); ++i) {
    EXPECT_LE(meetings.points[i - 1].parameter, meetings.points[i].parameter) << "out of order";
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_GT(meetings.points[i].point.distanceTo(meetings.points[j].point), 1e-10) << "twice";
  }
}

void CheckNothingIsMissed(const oracle::Shape& a, const oracle::Shape& b,
                          const CurveIntersections& meetings) {
  const oracle::Findings findings = oracle::Explore(a, b);
  const Real size = std::max(a.size, b.size);
  const Real slack = 1e-9L + 1e-13L * size;
  EXPECT_TRUE(meetings.overlap || !findings.overlap) << "stretch missed";
  EXPECT_TRUE(!meetings.overlap || oracle::RunTogether(a, b, slack) || oracle::RunTogether(b, a, slack))
      << "no stretch there";
  for (const oracle::Crossing& crossing : findings.certain) {
    const Real reach = slack / crossing.slope + 2e-9L;
    bool found = false;
    for (const CurveMeeting& m : meetings.points)
      found = found || Apart(Flat(m.point), crossing.point) <= reach;
    if (!found && meetings.overlap) found = oracle::RunTogetherAt(a, b, crossing.point, slack);
    EXPECT_TRUE(found) << "missed " << static_cast<double>(crossing.point.x) << ", "
                       << static_cast<double>(crossing.point.y);
  }
}

void CheckTheOtherOrder(const Pair& pair, const CurveIntersections& meetings) {
  const ExtendCurves turned = pair.extend == ExtendCurves::kFirst    ? ExtendCurves::kSecond
                              : pair.extend == ExtendCurves::kSecond ? ExtendCurves::kFirst
                                                                     : pair.extend;
  const CurveIntersections other = Intersect(pair.second, pair.first, turned);
  EXPECT_EQ(other.overlap, meetings.overlap) << "stretch in one order alone";
  EXPECT_EQ(other.points.size(), meetings.points.size()) << "numbers differ with the order";
}

void CheckPair(const Pair& pair) {
  const CurveIntersections meetings = Intersect(pair.first, pair.second, pair.extend);
  const oracle::Shape a = oracle::ShapeOf(pair.first, Extends(pair.extend, ExtendCurves::kFirst));
  const oracle::Shape b = oracle::ShapeOf(pair.second, Extends(pair.extend, ExtendCurves::kSecond));
  CheckPointsLieOnBoth(a, b, meetings);
  CheckNothingIsMissed(a, b, meetings);
  CheckTheOtherOrder(pair, meetings);
  if (testing::Test::HasFailure()) GTEST_FAIL() << Describe(pair, meetings);
}

void CheckRandomPairs(Maker make, int rounds, int mostVertices) {
  for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
    const Curve first = make.Any(mostVertices);
    const Curve second = make.Any(mostVertices);
    CheckPair({first, second, static_cast<ExtendCurves>(make.Whole(0, 3))});
  }
}

TEST(CurveIntersectionProperty, ScatteredPairs) {
  CheckRandomPairs(Maker(21), Rounds(40000), 4);
}

TEST(CurveIntersectionProperty, PairsOnAGrid) {
  Maker make(22);
  make.grid = true;
  CheckRandomPairs(make, Rounds(70000), 4);
}

TEST(CurveIntersectionProperty, LongerPolylinesOnAGrid) {
  Maker make(23);
  make.grid = true;
  CheckRandomPairs(make, Rounds(6000), 9);
}

TEST(CurveIntersectionProperty, PairsFarFromTheOrigin) {
  Maker make(24);
  make.shift = 1e7;
  CheckRandomPairs(make, Rounds(15000), 4);
  make.grid = true;
  CheckRandomPairs(make, Rounds(25000), 4);
}

TEST(CurveIntersectionProperty, SmallAndLargePairs) {
  Maker make(25);
  for (const double unit : {1e-4, 1e6}) {
    make.unit = unit;
    make.grid = false;
    CheckRandomPairs(make, Rounds(7000), 4);
    make.grid = true;
    CheckRandomPairs(make, Rounds(10000), 4);
  }
}

} // namespace
