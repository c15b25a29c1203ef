// The object coordinate system that DXF derives from an extrusion direction.
#include "host/ge/ArbitraryAxis.h"
#include "host/ge/AcGeMatrix3d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

TEST(ArbitraryAxis, TheZAxisGivesTheWorld) {
  EXPECT_EQ(AcGeMatrix3d::planeToWorld(AcGeVector3d::kZAxis), AcGeMatrix3d::kIdentity);
  EXPECT_EQ(AcGeMatrix3d::planeToWorld(AcGeVector3d(0, 0, 17)), AcGeMatrix3d::kIdentity);
}

TEST(ArbitraryAxis, ADrawingMirroredByItsNormalHasXReversed) {
  const AcGeMatrix3d m = AcGeMatrix3d::planeToWorld(-AcGeVector3d::kZAxis);
  EXPECT_EQ(m * AcGePoint3d(2, 3, 4), AcGePoint3d(-2, 3, -4));
}

// The helper axis changes at one sixty-fourth: below it the x axis comes from the world's y axis.
TEST(ArbitraryAxis, TheHelperAxisChangesAtOneSixtyFourth) {
  const auto direction = [](double x) { return AcGeVector3d(x, 0, std::sqrt(1 - x * x)); };
  EXPECT_GT(ge::ArbitraryAxis(direction(1.0 / 64 - 1e-6)).xAxis.x, 0.99);
  EXPECT_GT(ge::ArbitraryAxis(direction(1.0 / 64 + 1e-6)).xAxis.y, 0.99);
}

TEST(ArbitraryAxis, AnyDirectionGivesARightHandedOrthonormalSystem) {
  std::mt19937 random(3);
  std::normal_distribution<double> normal;
  for (int i = 0; i < 2000; ++i) {
    const AcGeVector3d direction =
        AcGeVector3d(normal(random), normal(random), normal(random)) * std::pow(10.0, normal(random) * 20.0);
    const AcGeMatrix3d m = AcGeMatrix3d::planeToWorld(direction);
    ASSERT_TRUE(m.isUniScaledOrtho());
    ASSERT_NEAR(m.det(), 1.0, 1e-12);
    ASSERT_TRUE((m * AcGeVector3d::kZAxis).isEqualTo(direction / direction.length()));
    ASSERT_EQ(AcGeMatrix3d::worldToPlane(direction) * m, AcGeMatrix3d::kIdentity);
    // The first axis is level, or lies in the plane of the world's x and z for a direction near the z axis.
    const AcGeVector3d x = m * AcGeVector3d::kXAxis;
    ASSERT_TRUE(std::fabs(x.z) < 1e-12 || std::fabs(x.y) < 1e-12);
  }
}

TEST(ArbitraryAxis, AMeaninglessDirectionStandsForTheWorld) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const AcGeVector3d& bad :
       {AcGeVector3d(), AcGeVector3d(std::nan(""), 0, 1), AcGeVector3d(infinity, 0, 0)}) {
    EXPECT_EQ(AcGeMatrix3d::planeToWorld(bad), AcGeMatrix3d::kIdentity);
  }
}

} // namespace
