// A group of layer definitions inside a category; owns them. Not exported: sibling plug-ins reach layers by
// their identifiers.
#pragma once

#include "plugin/base/CZPArray.h"
#include "plugin/layers/CZPLayer.h"

class CZPGroupLayer : public CZPLayerObject {
  DECLARE_DYNAMIC(CZPGroupLayer)

 public:
  CZPGroupLayer();
  CZPGroupLayer(const CZPGroupLayer&) = delete;
  CZPGroupLayer& operator=(const CZPGroupLayer&) = delete;
  ~CZPGroupLayer() override;

  // Appends and takes ownership; false for null or when it is in already.
  bool Add(CZPLayer* layer);
  // Destroys the layer; false when it isn't in.
  bool Remove(CZPLayer* layer);

  const CZPArray<CZPLayer*, CZPLayer*>& Layers() const { return m_arrLayers; }

 private:
  CZPArray<CZPLayer*, CZPLayer*> m_arrLayers;
};
