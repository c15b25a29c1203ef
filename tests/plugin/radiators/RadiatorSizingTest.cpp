#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "plugin/radiators/CZPRadiator.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

class RadiatorSizing : public testing::Test {
 protected:
  // A fixed output of 1 W makes the count the load.
  CString ResultOf(double count, int roundingClass, const wchar_t* unit = L"片") {
    radiator.m_nFormula = 2;
    radiator.m_dQs = 1;
    radiator.m_strUnit = unit;
    SZPRadCalData data;
    data.dbQj = count;
    radiator.Attach(data);
    return radiator.GetCalNumberResult(roundingClass);
  }
  CZPRadiator radiator;
};

TEST_F(RadiatorSizing, ByTheExponentLawWithDefaults) {
  EXPECT_DOUBLE_EQ(radiator.CalculatePjSrl(), 0.2 * std::pow(52.0, 1.2));
  EXPECT_DOUBLE_EQ(radiator.CalculateNumber(), 1000 / (0.2 * std::pow(52.0, 1.2)));
  EXPECT_NEAR(radiator.CalculatePjSrl(), 22.9, 0.05); // by slide rule
}

TEST_F(RadiatorSizing, ByTheHeatTransferLawWithTheFiguresOfTheTextbook) {
  radiator.m_nFormula = 1;
  radiator.m_dC = 2.237; // 四柱813型, K = 7.87 at 64.5 ℃, 0.28 m² a section
  radiator.m_dD = 0.302;
  radiator.m_dF = 0.28;
  SZPRadCalData data;
  data.dbTg = 95;
  data.dbTh = 70;
  radiator.Attach(data);
  EXPECT_NEAR(radiator.CalculatePjSrl(), 7.87 * 0.28 * 64.5, 0.1);
  EXPECT_DOUBLE_EQ(radiator.CalculatePjSrl(), std::pow(64.5, 0.302) * 2.237 * 0.28 * 64.5);
}

TEST_F(RadiatorSizing, ByTheHeatTransferLawWithoutAnAreaIsInfinite) {
  radiator.m_nFormula = 1;
  EXPECT_EQ(radiator.CalculatePjSrl(), 0);
  EXPECT_EQ(radiator.CalculateNumber(), kInfinity);
}

TEST_F(RadiatorSizing, ByTheFixedOutputIsIndependentOfTheTemperatures) {
  radiator.m_nFormula = 2;
  EXPECT_EQ(radiator.CalculateNumber(), 12.5);
  for (const double temperature : {-300.0, 0.0, 18.0, kInfinity, kNoNumber}) {
    SZPRadCalData data;
    data.dbTg = data.dbTh = data.dbTn = temperature;
    radiator.Attach(data);
    EXPECT_EQ(radiator.CalculateNumber(), 12.5) << temperature;
  }
}

TEST_F(RadiatorSizing, ByACodeThatIsNoFormulaGivesNoOutput) {
  for (const int code : {-1, 3, 2147483647}) {
    radiator.m_nFormula = code;
    EXPECT_EQ(radiator.CalculatePjSrl(), 0) << code;
    EXPECT_EQ(radiator.CalculateNumber(), kInfinity) << code;
  }
}

TEST_F(RadiatorSizing, MultipliesTheFourFactorsFromLeftToRight) {
  radiator.m_nFormula = 2;
  SZPRadCalData data;
  data.dbBeta1 = 1.05;
  data.dbBeta2 = 1.251;
  data.dbBeta3 = 1.06;
  data.dbBeta4 = 0.83;
  radiator.Attach(data);
  EXPECT_EQ(radiator.CalculateNumber(), 1000.0 / 80 * 1.05 * 1.251 * 1.06 * 0.83);
}

TEST_F(RadiatorSizing, TakesEachFactorAndTheLoadOnce) {
  radiator.m_nFormula = 2;
  for (double SZPRadCalData::*const member :
       {&SZPRadCalData::dbQj, &SZPRadCalData::dbBeta1, &SZPRadCalData::dbBeta2, &SZPRadCalData::dbBeta3,
        &SZPRadCalData::dbBeta4}) {
    SZPRadCalData data;
    data.*member *= 2;
    radiator.Attach(data);
    EXPECT_EQ(radiator.CalculateNumber(), 25);
  }
}

