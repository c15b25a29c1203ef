// What the index makes of random plans, against comparing everything with everything. tests/soak has a
// program that does the same for as long as one likes.
#include "plugin/layers/CZPManagerLayer.h"
#include "tests/support/CrossingPlans.h"
#include "tests/support/TempInstall.h"

#include <gtest/gtest.h>

namespace {

TEST(RandomCrossings, ComeOutAsThePlainLoopsTellEntityByEntity) {
  const TempInstall install;
  CZPManagerLayer::GetInstance()->RemoveAll();
  constexpr std::uint64_t kPlans = 250;
  int symbols = 0;
  for (std::uint64_t seed = 1; seed <= kPlans; ++seed) {
    const std::string difference = CompareCrossings(seed, symbols);
    ASSERT_TRUE(difference.empty()) << difference;
  }
  EXPECT_GT(symbols, 250) << "the plans have hardly any joints";
}

} // namespace
