#include "plugin/resistance/CZPPipePartsCoe.h"

#include <gtest/gtest.h>

#include <cmath>

#include "plugin/resistance/FittingColumns.h"

namespace {

// A fitting whose coefficients tell the columns: 1 for DN15 to 6 for DN50.
CZPPipePartsCoe Numbered() {
  CZPPipePartsCoe fitting;
  double number = 0;
  for (const auto& column : resistance::kFittingColumns) fitting.*column.coefficient = ++number;
  return fitting;
}

TEST(FittingCoefficient, IsThatOfTheColumnForItsNominalDiameter) {
  const CZPPipePartsCoe fitting = Numbered();
  EXPECT_EQ(fitting.GetCoe(L"DN15"), fitting.dbDN15);
  EXPECT_EQ(fitting.GetCoe(L"DN20"), fitting.dbDN20);
  EXPECT_EQ(fitting.GetCoe(L"DN25"), fitting.dbDN25);
  EXPECT_EQ(fitting.GetCoe(L"DN32"), fitting.dbDN32);
  EXPECT_EQ(fitting.GetCoe(L"DN40"), fitting.dbDN40);
  EXPECT_EQ(fitting.GetCoe(L"DN50"), fitting.dbDN50);
}

TEST(FittingCoefficient, AboveFortyIsThatOfTheLastColumn) {
  const CZPPipePartsCoe fitting = Numbered();
  for (const wchar_t* dn : {L"DN65", L"DN100", L"DN300", L"99999"})
    EXPECT_EQ(fitting.GetCoe(dn), 6) << CString(dn).ToUtf8();
  EXPECT_EQ(fitting.GetCoe(CString(L'9', 400)), 6); // infinity
}

TEST(FittingCoefficient, WithoutANumberAtTheEndIsThatOfTheFirstColumn) {
  const CZPPipePartsCoe fitting = Numbered();
  for (const wchar_t* dn : {L"", L"DN", L"四分管", L"20mm", L"DN50 ", L"DN0", L"10"})
    EXPECT_EQ(fitting.GetCoe(dn), 1) << CString(dn).ToUtf8();
}

TEST(FittingCoefficient, LooksAtTheNumberAloneAndNotAtWhatStandsBeforeIt) {
  const CZPPipePartsCoe fitting = Numbered();
  EXPECT_EQ(fitting.GetCoe(L"20"), 2);
  EXPECT_EQ(fitting.GetCoe(L"De32"), 4);
  EXPECT_EQ(fitting.GetCoe(L"PPR-25"), 3); // the minus is a separator
  EXPECT_EQ(fitting.GetCoe(L"\U00020BB7\"\x01"
                           L"40"),
            5);
}

// Each bound belongs to the column below it.
TEST(FittingCoefficient, GoesToTheNextColumnAboveItsBound) {
  const CZPPipePartsCoe fitting = Numbered();
  EXPECT_EQ(fitting.GetCoe(L"DN17.5"), 1);
  EXPECT_EQ(fitting.GetCoe(L"DN17.6"), 2);
  EXPECT_EQ(fitting.GetCoe(L"DN22.5"), 2);
  EXPECT_EQ(fitting.GetCoe(L"DN22.6"), 3);
  EXPECT_EQ(fitting.GetCoe(L"DN28.5"), 3);
  EXPECT_EQ(fitting.GetCoe(L"DN28.6"), 4);
  EXPECT_EQ(fitting.GetCoe(L"DN36"), 4);
  EXPECT_EQ(fitting.GetCoe(L"DN36.0001"), 5);
  EXPECT_EQ(fitting.GetCoe(L"DN45.0"), 5);
  EXPECT_EQ(fitting.GetCoe(L"DN45.000001"), 6);
}

TEST(FittingCoefficient, IsZeroForADiameterThatIsNoNumber) {
  EXPECT_EQ(resistance::CoefficientAt(Numbered(), std::nan("")), 0);
  EXPECT_EQ(resistance::CoefficientAt(Numbered(), -1), 1);
}

TEST(FittingRecord, BeginsEmptyAndIsCopiedWhole) {
  CZPPipePartsCoe fitting;
  EXPECT_EQ(fitting.GetName(), L"");
  for (const auto& column : resistance::kFittingColumns) EXPECT_EQ(fitting.*column.coefficient, 0);
  fitting = Numbered();
  fitting.szName = L"截止阀";
  fitting.nSpare = 7;
  const CZPPipePartsCoe copy(fitting);
  CZPPipePartsCoe assigned;
  assigned = fitting;
  for (const CZPPipePartsCoe* one : {&copy, static_cast<const CZPPipePartsCoe*>(&assigned)}) {
    EXPECT_EQ(one->GetName(), L"截止阀");
    EXPECT_EQ(one->nSpare, 7);
    for (const auto& column : resistance::kFittingColumns)
      EXPECT_EQ(one->*column.coefficient, fitting.*column.coefficient);
  }
}

} // namespace
