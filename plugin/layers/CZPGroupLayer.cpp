#include "plugin/layers/CZPGroupLayer.h"

#include "plugin/layers/OwnedNodes.h"

IMPLEMENT_DYNAMIC(CZPGroupLayer, CZPLayerObject)

CZPGroupLayer::CZPGroupLayer() = default;

CZPGroupLayer::~CZPGroupLayer() {
  layers::DestroyNodes(m_arrLayers);
}

bool CZPGroupLayer::Add(CZPLayer* layer) {
  return layers::AddNode(m_arrLayers, layer, this);
}

bool CZPGroupLayer::Remove(CZPLayer* layer) {
  return layers::RemoveNode(m_arrLayers, layer);
}
