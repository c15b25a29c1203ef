#include "plugin/layers/CZPLayer.h"

IMPLEMENT_DYNAMIC(CZPLayer, CZPLayerObject)

CZPLayer::CZPLayer() = default;
CZPLayer::CZPLayer(const CZPLayer& other) = default;
CZPLayer& CZPLayer::operator=(const CZPLayer& other) = default;
CZPLayer::~CZPLayer() = default;

CString CZPLayer::GetUserLayer() const {
  return m_data.UserLayer;
}

void CZPLayer::SetUserLayer(const CString& userLayer) {
  m_data.UserLayer = userLayer;
}

bool CZPLayer::Copy(CZPLayer* other) {
  if (!other) return false;
  const CString korLayer = m_data.KorLayer;
  m_data = other->m_data;
  m_data.KorLayer = korLayer;
  return true;
}
