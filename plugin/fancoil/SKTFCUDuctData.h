// One duct that connects to the block of a fan-coil unit, in the block's own coordinates.
#pragma once

#include "host/afx/CString.h"
#include "host/ge/AcGePoint3d.h"
#include "plugin/base/ZpExport.h"

struct ZP_EXPORT SKTFCUDuctData {
  CString szDuctName; // of the duct system
  CString szShape = L"矩形";
  AcGePoint3d ptStart;
  AcGePoint3d ptEnd;
  double dbYcLength = 200.0;
  double dbDelv = 0.0;
  double dbFaceWidth = 500.0;
  double dbFaceHeight = 500.0;
};
