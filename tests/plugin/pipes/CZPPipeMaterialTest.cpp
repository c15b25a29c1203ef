#include <gtest/gtest.h>

#include "plugin/pipes/CZPPipeMaterial.h"

namespace {

TEST(SZPPipeDNData, HasTheDefaultRowAtFirst) {
  const SZPPipeDNData row;
  EXPECT_EQ(row.dbNominal, 20);
  EXPECT_EQ(row.dbOuter, 20);
  EXPECT_EQ(row.dbInner, 19);
  EXPECT_EQ(row.dbThickness, 0.5);
}

TEST(SZPPipeDNData, ComputesTheThicknessFromTheDiameters) {
  SZPPipeDNData row(25, 33.7, 27.3);
  EXPECT_DOUBLE_EQ(row.dbThickness, 3.2);
  row.dbInner = 40;
  EXPECT_DOUBLE_EQ(row.CalThickness(), -3.15);
  EXPECT_DOUBLE_EQ(row.dbThickness, -3.15);
}

TEST(CZPPipeMaterial, HasTheDefaultSchemeAtFirst) {
  const CZPPipeMaterial material;
  EXPECT_EQ(material.GetName(), L"");
  EXPECT_TRUE(material.m_arrDNData.IsEmpty());
  EXPECT_EQ(material.m_dRoughness, 0.2);
  EXPECT_EQ(material.m_strPrefix, L"DN");
  EXPECT_EQ(material.m_strParamA, L"公称直径");
  EXPECT_EQ(material.m_strConnector, L"×");
  EXPECT_EQ(material.m_strParamB, L"壁厚");
  EXPECT_EQ(material.m_strSuffix, L"(T)");
  EXPECT_EQ(material.m_dAlongDistance, 0.1);
}

class Diameters : public testing::Test {
 protected:
  Diameters() {
    for (SZPPipeDNData row :
         {SZPPipeDNData(20, 26.9, 21.3), SZPPipeDNData(20.5, 27, 21), SZPPipeDNData(20, 30, 20)})
      material.m_arrDNData.Add(row);
  }
  CZPPipeMaterial material;
};

TEST_F(Diameters, AreNamedByPrefixAndNominalDiameterInTableOrder) {
  CStringArray names;
  names.Add(L"of before");
  material.GetAllPipeName(names);
  ASSERT_EQ(names.GetSize(), 3);
  EXPECT_EQ(names[0], L"DN20");
  EXPECT_EQ(names[1], L"DN20.5");
  EXPECT_EQ(names[2], L"DN20");
}

TEST_F(Diameters, OfTheSameNameAreLegalAndTheFirstIsFound) {
  SZPPipeDNData row;
  EXPECT_EQ(material.GetPipeDNData(L"DN20", row), 1);
  EXPECT_EQ(row.dbOuter, 26.9);
}

TEST_F(Diameters, AreNotFoundUnderAnotherPrefix) {
  SZPPipeDNData row(1, 2, 3);
  EXPECT_EQ(material.GetPipeDNData(L"De20", row), 0);
  EXPECT_EQ(material.GetPipeDNData(L"dn20", row), 0);
  EXPECT_EQ(material.GetPipeDNData(L"20", row), 0);
  EXPECT_EQ(row.dbNominal, 1) << "a miss must leave the output as it was";
}

TEST_F(Diameters, AreCopiedWithTheMaterial) {
  material.SetName(L"甲");
  material.m_strSuffix = L"无";
  CZPPipeMaterial copy(material);
  material.m_arrDNData[0].dbOuter = 99;
  EXPECT_EQ(copy.GetName(), L"甲");
  EXPECT_EQ(copy.m_strSuffix, L"无");
  ASSERT_EQ(copy.m_arrDNData.GetSize(), 3);
  EXPECT_EQ(copy.m_arrDNData[0].dbOuter, 26.9);
  copy = CZPPipeMaterial();
  EXPECT_TRUE(copy.m_arrDNData.IsEmpty());
}

TEST_F(Diameters, RaiseAnErrorOutsideTheTable) {
  EXPECT_THROW(material.m_arrDNData[3], CInvalidArgException);
}

} // namespace
