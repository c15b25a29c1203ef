// The local-resistance coefficients of tees and crosses, one for each direction of the flow.
#pragma once

#include "plugin/base/ZpExport.h"

// Ports 1 and 3 of a tee are the ends of its straight run, 2 is the branch; those of a cross go round, so
// that 1 faces 3. "merge3" is a tee whose streams leave together at port 3, "split1" one that they enter by
// port 1.
//
// The first three defaults are on purpose not 0: this is what a tee costs when the file can't be read. On
// purpose, too, the flow 1-4 of a cross stands before 1-3, other than in the file; what reads the record as a
// block of 15 numbers relies on it.
struct ZP_EXPORT CZPPipe3T4TCoe {
  double merge3From1 = 1.0;
  double merge3From2 = 2.0;
  double split1To2 = 3.0;
  double split1To3 = 0;
  double merge2From1 = 0;
  double merge2From3 = 0;
  double split2To1 = 0;
  double split2To3 = 0;
  double obliqueSplit3To2 = 0;
  double obliqueMerge1From2 = 0;
  double obliqueMerge1From3 = 0;
  double obliqueMerge3From2 = 0;
  double cross1To2 = 0;
  double cross1To4 = 0;
  double cross1To3 = 0;
};
