// A closed range.
#pragma once

#include "plugin/base/ZpExport.h"

struct ZP_EXPORT SZPRange {
  double dbMin = 0;
  double dbMax = 0;

  SZPRange() = default;
  SZPRange(double minimum, double maximum) : dbMin(minimum), dbMax(maximum) {}
};
