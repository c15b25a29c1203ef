#include "plugin/pipes/limits/CZPFlowVelocityMng.h"

#include <cmath>

#include "host/afx/Numbers.h"
#include "plugin/base/SingletonForm.h"
#include "plugin/pipes/OwnedElements.h"

namespace {

double NumberOf(const CString& name) {
  return afx::wcstod(name, nullptr);
}

// Numbers may be infinite, where a name has hundreds of digits.
double Distance(double a, double b) {
  return a == b ? 0 : std::fabs(a - b);
}

} // namespace

CZPFlowVelocityMng::CZPFlowVelocityMng() {
  ReadData();
}

CZPFlowVelocityMng::~CZPFlowVelocityMng() {
  pipes::DestroyElements(m_arrLimits);
}

ZP_IMPLEMENT_SINGLETON(CZPFlowVelocityMng)

CZPPipeLimit* CZPFlowVelocityMng::GetPipeLimit(const CString& name, int nearest) const {
  if (CZPPipeLimit* exact = pipes::FindNamed(m_arrLimits, name)) return exact;
  if (nearest == 0) return nullptr;
  const double wanted = NumberOf(name);
  CZPPipeLimit* best = nullptr;
  double bestDistance = 0;
  for (CZPPipeLimit* limit : m_arrLimits) {
    if (!limit) continue;
    const double distance = Distance(NumberOf(limit->m_strName), wanted);
    if (best && distance >= bestDistance) continue;
    best = limit;
    bestDistance = distance;
  }
  return best;
}

int CZPFlowVelocityMng::Add(CZPPipeLimit* limit) {
  return pipes::AddNamed(m_arrLimits, limit) ? 1 : 0;
}

int CZPFlowVelocityMng::Remove(CZPPipeLimit* limit) {
  return pipes::RemoveElement(m_arrLimits, limit) ? 1 : 0;
}
