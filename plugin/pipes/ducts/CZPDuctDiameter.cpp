#include "plugin/pipes/ducts/CZPDuctDiameter.h"

#include "plugin/base/NumberText.h"

CString CZPDuctDiameter::GetSizeText() const {
  return ZP::ftoa(m_dWidth, 2, true);
}
