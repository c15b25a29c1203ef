// The symbol tables of which the host needs the names only: registered applications, dimension styles, views
// and coordinate systems. Everything else of their records is kept as it came.
#pragma once

#include "host/db/AcDbSymbolTable.h"

class AcDbRegAppTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbRegAppTableRecord);

 protected:
  void dxfOutFields(DxfRecordEditor& editor) const override;
};

class AcDbDimStyleTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbDimStyleTableRecord);

 protected:
  void dxfOutFields(DxfRecordEditor& editor) const override;
};

class AcDbViewTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbViewTableRecord);
};

class AcDbUCSTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbUCSTableRecord);
};

ZP_SYMBOL_TABLE(AcDbRegApp);
ZP_SYMBOL_TABLE(AcDbDimStyle);
ZP_SYMBOL_TABLE(AcDbView);
ZP_SYMBOL_TABLE(AcDbUCS);
