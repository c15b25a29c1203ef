// One standard size of ducts, without a name. Millimetres.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

class ZP_EXPORT CZPDuctDiameter {
 public:
  CZPDuctDiameter() = default;
  CZPDuctDiameter(double width, double height) : m_dWidth(width), m_dHeight(height) {}

  // The width with at most two decimals, whatever the height: what sizes are sorted and asked about by.
  CString GetSizeText() const;

  double m_dWidth = 0;  // the diameter of a round duct
  double m_dHeight = 0; // 0 for a round duct, and stored all the same
};
