#include "plugin/radiators/dialogs/RadiatorTexts.h"

#include "plugin/base/NumberText.h"
#include "plugin/radiators/CZPRadiator.h"

namespace {

constexpr const wchar_t* kSections = L"片";

CString ExponentParameters(const CZPRadiator& radiator) {
  CString text;
  text.Format(L"实验系数a：%.2f \r\n\r\n实验系数b：%.2f", radiator.m_dA, radiator.m_dB);
  return text;
}

CString TransferParameters(const CZPRadiator& radiator) {
  CString text;
  text.Format(L"实验系数a：%.2f 系数b：%.2f \r\n\r\n单位散热面积f(㎡/%s)：%.2f", radiator.m_dC, radiator.m_dD,
              radiator.GetUnit(), radiator.m_dF);
  return text;
}

CString FixedParameters(const CZPRadiator& radiator) {
  CString text;
  text.Format(L"单位散热量Qs'(W/%s)：%.2f ", radiator.GetUnit(), radiator.m_dQs);
  return text;
}

// By formula code, in its order.
struct FormulaTexts {
  CString (*parameters)(const CZPRadiator&);
  const wchar_t* terms; // behind the formula itself
  bool followsTemperatures;
};
constexpr FormulaTexts kTexts[] = {
    {ExponentParameters, L" \r\n\r\n△T=(Tg+Th)/2-Tn", true},
    {TransferParameters, L" \r\n\r\n传热系数k=a×△T^b \r\n\r\n△T=(Tg+Th)/2-Tn", true},
    {FixedParameters, L"", false},
};
constexpr FormulaTexts kNoTexts{[](const CZPRadiator&) { return CString(); }, L"", true};

const FormulaTexts& TextsOf(const CZPRadiator& radiator) {
  const auto code = static_cast<std::size_t>(radiator.m_nFormula);
  return code < std::size(kTexts) ? kTexts[code] : kNoTexts;
}

bool CountsSections(const CZPRadiator& radiator) {
  return radiator.GetUnit() == kSections;
}

} // namespace

CString radiators::TypeText(const CZPRadiator& radiator) {
  const CZPRadiatorObject* type = radiator.GetParent();
  return L"类型：" + (type ? type->GetName() : CString());
}

CString radiators::NameText(const CZPRadiator& radiator) {
  return L"名称：" + radiator.GetName();
}

CString radiators::ParameterText(const CZPRadiator& radiator) {
  return TextsOf(radiator).parameters(radiator);
}

CString radiators::FormulaText(const CZPRadiator& radiator) {
  return L"单位散热量" + radiator.GetCalFormula() + TextsOf(radiator).terms;
}

CString radiators::ResultCaption(const CZPRadiator& radiator) {
  return CountsSections(radiator) ? L"散热器片数(片)：" : L"散热器长度(m)：";
}

bool radiators::FollowsTemperatures(const CZPRadiator& radiator) {
  return TextsOf(radiator).followsTemperatures;
}

CString radiators::NoteText(const CZPRadiator& radiator, double number) {
  return (CountsSections(radiator) ? L"散热器片数:" : L"散热器长度:") + ZP::ftoa(number, 2, true) +
         radiator.GetUnit();
}
