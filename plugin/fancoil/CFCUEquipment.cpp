#include "plugin/fancoil/CFCUEquipment.h"

IMPLEMENT_DYNAMIC(CFCUEquipment, CZPObject)

CFCUEquipment::CFCUEquipment() = default;
CFCUEquipment::CFCUEquipment(const CFCUEquipment& other) = default;
CFCUEquipment& CFCUEquipment::operator=(const CFCUEquipment& other) = default;
CFCUEquipment::~CFCUEquipment() = default;

void CFCUEquipment::SetName(const CString& name) {
  m_data.szMode = name;
  CZPObject::SetName(name);
}
