#include "plugin/pipes/CZPPipeMaterialManager.h"

#include "plugin/base/SingletonForm.h"

CZPPipeMaterialManager::CZPPipeMaterialManager() {
  ReadData();
}

CZPPipeMaterialManager::~CZPPipeMaterialManager() {
  for (CZPPipeMaterial* material : m_arrMaterials) delete material;
  m_arrMaterials.SetSize(0);
}

ZP_IMPLEMENT_SINGLETON(CZPPipeMaterialManager)

CZPPipeMaterial* CZPPipeMaterialManager::GetInitialPipeMaterial() const {
  for (CZPPipeMaterial* material : m_arrMaterials)
    if (material) return material;
  return nullptr;
}

CZPPipeMaterial* CZPPipeMaterialManager::GetPipeMaterial(const CString& name) const {
  for (CZPPipeMaterial* material : m_arrMaterials)
    if (material && material->m_strName == name) return material;
  return nullptr;
}

void CZPPipeMaterialManager::GetAllPipeMaterialName(CStringArray& out) const {
  out.RemoveAll();
  for (const CZPPipeMaterial* material : m_arrMaterials)
    if (material) out.Add(material->m_strName);
}

bool CZPPipeMaterialManager::Add(CZPPipeMaterial* material) {
  if (!material) return false;
  // The name test covers the pointer test too: the same material has the same name.
  if (GetPipeMaterial(material->m_strName)) return false;
  m_arrMaterials.Add(material);
  return true;
}

bool CZPPipeMaterialManager::Remove(CZPPipeMaterial* material) {
  if (!material) return false;
  for (int i = 0; i < m_arrMaterials.GetSize(); ++i) {
    if (m_arrMaterials[i] != material) continue;
    m_arrMaterials.RemoveAt(i);
    delete material;
    return true;
  }
  return false;
}
