#include "host/db/SpatialIndex.h"
#include "host/db/CurveCrossings.h"
#include "tests/host/ge/RandomCurves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

ge::Box2d box(double minX, double minY, double maxX, double maxY) {
  ge::Box2d b;
  b.minX = minX;
  b.minY = minY;
  b.maxX = maxX;
  b.maxY = maxY;
  return b;
}

std::set<std::size_t> found(const SpatialIndex& index, const ge::Box2d& at) {
  const auto keys = index.overlapping(at);
  EXPECT_EQ(std::set(keys.begin(), keys.end()).size(), keys.size());
  return {keys.begin(), keys.end()};
}

// What the double loop finds.
std::vector<entity::CurveCrossing> byPairs(std::span<const ge::Curve> curves) {
  std::vector<entity::CurveCrossing> crossings;
  for (std::size_t i = 0; i < curves.size(); ++i) {
    for (std::size_t j = i + 1; j < curves.size(); ++j) {
      auto meetings = ge::Intersect(curves[i], curves[j]);
      if (!meetings.points.empty() || meetings.overlap) crossings.push_back({i, j, std::move(meetings)});
    }
  }
  return crossings;
}

void expectSame(std::span<const ge::Curve> curves) {
  const auto wanted = byPairs(curves);
  const auto actual = entity::allCrossings(curves);
  ASSERT_EQ(actual.size(), wanted.size());
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    ASSERT_EQ(actual[i].first, wanted[i].first);
    ASSERT_EQ(actual[i].second, wanted[i].second);
    ASSERT_EQ(actual[i].meetings.overlap, wanted[i].meetings.overlap);
    ASSERT_EQ(actual[i].meetings.points.size(), wanted[i].meetings.points.size());
    for (std::size_t p = 0; p < wanted[i].meetings.points.size(); ++p) {
      EXPECT_EQ(actual[i].meetings.points[p].point.x, wanted[i].meetings.points[p].point.x);
      EXPECT_EQ(actual[i].meetings.points[p].point.y, wanted[i].meetings.points[p].point.y);
      EXPECT_EQ(actual[i].meetings.points[p].parameter, wanted[i].meetings.points[p].parameter);
    }
  }
}

} // namespace

TEST(SpatialIndex, FindsBoxesThatOverlapWithTheirBorders) {
  const SpatialIndex::Entry entries[] = {{box(0, 0, 1, 1), 7}, {box(5, 5, 6, 6), 8}, {box(1, 1, 5, 5), 9}};
  const SpatialIndex index(entries);
  EXPECT_EQ(found(index, box(0, 0, 0.5, 0.5)), (std::set<std::size_t>{7}));
  EXPECT_EQ(found(index, box(1, 1, 1, 1)), (std::set<std::size_t>{7, 9}));
  EXPECT_EQ(found(index, box(6.1, 0, 9, 9)), (std::set<std::size_t>{}));
}

TEST(SpatialIndex, LeavesEmptyBoxesOutAndFindsUnboundedOnesEverywhere) {
  const SpatialIndex::Entry entries[] = {
      {ge::Box2d(), 1}, {box(kNaN, 0, 1, 1), 2}, {box(-kInfinite, 0, kInfinite, 1), 3}, {box(0, 0, 1, 1), 4}};
  SpatialIndex index(entries);
  EXPECT_EQ(index.size(), 2u);
  EXPECT_EQ(found(index, box(1e6, 0.5, 1e6, 0.5)), (std::set<std::size_t>{3}));
  EXPECT_EQ(found(index, ge::Box2d()), (std::set<std::size_t>{}));
  EXPECT_TRUE(index.remove(entries[2]));
  EXPECT_FALSE(index.remove(entries[2]));
  EXPECT_FALSE(index.remove(entries[0]));
}

TEST(SpatialIndex, ChangesLikeAList) {
  random_curves::Maker maker(11);
  SpatialIndex index;
  std::vector<SpatialIndex::Entry> list;
  for (std::size_t round = 0; round < 2000; ++round) {
    if (list.size() > 50 && maker.Whole(0, 2) == 0) {
      const auto at = static_cast<std::size_t>(maker.Whole(0, static_cast<int>(list.size()) - 1));
      EXPECT_TRUE(index.remove(list[at]));
      list.erase(list.begin() + static_cast<std::ptrdiff_t>(at));
    } else {
      const double x = maker.Real(0, 100), y = maker.Real(0, 100);
      list.push_back({box(x, y, x + maker.Real(0, 10), y + maker.Real(0, 10)), round});
      index.insert(list.back());
    }
    const double x = maker.Real(0, 100), y = maker.Real(0, 100);
    const ge::Box2d at = box(x, y, x + 10, y + 10);
    std::set<std::size_t> wanted;
    for (const auto& entry : list)
      if (entry.box.Overlaps(at)) wanted.insert(entry.key);
    ASSERT_EQ(found(index, at), wanted);
  }
  EXPECT_EQ(index.size(), list.size());
}

TEST(CurveCrossings, AreThoseOfAllPairs) {
  for (const bool grid : {false, true}) {
    random_curves::Maker maker(grid ? 3 : 5);
    maker.grid = grid;
    std::vector<ge::Curve> curves;
    for (int i = 0; i < random_curves::Rounds(300); ++i) curves.push_back(maker.Any(6));
    expectSame(curves);
  }
}

TEST(CurveCrossings, InSpaceToo) {
  random_curves::Maker maker(17);
  std::vector<ge::Curve> curves;
  for (int i = 0; i < 200; ++i) {
    const AcGeVector3d normal(maker.Real(-1, 1), maker.Real(-1, 1), maker.Real(-1, 1));
    const AcGePoint3d at(maker.Coordinate(), maker.Coordinate(), maker.Coordinate());
    const double angle = maker.Angle();
    if (i % 2)
      curves.push_back(ge::Curve::Arc(at, normal, 30, angle, maker.Angle()));
    else
      curves.push_back(ge::Curve::Line(at, at + normal * 100));
  }
  // Through one point, so that there is something to find.
  for (int i = 0; i < 20; ++i)
    curves.push_back(ge::Curve::Line({0, 0, 0}, {maker.Real(-9, 9), maker.Real(-9, 9), maker.Real(-9, 9)}));
  expectSame(curves);
}

TEST(CurveCrossings, WhatIsNoCurveHasNone) {
  const ge::Curve curves[] = {ge::Curve::Line({kNaN, 0, 0}, {1, 0, 0}), ge::Curve::Polyline({}, false),
                              ge::Curve::Line({0, 0, 0}, {1, 0, 0}),
                              ge::Curve::Circle({0, 0, 0}, {0, 0, 1}, -1),
                              ge::Curve::Line({1, 0, 0}, {1, 0, 0})};
  const auto crossings = entity::allCrossings(curves);
  ASSERT_EQ(crossings.size(), 1u); // the point at the line's end
  EXPECT_EQ(crossings[0].first, 2u);
  EXPECT_EQ(crossings[0].second, 4u);
}
