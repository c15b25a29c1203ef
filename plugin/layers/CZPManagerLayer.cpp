#include "plugin/layers/CZPManagerLayer.h"

#include "plugin/base/SingletonForm.h"
#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "plugin/layers/OwnedNodes.h"
#include "plugin/layers/SchemeFiles.h"

IMPLEMENT_DYNAMIC(CZPManagerLayer, CZPLayerObject)

ZP_IMPLEMENT_SINGLETON(CZPManagerLayer)

CZPManagerLayer::CZPManagerLayer() : m_strPlanName(layers::kDefaultScheme) {
  CZPLayerObject::SetName(L"全部图层");
  ReadData(m_strPlanName);
}

CZPManagerLayer::CZPManagerLayer(const CZPManagerLayer& other) = default;
CZPManagerLayer& CZPManagerLayer::operator=(const CZPManagerLayer& other) = default;

CZPManagerLayer::~CZPManagerLayer() {
  RemoveAll();
}

bool CZPManagerLayer::Add(CZPSystemLayer* category) {
  return layers::AddNode(m_arrCategories, category, this);
}

bool CZPManagerLayer::Remove(CZPSystemLayer* category) {
  return layers::RemoveNode(m_arrCategories, category);
}

void CZPManagerLayer::RemoveAll() {
  layers::DestroyNodes(m_arrCategories);
}

namespace {

template <typename Matches>
CZPLayer* FirstLayer(const CZPArray<CZPSystemLayer*, CZPSystemLayer*>& categories, Matches matches) {
  for (const CZPSystemLayer* category : categories)
    for (const CZPGroupLayer* group : category->Groups())
      for (CZPLayer* layer : group->Layers())
        if (matches(*layer)) return layer;
  return nullptr;
}

} // namespace

CZPLayer* CZPManagerLayer::GetLayer(const CString& korLayer) const {
  return FirstLayer(m_arrCategories,
                    [&](const CZPLayer& layer) { return layer.Data().KorLayer == korLayer; });
}

CZPLayer* CZPManagerLayer::GetLayerFromUserLayer(const CString& userLayer) const {
  return FirstLayer(m_arrCategories,
                    [&](const CZPLayer& layer) { return layer.GetUserLayer() == userLayer; });
}

bool CZPManagerLayer::GetKorLayer(const CString& userLayer, CString& korLayer) const {
  const CZPLayer* layer = GetLayerFromUserLayer(userLayer);
  if (!layer) return false;
  korLayer = layer->GetKorLayer();
  return true;
}
