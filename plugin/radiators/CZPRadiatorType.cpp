#include "plugin/radiators/CZPRadiatorType.h"

#include "plugin/radiators/NamedObjects.h"

IMPLEMENT_DYNAMIC(CZPRadiatorType, CZPRadiatorObject)

CZPRadiatorType::CZPRadiatorType() = default;

CZPRadiatorType::~CZPRadiatorType() {
  radiators::DestroyObjects(m_arrRadiators);
}

CZPRadiator* CZPRadiatorType::GetRadiator(const CString& name) const {
  return radiators::FindNamed(m_arrRadiators, name);
}

bool CZPRadiatorType::Add(CZPRadiator* radiator) {
  if (!radiators::AddNamed(m_arrRadiators, radiator)) return false;
  radiator->SetParent(this);
  return true;
}

bool CZPRadiatorType::Remove(CZPRadiator* radiator) {
  return radiators::RemoveObject(m_arrRadiators, radiator);
}
