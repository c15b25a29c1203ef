#include "plugin/radiators/CZPRadiatorObject.h"

IMPLEMENT_DYNAMIC(CZPRadiatorObject, CObject)

CZPRadiatorObject::CZPRadiatorObject() = default;
CZPRadiatorObject::CZPRadiatorObject(const CZPRadiatorObject& other) = default;
CZPRadiatorObject& CZPRadiatorObject::operator=(const CZPRadiatorObject& other) = default;
CZPRadiatorObject::~CZPRadiatorObject() = default;

CString CZPRadiatorObject::GetName() const {
  return m_strName;
}

void CZPRadiatorObject::SetName(const CString& name) {
  m_strName = name;
}
