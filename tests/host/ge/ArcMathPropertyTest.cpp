// The analytic arc functions held against a dense sampling of random arcs, which knows nothing of their
// formulas.
#include "host/ge/ArcMath.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <vector>

namespace {

using namespace ge;

constexpr int kSamples = 2000;
constexpr int kRounds = 1500;

// The points of a bulge segment by the definition of the bulge: the angle that the chord subtends at a point
// of the arc is constant. The point at fraction t turns the chord's start by t times half the sweep.
std::vector<AcGePoint2d> SampleBulge(const AcGePoint2d& a, const AcGePoint2d& b, double bulge) {
  std::vector<AcGePoint2d> points;
  const double half = 2.0 * std::atan(bulge); // half of the sweep
  const AcGeVector2d chord = b - a;
  for (int i = 0; i <= kSamples; ++i) {
    const double t = static_cast<double>(i) / kSamples;
    const double size = bulge == 0.0 ? t : std::sin(t * half) / std::sin(half);
    AcGeVector2d toPoint = chord * size;
    points.push_back(a + toPoint.rotateBy(-(1.0 - t) * half));
  }
  return points;
}

struct Case {
  AcGePoint2d a;
  AcGePoint2d b;
  double bulge = 0.0;
  std::vector<AcGePoint2d> points;
  double step = 0.0; // the longest gap between two samples
};

Case RandomCase(std::mt19937& random) {
  std::uniform_real_distribution<double> place(-100.0, 100.0);
  std::uniform_real_distribution<double> logBulge(-3.0, 1.0);
  Case c;
  c.a = AcGePoint2d(place(random), place(random));
  c.b = AcGePoint2d(place(random), place(random));
  c.bulge = std::pow(10.0, logBulge(random)) * (random() % 2 ? 1.0 : -1.0);
  if (random() % 16 == 0) c.bulge = 0.0;
  c.points = SampleBulge(c.a, c.b, c.bulge);
  for (int i = 0; i < kSamples; ++i) c.step = std::max(c.step, c.points[i].distanceTo(c.points[i + 1]));
  return c;
}

TEST(ArcMathProperty, TheSamplesLieOnTheArc) {
  std::mt19937 random(11);
  for (int round = 0; round < kRounds; ++round) {
    const Case c = RandomCase(random);
    const auto arc = ArcFromBulge(c.a, c.b, c.bulge);
    if (!arc) continue;
    for (int i = 0; i <= kSamples; i += 100) {
      ASSERT_NEAR(c.points[i].distanceTo(arc->center), arc->radius, 1e-9 * arc->radius);
      ASSERT_TRUE(i == 0 || i == kSamples || arc->Covers((c.points[i] - arc->center).angle()));
    }
    ASSERT_LT(arc->PointAt(arc->startAngle).distanceTo(c.a), 1e-9 * arc->radius);
    ASSERT_LT(arc->PointAt(arc->EndAngle()).distanceTo(c.b), 1e-9 * arc->radius);
  }
}

TEST(ArcMathProperty, ExtentsHoldEverySampleAndAreTight) {
  std::mt19937 random(12);
  for (int round = 0; round < kRounds; ++round) {
    const Case c = RandomCase(random);
    const Box2d box = BulgeExtents(c.a, c.b, c.bulge);
    Box2d sampled;
    for (const AcGePoint2d& p : c.points) sampled.Add(p);
    const double slack = 1e-9 * (1.0 + std::fabs(c.bulge)) * 200.0;
    ASSERT_LE(box.minX, sampled.minX + slack);
    ASSERT_LE(box.minY, sampled.minY + slack);
    ASSERT_GE(box.maxX, sampled.maxX - slack);
    ASSERT_GE(box.maxY, sampled.maxY - slack);
    ASSERT_LE(sampled.minX - box.minX, c.step + slack);
    ASSERT_LE(sampled.minY - box.minY, c.step + slack);
    ASSERT_LE(box.maxX - sampled.maxX, c.step + slack);
    ASSERT_LE(box.maxY - sampled.maxY, c.step + slack);
  }
}

TEST(ArcMathProperty, DistanceIsThatToTheNearestSample) {
  std::mt19937 random(13);
  std::uniform_real_distribution<double> place(-150.0, 150.0);
  for (int round = 0; round < kRounds; ++round) {
    const Case c = RandomCase(random);
    const AcGePoint2d p(place(random), place(random));
    double nearest = std::numeric_limits<double>::infinity();
    for (const AcGePoint2d& q : c.points) nearest = std::min(nearest, p.distanceTo(q));
    const double distance = DistanceToBulge(p, c.a, c.b, c.bulge);
    ASSERT_LE(distance, nearest + 1e-6);
    ASSERT_GE(distance, nearest - c.step);
  }
}

// A window takes the curve when a sample lies inside, and does not when every sample is farther from it than
// the samples are from each other; between the two the sampling cannot tell.
TEST(ArcMathProperty, WindowsTakeWhatTheSamplesShow) {
  std::mt19937 random(14);
  std::uniform_real_distribution<double> place(-150.0, 150.0);
  std::uniform_real_distribution<double> size(0.0, 60.0);
  int touched = 0;
  int missed = 0;
  for (int round = 0; round < 4 * kRounds; ++round) {
    const Case c = RandomCase(random);
    const AcGePoint2d corner(place(random), place(random));
    const Box2d box = Box2d::FromCorners(corner, corner + AcGeVector2d(size(random), size(random)));
    const Box2d wider = {box.minX - c.step, box.minY - c.step, box.maxX + c.step, box.maxY + c.step};
    const bool hit = std::any_of(c.points.begin(), c.points.end(), [&](auto& p) { return box.Contains(p); });
    const bool close =
        std::any_of(c.points.begin(), c.points.end(), [&](auto& p) { return wider.Contains(p); });
    const bool whole =
        std::all_of(c.points.begin(), c.points.end(), [&](auto& p) { return box.Contains(p); });
    const bool touches = BulgeTouchesBox(c.a, c.b, c.bulge, box);
    if (hit) {
      ASSERT_TRUE(touches) << "round " << round;
      ++touched;
    }
    if (!close) {
      ASSERT_FALSE(touches) << "round " << round;
      ++missed;
    }
    if (!whole) {
      ASSERT_FALSE(BulgeInsideBox(c.a, c.b, c.bulge, box));
    }
    // The rectangle around all samples and one step more holds the curve.
    Box2d around;
    for (const AcGePoint2d& p : c.points) around.Add(p);
    const double margin = c.step + 1e-6;
    ASSERT_TRUE(BulgeInsideBox(
        c.a, c.b, c.bulge,
        {around.minX - margin, around.minY - margin, around.maxX + margin, around.maxY + margin}));
  }
  // The random windows must have tried both answers.
  EXPECT_GT(touched, 100);
  EXPECT_GT(missed, 100);
}

// Every combination of meaningless and extreme numbers must come back with an answer that a caller can use.
TEST(ArcMathProperty, NoInputCrashesOrGivesADistanceThatIsNotANumber) {
  const double values[] = {0.0,
                           -1.0,
                           1e-320,
                           1e300,
                           -1e308,
                           std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()};
  for (const double x : values) {
    for (const double y : values) {
      for (const double bulge : values) {
        for (const double q : values) {
          const AcGePoint2d a(x, y);
          const AcGePoint2d b(q, 1.0);
          const Box2d extents = BulgeExtents(a, b, bulge);
          EXPECT_FALSE(std::isnan(extents.minX) || std::isnan(extents.maxY));
          const Box2d window = Box2d::FromCorners(AcGePoint2d(q, y), AcGePoint2d(x, bulge));
          const bool inside = BulgeInsideBox(a, b, bulge, window);
          const bool touches = BulgeTouchesBox(a, b, bulge, window);
          EXPECT_TRUE(!inside || touches);
          EXPECT_FALSE(std::isnan(DistanceToBulge(AcGePoint2d(y, q), a, b, bulge)));
          EXPECT_FALSE(std::isnan(DistanceToArc(AcGePoint2d(y, q), ArcFromAngles(a, bulge, q, x))));
        }
      }
    }
  }
}

} // namespace
