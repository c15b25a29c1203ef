#include "plugin/layers/CZPSystemLayer.h"

#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/OwnedNodes.h"

IMPLEMENT_DYNAMIC(CZPSystemLayer, CZPLayerObject)

CZPSystemLayer::CZPSystemLayer() = default;
CZPSystemLayer::CZPSystemLayer(const CZPSystemLayer& other) = default;
CZPSystemLayer& CZPSystemLayer::operator=(const CZPSystemLayer& other) = default;

CZPSystemLayer::~CZPSystemLayer() {
  layers::DestroyNodes(m_arrGroups);
}

bool CZPSystemLayer::Add(CZPGroupLayer* group) {
  return layers::AddNode(m_arrGroups, group, this);
}

bool CZPSystemLayer::Remove(CZPGroupLayer* group) {
  return layers::RemoveNode(m_arrGroups, group);
}
