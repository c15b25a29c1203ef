#include "tools/data/PipeMaterials.h"

#include <cmath>
#include <memory>

#include "plugin/base/NumberText.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "tools/data/Table.h"

namespace {

// The scheme of a material by its id.
void TakeLabelScheme(const Table& labels, const CString& id, CZPPipeMaterial& material) {
  for (int row = 0; row < labels.RowCount(); ++row) {
    if (labels.Text(row, "material_id") != id) continue;
    material.m_strPrefix = labels.Text(row, "prefix");
    material.m_strParamA = labels.Text(row, "a");
    material.m_strConnector = labels.Text(row, "connector");
    material.m_strParamB = labels.Text(row, "b");
    material.m_strSuffix = labels.Text(row, "suffix");
    material.m_dAlongDistance = labels.Number(row, "along_mm");
    return;
  }
  throw TableError("pipe_labels.tsv: no label for " + id.ToUtf8());
}

SZPPipeDNData DiameterRow(const Table& pipes, int row, const CString& prefix) {
  const CString nominal = pipes.Text(row, "nominal");
  SZPPipeDNData data;
  data.dbNominal = ZP::GetCStringRightNumber(nominal);
  data.dbOuter = pipes.Number(row, "outer_mm");
  data.dbInner = pipes.Number(row, "inner_mm");
  data.dbThickness = pipes.Number(row, "wall_mm");
  // Whoever reads the file calls the row by prefix and number, so they must give the name that the table has.
  if (prefix + ZP::ftoa(data.dbNominal, 2, true) != nominal)
    pipes.Fail(row, "nominal: not " + prefix.ToUtf8() + " and a number");
  if (data.dbInner <= 0 || std::abs(data.dbOuter - 2 * data.dbThickness - data.dbInner) > 1e-9)
    pipes.Fail(row, "inner diameter, outer diameter and wall don't agree");
  return data;
}

} // namespace

void WritePipeMaterials(const std::string& tables) {
  const Table pipes(tables, "pipes.tsv");
  const Table labels(tables, "pipe_labels.tsv");
  CZPPipeMaterialManager& catalogue = *CZPPipeMaterialManager::GetInstance();
  while (CZPPipeMaterial* old = catalogue.GetInitialPipeMaterial()) catalogue.Remove(old);
  for (int row = 0; row < pipes.RowCount(); ++row) {
    const CString name = pipes.Text(row, "material");
    CZPPipeMaterial* material = catalogue.GetPipeMaterial(name);
    if (!material) {
      auto made = std::make_unique<CZPPipeMaterial>();
      made->SetName(name);
      made->m_dRoughness = pipes.Number(row, "roughness_mm");
      TakeLabelScheme(labels, pipes.Text(row, "material_id"), *made);
      material = made.get();
      if (catalogue.Add(material)) made.release();
    }
    if (material->m_dRoughness != pipes.Number(row, "roughness_mm")) pipes.Fail(row, "two roughnesses");
    SZPPipeDNData data = DiameterRow(pipes, row, material->m_strPrefix);
    material->m_arrDNData.Add(data);
  }
  if (!catalogue.SaveData()) throw TableError("PipeMaterial.idp can't be written");
}
