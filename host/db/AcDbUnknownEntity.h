// An entity that the host keeps as it came: everything but the common properties stays in its record.
#pragma once

#include "host/db/AcDbEntity.h"

class AcDbUnknownEntity : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbUnknownEntity);
};
