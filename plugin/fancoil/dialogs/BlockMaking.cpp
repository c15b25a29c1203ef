#include "plugin/fancoil/dialogs/BlockMaking.h"

#include <algorithm>

#include "host/afx/MessageLog.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbIdMapping.h"
#include "host/db/BlockCycle.h"
#include "host/ed/ArxDbgSelSet.h"
#include "host/ed/ArxDbgUiPrPoint.h"
#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/graph/TableRecords.h"

namespace fancoil {
namespace {

constexpr const wchar_t* kScratchBlock = L"123";
constexpr const wchar_t* kContents = L"123linshi";

std::optional<AcGePoint3d> AskForPoint(const wchar_t* prompt) {
  ArxDbgUiPrPoint question(prompt);
  if (question.go() != ArxDbgUiPrBase::kOk) return std::nullopt;
  return question.value();
}

bool Inserts(const AcDbObjectId& entity, const AcDbObjectId& block) {
  const AcDbObjectPointer<AcDbBlockReference> reference(entity, AcDb::kForRead);
  return reference && blockContains(reference->blockTableRecord(), block);
}

// The block in which the entities are gathered, empty. An old one is used again: it may be inserted, and an
// insertion shows what its block holds now.
Acad::ErrorStatus ClearedBlock(AcDbDatabase& drawing, const BlockPick& pick, AcDbObjectId& block) {
  AcDbObjectPointer<AcDbBlockTable> table(drawing.blockTableId(), AcDb::kForWrite);
  if (!table) return table.openStatus();
  if (table->getAt(kScratchBlock, block) != Acad::eOk) {
    auto made = std::make_unique<AcDbBlockTableRecord>();
    made->setName(kScratchBlock);
    made->setOrigin(pick.insertion);
    const auto status = table->add(block, made.get());
    if (status == Acad::eOk) made.release()->close();
    return status;
  }
  const auto inserts = [&](const AcDbObjectId& entity) { return Inserts(entity, block); };
  if (std::any_of(pick.entities.begin(), pick.entities.end(), inserts)) return Acad::eSelfReference;
  const AcDbObjectPointer<AcDbBlockTableRecord> old(block, AcDb::kForWrite);
  if (!old) return old.openStatus();
  if (old->xrefStatus() != AcDb::kXrfNotAnXref) return Acad::eNotApplicable;
  for (const AcDbObjectId& id : ZP::EntitiesOf(*old.object())) drawing.eraseWhole(*id.object());
  return old->setOrigin(pick.insertion);
}

// The entities as they stand in the block go by way of a drawing of their own into a block of the new one.
// Its insertion is moved so that the insertion point comes to the origin.
Acad::ErrorStatus Gather(AcDbDatabase& drawing, const BlockPick& pick, BlockDrawing& out) {
  AcDbObjectId block;
  auto status = ClearedBlock(drawing, pick, block);
  AcDbIdMapping map;
  if (status == Acad::eOk) status = drawing.deepCloneObjects(pick.entities, block, map);
  if (status != Acad::eOk) return status;
  AcDbDatabase* made = nullptr;
  {
    const AcDbObjectPointer<AcDbBlockTableRecord> filled(block, AcDb::kForRead);
    if (!filled) return filled.openStatus();
    status = drawing.wblock(made, ZP::EntitiesOf(*filled.object()), AcGePoint3d::kOrigin);
  }
  const std::unique_ptr<AcDbDatabase> contents(made);
  if (status == Acad::eOk) status = contents->wblock(made, {}, AcGePoint3d::kOrigin); // new, with its units
  if (status != Acad::eOk) return status;
  out.drawing.reset(made);
  AcDbObjectId inserted;
  status = out.drawing->insert(inserted, kContents, contents.get());
  if (status != Acad::eOk) return status;
  auto reference = std::make_unique<AcDbBlockReference>(AcGePoint3d::kOrigin, inserted);
  AcDbObjectPointer<AcDbBlockTableRecord> space(out.drawing->modelSpaceId(), AcDb::kForWrite);
  if (!space) return space.openStatus();
  status = space->appendAcDbEntity(reference.get());
  if (status != Acad::eOk) return status;
  AcDbBlockReference& placed = *reference.release(); // the drawing's
  status = placed.transformBy(AcGeMatrix3d::translation(-pick.insertion.asVector()));
  placed.getGeomExtents(out.extents); // stays empty where nothing is drawn
  placed.close();
  return status;
}

} // namespace

std::optional<BlockPick> AskForBlock() {
  ArxDbgSelSet selected;
  auto status = ArxDbgSelSet::kRejected;
  while (status == ArxDbgSelSet::kRejected) status = selected.userSelect(L"\n请选择需要创建块的实体");
  if (status != ArxDbgSelSet::kSelected) return std::nullopt;
  const auto insertion = AskForPoint(L"\n请指定插入点:");
  if (!insertion) return std::nullopt;
  const auto label = AskForPoint(L"\n请指定自动添加的标注插入点:");
  if (!label) return std::nullopt;
  return BlockPick{selected.ids(), *insertion, *label - insertion->asVector()};
}

std::optional<BlockDrawing> MakeBlockDrawing(const BlockPick& pick) {
  const DocumentWriteLock lock;
  auto* drawing = acdbHostApplicationServices()->workingDatabase();
  BlockDrawing made;
  const auto status =
      lock.IsHeld() && drawing ? Gather(*drawing, pick, made) : Acad::ErrorStatus(Acad::eLockViolation);
  if (status == Acad::eOk) return made;
  afx::LogError(CString(L"风机盘管图块未能创建（") + acadErrorStatusText(status) + L"）");
  return std::nullopt;
}

} // namespace fancoil
