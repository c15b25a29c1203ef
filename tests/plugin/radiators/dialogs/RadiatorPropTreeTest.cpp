// The property list that the dialogs of radiators share.
#include "plugin/radiators/dialogs/CRADPropTree.h"

#include <cmath>
#include <limits>

#include "host/ui/CDialog.h"
#include "tests/plugin/radiators/RadiatorText.h"
#include "tests/plugin/radiators/dialogs/RadiatorDialogs.h"

namespace {

class RadiatorPropTree : public RadiatorDialogs {
 protected:
  RadiatorPropTree() : form(L"示例"), list(form, L"参数") {}
  UiOutcome Set(Item item, const CString& text) { return list.UserSetText(item, text); }
  CDialog form;
  CRADPropTree list;
};

TEST_F(RadiatorPropTree, HasItsItemsInTheirSections) {
  CString text;
  for (const CPropTreeGroup& group : list.Groups()) {
    text += L"[" + group.title + L"]";
    for (const CPropTreeItem& item : group.items) text += L" " + item.label;
  }
  EXPECT_EQ(text, L"[基本信息] 散热器材质 散热器类型[散热器参数] 计算公式 单位 实验系数a 实验系数b "
                  L"单位散热面积f 单位散热量Qs'");
  EXPECT_EQ(list.Item(Item::typeItem).info, L"一般指散热器厂家或者材料");
  EXPECT_EQ(list.Item(Item::nameItem).info, L"一般指散热器型号");
  EXPECT_EQ(list.Item(Item::areaItem).info, L"单位：㎡/片或者㎡/m");
  EXPECT_EQ(list.Item(Item::outputItem).info, L"单位：w/片或者w/m");
  const std::vector<CString> formulas = {L"Qs=a×△T^b", L"Qs=k×f×△T", L"Qs=Qs'"}, units = {L"片", L"m"};
  EXPECT_EQ(list.Item(Item::formulaItem).choices, formulas);
  EXPECT_EQ(list.Item(Item::unitItem).choices, units);
}

TEST_F(RadiatorPropTree, ShowsTheNumbersOfTheFormula) {
  list.Fill(L"铸铁", column);
  EXPECT_EQ(Texts(list), L"铸铁|四柱|Qs=a×△T^b|片|0.651|1.286|0|80");
  list.Fill(L"铸铁", finned);
  EXPECT_EQ(Texts(list), L"铸铁|柱翼|Qs=k×f×△T|片|2.237|0.302|0.235|80");
  list.Fill(L"钢制", panel);
  EXPECT_EQ(Texts(list), L"钢制|板型|Qs=Qs'|m|0|0|0|1286.5");
}

TEST_F(RadiatorPropTree, ShowsATypeAloneWithZeros) {
  list.Fill(L"铸铁", finned);
  list.Fill(L"空", nullptr);
  EXPECT_EQ(Texts(list), L"空||Qs=a×△T^b|片|0|0|0|0");
}

TEST_F(RadiatorPropTree, IsEditableAsAWholeUntilTheStateOfTheFormulaIsSet) {
  list.Fill(L"钢制", panel);
  EXPECT_EQ(Flags(list), L"eeeeeeee");
  list.SetNamesReadOnly(true);
  EXPECT_EQ(Flags(list), L"rreeeeee");
}

TEST_F(RadiatorPropTree, FollowsTheFormulaWithFlagsAndInfo) {
  struct {
    const CZPRadiator* radiator;
    const wchar_t *flags, *info;
  } const states[] = {
      {column, L"eeeeeerr", L"Qs=a×△T^b"},
      {finned, L"eeeeeeer", L"Qs=k×f×△T时：k=a×△T^b。"},
      {panel, L"eeeerrre", L"Qs=Qs'时：散热器平均水温与室内温差为参考数值64.5℃时的实验数据。"},
  };
  for (const auto& state : states) {
    list.Fill(L"", state.radiator);
    list.SetFormulaState();
    EXPECT_EQ(Flags(list), state.flags);
    EXPECT_EQ(list.Item(Item::formulaItem).info, state.info);
  }
  for (const auto& state : states) { // the same by the user's choice
    EXPECT_TRUE(Set(Item::formulaItem, state.radiator->GetCalFormula()));
    EXPECT_EQ(Flags(list), state.flags);
    EXPECT_EQ(list.Item(Item::formulaItem).info, state.info);
  }
}

TEST_F(RadiatorPropTree, ShowsTheCoefficientsOfAChosenFormula) {
  list.Fill(L"铸铁", column);
  EXPECT_TRUE(Set(Item::aItem, L"9"));
  EXPECT_TRUE(Set(Item::formulaItem, L"Qs=k×f×△T"));
  EXPECT_EQ(Texts(list), L"铸铁|四柱|Qs=k×f×△T|片|0.3|0.08|0|80") << "those of the remembered radiator";
  EXPECT_TRUE(Set(Item::formulaItem, L"Qs=Qs'"));
  EXPECT_EQ(Texts(list), L"铸铁|四柱|Qs=Qs'|片|0|0|0|80");
  EXPECT_TRUE(Set(Item::formulaItem, L"Qs=a×△T^b"));
  EXPECT_EQ(Texts(list), L"铸铁|四柱|Qs=a×△T^b|片|0.651|1.286|0|80");
}

TEST_F(RadiatorPropTree, KeepsTypedCoefficientsWhereNoRadiatorIsRemembered) {
  list.Fill(L"铸铁", nullptr);
  EXPECT_TRUE(Set(Item::aItem, L"9"));
  EXPECT_TRUE(Set(Item::bItem, L"8"));
  EXPECT_TRUE(Set(Item::formulaItem, L"Qs=k×f×△T"));
  EXPECT_EQ(list.GetText(Item::aItem), L"9");
  EXPECT_EQ(list.GetText(Item::bItem), L"8");
  EXPECT_TRUE(Set(Item::formulaItem, L"Qs=Qs'"));
  EXPECT_EQ(list.GetText(Item::aItem), L"0");
  EXPECT_EQ(list.GetText(Item::bItem), L"0");
  EXPECT_TRUE(Set(Item::formulaItem, L"Qs=a×△T^b"));
  EXPECT_EQ(list.GetText(Item::aItem), L"0");
}

TEST_F(RadiatorPropTree, ReadsTheCoefficientsToWhereTheFormulaHasThem) {
  const wchar_t* const expected[] = {L" 名 "
                                     L"|计算方法=0|单位=m|实验系数a=5.0|实验系数b=6.0|实验系数c=0.3|"
                                     L"实验系数d=0.08|单位散热面积=7.0|单位散热量=8.0",
                                     L" 名 "
                                     L"|计算方法=1|单位=m|实验系数a=0.2|实验系数b=1.2|实验系数c=5.0|"
                                     L"实验系数d=6.0|单位散热面积=7.0|单位散热量=8.0",
                                     L" 名 "
                                     L"|计算方法=2|单位=m|实验系数a=0.2|实验系数b=1.2|实验系数c=0.3|"
                                     L"实验系数d=0.08|单位散热面积=7.0|单位散热量=8.0"};
  for (int formula = 0; formula < 3; ++formula) {
    list.Fill(L"", nullptr);
    EXPECT_TRUE(Set(Item::typeItem, L"  材 质 "));
    EXPECT_TRUE(Set(Item::nameItem, L" 名 "));
    list.SetText(Item::formulaItem, list.Item(Item::formulaItem).choices[static_cast<std::size_t>(formula)]);
    EXPECT_TRUE(Set(Item::unitItem, L"m"));
    EXPECT_TRUE(Set(Item::aItem, L"5"));
    EXPECT_TRUE(Set(Item::bItem, L"6 W"));
    EXPECT_TRUE(Set(Item::areaItem, L" 7"));
    EXPECT_TRUE(Set(Item::outputItem, L"8"));
    CZPRadiator radiator;
    EXPECT_EQ(list.Read(radiator), L"材 质") << "without the blanks at its ends, which the name keeps";
    EXPECT_EQ(RadiatorText(radiator), expected[formula]);
  }
}

TEST_F(RadiatorPropTree, TakesAndShowsEveryDigit) {
  column->m_dA = 0.1 + 0.2;
  column->m_dB = 1e-7;
  column->m_dF = 1e22;
  list.Fill(L"铸铁", column);
  EXPECT_EQ(Texts(list), L"铸铁|四柱|Qs=a×△T^b|片|0.30000000000000004|1e-07|1e+22|80");
  CZPRadiator read;
  list.Read(read);
  EXPECT_EQ(read.m_dA, column->m_dA);
  EXPECT_EQ(read.m_dB, column->m_dB);
  EXPECT_EQ(read.m_dF, column->m_dF);
}

TEST_F(RadiatorPropTree, LeavesANumberAloneWhoseTextIsNotChanged) {
  column->m_dA = std::numeric_limits<double>::infinity();
  column->m_dF = std::nan("");
  list.Fill(L"铸铁", column);
  EXPECT_TRUE(Set(Item::unitItem, L"m"));
  list.Read(*column);
  EXPECT_TRUE(std::isinf(column->m_dA));
  EXPECT_TRUE(std::isnan(column->m_dF));
  EXPECT_TRUE(Set(Item::aItem, L"inf "));
  list.Read(*column);
  EXPECT_EQ(column->m_dA, 0) << "typed, it is no number";
}

TEST_F(RadiatorPropTree, KeepsAFormulaAndAUnitThatItDoesNotOffer) {
  column->m_nFormula = 7;
  column->m_strUnit = L"组";
  const CString before = RadiatorText(*column);
  list.Fill(L"铸铁", column);
  list.SetFormulaState();
  EXPECT_EQ(list.GetText(Item::formulaItem), L"Error!");
  EXPECT_EQ(list.Item(Item::formulaItem).info, L"");
  EXPECT_EQ(Flags(list), L"eeeerrrr");
  list.Read(*column);
  EXPECT_EQ(RadiatorText(*column), before);
}

} // namespace
