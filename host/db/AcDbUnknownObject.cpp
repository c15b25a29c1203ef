#include "host/db/AcDbUnknownObject.h"

#include "host/db/DxfRecordEditor.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbUnknownObject, AcDbObject, "")

void AcDbUnknownObject::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutHead(editor, rawRecord().type());
}
