#include "plugin/fancoil/dialogs/BlockPreview.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbText.h"
#include "plugin/fancoil/dialogs/BlockFiles.h"
#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/graph/TableRecords.h"

namespace fancoil {
namespace {

std::unique_ptr<AcDbDatabase> MakeNotice() {
  auto notice = std::make_unique<AcDbDatabase>(true);
  const AcDbObjectPointer<AcDbBlockTableRecord> space(notice->modelSpaceId(), AcDb::kForWrite);
  ZP::AddToTabRecAndClose(space.object(), new AcDbText(AcGePoint3d(), L"Failed to Open Files!"));
  return notice;
}

} // namespace

void BlockPreview::ShowBlock(const CString& block) {
  const DocumentWriteLock lock;
  EnableWindow(lock.IsHeld());
  if (!lock.IsHeld()) return ShowNothing();
  constexpr int kDenyNone = 64;
  auto read = std::make_unique<AcDbDatabase>(false);
  if (read->readDwgFile(BlockFile(block), kDenyNone) != Acad::eOk) read = MakeNotice();
  SetDrawing(read.get());
  m_read = std::move(read);
}

void BlockPreview::ShowDrawing(AcDbDatabase& drawing) {
  EnableWindow(true);
  SetDrawing(&drawing);
  m_read.reset();
}

void BlockPreview::ShowNothing() {
  SetDrawing(nullptr);
  m_read.reset();
}

} // namespace fancoil
