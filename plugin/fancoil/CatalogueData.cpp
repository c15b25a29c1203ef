// The catalogue from FCUData.idp into memory and back. Edits in the file itself are in FactoryEdits.cpp and
// EquipmentEdits.cpp.
#include <memory>
#include <string_view>
#include <unordered_set>

#include "host/afx/MessageLog.h"
#include "plugin/fancoil/CFCUManager.h"
#include "plugin/fancoil/CatalogueFile.h"
#include "plugin/fancoil/NumberedItems.h"

using namespace fancoil;

namespace {

void WriteFactory(const CFCUFactory& factory, CIDPEx& node) {
  const int count = factory.m_arrEquipments.GetSize();
  node.SetSubValue(kFactoryNameKey, factory.GetName());
  node.SetSubValue(kCountKey, count);
  for (int j = 0; j < count; ++j) {
    CIDPEx& item = MakeNumberedItem(node, kEquipmentPrefix, j);
    const CFCUEquipment* equipment = factory.m_arrEquipments[j];
    if (equipment) WriteEquipment(item, equipment->m_data);
  }
}

// The next save loses it.
void LogDropped(const CString& factory, const CString& model) {
  afx::LogError(L"参数文件 " + CataloguePath() + L"：厂家“" + factory + L"”的型号“" + model +
                L"”重复，只读入前一个");
}

} // namespace

int CFCUManager::ReadData() {
  CIDPEx root;
  bool known = false;
  if (!OpenCatalogue(root, known) || !known) return 0;
  for (const NumberedItem& item : NumberedItems(root, kFactoryPrefix)) {
    CString name;
    if (!item.node->GetSubValue(kFactoryNameKey, name)) continue;
    auto factory = std::make_unique<CFCUFactory>();
    factory->SetName(name);
    // Of models with one name the first stands. The set, of texts in the models themselves, keeps the cost of
    // a large maker in proportion.
    std::unordered_set<std::wstring_view> names;
    for (const NumberedItem& model : NumberedItems(*item.node, kEquipmentPrefix)) {
      auto equipment = std::make_unique<CFCUEquipment>();
      if (!model.node->GetSubValue(kModelKey, equipment->m_data.szMode)) continue;
      ReadEquipment(*model.node, equipment->m_data);
      equipment->SetName(CString(equipment->m_data.szMode));
      if (names.insert(equipment->m_data.szMode.View()).second)
        factory->Append(equipment.release());
      else
        LogDropped(name, equipment->GetName());
    }
    // Makers of one name all stand: what is in the file stays visible.
    m_arrFactories.Add(factory.release());
  }
  return 1;
}

int CFCUManager::SaveData() {
  CIDPEx root;
  const int count = m_arrFactories.GetSize();
  root.SetValue(kVersionMark);
  root.SetSubValue(kCountKey, count);
  for (int i = 0; i < count; ++i) {
    CIDPEx& item = MakeNumberedItem(root, kFactoryPrefix, i);
    if (m_arrFactories[i]) WriteFactory(*m_arrFactories[i], item);
  }
  return root.Save(CataloguePath()) != 0;
}
