#include "host/commands/BlockNames.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/WildcardMatch.h"
#include "host/ed/acutPrintf.h"

namespace commands {
namespace {

bool mayBeInserted(const AcDbBlockTableRecord& block) {
  return !block.isErased() && !block.isAnonymous() && !block.isLayout();
}

const wchar_t* statusText(AcDb::XrefStatus status) {
  switch (status) {
  case AcDb::kXrfNotAnXref:
    return L"";
  case AcDb::kXrfResolved:
    return L"，外部参照，已载入";
  case AcDb::kXrfUnloaded:
    return L"，外部参照，已卸载";
  case AcDb::kXrfFileNotFound:
    return L"，外部参照，找不到文件";
  default:
    return L"，外部参照，未载入";
  }
}

} // namespace

AcDbObjectId BlockByName(const CString& name) {
  AcDbObjectPointer<AcDbBlockTable> blocks(curDoc()->database()->blockTableId(), AcDb::kForRead);
  AcDbObjectId id;
  if (!blocks || blocks->getAt(name, id) != Acad::eOk) return {};
  return mayBeInserted(*AcDbBlockTableRecord::cast(id.object())) ? id : AcDbObjectId();
}

void ListBlocks() {
  const auto answer = ed::AskText({L"输入要列出的块名，可用通配符 <*>:", {}, 0, {}});
  if (answer.isCancelled()) return;
  const CString pattern = answer.isNone() ? CString(L"*") : CString(answer.text).Trim();
  AcDbObjectPointer<AcDbBlockTable> blocks(curDoc()->database()->blockTableId(), AcDb::kForRead);
  if (!blocks) return;
  int count = 0;
  acutPrintText(L"\n已定义的块：\n");
  for (const auto& id : blocks->records()) {
    const auto& block = *AcDbBlockTableRecord::cast(id.object());
    if (!mayBeInserted(block) || !ed::MatchesPattern(block.name().View(), pattern.View(), true)) continue;
    ++count;
    const CString comments = block.comments().IsEmpty() ? CString() : L"，" + block.comments();
    acutPrintText(L"  " + block.name() + statusText(block.xrefStatus()) + comments + L"\n");
  }
  acutPrintf(L"共 %d 个块。\n", count);
}

} // namespace commands
