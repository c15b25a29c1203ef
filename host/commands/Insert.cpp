// INSERT: inserts a block of the drawing, or a drawing file as a block, with its attributes.
#include "host/commands/AppendEntity.h"
#include "host/commands/AskFileName.h"
#include "host/commands/AttributeValues.h"
#include "host/commands/BlockFromFile.h"
#include "host/commands/BlockNames.h"
#include "host/commands/CommandFunctions.h"
#include "host/commands/InsertionPlace.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbSymbolTableRecord.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/SystemVariables.h"

namespace commands {
namespace {

CString lastInserted() {
  SystemVariables::Value value;
  SystemVariables::get(L"INSNAME", value);
  return std::get<CString>(value);
}

AcDbObjectId chosenFile() {
  const auto path = AskFileName({L"输入图形文件名:", L"插入图形文件", {L"*.dxf", L"*.DXF"}, {}, false});
  return path ? BlockFromFile(*path) : AcDbObjectId();
}

// Null for Escape, and when what was named can't be inserted.
AcDbObjectId askBlock() {
  const CString last = lastInserted();
  const CString usual = last.IsEmpty() ? CString() : L" <" + last + L">";
  for (;;) {
    const auto answer = ed::AskText({L"输入块名或图形文件名（~ 选择文件），或 [列表(?)]" + usual + L":",
                                     L"?",
                                     last.IsEmpty() ? RSG_NONULL : 0,
                                     {}});
    if (answer.isCancelled()) return {};
    if (answer.isKeyword(L"?")) {
      ListBlocks();
      continue;
    }
    const CString typed = answer.isNone() ? last : CString(answer.text).Trim();
    if (typed == L"~") return chosenFile();
    if (const auto block = BlockByName(typed); !block.isNull()) return block;
    if (const CString path = DrawingFileFor(typed); !path.IsEmpty()) return BlockFromFile(path);
    EdSession::instance().refuse(L"没有块“" + ed::Excerpt(typed) + L"”，也没有这个图形文件。",
                                 L"图形中的块名（? 列出）或存在的 DXF 文件");
  }
}

} // namespace

void Insert() {
  const auto block = askBlock();
  if (block.isNull()) return;
  const auto place = AskInsertionPlace(block);
  if (!place) return;
  const auto attributes = AskAttributes(block);
  if (!attributes) return;
  auto reference = std::make_unique<AcDbBlockReference>(place->point, block);
  reference->setScaleFactors(place->scale);
  reference->setRotation(place->rotation);
  AddAttributes(*reference, *attributes);
  if (!AppendEntity(std::move(reference)).isNull())
    SystemVariables::set(L"INSNAME", AcDbSymbolTableRecord::cast(block.object())->name());
}

} // namespace commands
