#include "plugin/fancoil/CFCUFactory.h"

#include "plugin/fancoil/OwnedEntries.h"

IMPLEMENT_DYNAMIC(CFCUFactory, CZPObject)

CFCUFactory::CFCUFactory() = default;

CFCUFactory::CFCUFactory(const CFCUFactory& other) : CZPObject(other) {
  CopyModels(other);
}

CFCUFactory& CFCUFactory::operator=(const CFCUFactory& other) {
  if (this == &other) return *this;
  CZPObject::operator=(other);
  fancoil::DeleteEntries(m_arrEquipments);
  CopyModels(other);
  return *this;
}

void CFCUFactory::CopyModels(const CFCUFactory& other) {
  fancoil::CopyEntries(other.m_arrEquipments, m_arrEquipments);
  for (CFCUEquipment* equipment : m_arrEquipments)
    if (equipment) equipment->SetParent(this);
}

CFCUFactory::~CFCUFactory() {
  fancoil::DeleteEntries(m_arrEquipments);
}

int CFCUFactory::Add(CFCUEquipment* equipment) {
  if (!fancoil::CanAdd(m_arrEquipments, equipment)) return 0;
  Append(equipment);
  return 1;
}

void CFCUFactory::Append(CFCUEquipment* equipment) {
  equipment->m_data.szFactory = GetName();
  equipment->SetParent(this);
  m_arrEquipments.Add(equipment);
}

int CFCUFactory::Remove(CFCUEquipment* equipment) {
  return fancoil::RemoveEntry(m_arrEquipments, equipment);
}

CFCUEquipment* CFCUFactory::GetEquipment(const CString& name) const {
  return fancoil::FindEntry(m_arrEquipments, name);
}

int CFCUFactory::GetAllEquipmentName(CStringArray& out) const {
  return fancoil::AppendNames(m_arrEquipments, out);
}
