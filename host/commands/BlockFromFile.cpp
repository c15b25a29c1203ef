#include "host/commands/BlockFromFile.h"

#include "host/afx/Paths.h"
#include "host/commands/BlockNames.h"
#include "host/commands/EraseRange.h"
#include "host/db/AcDbIdMapping.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/ExternalReferences.h"
#include "host/dxf/DrawingFile.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/acutPrintf.h"

#include <filesystem>

namespace commands {
namespace {

AcDbObjectId refuse(const CString& reason, const CString& expected = {}) {
  EdSession::instance().refuse(reason, expected);
  return {};
}

// The new contents come in ahead of the old ones' end, so that a failure leaves the block as it was.
Acad::ErrorStatus redefine(const AcDbObjectId& block, AcDbDatabase& source) {
  const auto* record = AcDbBlockTableRecord::cast(block.object());
  AcDbObjectId coming;
  const auto made = block.database()->insert(coming, L"*E", &source);
  if (made != Acad::eOk) return made;
  const auto* contents = AcDbBlockTableRecord::cast(coming.object());
  const std::size_t before = record->entities().size();
  AcDbIdMapping map;
  const auto status = block.database()->deepCloneObjects(contents->entities(), block, map);
  if (status == Acad::eOk)
    EraseRange(block, 0, before);
  else
    EraseRange(block, before);
  const AcGePoint3d origin = contents->origin();
  AcDbObjectPointer<AcDbBlockTableRecord>(coming, AcDb::kForWrite)->erase();
  if (status != Acad::eOk) return status;
  AcDbObjectPointer<AcDbBlockTableRecord> changed(block, AcDb::kForWrite);
  return changed ? changed->setOrigin(origin) : changed.openStatus();
}

// Whether the drawing's own block is to be replaced; nothing for Escape.
std::optional<bool> askRedefinition(const CString& name) {
  const auto answer =
      ed::AskKeyword({L"块“" + name + L"”已存在。重新定义吗？[是(Y)/否(N)] <否>:", L"Yes No", 0, {}});
  if (answer.isCancelled()) return std::nullopt;
  return answer.isKeyword(L"Yes");
}

} // namespace

CString DrawingFileFor(const CString& typed) {
  const CString drawing = curDoc()->isNamed() ? curDoc()->fileName() : CString();
  const CString found = ExternalReferences::findFile(typed, drawing);
  return found.IsEmpty() ? ExternalReferences::findFile(typed + L".dxf", drawing) : found;
}

AcDbObjectId BlockFromFile(const CString& path) {
  const CString name = CString::FromUtf8(std::filesystem::path(afx::NativePath(path)).stem().string());
  const AcDbObjectId existing = BlockByName(name);
  if (!existing.isNull()) {
    const auto replaced = askRedefinition(name);
    if (!replaced) return {};
    if (!*replaced) return existing;
    if (AcDbBlockTableRecord::cast(existing.object())->isFromExternalReference())
      return refuse(L"“" + name + L"”是外部参照，不能重新定义。", L"另一个文件名");
  }
  AcDbDatabase source(false);
  const auto report = dxf::ReadDrawing(path, source);
  if (!report.ok) return refuse(report.error, L"完好的图形文件（DXF）");
  AcDbObjectId block = existing;
  const auto status =
      existing.isNull() ? curDoc()->database()->insert(block, name, &source) : redefine(existing, source);
  switch (status) {
  case Acad::eOk:
    acutPrintText(L"\n块“" + name + (existing.isNull() ? L"”已定义。\n" : L"”已重新定义。\n"));
    return block;
  case Acad::eInvalidName:
    return refuse(L"文件名“" + ed::Excerpt(name) + L"”不能作块名。", L"不含 <>/\\\":;?*=`,| 的文件名");
  case Acad::eSelfReference:
    return refuse(L"文件“" + path + L"”里有名为“" + name + L"”的块，块不能包含自己。");
  default:
    return refuse(L"文件“" + path + L"”不能作块插入：" + acadErrorStatusText(status));
  }
}

} // namespace commands
