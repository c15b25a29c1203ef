// One pipe that connects to the block of a fan-coil unit, in the block's own coordinates.
#pragma once

#include "host/afx/CString.h"
#include "host/ge/AcGePoint3d.h"
#include "plugin/base/ZpExport.h"

struct ZP_EXPORT SKTFCUMainPipeData {
  CString szPipeName; // of the pipe system
  AcGePoint3d ptStart;
  AcGePoint3d ptEnd{100.0, 0.0, 0.0};
  double dbDelv = 0.0;
  CString szPipeDia = L"20";
  double dbYcLength = 200.0;
  double dbPipeDist = 0.0;
};
