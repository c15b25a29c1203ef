// The duct half of PipeMaterial.idp.
#include <memory>
#include <unordered_set>
#include <vector>

#include "plugin/base/CIDPEx.h"
#include "plugin/base/FileFaults.h"
#include "plugin/base/NumberText.h"
#include "plugin/base/VersionMark.h"
#include "plugin/pipes/OwnedElements.h"
#include "plugin/pipes/PipeMaterialPath.h"
#include "plugin/pipes/ducts/CZPDuctMaterialManager.h"
#include "plugin/pipes/ducts/DuctFields.h"

namespace {

using Sizes = pipes::OwnedElements<CZPDuctDiameter>;

constexpr const wchar_t* kMissing = L"缺少此段";
constexpr const wchar_t* kGap = L"编号不连续，有的项";

CString Under(const CString& position, const CString& key) {
  return position + L"\\" + key;
}

// --- reading

SZPDuctThickness ReadRow(CIDPEx* node) {
  SZPDuctThickness row;
  if (!node) return row;
  for (const DuctThicknessField& field : kDuctThicknessFields)
    node->GetSubValue(field.key, row.*field.member);
  return row;
}

std::unique_ptr<CZPDuctMaterial> ReadMaterial(const CString& name, CIDPEx& node, CIDPEx& table) {
  auto material = std::make_unique<CZPDuctMaterial>();
  material->m_strName = name;
  for (int j = 0; j < table.SubKeyNames.GetSize(); ++j) {
    SZPDuctThickness row = ReadRow(table.GetSubItem(ZP::itoa(j)));
    material->m_arrThickness.Add(row);
  }
  for (const DuctMaterialField& field : kDuctMaterialFields)
    node.GetSubValue(field.key, (*material).*field.member);
  return material;
}

void ReadMaterials(const CString& path, CIDPEx& section, pipes::OwnedElements<CZPDuctMaterial>& materials) {
  bool gap = false;
  for (int i = 0; i < section.SubKeyNames.GetSize(); ++i) {
    const CString index = ZP::itoa(i);
    CIDPEx* record = section.GetSubItem(index);
    if (!record) gap = true;
    if (!record || record->SubKeyNames.IsEmpty()) continue;
    const CString name = record->SubKeyNames[0];
    CIDPEx* node = record->GetSubItem(name);
    CIDPEx* table = node->GetSubItem(kDuctThicknessTable);
    if (!table) {
      idp::LogUnread(path, Under(Under(kDuctMaterialSection, index), name), L"缺少壁厚数据");
      continue;
    }
    // Names may repeat in a file: all are taken.
    materials.Add(ReadMaterial(name, *node, *table).release());
  }
  if (gap) idp::LogUnread(path, kDuctMaterialSection, kGap);
}

struct ReadSize {
  CString index;
  std::unique_ptr<CZPDuctDiameter> size;
};

std::vector<ReadSize> ReadSizes(const CString& path, const CString& position, CIDPEx& section) {
  std::vector<ReadSize> sizes;
  bool gap = false;
  for (int i = 0; i < section.SubKeyNames.GetSize(); ++i) {
    const CString index = ZP::itoa(i);
    CIDPEx* node = section.GetSubItem(index);
    if (!node) gap = true;
    if (!node || node->SubKeyNames.IsEmpty()) continue;
    auto size = std::make_unique<CZPDuctDiameter>();
    for (const DuctSizeField& field : kDuctSizeFields) node->GetSubValue(field.key, (*size).*field.member);
    sizes.push_back({index, std::move(size)});
  }
  if (gap) idp::LogUnread(path, position, kGap);
  return sizes;
}

// Appends all of them before the list is sorted once, which has the same result as sorting after each. What
// the sort dropped nobody else knows, and it goes.
template <typename Sort>
void TakeSizes(const CString& path, const CString& position, CIDPEx& section, Sizes& list, Sort sort) {
  std::vector<ReadSize> read = ReadSizes(path, position, section);
  if (read.empty()) return;
  for (const ReadSize& item : read) list.Add(item.size.get());
  sort();
  const std::unordered_set<const CZPDuctDiameter*> kept(list.begin(), list.end());
  for (ReadSize& item : read) {
    if (kept.contains(item.size.get()))
      item.size.release();
    else
      idp::LogUnread(path, Under(position, item.index), L"规格重复");
  }
}

// --- writing

template <typename Record, typename Fields>
void WriteFields(CIDPEx& node, const Record& record, const Fields& fields) {
  for (const auto& field : fields) node.SetSubValue(field.key, record.*field.member);
}

CIDPEx& Item(CIDPEx& parent, const CString& key, auto value) {
  parent.SetSubValue(key, value);
  return *parent.GetSubItem(key);
}

// A node that holds nothing but what is written below it from now on.
CIDPEx& EmptySection(CIDPEx& parent, const CString& key) {
  CIDPEx& section = Item(parent, key, L"");
  section.ClearDataFromMemory();
  return section;
}

void WriteMaterial(CIDPEx& node, const CZPDuctMaterial& material) {
  CIDPEx& table = Item(node, kDuctThicknessTable, L"");
  for (int j = 0; j < material.m_arrThickness.GetSize(); ++j)
    WriteFields(Item(table, ZP::itoa(j), j), material.m_arrThickness[j], kDuctThicknessFields);
  WriteFields(node, material, kDuctMaterialFields);
}

// A null element leaves its index without anything below it.
void WriteSizes(CIDPEx& section, const Sizes& sizes) {
  for (int i = 0; i < sizes.GetSize(); ++i) {
    CIDPEx& node = Item(section, ZP::itoa(i), i);
    if (sizes[i]) WriteFields(node, *sizes[i], kDuctSizeFields);
  }
}

} // namespace

