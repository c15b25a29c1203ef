#include "plugins/workbench/hydraulics/PipeFlow.h"

#include "plugins/workbench/hydraulics/FrictionFactor.h"
#include "plugins/workbench/hydraulics/PipeSizing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

using namespace hydraulics;

namespace {

// By hand: 3.6 m3/h are 1 litre a second; a bore of 1/sqrt(pi) dm has a section of 1/4 dm2.
TEST(PipeFlow, HasTheVelocityOfTheFlowThroughTheSection) {
  EXPECT_NEAR(0.4, Velocity(3.6, 100 / std::sqrt(std::numbers::pi)), 1e-15);
  EXPECT_NEAR(1.0, Velocity(std::numbers::pi * 900, 1000), 1e-12);
}

// Laminar flow against the law of Hagen and Poiseuille itself: dp/L = 128 mu Q / (pi d^4).
TEST(PipeFlow, LosesWhatHagenAndPoiseuilleSayInLaminarFlow) {
  const auto water = WaterAt(10).value();
  std::mt19937 random(11);
  for (int i = 0; i < 200; ++i) {
    const double inner = std::uniform_real_distribution<double>(4, 30)(random);
    const double reynolds = std::uniform_real_distribution<double>(1, 2300)(random);
    const double metres = inner / 1000;
    const double flow = reynolds * water.kinematicViscosity() * std::numbers::pi * metres / 4; // m3/s
    const auto through = FlowThrough({inner, 0.2}, flow * 3600, water);
    ASSERT_TRUE(through);
    EXPECT_NEAR(1, through->reynolds / reynolds, 1e-12);
    const double loss = 128 * water.dynamicViscosity * flow / (std::numbers::pi * std::pow(metres, 4));
    EXPECT_NEAR(1, through->specificFriction / loss, 1e-12);
  }
}

// Darcy's formula put together from the parts that are given.
TEST(PipeFlow, LosesWhatDarcyAndWeisbachSay) {
  const auto water = WaterAt(60).value();
  const auto through = FlowThrough({35.4, 0.2}, 2.5, water);
  ASSERT_TRUE(through);
  EXPECT_NEAR(2.5 / 3600 / (std::numbers::pi * 0.0354 * 0.0354 / 4), through->velocity, 1e-14);
  EXPECT_NEAR(through->velocity * 0.0354 * water.density / water.dynamicViscosity, through->reynolds, 1e-8);
  EXPECT_EQ(FrictionFactor(through->reynolds, 0.2 / 35.4), through->frictionFactor);
  EXPECT_NEAR(through->frictionFactor / 0.0354 * water.density * through->velocity * through->velocity / 2,
              through->specificFriction, 1e-10);
}

TEST(PipeFlow, LosesMoreTheFasterItIsAndTheNarrowerThePipe) {
  const auto water = WaterAt(50).value();
  for (double rate = 0.01; rate < 100; rate *= 1.3) {
    EXPECT_LT(FlowThrough({50, 0.2}, rate, water)->specificFriction,
              FlowThrough({50, 0.2}, rate * 1.3, water)->specificFriction);
    EXPECT_GT(FlowThrough({40, 0.2}, rate, water)->specificFriction,
              FlowThrough({50, 0.2}, rate, water)->specificFriction);
  }
}

TEST(PipeFlow, HasNoAnswerForWhatIsNoPipeOrNoFlow) {
  const auto water = WaterAt(60).value();
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(FlowThrough({0, 0.2}, 1, water));
  EXPECT_FALSE(FlowThrough({-20, 0.2}, 1, water));
  EXPECT_FALSE(FlowThrough({20, -0.2}, 1, water));
  EXPECT_FALSE(FlowThrough({20, 20}, 1, water)) << "as rough as it is wide";
  EXPECT_FALSE(FlowThrough({20, 0.2}, 0, water));
  EXPECT_FALSE(FlowThrough({20, 0.2}, none, water));
  EXPECT_FALSE(FlowThrough({none, 0.2}, 1, water));
  EXPECT_FALSE(FlowThrough({20, 0.2}, 1, Water{}));
}

// The rule of thumb of every heating engineer: 0.86 m3/h for 10 kW and 10 K, give or take the density.
TEST(FlowRateOfLoad, IsNearTheRuleOfThumb) {
  const auto rate = FlowRateOfLoad(10, 55, 45);
  ASSERT_TRUE(rate);
  EXPECT_NEAR(0.86, *rate, 0.02);
}

TEST(FlowRateOfLoad, CarriesTheLoad) {
  for (const auto& [supply, back] : {std::pair{75.0, 50.0}, {7.0, 12.0}, {95.0, 70.0}, {45.0, 40.0}}) {
    const auto rate = FlowRateOfLoad(123.4, supply, back);
    ASSERT_TRUE(rate);
    const auto mean = WaterAt((supply + back) / 2).value();
    const double kilowatts =
        *rate / 3600 * mean.density * mean.heatCapacity * std::fabs(supply - back) / 1000;
    EXPECT_NEAR(123.4, kilowatts, 0.02) << supply << " " << back;
    EXPECT_EQ(rate, FlowRateOfLoad(123.4, back, supply)) << "heating or cooling";
  }
}

TEST(FlowRateOfLoad, HasNoAnswerWithoutALoadOrADifference) {
  EXPECT_FALSE(FlowRateOfLoad(0, 75, 50));
  EXPECT_FALSE(FlowRateOfLoad(-1, 75, 50));
  EXPECT_FALSE(FlowRateOfLoad(1, 50, 50));
  EXPECT_FALSE(FlowRateOfLoad(1, 160, 50));
  EXPECT_FALSE(FlowRateOfLoad(1, 75, -1));
}

constexpr PipeSize kSizes[] = {
    {50, 52.7, 1.2}, {32, 35.4, 0.9}, {40, 41.3, 1.0}, {25, 27.3, 0.7}, {20, 0, 9}};

TEST(SmallestSize, IsTheFirstInWhichTheFlowIsSlowEnough) {
  EXPECT_EQ(3u, SmallestSize(kSizes, 1.0));
  EXPECT_EQ(1u, SmallestSize(kSizes, 2.5));
  EXPECT_EQ(2u, SmallestSize(kSizes, 4.0));
  EXPECT_EQ(0u, SmallestSize(kSizes, 5.0));
}

TEST(SmallestSize, TakesASizeAtItsLimitAndNotBeyond) {
  const double limit = 0.9 * std::numbers::pi * 0.0354 * 0.0354 / 4 * 3600;
  EXPECT_EQ(1u, SmallestSize(kSizes, limit * (1 - 1e-12)));
  EXPECT_EQ(2u, SmallestSize(kSizes, limit * (1 + 1e-12)));
  const PipeSize exact[] = {{32, 35.4, Velocity(2.5, 35.4)}};
  EXPECT_EQ(0u, SmallestSize(exact, 2.5));
}

TEST(SmallestSize, IsNothingForTooMuchAndForNoSizes) {
  EXPECT_FALSE(SmallestSize(kSizes, 1000));
  EXPECT_FALSE(SmallestSize({}, 1));
}

TEST(SmallestSize, NoSmallerSizeWouldDo) {
  for (double rate = 0.05; rate < 9; rate *= 1.07) {
    const auto best = SmallestSize(kSizes, rate);
    ASSERT_TRUE(best) << rate;
    for (const auto& size : kSizes)
      if (size.inner > 0 && size.nominal < kSizes[*best].nominal) {
        EXPECT_GT(Velocity(rate, size.inner), size.highestVelocity) << rate;
      }
  }
}

} // namespace
