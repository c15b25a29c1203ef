// The pipe and duct systems of the installation: names, ids and layers.
#include "plugin/fancoil/CKTDatabaseOperation.h"
#include "plugin/fancoil/WaterDatabase.h"

using namespace fancoil;

namespace {

// The attribute of the item, "" without one.
CString TextOf(const VkDtDictItem* item, const wchar_t* attribute) {
  return item ? item->GetAttributeValue(attribute) : CString();
}

bool TakeId(const VkDtDictItem* system, int& id) {
  id = system ? system->GetAttributeIntValue(kName) : kNoId;
  return system != nullptr;
}

} // namespace

// The pipes' GetAll... give false even when they have filled the array, and callers are written for that; the
// ducts' give true.
bool CKTDatabaseOperation::GetAllPipecoilName(CStringArray& names) {
  AppendAttributes(GetReadPart(kPipeSystemPart), kSystemName, names);
  return false;
}

// This one, GetRiserLayer and GetAllRiserLayer don't ask whether Initial has succeeded.
bool CKTDatabaseOperation::GetAllMainPipeLayer(CStringArray& layers) {
  AppendAttributes(GetKtTypeDict(kPipeSystemPart), kMainPipeLayer, layers);
  return false;
}

bool CKTDatabaseOperation::GetAllRiserLayer(CStringArray& layers) {
  AppendAttributes(GetKtTypeDict(kPipeSystemPart), kRiserLayer, layers);
  return false;
}

bool CKTDatabaseOperation::GetAllDuctName(CStringArray& names) {
  return AppendAttributes(GetReadPart(kDuctSystemPart), kSystemName, names);
}

bool CKTDatabaseOperation::GetAllDuctLayer(CStringArray& layers) {
  return AppendAttributes(GetReadPart(kDuctSystemPart), kDuctLayer, layers);
}

CString CKTDatabaseOperation::GetPipecoilName(int id) {
  return TextOf(FindItem(GetReadPart(kPipeSystemPart), kName, id), kSystemName);
}

CString CKTDatabaseOperation::GetDuctName(int id) {
  return TextOf(FindItem(GetReadPart(kDuctSystemPart), kName, id), kSystemName);
}

bool CKTDatabaseOperation::GetMainPipeLayer(CString sysName, CString& layer) {
  const VkDtDictItem* system = FindItem(GetReadPart(kPipeSystemPart), kSystemName, sysName);
  layer = TextOf(system, kMainPipeLayer);
  return system != nullptr;
}

// Unlike its neighbours it leaves layer alone when there is no such system.
bool CKTDatabaseOperation::GetRiserLayer(CString sysName, CString& layer) {
  const VkDtDictItem* system = FindItem(GetKtTypeDict(kPipeSystemPart), kSystemName, sysName);
  if (system) layer = TextOf(system, kRiserLayer);
  return system != nullptr;
}

bool CKTDatabaseOperation::GetDuctLayer(CString sysName, CString& layer) {
  const VkDtDictItem* system = FindItem(GetReadPart(kDuctSystemPart), kSystemName, sysName);
  layer = TextOf(system, kDuctLayer);
  return system != nullptr;
}

bool CKTDatabaseOperation::GetMainPipeID(const CString& sysName, int& id) {
  return TakeId(FindItem(GetReadPart(kPipeSystemPart), kSystemName, sysName), id);
}

bool CKTDatabaseOperation::GetDuctID(const CString& sysName, int& id) {
  return TakeId(FindItem(GetReadPart(kDuctSystemPart), kSystemName, sysName), id);
}
