#include <gtest/gtest.h>

#include "plugin/pipes/CZPPipeMaterial.h"
#include "plugin/pipes/PipeText.h"

namespace {

void AddRow(CZPPipeMaterial& material, double nominal, double outer, double inner) {
  SZPPipeDNData row(nominal, outer, inner);
  material.m_arrDNData.Add(row);
}

struct LabelCase {
  const wchar_t *prefix, *a, *connector, *b, *suffix, *label;
};

class LabelScheme : public testing::TestWithParam<LabelCase> {};

TEST_P(LabelScheme, GivesTheLabelOfARowOf25By32By26) {
  const LabelCase& scheme = GetParam();
  CZPPipeMaterial material;
  AddRow(material, 25, 32, 26);
  material.m_strPrefix = scheme.prefix;
  material.m_strParamA = scheme.a;
  material.m_strConnector = scheme.connector;
  material.m_strParamB = scheme.b;
  material.m_strSuffix = scheme.suffix;
  EXPECT_EQ(material.GetLabelText(CString(scheme.prefix) + L"25"), CString(scheme.label));
}

INSTANTIATE_TEST_SUITE_P(Schemes, LabelScheme,
                         testing::Values(LabelCase{L"DN", L"公称直径", L"×", L"壁厚", L"(T)", L"DN25×3(T)"},
                                         LabelCase{L"De", L"外径", L"×", L"壁厚", L"无", L"De32×3"},
                                         LabelCase{L"%%C", L"外径", L"*", L"内径", L"", L"%%C32*26"},
                                         LabelCase{L"DN", L"公称直径", L"无", L"无", L"无", L"DN25"},
                                         LabelCase{L"φ", L"内径", L"×", L"无", L"", L"φ26×"},
                                         LabelCase{L"", L"公称直径", L"×", L"壁厚", L"", L"25×3"},
                                         LabelCase{L"DN", L"无", L"×", L"壁厚", L"", L"DN无×3"},
                                         LabelCase{L"DN", L"  外径 ", L" 无\t", L" 无 ", L" 无 ", L"DN32"},
                                         LabelCase{L"DN", L"公称直径", L" ", L"壁厚", L" s ", L"DN253s"},
                                         LabelCase{L" DN ", L"公称直径", L"×", L"壁厚", L"", L" DN 25×3"},
                                         LabelCase{L"DN", L"文字", L"×", L"其他", L"", L"DN文字×其他"}));

TEST(PipeLabel, IsThatOfTheDefaultRowForAnEmptyTable) {
  EXPECT_EQ(CZPPipeMaterial().GetLabelText(L"DN20"), L"DN20×0.5(T)");
  EXPECT_EQ(CZPPipeMaterial().GetLabelText(L""), L"DN20×0.5(T)");
}

TEST(PipeLabel, IsThatOfTheDefaultRowForAnUnknownPipe) {
  CZPPipeMaterial material;
  AddRow(material, 25, 32, 26);
  EXPECT_EQ(material.GetLabelText(L"DN40"), L"DN20×0.5(T)");
  EXPECT_EQ(material.GetLabelText(L""), L"DN20×0.5(T)");
}

TEST(PipeLabel, FindsARowByItsNumberWhenThePrefixDiffers) {
  CZPPipeMaterial material;
  AddRow(material, 20, 26.9, 21.3);
  material.m_strPrefix = L"De";
  EXPECT_EQ(material.GetLabelText(L"DN20"), L"De20×2.8(T)");
}

TEST(PipeLabel, TakesTheFirstRowWithinAThousandthOfTheNumber) {
  CZPPipeMaterial material;
  AddRow(material, 20.002, 30, 20);
  AddRow(material, 20.0009, 28, 20);
  AddRow(material, 20, 26, 20);
  material.m_strPrefix = L"De";
  EXPECT_EQ(material.GetLabelText(L"DN20"), L"De20×4(T)");
}

TEST(PipeLabel, PrefersTheExactNameOverAnEarlierRowOfTheNumber) {
  CZPPipeMaterial material;
  AddRow(material, 20.0005, 30, 20); // reads 20 as well: the first of two equal names
  AddRow(material, 20, 26, 20);
  EXPECT_EQ(material.GetLabelText(L"DN20"), L"DN20×5(T)");
  material.m_arrDNData[0].dbNominal = 20.4;
  EXPECT_EQ(material.GetLabelText(L"DN20"), L"DN20×3(T)");
}

TEST(PipeLabel, RoundsNumbersToTwoDecimalsWithoutTrailingZeros) {
  CZPPipeMaterial material;
  AddRow(material, 20, 27.006, 20);
  EXPECT_EQ(material.GetLabelText(L"DN20"), L"DN20×3.5(T)");
}

TEST(GetDNFromPreDN, KeepsTheDigitsAndNothingElse) {
  EXPECT_EQ(ZP::GetDNFromPreDN(L"DN20"), L"20");
  EXPECT_EQ(ZP::GetDNFromPreDN(L"DN20.5"), L"205");
  EXPECT_EQ(ZP::GetDNFromPreDN(L"φ3a2"), L"32");
  EXPECT_EQ(ZP::GetDNFromPreDN(L"无"), L"");
  EXPECT_EQ(ZP::GetDNFromPreDN(L""), L"");
}

TEST(GetDNFromPreDN, TakesOnlyAsciiDigits) {
  EXPECT_EQ(ZP::GetDNFromPreDN(L"DN２０٣5"), L"5");
}

} // namespace
