// Models in FCUData.idp, edited in place.
#include <limits>

#include "host/ed/acutPrintf.h"
#include "plugin/fancoil/CKTDatabaseOperation.h"
#include "plugin/fancoil/CatalogueEdit.h"
#include "plugin/fancoil/NumberedItems.h"

using namespace fancoil;

namespace {

CIDPEx* FindModel(CIDPEx& factory, const CString& model) {
  return FindNumberedItem(factory, kEquipmentPrefix, kModelKey, model).node;
}

// The name that data brings must be the model's own. The test is on purpose whether the model to be changed
// exists, not whether the new name is free: to give a model another name it must be added anew.
bool ChangeModel(CatalogueEdit& edit, CIDPEx& factory, const CString& model,
                 const SKTFCUEquipmentData& data) {
  CIDPEx* found = FindModel(factory, model);
  if (!found) return false;
  if (model != data.szMode) {
    acutPrintf(L"\n修改失败!新的设备型号已存在数据库中，请更换名称!");
    return false;
  }
  WriteEquipment(*found, data);
  return edit.Save();
}

} // namespace

bool CKTDatabaseOperation::AddEquipment(const SKTFCUEquipmentData& data, const CString& factoryName,
                                        bool overwrite) {
  CatalogueEdit edit;
  if (!edit.IsOpen()) return false;
  CIDPEx* factory = edit.FindFactory(factoryName);
  if (!factory) return edit.Save();
  if (FindModel(*factory, data.szMode)) return overwrite && ChangeModel(edit, *factory, data.szMode, data);
  const int count = ItemCount(*factory);
  if (count == std::numeric_limits<int>::max()) return false; // only damage makes such a count
  WriteEquipment(MakeNumberedItem(*factory, kEquipmentPrefix, count), data);
  factory->SetSubValue(kCountKey, count + 1);
  return edit.Save();
}

bool CKTDatabaseOperation::ChangeEquipmentData(const CString& model, const CString& factoryName,
                                               const SKTFCUEquipmentData& data) {
  CatalogueEdit edit;
  if (!edit.IsOpen()) return false;
  CIDPEx* factory = edit.FindFactory(factoryName);
  if (!factory) return edit.Save();
  return ChangeModel(edit, *factory, model, data);
}

// It looks for a key that no record has, so that models stay; only a record that somebody has given the key
// can be removed in this way.
bool CKTDatabaseOperation::RemoveEquipment(const CString& model, const CString& factoryName) {
  CatalogueEdit edit;
  if (!edit.IsOpen()) return false;
  if (CIDPEx* factory = edit.FindFactory(factoryName)) {
    const NumberedItem found = FindNumberedItem(*factory, kEquipmentPrefix, L"设备型号名", model);
    if (found.node) {
      factory->DeleteSubKey(found.key);
      factory->SetSubValue(kCountKey, ItemCount(*factory) - 1);
    }
  }
  return edit.Save();
}

// The result is whether the maker is missing, and nothing else: callers preset out and look at it.
bool CKTDatabaseOperation::GetEquipmentData(const CString& model, const CString& factoryName,
                                            SKTFCUEquipmentData& out) {
  CatalogueEdit edit;
  if (!edit.IsOpen()) return false;
  CIDPEx* factory = edit.FindFactory(factoryName);
  if (!factory) return true;
  for (const NumberedItem& item : NumberedItems(*factory, kEquipmentPrefix)) {
    CString text;
    if (item.node->GetSubValue(kModelKey, text) && text == model) ReadEquipment(*item.node, out);
  }
  return false;
}
