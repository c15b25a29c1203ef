#include "plugin/pipes/PipeName.h"

#include "plugin/base/NumberText.h"

CString PipeNameOf(const CString& prefix, const SZPPipeDNData& row) {
  return prefix + ZP::ftoa(row.dbNominal, 2, true);
}
