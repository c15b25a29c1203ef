#include "host/db/AcDbNamedTables.h"

#include "host/db/DxfRecordEditor.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbRegAppTableRecord, AcDbSymbolTableRecord, "APPID")
ACRX_DXF_DEFINE_MEMBERS(AcDbRegAppTable, AcDbSymbolTable, "")
ACRX_DXF_DEFINE_MEMBERS(AcDbDimStyleTableRecord, AcDbSymbolTableRecord, "DIMSTYLE")
ACRX_DXF_DEFINE_MEMBERS(AcDbDimStyleTable, AcDbSymbolTable, "")
ACRX_DXF_DEFINE_MEMBERS(AcDbViewTableRecord, AcDbSymbolTableRecord, "VIEW")
ACRX_DXF_DEFINE_MEMBERS(AcDbViewTable, AcDbSymbolTable, "")
ACRX_DXF_DEFINE_MEMBERS(AcDbUCSTableRecord, AcDbSymbolTableRecord, "UCS")
ACRX_DXF_DEFINE_MEMBERS(AcDbUCSTable, AcDbSymbolTable, "")

void AcDbRegAppTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutEntry(editor, "APPID", "AcDbRegAppTableRecord");
}

void AcDbDimStyleTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  // Dimension styles keep their handle under a code of its own, because 5 is an arrow's name there.
  dxfOutEntry(editor, "DIMSTYLE", "AcDbDimStyleTableRecord", 105);
}
