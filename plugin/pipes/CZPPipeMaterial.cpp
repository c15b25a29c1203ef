#include "plugin/pipes/CZPPipeMaterial.h"

#include "plugin/pipes/PipeName.h"

CZPPipeMaterial::~CZPPipeMaterial() = default;

void CZPPipeMaterial::GetAllPipeName(CStringArray& out) const {
  out.RemoveAll();
  for (const SZPPipeDNData& row : m_arrDNData) out.Add(PipeNameOf(m_strPrefix, row));
}

int CZPPipeMaterial::GetPipeDNData(const CString& pipeName, SZPPipeDNData& out) const {
  for (const SZPPipeDNData& row : m_arrDNData) {
    if (PipeNameOf(m_strPrefix, row) != pipeName) continue;
    out = row;
    return 1;
  }
  return 0;
}
