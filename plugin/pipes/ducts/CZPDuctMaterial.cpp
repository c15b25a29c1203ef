#include "plugin/pipes/ducts/CZPDuctMaterial.h"

bool CZPDuctMaterial::GetThickness(double value, double& out) const {
  for (const SZPDuctThickness& row : m_arrThickness) {
    if (!row.IsDNInRange(value)) continue;
    out = row.dbThickness;
    return true;
  }
  return false;
}