bool CZPDuctMaterialManager::ReadData() {
  const CString path = pipes::PipeMaterialPath();
  CIDPEx root;
  if (!root.Open(path)) return false;
  CString version;
  root.GetSubValue(L"Version", version);
  if (!ZP::CheckVersionMark(path, version, {pipes::kPipeMaterialVersion})) return false;

  CIDPEx* materials = root.GetSubItem(kDuctMaterialSection);
  CIDPEx* sizes = root.GetSubItem(kDuctSizeSection);
  if (!materials) {
    // A file that only the pipes have written so far has no duct section at all, and nothing is wrong.
    if (sizes) idp::LogUnread(path, kDuctMaterialSection, L"缺少此段，其后的风管管径方案");
    return false;
  }
  ReadMaterials(path, *materials, m_arrMaterials);
  if (!sizes) {
    idp::LogFault(path, kDuctSizeSection, kMissing);
    return false;
  }
  CIDPEx* rect = sizes->GetSubItem(kRectSizes);
  CIDPEx* circle = sizes->GetSubItem(kCircleSizes);
  const CString rectPosition = Under(kDuctSizeSection, kRectSizes);
  const CString circlePosition = Under(kDuctSizeSection, kCircleSizes);
  if (!rect) {
    if (circle)
      idp::LogUnread(path, rectPosition, L"缺少此段，其后的圆形风管管径方案");
    else
      idp::LogFault(path, rectPosition, kMissing);
    return false;
  }
  TakeSizes(path, rectPosition, *rect, m_arrRectDiameters, [this] { SortRectDuctDiameter(); });
  if (!circle) {
    idp::LogFault(path, circlePosition, kMissing);
    return false;
  }
  TakeSizes(path, circlePosition, *circle, m_arrCircleDiameters, [this] { SortCircleDuctDiameter(); });
  return true;
}

bool CZPDuctMaterialManager::SaveData() {
  const CString path = pipes::PipeMaterialPath();
  CIDPEx root;
  root.Open(path);
  root.SetSubValue(L"Version", pipes::kPipeMaterialVersion);
  CIDPEx& materials = EmptySection(root, kDuctMaterialSection);
  for (int i = 0; i < m_arrMaterials.GetSize(); ++i) {
    CIDPEx& record = Item(materials, ZP::itoa(i), i);
    const CZPDuctMaterial* material = m_arrMaterials[i];
    if (material) WriteMaterial(Item(record, material->m_strName, L""), *material);
  }
  CIDPEx& sizes = EmptySection(root, kDuctSizeSection);
  WriteSizes(Item(sizes, kRectSizes, L""), m_arrRectDiameters);
  WriteSizes(Item(sizes, kCircleSizes, L""), m_arrCircleDiameters);
  return root.Save(path) != 0;
}
