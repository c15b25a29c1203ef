#include "plugin/radiators/dialogs/CRADPropTree.h"

#include <iterator>

#include "host/afx/Numbers.h"
#include "plugin/base/ExactText.h"
#include "plugin/graph/PropertyRows.h"
#include "plugin/radiators/RadiatorFormulas.h"

namespace {

using Kind = CPropTreeItem::Kind;

std::vector<CString> FormulaTexts() {
  std::vector<CString> texts;
  for (const radiators::Formula& formula : radiators::kFormulas) texts.emplace_back(formula.text);
  return texts;
}

struct Property {
  const wchar_t* group; // begins one; null goes on with the last
  const wchar_t* label;
  Kind kind;
  std::vector<CString> choices;
  const wchar_t* info;
};

// In the order of CRADPropTree::RadiatorItem.
const std::vector<Property>& Properties() {
  static const std::vector<Property> properties = {
      {L"基本信息", L"散热器材质", Kind::text, {}, L"一般指散热器厂家或者材料"},
      {nullptr, L"散热器类型", Kind::text, {}, L"一般指散热器型号"},
      {L"散热器参数", L"计算公式", Kind::choice, FormulaTexts(), L""},
      {nullptr, L"单位", Kind::choice, {L"片", L"m"}, L""},
      {nullptr, L"实验系数a", Kind::number, {}, L""},
      {nullptr, L"实验系数b", Kind::number, {}, L""},
      {nullptr, L"单位散热面积f", Kind::number, {}, L"单位：㎡/片或者㎡/m"},
      {nullptr, L"单位散热量Qs'", Kind::number, {}, L"单位：w/片或者w/m"},
  };
  return properties;
}

// What each formula has to do with the items, by its code.
struct FormulaState {
  const wchar_t* info;
  double CZPRadiator::*a; // null: the formula has none
  double CZPRadiator::*b;
  bool usesArea;
  bool usesOutput;
};

constexpr FormulaState kStates[] = {
    {L"Qs=a×△T^b", &CZPRadiator::m_dA, &CZPRadiator::m_dB, false, false},
    {L"Qs=k×f×△T时：k=a×△T^b。", &CZPRadiator::m_dC, &CZPRadiator::m_dD, true, false},
    {L"Qs=Qs'时：散热器平均水温与室内温差为参考数值64.5℃时的实验数据。", nullptr, nullptr, false, true},
};
// For a code that is none, as a file may have it: the numbers wait for a formula.
constexpr FormulaState kNoFormula = {L"", nullptr, nullptr, false, false};
static_assert(std::size(kStates) == std::size(radiators::kFormulas));

const FormulaState& StateOf(int formula) {
  return formula >= 0 && formula < static_cast<int>(std::size(kStates)) ? kStates[formula] : kNoFormula;
}

// A number whose text nobody has changed stays what it is, also one that no text means, such as infinity.
void Take(double& value, const CString& text) {
  if (text != ZP::ExactText(value)) value = afx::wcstod(text, nullptr);
}

} // namespace

CRADPropTree::CRADPropTree(CFormWnd& form, const CString& caption) : CPropTree(form, caption) {
  AddPropertyRows(*this, Properties());
  // Before the dialog hears of it, so that it reads the numbers of the new formula.
  ItemChanged.Connect([this](int item) {
    if (item == formulaItem) ChangeFormula();
  });
}

void CRADPropTree::Fill(const CString& typeName, const CZPRadiator* radiator) {
  const UiQuietly quietly(*this);
  m_pRadiator = radiator;
  const int formula = radiator ? radiator->m_nFormula : 0;
  SetText(typeItem, typeName);
  SetText(nameItem, radiator ? radiator->GetName() : CString());
  SetText(formulaItem, radiator ? radiator->GetCalFormula() : Item(formulaItem).choices.front());
  SetInfo(formulaItem, StateOf(formula).info);
  SetText(unitItem, radiator ? radiator->m_strUnit : CString(L"片"));
  SetText(aItem, ZP::ExactText(0));
  SetText(bItem, ZP::ExactText(0));
  ShowCoefficients(formula);
  SetText(areaItem, ZP::ExactText(radiator ? radiator->m_dF : 0));
  SetText(outputItem, ZP::ExactText(radiator ? radiator->m_dQs : 0));
}

CString CRADPropTree::Read(CZPRadiator& radiator) const {
  radiator.SetName(GetText(nameItem));
  if (const int formula = Formula(); formula >= 0) radiator.m_nFormula = formula;
  radiator.m_strUnit = GetText(unitItem);
  const FormulaState& state = StateOf(Formula());
  if (state.a) Take(radiator.*state.a, GetText(aItem));
  if (state.b) Take(radiator.*state.b, GetText(bItem));
  Take(radiator.m_dF, GetText(areaItem));
  Take(radiator.m_dQs, GetText(outputItem));
  return CString(GetText(typeItem)).Trim();
}

void CRADPropTree::SetFormulaState() {
  const UiQuietly quietly(*this);
  const FormulaState& state = StateOf(Formula());
  SetInfo(formulaItem, state.info);
  SetReadOnly(aItem, !state.a);
  SetReadOnly(bItem, !state.b);
  SetReadOnly(areaItem, !state.usesArea);
  SetReadOnly(outputItem, !state.usesOutput);
}

void CRADPropTree::SetNamesReadOnly(bool readOnly) {
  SetReadOnly(typeItem, readOnly);
  SetReadOnly(nameItem, readOnly);
}

int CRADPropTree::Formula() const {
  const int choice = Item(formulaItem).ChoiceIndex();
  return choice < 0 ? -1 : radiators::kFormulas[choice].code;
}

void CRADPropTree::ChangeFormula() {
  SetFormulaState();
  ShowCoefficients(Formula());
}

// Without a radiator the texts stay under a formula that has coefficients: they are what the user typed.
void CRADPropTree::ShowCoefficients(int formula) {
  const FormulaState& state = StateOf(formula);
  if (state.a && !m_pRadiator) return;
  SetText(aItem, ZP::ExactText(state.a ? m_pRadiator->*state.a : 0));
  SetText(bItem, ZP::ExactText(state.b ? m_pRadiator->*state.b : 0));
}
