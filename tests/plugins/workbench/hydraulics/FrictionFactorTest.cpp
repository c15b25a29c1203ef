#include "plugins/workbench/hydraulics/FrictionFactor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using namespace hydraulics;

namespace {

// What is left of the equation when a factor is put into it, reckoned in long double.
long double Residual(double factor, double reynolds, double roughness) {
  const long double x = 1 / std::sqrt(static_cast<long double>(factor));
  return x + 2 * std::log10(static_cast<long double>(roughness) / 3.71L + 2.51L * x / reynolds);
}

// The same equation halved down between two factors that surely enclose it: slow, and nothing like Newton.
long double ByHalving(double reynolds, double roughness) {
  long double low = 1e-4L;
  long double high = 1e7L;
  for (int i = 0; i < 300; ++i) {
    const long double middle = std::sqrt(low * high);
    const long double x = 1 / std::sqrt(middle);
    const bool isTooSmall = x + 2 * std::log10(roughness / 3.71L + 2.51L * x / reynolds) > 0;
    (isTooSmall ? low : high) = middle;
  }
  return low;
}

double OnLogScale(std::mt19937_64& random, double from, double to) {
  return std::exp(std::uniform_real_distribution<double>(std::log(from), std::log(to))(random));
}

TEST(FrictionFactor, SolvesTheEquationToTheLastDigits) {
  std::mt19937_64 random(20240607);
  for (int i = 0; i < 20000; ++i) {
    const double reynolds = OnLogScale(random, 10, 1e9);
    const double roughness = i % 10 == 0 ? 0 : OnLogScale(random, 1e-9, 0.2);
    const double factor = ColebrookFactor(reynolds, roughness);
    const long double x = 1 / std::sqrt(static_cast<long double>(factor));
    EXPECT_LE(std::fabs(Residual(factor, reynolds, roughness)), 4e-15L * (1 + x))
        << reynolds << " " << roughness;
  }
}

TEST(FrictionFactor, AgreesWithASolutionByHalving) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 500; ++i) {
    const double reynolds = OnLogScale(random, 4000, 1e8);
    const double roughness = OnLogScale(random, 1e-6, 0.05);
    const auto halved = static_cast<double>(ByHalving(reynolds, roughness));
    EXPECT_NEAR(1, FrictionFactor(reynolds, roughness) / halved, 4e-15) << reynolds << " " << roughness;
  }
}

// The limits of Moody's chart: the fully rough plateau, and Prandtl's smooth pipe.
TEST(FrictionFactor, ReachesTheLimitsOfTheMoodyChart) {
  for (const double roughness : {1e-5, 1e-4, 1e-3, 0.01, 0.05}) {
    const double plateau = std::pow(-2 * std::log10(roughness / 3.71), -2);
    EXPECT_NEAR(1, FrictionFactor(1e14, roughness) / plateau, 1e-7) << roughness;
  }
  for (const double reynolds : {4e3, 1e4, 1e5, 1e6, 1e8}) {
    const double factor = FrictionFactor(reynolds, 0);
    EXPECT_NEAR(1 / std::sqrt(factor), 2 * std::log10(reynolds * std::sqrt(factor) / 2.51), 1e-12)
        << reynolds;
    EXPECT_NEAR(1, FrictionFactor(reynolds, 1e-12) / factor, 1e-6) << reynolds;
  }
}

// An explicit approximation by another author (Haaland, 1983) stays within 2 % of the equation.
TEST(FrictionFactor, StaysNearHaalandsFormula) {
  for (double reynolds = 5e3; reynolds < 1e8; reynolds *= 3)
    for (double roughness = 1e-6; roughness < 0.05; roughness *= 4) {
      const double haaland =
          std::pow(-1.8 * std::log10(std::pow(roughness / 3.7, 1.11) + 6.9 / reynolds), -2);
      EXPECT_NEAR(1, haaland / FrictionFactor(reynolds, roughness), 0.02) << reynolds << " " << roughness;
    }
}

TEST(FrictionFactor, FollowsHagenAndPoiseuilleInLaminarFlow) {
  for (const double reynolds : {1e-3, 1.0, 100.0, 2000.0, 2320.0}) {
    EXPECT_EQ(64 / reynolds, FrictionFactor(reynolds, 0.0));
    EXPECT_EQ(64 / reynolds, FrictionFactor(reynolds, 0.05)) << "the roughness doesn't matter";
  }
}

TEST(FrictionFactor, NeverJumpsBetweenLaminarAndTurbulentFlow) {
  for (const double roughness : {0.0, 0.001, 0.02}) {
    double before = FrictionFactor(2300, roughness);
    for (double reynolds = 2301; reynolds < 4100; ++reynolds) {
      const double now = FrictionFactor(reynolds, roughness);
      EXPECT_LT(std::fabs(now - before), 5e-5) << reynolds << " " << roughness;
      before = now;
    }
  }
}

TEST(FrictionFactor, FallsWithTheReynoldsNumberAndRisesWithTheRoughness) {
  for (double reynolds = 4000; reynolds < 1e8; reynolds *= 1.5)
    for (const double roughness : {1e-6, 1e-4, 1e-2}) {
      EXPECT_GT(FrictionFactor(reynolds, roughness), FrictionFactor(reynolds * 1.5, roughness));
      EXPECT_LT(FrictionFactor(reynolds, roughness), FrictionFactor(reynolds, roughness * 2));
    }
}

TEST(FrictionFactor, IsNoNumberWhereThereIsNoFlow) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  for (const auto& [reynolds, roughness] : {std::pair{0.0, 0.01},
                                            {-1.0, 0.01},
                                            {none, 0.01},
                                            {infinite, 0.01},
                                            {1e5, -0.01},
                                            {1e5, 1.0},
                                            {1e5, none}}) {
    EXPECT_TRUE(std::isnan(FrictionFactor(reynolds, roughness))) << reynolds << " " << roughness;
    EXPECT_TRUE(std::isnan(ColebrookFactor(reynolds, roughness))) << reynolds << " " << roughness;
  }
}

} // namespace
