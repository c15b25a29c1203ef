#include "plugin/layers/CZPLayerObject.h"

IMPLEMENT_DYNAMIC(CZPLayerObject, CZPObject)

CZPLayerObject::CZPLayerObject() = default;
CZPLayerObject::CZPLayerObject(const CZPLayerObject& other) = default;
CZPLayerObject& CZPLayerObject::operator=(const CZPLayerObject& other) = default;
CZPLayerObject::~CZPLayerObject() = default;

void CZPLayerObject::SetName(const CString& name) {
  m_strName = name;
}

bool CZPLayerObject::IsAllowModify() const {
  return m_bAllowModify;
}

void CZPLayerObject::SetAllowModify(bool allow) {
  m_bAllowModify = allow;
}

CZPLayerObject* CZPLayerObject::GetParent() const {
  return m_pParent;
}

void CZPLayerObject::SetParent(CZPLayerObject* parent) {
  m_pParent = parent;
}

CString CZPLayerObject::GetName() const {
  return m_strName;
}
