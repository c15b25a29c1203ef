#include "plugin/graph/VkGePolyline2d.h"
#include "host/afx/CInvalidArgException.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

using std::numbers::pi;

VkGePolyline2d Path(std::initializer_list<std::pair<AcGePoint3d, double>> vertices) {
  VkGePolyline2d path;
  for (const auto& [point, angle] : vertices) path.AppendVertex(point, angle);
  return path;
}

} // namespace

TEST(VkGePolyline2d, AnEmptyOneAndASinglePointMeasureNothing) {
  EXPECT_EQ(0.0, VkGePolyline2d().GetLength());
  EXPECT_EQ(0.0, VkGePolyline2d().GetArea());
  EXPECT_EQ(0.0, Path({{{3, 4, 0}, pi}}).GetLength());
}

TEST(VkGePolyline2d, StraightSegmentsAddUp) {
  const auto path = Path({{{0, 0, 0}, 0}, {{3, 0, 0}, 0}, {{3, 4, 0}, 0}});
  EXPECT_DOUBLE_EQ(7, path.GetLength());
  EXPECT_DOUBLE_EQ(6, path.GetArea());
}

TEST(VkGePolyline2d, CentralAnglesBendTheSegmentsThatBeginThere) {
  // A half circle of radius 1, one way and the other; the angle of the last vertex is of no account.
  EXPECT_NEAR(pi, Path({{{0, 0, 0}, pi}, {{2, 0, 0}, 1}}).GetLength(), 1e-12);
  EXPECT_NEAR(pi / 2, Path({{{0, 0, 0}, -pi}, {{2, 0, 0}, 0}}).GetArea(), 1e-12);
  // Three quarters of a turn over a chord of sqrt 2: radius 1.
  EXPECT_NEAR(1.5 * pi, Path({{{1, 0, 0}, 1.5 * pi}, {{0, -1, 0}, 0}}).GetLength(), 1e-12);
}

TEST(VkGePolyline2d, AnAreaIsNeverNegative) {
  EXPECT_DOUBLE_EQ(6, Path({{{0, 0, 0}, 0}, {{3, 4, 0}, 0}, {{3, 0, 0}, 0}}).GetArea());
}

TEST(VkGePolyline2d, HeightsAreDropped) {
  EXPECT_DOUBLE_EQ(5, Path({{{0, 0, 9}, 0}, {{3, 4, -9}, 0}}).GetLength());
}

TEST(VkGePolyline2d, DoubledVerticesLeaveTheLastWithItsAngle) {
  auto path =
      Path({{{0, 0, 0}, 0}, {{1, 0, 0}, 0}, {{1, 0, 0}, 0}, {{1, 0, 0}, pi}, {{3, 0, 0}, 0}, {{1, 0, 0}, 0}});
  path.CleanPolyDumpPoint();
  ASSERT_EQ(4, path.GetVertexCount());
  EXPECT_EQ(pi, path.GetCentralAngle(1));
  EXPECT_EQ(AcGePoint2d(1, 0), path.GetVertex(3)) << "a place that comes again later stays";
}

TEST(VkGePolyline2d, AnIndexOutOfRangeRaisesTheException) {
  const auto path = Path({{{0, 0, 0}, 0}});
  EXPECT_THROW(path.GetVertex(1), CInvalidArgException);
  EXPECT_THROW(path.GetCentralAngle(-1), CInvalidArgException);
}

TEST(VkGePolyline2d, NumbersThatAreNoneMeasureNothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(0.0, Path({{{0, 0, 0}, 0}, {{nan, 0, 0}, 0}}).GetLength());
}
