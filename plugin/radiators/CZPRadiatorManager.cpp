#include "plugin/radiators/CZPRadiatorManager.h"

#include <memory>

#include "plugin/base/SingletonForm.h"
#include "plugin/radiators/NamedObjects.h"

IMPLEMENT_DYNAMIC(CZPRadiatorManager, CZPRadiatorObject)

ZP_IMPLEMENT_SINGLETON(CZPRadiatorManager)

CZPRadiatorManager::CZPRadiatorManager() {
  SetName(L"全部散热器");
  try {
    ReadData(); // a file that can't be read leaves the catalogue empty, which is a normal state
  } catch (...) {
    RemoveAll(); // no destructor will run for what was read before
    throw;
  }
}

CZPRadiatorManager::CZPRadiatorManager(const CZPRadiatorManager& other) = default;
CZPRadiatorManager& CZPRadiatorManager::operator=(const CZPRadiatorManager& other) = default;

CZPRadiatorManager::~CZPRadiatorManager() {
  RemoveAll();
}

CZPRadiator* CZPRadiatorManager::GetInitialRadiator() const {
  for (const CZPRadiatorType* type : m_arrTypes) {
    if (!type) continue;
    for (CZPRadiator* radiator : type->m_arrRadiators)
      if (radiator) return radiator;
  }
  return nullptr;
}

CZPRadiatorType* CZPRadiatorManager::GetRadiatorType(const CString& name) const {
  return radiators::FindNamed(m_arrTypes, name);
}

CZPRadiator* CZPRadiatorManager::GetRadiator(const CString& name, const CString& typeName) const {
  if (!typeName.IsEmpty()) {
    const CZPRadiatorType* type = GetRadiatorType(typeName);
    return type ? type->GetRadiator(name) : nullptr;
  }
  for (const CZPRadiatorType* type : m_arrTypes) {
    if (!type) continue;
    if (CZPRadiator* radiator = type->GetRadiator(name)) return radiator;
  }
  return nullptr;
}

bool CZPRadiatorManager::Add(CZPRadiatorType* type) {
  return radiators::AddNamed(m_arrTypes, type);
}

bool CZPRadiatorManager::Add(const CString& name) {
  auto type = std::make_unique<CZPRadiatorType>();
  type->SetName(name);
  if (!Add(type.get())) return false;
  type.release();
  return true;
}

bool CZPRadiatorManager::Remove(CZPRadiatorType* type) {
  return radiators::RemoveObject(m_arrTypes, type);
}

void CZPRadiatorManager::RemoveAll() {
  radiators::DestroyObjects(m_arrTypes);
}
