// What stands in the lists of the load calculation under a number.
#pragma once

#include "plugin/base/ZpExport.h"
#include "plugin/rooms/CTQCalObject.h"

class ZP_EXPORT CTQMngObject : public CTQCalObject {
  DECLARE_DYNAMIC(CTQMngObject)

 public:
  CTQMngObject();
  ~CTQMngObject() override;
  CTQMngObject(const CTQMngObject&) = default;
  CTQMngObject& operator=(const CTQMngObject&) = default;

  CString m_strNumber; // as it is shown: "101"
};
