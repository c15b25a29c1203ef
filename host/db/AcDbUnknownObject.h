// An object of the OBJECTS section that the host keeps as it came.
#pragma once

#include "host/db/AcDbObject.h"

class AcDbUnknownObject : public AcDbObject {
  ACRX_DECLARE_MEMBERS(AcDbUnknownObject);

 protected:
  void dxfOutFields(DxfRecordEditor& editor) const override;
};