TEST_F(RadiatorSizing, WorksOnWhatWasAttachedLast) {
  radiator.m_nFormula = 2;
  SZPRadCalData data;
  data.dbQj = 800;
  radiator.Attach(data);
  data.dbQj = 0;
  EXPECT_EQ(radiator.CalculateNumber(), 10);
  EXPECT_EQ(radiator.m_calData.dbQj, 800);
}

TEST_F(RadiatorSizing, WithWaterColderThanTheRoomIsNoNumber) {
  SZPRadCalData data;
  data.dbTg = data.dbTh = 10;
  radiator.Attach(data);
  for (const int formula : {0, 1}) {
    radiator.m_nFormula = formula;
    EXPECT_TRUE(std::isnan(radiator.CalculatePjSrl())) << formula;
    EXPECT_TRUE(std::isnan(radiator.CalculateNumber())) << formula;
  }
  radiator.m_nFormula = 0;
  radiator.m_dB = 2; // a whole exponent
  EXPECT_DOUBLE_EQ(radiator.CalculatePjSrl(), 0.2 * 64);
}

TEST_F(RadiatorSizing, WithWaterAsWarmAsTheRoomIsInfinite) {
  SZPRadCalData data;
  data.dbTg = data.dbTh = data.dbTn;
  radiator.Attach(data);
  EXPECT_EQ(radiator.CalculateNumber(), kInfinity);
}

TEST_F(RadiatorSizing, OfALoadOfZeroOrBelowFollowsTheArithmetic) {
  EXPECT_EQ(ResultOf(0, 1), L"0片");
  EXPECT_EQ(ResultOf(-0.0, 1), L"0片");
  EXPECT_EQ(ResultOf(-12.5, 0), L"-12片");
  EXPECT_EQ(ResultOf(-12.5, 2), L"-11片"); // 1 is added whatever the sign
  EXPECT_EQ(ResultOf(0, 1, L"m"), L"0.00m");
  EXPECT_EQ(ResultOf(-12.5, 1, L"m"), L"-12.50m");
}

TEST_F(RadiatorSizing, RoundsTheRemainderAgainstTheWholeCount) {
  EXPECT_EQ(ResultOf(12.5, 0), L"12片"); // 4 % of 12.5
  EXPECT_EQ(ResultOf(12.5, 1), L"12片");
  EXPECT_EQ(ResultOf(12.5, 2), L"13片");
  EXPECT_EQ(ResultOf(10.4, 1), L"10片"); // 3.8 %
  EXPECT_EQ(ResultOf(10.6, 1), L"11片"); // 5.7 %
  EXPECT_EQ(ResultOf(10.6, 0), L"10片");
  EXPECT_EQ(ResultOf(40.99, 1), L"40片"); // nearly a whole section dropped: 2.4 %
  EXPECT_EQ(ResultOf(0.01, 0), L"1片");
  EXPECT_EQ(ResultOf(1.04, 1), L"1片");
  EXPECT_EQ(ResultOf(1.06, 1), L"2片");
}

TEST_F(RadiatorSizing, RoundsUpFromTheThresholdOn) {
  EXPECT_EQ(ResultOf(40, 1), L"40片");
  // 0.0625, 0.03125: remainders that the machine holds exactly, above one threshold and below the next.
  EXPECT_EQ(ResultOf(16, 2), L"16片");
  EXPECT_EQ(ResultOf(1.0 / (1 - 0.0625), 0), L"1片");
  EXPECT_EQ(ResultOf(1.0 / (1 - 0.0625), 1), L"2片");
  EXPECT_EQ(ResultOf(1.0 / (1 - 0.03125), 1), L"1片");
  EXPECT_EQ(ResultOf(1.0 / (1 - 0.03125), 2), L"2片");
}

TEST_F(RadiatorSizing, KeepsAWholeCount) {
  for (const int roundingClass : {0, 1, 2}) EXPECT_EQ(ResultOf(10.0, roundingClass), L"10片");
}

