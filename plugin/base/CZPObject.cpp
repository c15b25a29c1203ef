#include "plugin/base/CZPObject.h"

IMPLEMENT_DYNAMIC(CZPObject, CObject)

CZPObject::CZPObject() = default;
CZPObject::CZPObject(const CZPObject& other) = default;
CZPObject& CZPObject::operator=(const CZPObject& other) = default;
CZPObject::~CZPObject() = default;

CString CZPObject::GetClassName() const {
  return GetRuntimeClass()->m_lpszClassName;
}

void CZPObject::SetLastError(const CString& error) {
  m_strLastError = error;
}

CString CZPObject::GetLastError() const {
  return m_strLastError;
}

void CZPObject::SetName(const CString& name) {
  m_strName = name;
}

CString CZPObject::GetName() const {
  return m_strName;
}
