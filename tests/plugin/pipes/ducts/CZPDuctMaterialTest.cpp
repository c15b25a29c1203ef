#include "plugin/pipes/ducts/CZPDuctMaterial.h"

#include <cmath>
#include <limits>
#include <type_traits>

#include <gtest/gtest.h>

#include "plugin/base/Tolerance.h"

namespace {

CZPDuctMaterial WithBands(std::initializer_list<SZPDuctThickness> bands) {
  CZPDuctMaterial material;
  for (SZPDuctThickness band : bands) material.m_arrThickness.Add(band);
  return material;
}

// The thickness, or -1 where there is none.
double ThicknessAt(const CZPDuctMaterial& material, double value) {
  double thickness = -1;
  const bool found = material.GetThickness(value, thickness);
  EXPECT_EQ(found, thickness != -1) << value;
  return thickness;
}

TEST(DuctThicknessRow, IsAllZeroByDefault) {
  const SZPDuctThickness row;
  EXPECT_EQ(row.dbMin, 0);
  EXPECT_EQ(row.dbMax, 0);
  EXPECT_EQ(row.dbThickness, 0);
}

TEST(DuctThicknessRow, TakesMinimumMaximumAndThickness) {
  const SZPDuctThickness row(320, 450, 0.6);
  EXPECT_EQ(row.dbMin, 320);
  EXPECT_EQ(row.dbMax, 450);
  EXPECT_EQ(row.dbThickness, 0.6);
}

TEST(DuctThicknessRow, HoldsBothItsBoundsUpToTheTolerance) {
  const SZPDuctThickness row(320, 450, 0.6);
  EXPECT_TRUE(row.IsDNInRange(320));
  EXPECT_TRUE(row.IsDNInRange(450));
  EXPECT_TRUE(row.IsDNInRange(400));
  EXPECT_TRUE(row.IsDNInRange(320 - ZP::kTolerance / 2));
  EXPECT_TRUE(row.IsDNInRange(450 + ZP::kTolerance / 2));
  EXPECT_FALSE(row.IsDNInRange(320 - ZP::kTolerance * 2));
  EXPECT_FALSE(row.IsDNInRange(450 + ZP::kTolerance * 2));
}

TEST(DuctThicknessRow, WithItsBoundsExchangedHoldsNothing) {
  EXPECT_FALSE(SZPDuctThickness(450, 320, 0.6).IsDNInRange(400));
}

TEST(DuctThicknessRow, HoldsNoValueThatIsNoNumber) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(SZPDuctThickness(320, 450, 0.6).IsDNInRange(nan));
  EXPECT_FALSE(SZPDuctThickness(nan, nan, 0.6).IsDNInRange(400));
}

TEST(DuctThicknessRow, OfNothingHoldsZeroAlone) {
  EXPECT_TRUE(SZPDuctThickness().IsDNInRange(0));
  EXPECT_FALSE(SZPDuctThickness().IsDNInRange(1));
}

TEST(DuctMaterial, BeginsWithoutNameAndTableAndWithItsRoughness) {
  const CZPDuctMaterial material;
  EXPECT_TRUE(material.GetName().IsEmpty());
  EXPECT_EQ(material.m_dRoughness, 0.02);
  EXPECT_TRUE(material.m_arrThickness.IsEmpty());
}

TEST(DuctMaterial, HasNoVirtualFunctions) {
  EXPECT_FALSE(std::is_polymorphic_v<CZPDuctMaterial>);
}

TEST(DuctMaterial, GivesNoThicknessWithAnEmptyTable) {
  double thickness = 7;
  EXPECT_FALSE(CZPDuctMaterial().GetThickness(0, thickness));
  EXPECT_EQ(thickness, 7);
}

TEST(DuctMaterial, GivesTheThicknessAtBothBoundsOfABand) {
  const CZPDuctMaterial material = WithBands({{320, 450, 0.6}});
  EXPECT_EQ(ThicknessAt(material, 320), 0.6);
  EXPECT_EQ(ThicknessAt(material, 450), 0.6);
  EXPECT_EQ(ThicknessAt(material, 450 + ZP::kTolerance / 2), 0.6);
}

TEST(DuctMaterial, LeavesTheResultAloneOutsideOfAllBands) {
  const CZPDuctMaterial material = WithBands({{0, 320, 0.5}, {450, 630, 0.6}});
  for (const double value : {-1.0, 320.5, 449.5, 631.0}) EXPECT_EQ(ThicknessAt(material, value), -1) << value;
}

TEST(DuctMaterial, TakesTheFirstOfOverlappingBands) {
  EXPECT_EQ(ThicknessAt(WithBands({{0, 500, 0.5}, {400, 1000, 0.75}}), 450), 0.5);
  EXPECT_EQ(ThicknessAt(WithBands({{400, 1000, 0.75}, {0, 500, 0.5}}), 450), 0.75);
  EXPECT_EQ(ThicknessAt(WithBands({{0, 320, 0.5}, {320, 450, 0.6}}), 320), 0.5); // the bound belongs to both
}

TEST(DuctMaterial, IsCopiedWithItsTable) {
  CZPDuctMaterial material = WithBands({{0, 320, 0.5}});
  material.SetName(L"镀锌钢板");
  material.m_dRoughness = 0.15;
  const CZPDuctMaterial copy = material;
  CZPDuctMaterial assigned;
  assigned = material;
  material.m_arrThickness[0].dbThickness = 9;
  for (const CZPDuctMaterial* each : {&copy, const_cast<const CZPDuctMaterial*>(&assigned)}) {
    EXPECT_EQ(each->GetName(), L"镀锌钢板");
    EXPECT_EQ(each->m_dRoughness, 0.15);
    EXPECT_EQ(ThicknessAt(*each, 100), 0.5);
  }
}

} // namespace
