// How many tees and crosses a section has, for each direction of the flow: field for field beside
// CZPPipe3T4TCoe, in the same order.
#pragma once

#include "plugin/base/ZpExport.h"

struct ZP_EXPORT CZPPipe3T4TCoeNum {
  int merge3From1 = 0;
  int merge3From2 = 0;
  int split1To2 = 0;
  int split1To3 = 0;
  int merge2From1 = 0;
  int merge2From3 = 0;
  int split2To1 = 0;
  int split2To3 = 0;
  int obliqueSplit3To2 = 0;
  int obliqueMerge1From2 = 0;
  int obliqueMerge1From3 = 0;
  int obliqueMerge3From2 = 0;
  int cross1To2 = 0;
  int cross1To4 = 0;
  int cross1To3 = 0;
};
