#include "host/scene/Pattern.h"
#include "host/scene/PathPen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using scene::AddDashes;
using scene::Path;
using scene::Pattern;

namespace {

struct Stretch {
  double from = 0;
  double to = 0;
};

Path line(double length) {
  Path path;
  path.move({0, 0});
  path.line({length, 0});
  return path;
}

// The dashes of a pattern along the x axis.
std::vector<Stretch> dashes(const Path& path, const Pattern& pattern) {
  Path out;
  EXPECT_TRUE(AddDashes(path.view(), pattern, 1000, out));
  std::vector<Stretch> found;
  for (const auto& part : scene::Flatten(out.view())) found.push_back({part.front().x, part.back().x});
  return found;
}

double lengthOf(const Path& path) {
  double sum = 0;
  for (const auto& part : scene::Flatten(path.view()))
    for (std::size_t i = 0; i + 1 < part.size(); ++i) sum += part[i].distanceTo(part[i + 1]);
  return sum;
}

} // namespace

TEST(Pattern, BothEndsGetADash) {
  const auto found = dashes(line(10), {{2, -1}});
  ASSERT_EQ(4u, found.size());
  EXPECT_DOUBLE_EQ(0, found[0].from);
  EXPECT_DOUBLE_EQ(1.5, found[0].to); // half a dash and half of what is left over
  EXPECT_DOUBLE_EQ(2.5, found[1].from);
  EXPECT_DOUBLE_EQ(4.5, found[1].to);
  EXPECT_DOUBLE_EQ(8.5, found[3].from);
  EXPECT_DOUBLE_EQ(10, found[3].to);
}

TEST(Pattern, ALineShorterThanThePatternIsDrawnThrough) {
  const auto found = dashes(line(2.5), {{2, -1}});
  ASSERT_EQ(1u, found.size());
  EXPECT_DOUBLE_EQ(2.5, found[0].to);
}

TEST(Pattern, DotsAreLinesWithoutLength) {
  const auto found = dashes(line(10), {{0, -2}});
  ASSERT_GE(found.size(), 5u);
  for (const Stretch& dot : found) EXPECT_DOUBLE_EQ(dot.from, dot.to);
}

TEST(Pattern, CornersBeginThePatternAnewUnlessItGoesThrough) {
  Path path = line(4);
  path.line({8, 0});
  path.line({12, 0});
  EXPECT_EQ(6u, dashes(path, {{2, -1}, true}).size()); // two of each segment
  EXPECT_EQ(5u, dashes(path, {{2, -1}, false}).size());
}

TEST(Pattern, DashesFollowArcs) {
  scene::PathPen pen{AcGeMatrix3d()};
  pen.arc({0, 0, 0}, {10, 0, 0}, {0, 10, 0}, 0, std::numbers::pi);
  Path out;
  ASSERT_TRUE(AddDashes(pen.view(), {{1, -1}}, 1000, out));
  const auto parts = scene::Flatten(out.view());
  for (const AcGePoint2d& p : parts.at(3)) EXPECT_NEAR(10, std::hypot(p.x, p.y), 1e-4);
  EXPECT_NEAR(10 * std::numbers::pi / 2, lengthOf(out), 0.8); // half of the way, and the ends
}

TEST(Pattern, TooManyDashesAreRefused) {
  Path out;
  EXPECT_FALSE(AddDashes(line(1e6).view(), {{1, -1}}, 1000, out));
  out.clear();
  EXPECT_FALSE(AddDashes(line(1e300).view(), {{1e-300, -1e-300}}, 1000, out));
}

TEST(Pattern, WhatIsNoPatternIsRefused) {
  Path out;
  EXPECT_FALSE(AddDashes(line(10).view(), {}, 1000, out));
  EXPECT_FALSE(AddDashes(line(10).view(), {{0, 0}}, 1000, out));
}

TEST(Pattern, TimeGrowsWithTheDashesAndNotWithTheirSquare) {
  Path path = line(1);
  for (int i = 2; i < 20'000; ++i) path.line({static_cast<double>(i), 0});
  Path out;
  EXPECT_TRUE(AddDashes(path.view(), {{0.5, -0.5}, false}, 100'000, out));
  EXPECT_NEAR(10'000, lengthOf(out), 1);
}
