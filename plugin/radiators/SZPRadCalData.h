// The input of one radiator calculation. It is no part of the catalogue's file.
#pragma once

#include "plugin/base/ZpExport.h"

struct ZP_EXPORT SZPRadCalData {
  double dbQj = 1000.0; // load on the radiator, W
  double dbTg = 80.0;   // supply water, ℃
  double dbTh = 60.0;   // return water, ℃
  double dbTn = 18.0;   // room, ℃
  // Correction factors; CorrectionTables.h has the tables that they are taken from.
  double dbBeta1 = 1.0; // section count or length
  double dbBeta2 = 1.0; // branch connection
  double dbBeta3 = 1.0; // installation
  double dbBeta4 = 1.0; // flow into the radiator
};
