// What a symbol's block holds.
#pragma once

class AcDbBlockTableRecord;
class AcDbEntity;

namespace crossings {

// Takes the part into the block and closes it. It stands on layer 0, so that it looks as the layer of the
// symbol wants it.
void AddPart(AcDbBlockTableRecord& block, AcDbEntity* part);

} // namespace crossings
