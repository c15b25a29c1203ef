// A fitting of a pipe section: its name in the store of coefficients, and how many of it there are.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

class ZP_EXPORT CZPPipeParts {
 public:
  CZPPipeParts() = default; // one, without a name
  CZPPipeParts(const CString& name, int number) : m_strName(name), m_nNumber(number) {}

  CString GetName() const { return m_strName; }
  int GetNumber() const { return m_nNumber; }
  void SetName(const CString& name) { m_strName = name; }
  void SetNumber(int number) { m_nNumber = number; }

 private:
  friend class CZPLocalResistanceSettings; // looks at names without copying them
  CString m_strName;
  int m_nNumber = 1;
};
