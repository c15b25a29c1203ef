#include "tools/data/Ducts.h"

#include <memory>
#include <set>

#include "plugin/base/NumberText.h"
#include "plugin/pipes/ducts/CZPDuctMaterialManager.h"
#include "tools/data/Table.h"

namespace {

// A material has one table of walls, so one of the columns of the standard is shipped: the one for most ducts
// of ventilation and air conditioning. It holds for galvanised steel alone.
constexpr const wchar_t* kThicknessMaterial = L"GS";
constexpr const wchar_t* kThicknessStandard = L"GB 50243-2016";
constexpr const wchar_t* kThicknessClass = L"微压、低压";

void EmptyCatalogue(CZPDuctMaterialManager& catalogue) {
  while (CZPDuctMaterial* old = catalogue.GetInitialDuctMaterial()) catalogue.Remove(old);
  while (!catalogue.m_arrRectDiameters.IsEmpty())
    catalogue.RemoveRectDuctDiameter(catalogue.m_arrRectDiameters[0]);
  while (!catalogue.m_arrCircleDiameters.IsEmpty())
    catalogue.RemoveCircleDuctDiameter(catalogue.m_arrCircleDiameters[0]);
}

// Bands follow upon each other. A bound belongs to both of its bands, and the first one found counts, so a
// band holds what is above its lower bound, as the standard has it.
void TakeThicknesses(const Table& table, CZPDuctMaterial& material) {
  double end = 0;
  for (int row = 0; row < table.RowCount(); ++row) {
    if (table.Text(row, "standard") != kThicknessStandard) continue;
    if (table.Text(row, "pressure_class") != kThicknessClass) continue;
    if (table.Text(row, "thickness_mm").IsEmpty()) continue; // left to the design: the catalogue has no band
    SZPDuctThickness band(table.Number(row, "over_mm"), table.Number(row, "upto_mm"),
                          table.Positive(row, "thickness_mm"));
    if (band.dbMin != end || band.dbMax <= band.dbMin) table.Fail(row, "over_mm: bands don't follow");
    end = band.dbMax;
    material.m_arrThickness.Add(band);
  }
  if (end == 0) throw TableError("duct_thickness.tsv: no band of the shipped column");
}

void TakeMaterials(const Table& materials, const Table& thicknesses, CZPDuctMaterialManager& catalogue) {
  for (int row = 0; row < materials.RowCount(); ++row) {
    materials.CheckSource(row);
    auto material = std::make_unique<CZPDuctMaterial>();
    material->SetName(materials.Text(row, "material"));
    material->m_dRoughness = materials.Positive(row, "roughness_mm");
    if (materials.Text(row, "material_id") == kThicknessMaterial) TakeThicknesses(thicknesses, *material);
    if (!catalogue.Add(material.get())) materials.Fail(row, "material twice");
    material.release();
  }
}

std::set<double> Sides(const Table& sizes) {
  std::set<double> sides;
  for (int row = 0; row < sizes.RowCount(); ++row)
    if (sizes.Text(row, "kind") == L"rect_side") sides.insert(sizes.Positive(row, "a_mm"));
  return sides;
}

void TakeRectSize(const Table& sizes, int row, const std::set<double>& sides,
                  CZPDuctMaterialManager& catalogue) {
  auto size = std::make_unique<CZPDuctDiameter>(sizes.Positive(row, "a_mm"), sizes.Positive(row, "b_mm"));
  if (!sides.contains(size->m_dWidth) || !sides.contains(size->m_dHeight))
    sizes.Fail(row, "no side of the series");
  if (size->m_dHeight > size->m_dWidth || size->m_dWidth > 4 * size->m_dHeight)
    sizes.Fail(row, "sides not as 1:1 to 4:1");
  for (const CZPDuctDiameter* other : catalogue.m_arrRectDiameters)
    if (other->m_dWidth == size->m_dWidth && other->m_dHeight == size->m_dHeight)
      sizes.Fail(row, "size twice");
  if (catalogue.AddRectDuctDiameter(size.get())) size.release();
}

void TakeRoundSize(const Table& sizes, int row, CZPDuctMaterialManager& catalogue) {
  if (!sizes.Text(row, "b_mm").IsEmpty()) sizes.Fail(row, "b_mm: a round size has one measure");
  auto size = std::make_unique<CZPDuctDiameter>(sizes.Positive(row, "a_mm"), 0);
  for (const CZPDuctDiameter* other : catalogue.m_arrCircleDiameters)
    if (other->GetSizeText() == size->GetSizeText()) sizes.Fail(row, "size twice");
  if (catalogue.AddCircleDuctDiameter(size.get())) size.release();
}

void TakeSizes(const Table& sizes, CZPDuctMaterialManager& catalogue) {
  const std::set<double> sides = Sides(sizes);
  for (int row = 0; row < sizes.RowCount(); ++row) {
    sizes.CheckSource(row);
    const CString kind = sizes.Text(row, "kind");
    if (kind == L"rect")
      TakeRectSize(sizes, row, sides, catalogue);
    else if (kind == L"round")
      TakeRoundSize(sizes, row, catalogue);
    else if (kind != L"rect_side")
      sizes.Fail(row, "kind: not rect_side, rect or round");
  }
}

} // namespace

void WriteDucts(const std::string& tables) {
  CZPDuctMaterialManager& catalogue = *CZPDuctMaterialManager::GetInstance();
  EmptyCatalogue(catalogue);
  const Table thicknesses(tables, "duct_thickness.tsv");
  for (int row = 0; row < thicknesses.RowCount(); ++row) thicknesses.CheckSource(row);
  TakeMaterials(Table(tables, "duct_materials.tsv"), thicknesses, catalogue);
  TakeSizes(Table(tables, "ducts.tsv"), catalogue);
  if (!catalogue.SaveData()) throw TableError("PipeMaterial.idp can't be written");
}
