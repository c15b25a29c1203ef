// What is said of a radiator in the calculation window and in the drawing.
#include "plugin/radiators/dialogs/RadiatorTexts.h"

#include <limits>

#include "tests/plugin/radiators/RadiatorCatalogueFixture.h"

namespace {

class RadiatorTexts : public RadiatorCatalogueFixture {
 protected:
  RadiatorTexts() : radiator(*AddRadiator(AddType(L"铸铁"), L"四柱760")) {}
  void Take(int formula, const wchar_t* unit) {
    radiator.m_nFormula = formula;
    radiator.m_strUnit = unit;
  }
  CZPRadiator& radiator;
};

TEST_F(RadiatorTexts, NameTypeAndRadiator) {
  EXPECT_EQ(radiators::TypeText(radiator), L"类型：铸铁");
  EXPECT_EQ(radiators::NameText(radiator), L"名称：四柱760");
  radiator.SetName(L"%s\"\n");
  EXPECT_EQ(radiators::NameText(radiator), L"名称：%s\"\n");
  EXPECT_EQ(radiators::TypeText(CZPRadiator()), L"类型：") << "one that is in no catalogue";
}

TEST_F(RadiatorTexts, OfTheExponentLaw) {
  Take(0, L"片");
  EXPECT_EQ(radiators::ParameterText(radiator), L"实验系数a：0.20 \r\n\r\n实验系数b：1.20");
  EXPECT_EQ(radiators::FormulaText(radiator), L"单位散热量Qs=a×△T^b \r\n\r\n△T=(Tg+Th)/2-Tn");
}

TEST_F(RadiatorTexts, OfTheHeatTransferLaw) {
  Take(1, L"m");
  radiator.m_dF = 1.005;
  EXPECT_EQ(radiators::ParameterText(radiator),
            L"实验系数a：0.30 系数b：0.08 \r\n\r\n单位散热面积f(㎡/m)：1.00");
  EXPECT_EQ(radiators::FormulaText(radiator),
            L"单位散热量Qs=k×f×△T \r\n\r\n传热系数k=a×△T^b \r\n\r\n△T=(Tg+Th)/2-Tn");
}

TEST_F(RadiatorTexts, OfTheFixedOutput) {
  Take(2, L"片");
  EXPECT_EQ(radiators::ParameterText(radiator), L"单位散热量Qs'(W/片)：80.00 ");
  EXPECT_EQ(radiators::FormulaText(radiator), L"单位散热量Qs=Qs'");
}

TEST_F(RadiatorTexts, OfACodeThatIsNone) {
  for (const int code : {3, -1, 1 << 30}) {
    Take(code, L"片");
    EXPECT_EQ(radiators::ParameterText(radiator), L"");
    EXPECT_EQ(radiators::FormulaText(radiator), L"单位散热量Error!");
    EXPECT_TRUE(radiators::FollowsTemperatures(radiator));
  }
}

TEST_F(RadiatorTexts, NameTheResultBySections) {
  EXPECT_EQ(radiators::ResultCaption(radiator), L"散热器片数(片)：");
  // Whatever is not counted in sections is a length, whatever its unit is called.
  for (const wchar_t* unit : {L"m", L"", L"片 ", L"米"}) {
    Take(0, unit);
    EXPECT_EQ(radiators::ResultCaption(radiator), L"散热器长度(m)：");
  }
}

TEST_F(RadiatorTexts, FollowTheTemperaturesButForTheFixedOutput) {
  for (const int code : {0, 1, 2}) {
    Take(code, L"片");
    EXPECT_EQ(radiators::FollowsTemperatures(radiator), code != 2);
  }
}

TEST_F(RadiatorTexts, AnnotateTheNumberWithItsUnit) {
  EXPECT_EQ(radiators::NoteText(radiator, 12.5), L"散热器片数:12.5片");
  EXPECT_EQ(radiators::NoteText(radiator, 13), L"散热器片数:13片");
  EXPECT_EQ(radiators::NoteText(radiator, 12.344), L"散热器片数:12.34片");
  Take(0, L"m");
  EXPECT_EQ(radiators::NoteText(radiator, 0), L"散热器长度:0m");
  EXPECT_EQ(radiators::NoteText(radiator, std::numeric_limits<double>::infinity()), L"散热器长度:infm");
  EXPECT_EQ(radiators::NoteText(radiator, std::numeric_limits<double>::quiet_NaN()), L"散热器长度:nanm");
}

} // namespace
