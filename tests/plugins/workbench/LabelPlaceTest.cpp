#include "plugins/workbench/LabelPlace.h"

#include "host/db/AcDbCurves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

using workbench::LabelPlace;
using workbench::PlaceAlong;
using workbench::ReadingDirection;

namespace {

constexpr double kHalfTurn = std::numbers::pi;
constexpr double kGap = 100;
constexpr double kHeight = 300;

AcGeVector3d Up(const LabelPlace& place) {
  return {-std::sin(place.rotation), std::cos(place.rotation), 0};
}

TEST(ReadingDirection, IsAlongTheLineAndNeverUpsideDown) {
  for (double direction = -7; direction < 7; direction += 0.01) {
    const double reading = ReadingDirection(direction);
    EXPECT_NEAR(0, std::sin(reading - direction), 1e-12) << direction;
    EXPECT_GT(reading, -kHalfTurn / 2);
    EXPECT_LE(reading, kHalfTurn / 2 + 1e-8);
  }
}

TEST(ReadingDirection, ReadsUprightLinesFromTheRight) {
  for (const double slip : {0.0, 1e-12, -1e-12}) {
    EXPECT_NEAR(kHalfTurn / 2, ReadingDirection(kHalfTurn / 2 + slip), 1e-9) << slip;
    EXPECT_NEAR(kHalfTurn / 2, ReadingDirection(-kHalfTurn / 2 + slip), 1e-9) << slip;
  }
}

TEST(LabelPlace, WithoutAWishIsAboveTheMiddle) {
  const auto place = PlaceAlong(AcDbLine({0, 0, 0}, {4000, 0, 0}), std::nullopt, kGap, kHeight);
  EXPECT_TRUE(place.isCentred);
  EXPECT_TRUE(place.point.isEqualTo({2000, kGap, 0}));
  EXPECT_EQ(0, place.rotation);
}

TEST(LabelPlace, StandsOnTheSideOfTheWishAGapAway) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> anywhere(-10000, 10000);
  for (int i = 0; i < 500; ++i) {
    const AcDbLine line({anywhere(random), anywhere(random), 0}, {anywhere(random), anywhere(random), 0});
    const AcGePoint3d wished(anywhere(random), anywhere(random), 0);
    const auto place = PlaceAlong(line, wished, kGap, kHeight);
    AcGePoint3d foot;
    ASSERT_EQ(Acad::eOk, line.getClosestPointTo(wished, foot));
    const AcGeVector3d along(std::cos(place.rotation), std::sin(place.rotation), 0);
    EXPECT_NEAR(0, (place.point - foot).dotProduct(along), 1e-6) << "beside the nearest point";
    // From the line to the near edge of the text: its base line above, its top below.
    const double base = (place.point - foot).dotProduct(Up(place));
    const bool isAbove = (wished - foot).dotProduct(Up(place)) >= 0;
    EXPECT_NEAR(isAbove ? kGap : -kGap - kHeight, base, 1e-6) << i;
  }
}

TEST(LabelPlace, FollowsTheTangentOfAnArc) {
  const AcDbArc arc({0, 0, 0}, {0, 0, 1}, 1000, 0, kHalfTurn / 2);
  const auto place = PlaceAlong(arc, std::nullopt, kGap, kHeight);
  EXPECT_NEAR(-kHalfTurn / 4, place.rotation, 1e-9);
  EXPECT_NEAR(1000 + kGap, place.point.asVector().length(), 1e-6) << "outside, which is above";
}

TEST(LabelPlace, OfACurveWithoutALengthIsAtItsStart) {
  const auto place = PlaceAlong(AcDbLine({5, 6, 0}, {5, 6, 0}), std::nullopt, kGap, kHeight);
  EXPECT_TRUE(place.point.isEqualTo({5, 6 + kGap, 0}));
}

} // namespace
