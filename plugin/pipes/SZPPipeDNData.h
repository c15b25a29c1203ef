// One row of a pipe material's diameter table. All lengths in millimetres.
#pragma once

#include "plugin/base/ZpExport.h"

struct ZP_EXPORT SZPPipeDNData {
  double dbNominal = 20;
  double dbOuter = 20;
  double dbInner = 19;
  double dbThickness = 0.5;

  SZPPipeDNData() = default;
  // The wall thickness follows from the two diameters.
  SZPPipeDNData(double nominal, double outer, double inner);

  // Stores and returns half the difference of the diameters; negative when the inner one is the larger.
  double CalThickness();
};
