#include "plugin/tools/crossings/SymbolParts.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"
#include "plugin/graph/LayerZero.h"
#include "plugin/graph/TableRecords.h"

void crossings::AddPart(AcDbBlockTableRecord& block, AcDbEntity* part) {
  if (const auto* drawing = block.database()) part->setLayer(ZP::LayerZero(*drawing));
  ZP::AddToTabRecAndClose(&block, part);
}
