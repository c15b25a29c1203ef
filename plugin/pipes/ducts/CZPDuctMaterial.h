// A duct material: its roughness, and how thick its walls are by the duct's largest side. The fields are
// edited in place by whoever holds the live object; nothing is saved by that.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/CZPArray.h"
#include "plugin/pipes/ducts/SZPDuctThickness.h"

class ZP_EXPORT CZPDuctMaterial {
 public:
  CString GetName() const { return m_strName; }
  void SetName(const CString& name) { m_strName = name; }

  // The wall thickness for a largest side, mm: that of the first band that the value lies in, for bands may
  // overlap. False, with out as it was, when it lies in none.
  bool GetThickness(double value, double& out) const;

  CString m_strName;
  double m_dRoughness = 0.02;                                   // absolute, mm
  CZPArray<SZPDuctThickness, SZPDuctThickness&> m_arrThickness; // in the user's order
};
