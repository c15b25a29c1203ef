// What the load calculation works on, the base of its records.
#pragma once

#include "host/afx/CObject.h"
#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

class ZP_EXPORT CTQObject : public CObject {
  DECLARE_DYNAMIC(CTQObject)

 public:
  CTQObject();
  ~CTQObject() override;
  CTQObject(const CTQObject&) = default;
  CTQObject& operator=(const CTQObject&) = default;

  CString m_strName;
};
