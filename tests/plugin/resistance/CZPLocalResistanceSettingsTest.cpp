#include "plugin/resistance/CZPLocalResistanceSettings.h"

#include <limits>

#include "tests/plugin/resistance/ResistanceFixture.h"

namespace {

class SectionSettings : public ResistanceFixture {
 protected:
  static void AddPart(CZPLocalResistanceSettings& to, const wchar_t* name, int number) {
    CZPPipeParts part(name, number);
    to.m_arrParts.Add(part);
  }
  static CString Parts(const CZPLocalResistanceSettings& of) {
    CString text;
    for (const CZPPipeParts& part : of.m_arrParts)
      text += part.GetName() + L"×" + ZP::itoa(part.GetNumber()) + L" ";
    return text;
  }
  CZPLocalResistanceSettings section;
};

TEST_F(SectionSettings, BeginAsDN20WithNothingInIt) {
  EXPECT_EQ(section.GetCoefficient(), 0);
  EXPECT_EQ(section.GetCoefficientRemoveAdditionCoe(), 0);
  EXPECT_EQ(section.m_strDN, L"DN20");
  EXPECT_EQ(section.GetOtherCoe(), 0);
  EXPECT_EQ(section.GetAttitionCoe(), 0);
  EXPECT_TRUE(section.m_arrParts.IsEmpty());
  for (const auto& flow : resistance::kTeeFlows) EXPECT_EQ(section.m_num3T4T.*flow.count, 0);
}

TEST_F(SectionSettings, HaveFittingsOfWhichThereIsOneUnlessTold) {
  CZPPipeParts part;
  EXPECT_EQ(part.GetName(), L"");
  EXPECT_EQ(part.GetNumber(), 1);
  part.SetName(L"弯头");
  part.SetNumber(-3);
  CZPPipeParts copy(part);
  EXPECT_EQ(copy.GetName(), L"弯头");
  EXPECT_EQ(copy.GetNumber(), -3);
  copy = CZPPipeParts(L"闸阀", 2);
  EXPECT_EQ(copy.GetName(), L"闸阀");
  EXPECT_EQ(copy.GetNumber(), 2);
}

// 1.0 for the straight and 2.0 for the side stream of a merging tee, when no file can be read.
TEST_F(SectionSettings, SumTheDefaultsOfTheTeesWithoutAFile) {
  section.m_num3T4T.merge3From1 = 1;
  section.m_num3T4T.merge3From2 = 1;
  EXPECT_EQ(section.GetCoefficient(), 3.0);
  AddPart(section, L"弯头", 5);
  EXPECT_EQ(section.GetCoefficient(), 3.0);
}

TEST_F(SectionSettings, SumEachFlowWithItsOwnCoefficient) {
  double coefficient = 0;
  for (const auto& flow : resistance::kTeeFlows) store.m_coe3T4T.*flow.coefficient = coefficient += 0.25;
  coefficient = 0;
  for (const auto& flow : resistance::kTeeFlows) {
    section.Empty3T4T();
    section.m_num3T4T.*flow.count = 2;
    EXPECT_EQ(section.GetCoefficient(), 2 * (coefficient += 0.25)) << CString(flow.key).ToUtf8();
  }
}

TEST_F(SectionSettings, IgnoreFittingsThatTheStoreDoesNotKnow) {
  AddFitting(Fitting(L"弯头", 2));
  AddPart(section, L"无此件", 100);
  AddPart(section, L"弯头", 3);
  AddPart(section, L"", 1);
  EXPECT_EQ(section.GetCoefficient(), 6);
}

// 3 × 1.5 + 0.5 = 5.0, and 0.2 more.
TEST_F(SectionSettings, AddTheOtherPartAndThenTheAdditionalOne) {
  CZPPipePartsCoe fitting = Fitting(L"弯头", 100);
  fitting.dbDN20 = 1.5;
  AddFitting(fitting);
  AddPart(section, L"弯头", 3);
  section.SetOtherCoe(0.5);
  section.SetAdditionCoe(0.2);
  EXPECT_EQ(section.GetOtherCoe(), 0.5);
  EXPECT_EQ(section.GetAttitionCoe(), 0.2);
  EXPECT_DOUBLE_EQ(section.GetCoefficientRemoveAdditionCoe(), 5.0);
  EXPECT_DOUBLE_EQ(section.GetCoefficient(), 5.2);
}

TEST_F(SectionSettings, FollowEveryChangeInTheStore) {
  AddFitting(Fitting(L"弯头", 2));
  AddPart(section, L"弯头", 1);
  EXPECT_EQ(section.GetCoefficient(), 2);
  store.m_arrPartsCoe[0].dbDN20 = 3;
  EXPECT_EQ(section.GetCoefficient(), 3);
  store.m_arrPartsCoe.InsertAt(0, store.m_arrPartsCoe[0]);
  store.m_arrPartsCoe[0].dbDN20 = 4;
  EXPECT_EQ(section.GetCoefficient(), 4); // the first of two
  store.m_arrPartsCoe.RemoveAll();
  EXPECT_EQ(section.GetCoefficient(), 0);
}

TEST_F(SectionSettings, TakeTheColumnOfTheirDiameterForFittingsAndNoneForTees) {
  CZPPipePartsCoe fitting = Fitting(L"截止阀", 10);
  fitting.dbDN15 = 16;
  fitting.dbDN50 = 7;
  AddFitting(fitting);
  AddPart(section, L"截止阀", 2);
  section.m_num3T4T.split1To2 = 1; // 3.0 by default
  EXPECT_EQ(section.GetCoefficient(), 23);
  section.m_strDN = L"DN15";
  EXPECT_EQ(section.GetCoefficient(), 35);
  section.m_strDN = L"DN100";
  EXPECT_EQ(section.GetCoefficient(), 17);
  section.m_strDN = L"";
  EXPECT_EQ(section.GetCoefficient(), 35);
}

TEST_F(SectionSettings, CountNegativeNumbersAgainstTheRest) {
  AddFitting(Fitting(L"弯头", 2));
  AddPart(section, L"弯头", 3);
  AddPart(section, L"弯头", -1); // entries of one name all count
  section.m_num3T4T.merge3From2 = -1;
  EXPECT_EQ(section.GetCoefficient(), 2);
}

TEST_F(SectionSettings, AreNotSpoiltByCoefficientsBeyondAllBoundsThatTheyHaveNoneOf) {
  AddFitting(Fitting(L"弯头", std::numeric_limits<double>::infinity()));
  store.m_coe3T4T.cross1To3 = std::numeric_limits<double>::quiet_NaN();
  AddPart(section, L"弯头", 0);
  section.m_num3T4T.merge3From1 = 4;
  EXPECT_EQ(section.GetCoefficient(), 4);
}

TEST_F(SectionSettings, FindTheFirstFittingOfExactlyThatName) {
  EXPECT_EQ(section.FindPipeParts(L"弯头"), -1);
  AddPart(section, L"弯头", 1);
  AddPart(section, L"Elbow", 2);
  AddPart(section, L"Elbow", 3);
  EXPECT_EQ(section.FindPipeParts(L"弯头"), 0);
  EXPECT_EQ(section.FindPipeParts(L"Elbow"), 1);
  EXPECT_EQ(section.FindPipeParts(L"elbow"), -1);
  EXPECT_EQ(section.FindPipeParts(L""), -1);
}

TEST_F(SectionSettings, AddedTogetherHaveOneEntryForAFittingOfBoth) {
  AddPart(section, L"弯头", 2);
  AddPart(section, L"闸阀", 1);
  CZPLocalResistanceSettings other;
  AddPart(other, L"散热器", 1);
  AddPart(other, L"弯头", 3);
  AddPart(other, L"散热器", 4); // appended once, then found
  section.Plus(other);
  EXPECT_EQ(Parts(section), L"弯头×5 闸阀×1 散热器×5 ");
  EXPECT_EQ(Parts(other), L"散热器×1 弯头×3 散热器×4 ");
}

TEST_F(SectionSettings, AddedTogetherHaveTheCountsAndCoefficientsOfBoth) {
  CZPLocalResistanceSettings other;
  int count = 0;
  for (const auto& flow : resistance::kTeeFlows) {
    section.m_num3T4T.*flow.count = 100;
    other.m_num3T4T.*flow.count = ++count;
  }
  section.SetOtherCoe(0.5);
  other.SetOtherCoe(0.25);
  section.SetAdditionCoe(2);
  other.SetAdditionCoe(0.75);
  section.Plus(other);
  count = 100;
  for (const auto& flow : resistance::kTeeFlows) EXPECT_EQ(section.m_num3T4T.*flow.count, ++count);
  EXPECT_EQ(section.GetOtherCoe(), 0.75);
  EXPECT_EQ(section.GetAttitionCoe(), 2.75);
}

TEST_F(SectionSettings, ValueAddedFittingsAtTheirOwnDiameter) {
  CZPPipePartsCoe elbow = Fitting(L"弯头", 2.0);
  elbow.dbDN25 = 1.5;
  AddFitting(elbow);
  CZPLocalResistanceSettings other;
  other.m_strDN = L"DN25";
  AddPart(other, L"弯头", 2);
  EXPECT_EQ(other.GetCoefficient(), 3);
  section.Plus(other);
  EXPECT_EQ(section.m_strDN, L"DN20");
  EXPECT_EQ(section.GetCoefficient(), 4);
}

TEST_F(SectionSettings, AddedToThemselvesAreTwiceWhatTheyWere) {
  AddPart(section, L"弯头", 2);
  AddPart(section, L"闸阀", 3);
  section.m_num3T4T.split2To3 = 4;
  section.SetOtherCoe(0.5);
  section.SetAdditionCoe(0.25);
  section.Plus(section);
  EXPECT_EQ(Parts(section), L"弯头×4 闸阀×6 ");
  EXPECT_EQ(section.m_num3T4T.split2To3, 8);
  EXPECT_EQ(section.GetOtherCoe(), 1);
  EXPECT_EQ(section.GetAttitionCoe(), 0.5);
}

TEST_F(SectionSettings, GoRoundWhenNumbersExceedTheRangeOfAnInteger) {
  const int most = std::numeric_limits<int>::max();
  AddPart(section, L"弯头", most);
  section.m_num3T4T.merge3From1 = most;
  CZPLocalResistanceSettings other;
  AddPart(other, L"弯头", 1);
  other.m_num3T4T.merge3From1 = 1;
  section.Plus(other);
  EXPECT_EQ(section.m_arrParts[0].GetNumber(), std::numeric_limits<int>::min());
  EXPECT_EQ(section.m_num3T4T.merge3From1, std::numeric_limits<int>::min());
}

TEST_F(SectionSettings, EmptiedOfTeesKeepAllElse) {
  AddFitting(Fitting(L"弯头", 2));
  AddPart(section, L"弯头", 1);
  section.SetOtherCoe(0.5);
  section.SetAdditionCoe(0.25);
  for (const auto& flow : resistance::kTeeFlows) section.m_num3T4T.*flow.count = 1;
  EXPECT_EQ(section.GetCoefficient(), 2.75 + 1 + 2 + 3);
  section.Empty3T4T();
  EXPECT_EQ(section.GetCoefficient(), 2.75);
  EXPECT_EQ(Parts(section), L"弯头×1 ");
}

TEST_F(SectionSettings, AreCopiedWhole) {
  AddPart(section, L"弯头", 7);
  section.m_num3T4T.cross1To4 = 3;
  section.m_strDN = L"DN32";
  section.SetOtherCoe(1);
  section.SetAdditionCoe(2);
  const CZPLocalResistanceSettings copy(section);
  CZPLocalResistanceSettings assigned;
  assigned = section;
  section = CZPLocalResistanceSettings();
  for (const CZPLocalResistanceSettings* one :
       {&copy, static_cast<const CZPLocalResistanceSettings*>(&assigned)}) {
    EXPECT_EQ(Parts(*one), L"弯头×7 ");
    EXPECT_EQ(one->m_num3T4T.cross1To4, 3);
    EXPECT_EQ(one->m_strDN, L"DN32");
    EXPECT_EQ(one->GetOtherCoe(), 1);
    EXPECT_EQ(one->GetAttitionCoe(), 2);
  }
}

} // namespace
