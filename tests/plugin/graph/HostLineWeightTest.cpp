#include "plugin/graph/HostLineWeight.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

TEST(HostLineWeight, IsCutTowardsZero) {
  EXPECT_EQ(ZP::HostLineWeight(50), AcDb::kLnWt050);
  EXPECT_EQ(ZP::HostLineWeight(30.999), AcDb::kLnWt030);
  EXPECT_EQ(ZP::HostLineWeight(0.9), AcDb::kLnWt000);
  EXPECT_EQ(ZP::HostLineWeight(-0.9), AcDb::kLnWt000);
}

TEST(HostLineWeight, TakesTheSpecialValues) {
  EXPECT_EQ(ZP::HostLineWeight(-1), AcDb::kLnWtByLayer);
  EXPECT_EQ(ZP::HostLineWeight(-2), AcDb::kLnWtByBlock);
  EXPECT_EQ(ZP::HostLineWeight(-3), AcDb::kLnWtByLwDefault);
}

TEST(HostLineWeight, IsNothingForWhatTheHostHasNot) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double number : {28.999, -4.0, 212.0, 9900.0, 1e300, -1e300, infinity, -infinity, std::nan("")})
    EXPECT_EQ(ZP::HostLineWeight(number), std::nullopt) << number;
}

} // namespace
