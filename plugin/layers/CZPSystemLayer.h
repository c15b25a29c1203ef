// A category of a scheme, for instance one per design module; owns its groups.
#pragma once

#include "plugin/base/CZPArray.h"
#include "plugin/layers/CZPLayerObject.h"

class CZPGroupLayer;

class ZP_EXPORT CZPSystemLayer : public CZPLayerObject {
  DECLARE_DYNAMIC(CZPSystemLayer)

 public:
  CZPSystemLayer();
  // A copy shares the groups, and each of the two would destroy them: whoever copies takes them out of one.
  CZPSystemLayer(const CZPSystemLayer& other);
  CZPSystemLayer& operator=(const CZPSystemLayer& other);
  ~CZPSystemLayer() override;

  // Appends and takes ownership; false for null or when it is in already.
  bool Add(CZPGroupLayer* group);
  // Destroys the group with its layers; false when it isn't in.
  bool Remove(CZPGroupLayer* group);

  const CZPArray<CZPGroupLayer*, CZPGroupLayer*>& Groups() const { return m_arrGroups; }
  CZPArray<CZPGroupLayer*, CZPGroupLayer*>& Groups() { return m_arrGroups; }

 private:
  CZPArray<CZPGroupLayer*, CZPGroupLayer*> m_arrGroups;
};
