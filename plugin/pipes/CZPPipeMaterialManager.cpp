#include "plugin/pipes/CZPPipeMaterialManager.h"

#include "plugin/base/SingletonForm.h"
#include "plugin/pipes/OwnedElements.h"

CZPPipeMaterialManager::CZPPipeMaterialManager() {
  ReadData();
}

CZPPipeMaterialManager::~CZPPipeMaterialManager() {
  pipes::DestroyElements(m_arrMaterials);
}

ZP_IMPLEMENT_SINGLETON(CZPPipeMaterialManager)

CZPPipeMaterial* CZPPipeMaterialManager::GetInitialPipeMaterial() const {
  return pipes::FirstElement(m_arrMaterials);
}

CZPPipeMaterial* CZPPipeMaterialManager::GetPipeMaterial(const CString& name) const {
  return pipes::FindNamed(m_arrMaterials, name);
}

void CZPPipeMaterialManager::GetAllPipeMaterialName(CStringArray& out) const {
  pipes::NamesOf(m_arrMaterials, out);
}

bool CZPPipeMaterialManager::Add(CZPPipeMaterial* material) {
  return pipes::AddNamed(m_arrMaterials, material);
}

bool CZPPipeMaterialManager::Remove(CZPPipeMaterial* material) {
  return pipes::RemoveElement(m_arrMaterials, material);
}
