#include "plugin/resistance/CZPPipePartsCoe.h"

#include "plugin/base/NumberText.h"
#include "plugin/resistance/FittingColumns.h"

CZPPipePartsCoe::~CZPPipePartsCoe() = default;

double CZPPipePartsCoe::GetCoe(const CString& dn) const {
  return resistance::CoefficientAt(*this, ZP::GetCStringRightNumber(dn));
}
