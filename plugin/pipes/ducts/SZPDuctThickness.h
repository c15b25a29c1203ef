// One row of a duct material's table: how thick the wall is when the largest side lies in a band. Lengths in
// millimetres.
#pragma once

#include "plugin/base/ZpExport.h"

struct ZP_EXPORT SZPDuctThickness {
  double dbMin = 0; // of the largest side
  double dbMax = 0;
  double dbThickness = 0;

  SZPDuctThickness() = default;
  SZPDuctThickness(double min, double max, double thickness)
      : dbMin(min), dbMax(max), dbThickness(thickness) {}

  // Whether the value lies in the band, to which both its bounds belong, within the tolerance of lengths.
  bool IsDNInRange(double value) const;
};