TEST_F(RadiatorSizing, TreatsEveryOtherClassAsTheMiddleOne) {
  for (const int roundingClass : {-1, 3, 2147483647}) {
    EXPECT_EQ(ResultOf(10.4, roundingClass), L"10片") << roundingClass;
    EXPECT_EQ(ResultOf(10.6, roundingClass), L"11片") << roundingClass;
  }
}

TEST_F(RadiatorSizing, PrintsMetresWithTwoDecimalsWhateverTheClass) {
  for (const int roundingClass : {0, 1, 2, 99})
    EXPECT_EQ(ResultOf(12.345678, roundingClass, L"m"), L"12.35m");
  EXPECT_EQ(ResultOf(10, 1, L"m"), L"10.00m");
}

TEST_F(RadiatorSizing, RoundsOnlyTheUnitOfSections) {
  EXPECT_EQ(ResultOf(12.5, 2, L""), L"12.50");
  EXPECT_EQ(ResultOf(12.5, 2, L" 片"), L"12.50 片");
  EXPECT_EQ(ResultOf(12.5, 2, L"%s%d"), L"12.50%s%d"); // a unit is text, never a format
}

TEST_F(RadiatorSizing, PrintsWhatNoWholeNumberHolds) {
  EXPECT_EQ(ResultOf(kInfinity, 1), L"-2147483648片");
  EXPECT_EQ(ResultOf(-kInfinity, 1), L"-2147483648片");
  EXPECT_EQ(ResultOf(kNoNumber, 1), L"-2147483648片");
  EXPECT_EQ(ResultOf(3e9, 1), L"-2147483647片"); // the remainder to the mark is 172 % of the count
  EXPECT_EQ(ResultOf(2147483647.5, 1), L"2147483647片");
  EXPECT_EQ(ResultOf(-2147483648.5, 1), L"-2147483648片");
  EXPECT_EQ(ResultOf(kInfinity, 1, L"m"), L"infm");
  EXPECT_EQ(ResultOf(-kInfinity, 1, L"m"), L"-infm");
  EXPECT_EQ(ResultOf(kNoNumber, 1, L"m"), L"nanm");
  EXPECT_EQ(ResultOf(-kNoNumber, 1, L"m"), L"nanm");
}

// Every field of the input and of the radiator takes every odd value in turn, under every formula.
TEST_F(RadiatorSizing, NeverFailsWhateverTheInput) {
  double SZPRadCalData::*const inputs[] = {
      &SZPRadCalData::dbQj,    &SZPRadCalData::dbTg,    &SZPRadCalData::dbTh,    &SZPRadCalData::dbTn,
      &SZPRadCalData::dbBeta1, &SZPRadCalData::dbBeta2, &SZPRadCalData::dbBeta3, &SZPRadCalData::dbBeta4};
  double CZPRadiator::*const factors[] = {&CZPRadiator::m_dA, &CZPRadiator::m_dB, &CZPRadiator::m_dC,
                                          &CZPRadiator::m_dD, &CZPRadiator::m_dF, &CZPRadiator::m_dQs};
  constexpr double kLargest = std::numeric_limits<double>::max();
  constexpr double kSmallest = std::numeric_limits<double>::denorm_min();
  const double values[] = {0.0, -0.0, -1.0, kInfinity, -kInfinity, kNoNumber, kLargest, -kLargest, kSmallest};
  const auto expectText = [](const CZPRadiator& tried) {
    for (const int roundingClass : {0, 1, 2, -5}) {
      const CString text = tried.GetCalNumberResult(roundingClass);
      EXPECT_EQ(text.Right(tried.m_strUnit.GetLength()), tried.m_strUnit);
      EXPECT_GT(text.GetLength(), tried.m_strUnit.GetLength());
    }
  };
  for (const wchar_t* unit : {L"片", L"m"}) {
    for (int formula = -1; formula <= 3; ++formula) {
      for (const double value : values) {
        CZPRadiator tried;
        tried.m_nFormula = formula;
        tried.m_strUnit = unit;
        for (double SZPRadCalData::*input : inputs) {
          SZPRadCalData data;
          data.*input = value;
          tried.Attach(data);
          expectText(tried);
        }
        for (double CZPRadiator::*factor : factors) {
          CZPRadiator changed = tried;
          changed.*factor = value;
          expectText(changed);
        }
      }
    }
  }
}

} // namespace
