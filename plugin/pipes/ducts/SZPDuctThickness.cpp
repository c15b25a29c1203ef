#include "plugin/pipes/ducts/SZPDuctThickness.h"

#include "plugin/base/Tolerance.h"

bool SZPDuctThickness::IsDNInRange(double value) const {
  return ZP::GreaterOrEqual(value, dbMin) && ZP::LessOrEqual(value, dbMax);
}
