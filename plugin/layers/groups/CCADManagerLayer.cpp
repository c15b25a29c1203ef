#include "plugin/layers/groups/CCADManagerLayer.h"

#include "plugin/base/SingletonForm.h"
#include "plugin/layers/OwnedNodes.h"
#include "plugin/layers/groups/CCADGroupLayer.h"

IMPLEMENT_DYNAMIC(CCADManagerLayer, CZPObject)

ZP_IMPLEMENT_SINGLETON(CCADManagerLayer)

CCADManagerLayer::CCADManagerLayer() {
  CZPObject::SetName(L"全部分组");
  ReadData();
}

CCADManagerLayer::~CCADManagerLayer() {
  layers::DestroyNodes(m_arrGroups);
}

int CCADManagerLayer::Add(CCADGroupLayer* group) {
  if (!group) return 0;
  for (const CCADGroupLayer* held : m_arrGroups)
    if (held == group || held->GetName() == group->GetName()) return 0;
  m_arrGroups.Add(group);
  return 1;
}

int CCADManagerLayer::Remove(CCADGroupLayer* group) {
  return layers::RemoveNode(m_arrGroups, group) ? 1 : 0;
}
