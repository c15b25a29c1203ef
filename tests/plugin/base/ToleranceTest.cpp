// Tolerant comparisons.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "plugin/base/Tolerance.h"

namespace {

TEST(Tolerance, IsEqualIncludesItsTolerance) {
  EXPECT_TRUE(ZP::IsEqual(20, 20, 0.001));
  EXPECT_TRUE(ZP::IsEqual(20, 20.0009, 0.001));
  EXPECT_TRUE(ZP::IsEqual(1.5, 1.0, 0.5));
  EXPECT_FALSE(ZP::IsEqual(20, 20.0011, 0.001));
  EXPECT_TRUE(ZP::IsEqual(20, 20, 0));
}

TEST(Tolerance, WithinTheTolerancesNothingIsGreaterOrLessAndAllIsEqual) {
  for (const double nearby : {20.0, 20.0 + 5e-7, 20.0 - 5e-7}) {
    EXPECT_FALSE(ZP::Greater(nearby, 20));
    EXPECT_FALSE(ZP::Less(nearby, 20));
    EXPECT_TRUE(ZP::GreaterOrEqual(nearby, 20));
    EXPECT_TRUE(ZP::LessOrEqual(nearby, 20));
  }
}

TEST(Tolerance, BeyondTheToleranceTheOrderIsTheUsual) {
  EXPECT_TRUE(ZP::Greater(20.00001, 20));
  EXPECT_FALSE(ZP::LessOrEqual(20.00001, 20));
  EXPECT_TRUE(ZP::Less(19.99999, 20));
  EXPECT_FALSE(ZP::GreaterOrEqual(19.99999, 20));
}

TEST(Tolerance, InfinitiesAreOrderedAndEqualToThemselves) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(ZP::IsEqual(infinity, infinity, 0.001));
  EXPECT_TRUE(ZP::GreaterOrEqual(infinity, infinity));
  EXPECT_TRUE(ZP::LessOrEqual(infinity, infinity));
  EXPECT_FALSE(ZP::Greater(infinity, infinity));
  EXPECT_TRUE(ZP::Greater(infinity, 1));
  EXPECT_TRUE(ZP::Less(-infinity, infinity));
}

TEST(Tolerance, NotANumberComparesAsFalse) {
  const double nan = std::nan("");
  EXPECT_FALSE(ZP::IsEqual(nan, nan, 1));
  EXPECT_FALSE(ZP::Greater(nan, 1));
  EXPECT_FALSE(ZP::Less(nan, 1));
  EXPECT_FALSE(ZP::GreaterOrEqual(nan, 1));
  EXPECT_FALSE(ZP::LessOrEqual(nan, 1));
}

} // namespace
