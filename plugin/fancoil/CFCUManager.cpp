#include "plugin/fancoil/CFCUManager.h"

#include "plugin/base/SingletonForm.h"
#include "plugin/fancoil/OwnedEntries.h"

IMPLEMENT_DYNAMIC(CFCUManager, CZPObject)

ZP_IMPLEMENT_SINGLETON(CFCUManager)

// The member's own constructor has put its mark into the file before the file is read here.
CFCUManager::CFCUManager() : m_bDatabaseOk(1) {
  if (!m_operation.Initial()) m_bDatabaseOk = 0;
  ReadData();
  SetName(L"风机盘管");
}

CFCUManager::CFCUManager(const CFCUManager& other)
    : CZPObject(other), m_operation(other.m_operation), m_bDatabaseOk(other.m_bDatabaseOk) {
  fancoil::CopyEntries(other.m_arrFactories, m_arrFactories);
}

CFCUManager& CFCUManager::operator=(const CFCUManager& other) {
  if (this == &other) return *this;
  CZPObject::operator=(other);
  fancoil::DeleteEntries(m_arrFactories);
  fancoil::CopyEntries(other.m_arrFactories, m_arrFactories);
  m_operation = other.m_operation;
  m_bDatabaseOk = other.m_bDatabaseOk;
  return *this;
}

CFCUManager::~CFCUManager() {
  fancoil::DeleteEntries(m_arrFactories);
}

int CFCUManager::Add(CFCUFactory* factory) {
  if (!fancoil::CanAdd(m_arrFactories, factory)) return 0;
  m_arrFactories.Add(factory);
  return 1;
}

int CFCUManager::Remove(CFCUFactory* factory) {
  return fancoil::RemoveEntry(m_arrFactories, factory);
}

CFCUFactory* CFCUManager::GetFactory(const CString& name) const {
  return fancoil::FindEntry(m_arrFactories, name);
}

int CFCUManager::GetAllFactoryName(CStringArray& out) const {
  return fancoil::AppendNames(m_arrFactories, out);
}

CFCUEquipment* CFCUManager::GetInitialFCU() const {
  for (const CFCUFactory* factory : m_arrFactories) {
    if (!factory) continue;
    for (CFCUEquipment* equipment : factory->m_arrEquipments)
      if (equipment) return equipment;
  }
  return nullptr;
}

CFCUEquipment* CFCUManager::GetFCUEquipment(const CString& model, const CString& factoryName) const {
  for (const CFCUFactory* factory : m_arrFactories) {
    if (!factory || !(factoryName.IsEmpty() || factory->GetName() == factoryName)) continue;
    if (CFCUEquipment* equipment = factory->GetEquipment(model)) return equipment;
  }
  return nullptr;
}
