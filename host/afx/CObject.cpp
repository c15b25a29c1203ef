#include "host/afx/CObject.h"

constinit CRuntimeClass CObject::classCObject = {L"CObject", nullptr};

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const {
  for (const CRuntimeClass* at = this; at; at = at->m_pBaseClass)
    if (at == base) return true;
  return false;
}

CRuntimeClass* CObject::GetRuntimeClass() const {
  return GetThisClass();
}

void CObject::Serialize(CArchive&) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext&) const {}

bool CObject::IsKindOf(const CRuntimeClass* runtimeClass) const {
  return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
}
