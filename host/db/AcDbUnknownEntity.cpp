#include "host/db/AcDbUnknownEntity.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbUnknownEntity, AcDbEntity, "")
