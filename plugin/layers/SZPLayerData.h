// What a layer definition says: the identifier by which modules ask for the layer, the name it bears in a
// drawing, and how it looks.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

struct ZP_EXPORT SZPLayerData {
  CString KorLayer;
  CString UserLayer = L"0";
  int ColorIndex = 256; // of the host; 256 stands for by layer
  CString LineType = L"ByLayer";
  double LineTypeScale = 1.0;
  double LineWeight =
      -0.03; // mm; times 100 it is the host's code: -0.01 by layer, -0.02 by block, -0.03 default
  CString LayerCode;
  CString Remarks;
};
