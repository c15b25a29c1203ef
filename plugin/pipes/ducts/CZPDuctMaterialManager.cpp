#include "plugin/pipes/ducts/CZPDuctMaterialManager.h"

#include "plugin/base/SingletonForm.h"
#include "plugin/pipes/OwnedElements.h"

CZPDuctMaterialManager::CZPDuctMaterialManager() {
  ReadData();
}

CZPDuctMaterialManager::~CZPDuctMaterialManager() {
  pipes::DestroyElements(m_arrMaterials);
  pipes::DestroyElements(m_arrRectDiameters);
  pipes::DestroyElements(m_arrCircleDiameters);
}

ZP_IMPLEMENT_SINGLETON(CZPDuctMaterialManager)

CZPDuctMaterial* CZPDuctMaterialManager::GetInitialDuctMaterial() const {
  return pipes::FirstElement(m_arrMaterials);
}

CZPDuctMaterial* CZPDuctMaterialManager::GetDuctMaterial(const CString& name) const {
  return pipes::FindNamed(m_arrMaterials, name);
}

void CZPDuctMaterialManager::GetAllDuctMaterialName(CStringArray& out) const {
  pipes::NamesOf(m_arrMaterials, out);
}

bool CZPDuctMaterialManager::Add(CZPDuctMaterial* material) {
  return pipes::AddNamed(m_arrMaterials, material);
}

bool CZPDuctMaterialManager::Remove(CZPDuctMaterial* material) {
  return pipes::RemoveElement(m_arrMaterials, material);
}
