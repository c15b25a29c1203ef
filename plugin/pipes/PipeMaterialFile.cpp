// The pipe half of PipeMaterial.idp. The ducts keep theirs in the same file, so a save begins by reading what
// the file holds at that moment.
#include <memory>

#include "plugin/base/CIDPEx.h"
#include "plugin/base/FileFaults.h"
#include "plugin/base/NumberText.h"
#include "plugin/base/VersionMark.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "plugin/pipes/PipeFields.h"
#include "plugin/pipes/PipeMaterialPath.h"

namespace {

// A key that the file lacks leaves the field at its default.
SZPPipeDNData ReadRow(CIDPEx* node) {
  SZPPipeDNData row;
  if (!node) return row;
  for (const PipeRowField& field : kPipeRowFields) node->GetSubValue(field.key, row.*field.member);
  return row;
}

std::unique_ptr<CZPPipeMaterial> ReadMaterial(const CString& name, CIDPEx& node, CIDPEx& table) {
  auto material = std::make_unique<CZPPipeMaterial>();
  material->m_strName = name;
  for (int j = 0; j < table.SubKeyNames.GetSize(); ++j) {
    SZPPipeDNData row = ReadRow(table.GetSubItem(ZP::itoa(j)));
    material->m_arrDNData.Add(row);
  }
  for (const PipeMaterialField& field : kPipeMaterialFields)
    std::visit([&](auto member) { node.GetSubValue(field.key, (*material).*member); }, field.member);
  return material;
}

void WriteMaterial(const CZPPipeMaterial& material, CIDPEx& node) {
  node.SetSubValue(kPipeTable, L"");
  CIDPEx* table = node.GetSubItem(kPipeTable);
  for (int j = 0; j < material.m_arrDNData.GetSize(); ++j) {
    const CString index = ZP::itoa(j);
    table->SetSubValue(index, j);
    CIDPEx* row = table->GetSubItem(index);
    for (const PipeRowField& field : kPipeRowFields)
      row->SetSubValue(field.key, material.m_arrDNData[j].*field.member);
  }
  for (const PipeMaterialField& field : kPipeMaterialFields)
    std::visit([&](auto member) { node.SetSubValue(field.key, material.*member); }, field.member);
}

} // namespace

bool CZPPipeMaterialManager::ReadData() {
  const CString path = pipes::PipeMaterialPath();
  CIDPEx root;
  if (!root.Open(path)) return false;
  CString version;
  root.GetSubValue(L"Version", version);
  if (!ZP::CheckVersionMark(path, version, {pipes::kPipeMaterialVersion})) return false;
  CIDPEx* section = root.GetSubItem(kPipeSection);
  // A file that only the ducts have written so far has no pipe section: an empty catalogue, and no failure.
  if (!section) return true;
  bool gap = false;
  for (int i = 0; i < section->SubKeyNames.GetSize(); ++i) {
    const CString index = ZP::itoa(i);
    CIDPEx* record = section->GetSubItem(index);
    if (!record) gap = true;
    if (!record || record->SubKeyNames.IsEmpty()) continue;
    const CString name = record->SubKeyNames[0];
    CIDPEx* node = record->GetSubItem(name);
    CIDPEx* table = node->GetSubItem(kPipeTable);
    if (!table) {
      idp::LogUnread(path, CString(kPipeSection) + L"\\" + index + L"\\" + name, L"缺少管径数据");
      continue;
    }
    // Names may repeat in a file: all are taken.
    m_arrMaterials.Add(ReadMaterial(name, *node, *table).release());
  }
  if (gap) idp::LogUnread(path, kPipeSection, L"编号不连续，有的项");
  return true;
}

bool CZPPipeMaterialManager::SaveData() {
  const CString path = pipes::PipeMaterialPath();
  CIDPEx root;
  root.Open(path);
  root.SetSubValue(L"Version", pipes::kPipeMaterialVersion);
  root.SetSubValue(kPipeSection, L"");
  CIDPEx* section = root.GetSubItem(kPipeSection);
  if (!section) return false;
  section->ClearDataFromMemory();
  for (int i = 0; i < m_arrMaterials.GetSize(); ++i) {
    const CString index = ZP::itoa(i);
    section->SetSubValue(index, i);
    const CZPPipeMaterial* material = m_arrMaterials[i];
    if (!material) continue;
    CIDPEx* record = section->GetSubItem(index);
    record->SetSubValue(material->m_strName, L"");
    WriteMaterial(*material, *record->GetSubItem(material->m_strName));
  }
  return root.Save(path) != 0;
}
