#include "plugin/radiators/CZPRadiator.h"

#include "plugin/radiators/RadiatorFormulas.h"

IMPLEMENT_DYNAMIC(CZPRadiator, CZPRadiatorObject)

CZPRadiator::CZPRadiator() = default;
CZPRadiator::CZPRadiator(const CZPRadiator& other) = default;
CZPRadiator& CZPRadiator::operator=(const CZPRadiator& other) = default;
CZPRadiator::~CZPRadiator() = default;

CString CZPRadiator::GetUnit() const {
  return m_strUnit;
}

void CZPRadiator::SetParent(CZPRadiatorObject* parent) {
  m_pParent = parent;
}

CZPRadiatorObject* CZPRadiator::GetParent() const {
  return m_pParent;
}

CString CZPRadiator::GetCalFormula() const {
  for (const radiators::Formula& formula : radiators::kFormulas)
    if (formula.code == m_nFormula) return formula.text;
  return L"Error!";
}
