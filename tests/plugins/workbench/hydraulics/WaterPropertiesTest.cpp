#include "plugins/workbench/hydraulics/WaterProperties.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace hydraulics;

namespace {

constexpr double kAtmosphere = 0.101325; // MPa

// Table 5 of the release on IAPWS-IF97 (R7-97), for region 1: 300 K at 3 MPa and at 80 MPa. Its third point,
// 500 K, lies beyond the range that is offered here.
TEST(WaterProperties, GivesTheValuesByWhichTheFormulationIsVerified) {
  const auto low = WaterAt(300 - 273.15, 3);
  ASSERT_TRUE(low);
  EXPECT_NEAR(0.100215168e-2, 1 / low->density, 0.5e-11);
  EXPECT_NEAR(0.115331273e6, low->enthalpy, 0.5e-3);
  EXPECT_NEAR(0.417301218e4, low->heatCapacity, 0.5e-5);
  const auto high = WaterAt(300 - 273.15, 80);
  ASSERT_TRUE(high);
  EXPECT_NEAR(0.971180894e-3, 1 / high->density, 0.5e-12);
  EXPECT_NEAR(0.184142828e6, high->enthalpy, 0.5e-3);
  EXPECT_NEAR(0.401008987e4, high->heatCapacity, 0.5e-5);
}

// Table 35 of the same release: the saturation pressure at 300 K.
TEST(WaterProperties, KnowsTheBoilingPressure) {
  EXPECT_NEAR(0.353658941e-2, BoilingPressure(300 - 273.15), 0.5e-11);
  EXPECT_NEAR(kAtmosphere, BoilingPressure(99.974), 1e-5);
}

// Table 4 of the release on the viscosity (R12-08), without the critical enhancement.
TEST(WaterProperties, GivesTheViscositiesByWhichTheirFormulationIsVerified) {
  const struct {
    double kelvin;
    double density;
    double micropascalSeconds;
  } table[] = {
      {298.15, 998, 889.735100}, {298.15, 1200, 1437.649467}, {373.15, 1000, 307.883622},
      {433.15, 1, 14.538324},    {433.15, 1000, 217.685358},  {873.15, 1, 32.619287},
      {873.15, 100, 35.802262},  {873.15, 600, 77.430195},    {1173.15, 1, 44.217245},
      {1173.15, 100, 47.640433}, {1173.15, 400, 64.154608},
  };
  for (const auto& row : table)
    EXPECT_NEAR(row.micropascalSeconds, DynamicViscosity(row.kelvin - 273.15, row.density) * 1e6, 0.5e-6)
        << row.kelvin << " K, " << row.density << " kg/m3";
}

// An oracle of another kind: Kell's polynomial of measured densities at one atmosphere (J. Chem. Eng. Data 20
// (1975) 97), which was fitted long before.
TEST(WaterProperties, AgreesWithKellsMeasuredDensities) {
  for (double t = 0; t < 99.9; t += 0.5) {
    const double kell =
        (999.83952 + t * (16.945176 + t * (-7.9870401e-3 +
                                           t * (-46.170461e-6 + t * (105.56302e-9 - t * 280.54253e-12))))) /
        (1 + 16.879850e-3 * t);
    const auto water = WaterAt(t, kAtmosphere);
    ASSERT_TRUE(water) << t;
    EXPECT_NEAR(kell, water->density, 0.02) << t;
  }
}

// ISO/TR 3666: 1.0016 mPa s at 20 degrees and one atmosphere.
TEST(WaterProperties, AgreesWithTheStandardViscosity) {
  const auto water = WaterAt(20, kAtmosphere);
  ASSERT_TRUE(water);
  EXPECT_NEAR(1.0016e-3, water->dynamicViscosity, 0.0002e-3);
  EXPECT_NEAR(1.0034e-6, water->kinematicViscosity(), 0.0003e-6);
}

// The heat capacity is the slope of the enthalpy; the two come from different derivatives.
TEST(WaterProperties, HasAHeatCapacityThatIsTheSlopeOfTheEnthalpy) {
  for (double t = 0.5; t <= 149.5; t += 0.5) {
    const double slope = (WaterAt(t + 0.01)->enthalpy - WaterAt(t - 0.01)->enthalpy) / 0.02;
    EXPECT_NEAR(WaterAt(t)->heatCapacity, slope, 0.01) << t;
  }
}

TEST(WaterProperties, GrowsThinnerAsItWarms) {
  for (double t = 5; t <= 150; t += 1) {
    EXPECT_LT(WaterAt(t)->density, WaterAt(t - 1)->density) << t;
    EXPECT_LT(WaterAt(t)->dynamicViscosity, WaterAt(t - 1)->dynamicViscosity) << t;
  }
}

TEST(WaterProperties, HardlyDependsOnThePressureOfASystem) {
  for (double t = 0; t <= 150; t += 5)
    for (const double pressure : {0.5, 1.0})
      EXPECT_NEAR(1, WaterAt(t, pressure)->density / WaterAt(t)->density, 0.001) << t;
}

TEST(WaterProperties, HasNoAnswerWhereThereIsNoLiquidWater) {
  EXPECT_TRUE(WaterAt(kColdestWater));
  EXPECT_TRUE(WaterAt(kHottestWater));
  EXPECT_FALSE(WaterAt(-0.001));
  EXPECT_FALSE(WaterAt(150.001));
  EXPECT_FALSE(WaterAt(100, kAtmosphere)) << "it boils";
  EXPECT_FALSE(WaterAt(20, 0));
  EXPECT_FALSE(WaterAt(20, -1));
  EXPECT_FALSE(WaterAt(20, 100.1));
  EXPECT_FALSE(WaterAt(std::numeric_limits<double>::quiet_NaN()));
  EXPECT_FALSE(WaterAt(20, std::numeric_limits<double>::quiet_NaN()));
}

} // namespace
