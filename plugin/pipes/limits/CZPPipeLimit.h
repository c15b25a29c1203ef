// What a pipe of one size may carry: its ranges of flow velocity and of specific friction loss. The ranges
// are read and written directly; nothing is saved by that.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"
#include "plugin/pipes/limits/SZPRange.h"

class ZP_EXPORT CZPPipeLimit {
 public:
  CZPPipeLimit() = default;
  CZPPipeLimit(const CZPPipeLimit&) = default;
  CZPPipeLimit& operator=(const CZPPipeLimit&) = default;
  virtual ~CZPPipeLimit();

  // The pipe size as a number in text form: "25".
  CString GetName() const { return m_strName; }
  void SetName(const CString& name) { m_strName = name; }

  CString m_strName;
  SZPRange m_velocity; // m/s
  SZPRange m_friction; // Pa/m
};
