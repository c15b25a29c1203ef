#include "plugin/resistance/CZPLocalResistanceMng.h"

#include "plugin/base/Folders.h"
#include "plugin/base/SingletonForm.h"
#include "plugin/resistance/FittingColumns.h"

CZPLocalResistanceMng::CZPLocalResistanceMng() {
  ReadData();
}

CZPLocalResistanceMng::CZPLocalResistanceMng(const CZPLocalResistanceMng&) = default;
CZPLocalResistanceMng& CZPLocalResistanceMng::operator=(const CZPLocalResistanceMng&) = default;
CZPLocalResistanceMng::~CZPLocalResistanceMng() = default;

ZP_IMPLEMENT_SINGLETON(CZPLocalResistanceMng)

int CZPLocalResistanceMng::GetPipePartsCoe(const CString& name, CZPPipePartsCoe& out) const {
  const CZPPipePartsCoe* fitting = resistance::FindFitting(m_arrPartsCoe, name);
  if (!fitting) return 0;
  out = *fitting;
  return 1;
}

int CZPLocalResistanceMng::GetBmp(const CString& form, CString& path) const {
  const auto found = m_mapBmp.find(form);
  if (found == m_mapBmp.end()) return 0;
  path = ZP::GetDataBmpPath() + found->second;
  return 1;
}
