#include "plugin/resistance/CZPLocalResistanceSettings.h"

#include "plugin/base/NumberText.h"
#include "plugin/resistance/CZPLocalResistanceMng.h"
#include "plugin/resistance/FittingColumns.h"
#include "plugin/resistance/TeeFlows.h"

using namespace resistance;

namespace {

// Beyond the range of int the sum goes round, as the processor's own addition does.
int Sum(int a, int b) {
  return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

// None of them add nothing, whatever is in the store: infinity times 0 would be no number.
double Loss(int count, double coefficient) {
  return count == 0 ? 0 : coefficient * count;
}

} // namespace

CZPLocalResistanceSettings::CZPLocalResistanceSettings() = default;
CZPLocalResistanceSettings::CZPLocalResistanceSettings(const CZPLocalResistanceSettings&) = default;
CZPLocalResistanceSettings&
CZPLocalResistanceSettings::operator=(const CZPLocalResistanceSettings&) = default;
CZPLocalResistanceSettings::~CZPLocalResistanceSettings() = default;

int CZPLocalResistanceSettings::FindPipeParts(const CString& name) const {
  for (int i = 0; i < m_arrParts.GetSize(); ++i)
    if (m_arrParts[i].m_strName == name) return i;
  return -1;
}

void CZPLocalResistanceSettings::Plus(const CZPLocalResistanceSettings& other) {
  for (int i = 0; i < other.m_arrParts.GetSize(); ++i) {
    CZPPipeParts part = other.m_arrParts[i];
    const int index = FindPipeParts(part.m_strName);
    if (index < 0)
      m_arrParts.Add(part);
    else
      m_arrParts[index].m_nNumber = Sum(m_arrParts[index].m_nNumber, part.m_nNumber);
  }
  for (const TeeFlow& flow : kTeeFlows)
    m_num3T4T.*flow.count = Sum(m_num3T4T.*flow.count, other.m_num3T4T.*flow.count);
  m_dOtherCoe += other.m_dOtherCoe;
  m_dAdditionCoe += other.m_dAdditionCoe;
}

double CZPLocalResistanceSettings::GetCoefficientRemoveAdditionCoe() const {
  const CZPLocalResistanceMng& store = *CZPLocalResistanceMng::GetInstance();
  double sum = 0;
  for (const CZPPipeParts& part : m_arrParts)
    if (const CZPPipePartsCoe* fitting = FindFitting(store.m_arrPartsCoe, part.m_strName))
      sum += Loss(part.m_nNumber, fitting->GetCoe(m_strDN));
  for (const TeeFlow& flow : kTeeFlows) sum += Loss(m_num3T4T.*flow.count, store.m_coe3T4T.*flow.coefficient);
  return sum + m_dOtherCoe;
}

double CZPLocalResistanceSettings::GetCoefficient() const {
  return GetCoefficientRemoveAdditionCoe() + m_dAdditionCoe;
}

void CZPLocalResistanceSettings::Empty3T4T() {
  m_num3T4T = CZPPipe3T4TCoeNum();
}
