// U, UNDO, REDO: whole commands back and forth.
#include "host/commands/CommandFunctions.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/acutPrintf.h"

namespace commands {
namespace {

// Null, with the user told, when no drawing is open.
UndoHistory* history() {
  if (auto* document = curDoc()) return &document->database()->undo();
  EdSession::instance().refuse(L"没有打开的图形。", L"先用 NEW 或 OPEN 打开图形");
  return nullptr;
}

bool undoOne(UndoHistory& undo) {
  const CString name = undo.undoName();
  if (undo.undo() != Acad::eOk) return false;
  acutPrintf(L"\n已放弃 %s。\n", name);
  return true;
}

} // namespace

void U() {
  auto* undo = history();
  if (undo && !undoOne(*undo)) EdSession::instance().refuse(L"没有可放弃的命令。");
}

void Undo() {
  auto* undo = history();
  if (!undo) return;
  const auto count = ed::AskInteger({L"输入要放弃的命令数 <1>:", {}, RSG_NOZERO | RSG_NONEG, {}});
  if (count.isCancelled()) return;
  const long wanted = count.hasValue() ? count.integer : 1;
  long done = 0;
  while (done < wanted && undoOne(*undo)) ++done;
  if (done == 0) EdSession::instance().refuse(L"没有可放弃的命令。");
}

void Redo() {
  auto* undo = history();
  if (!undo) return;
  const CString name = undo->redoName();
  if (undo->redo() != Acad::eOk)
    EdSession::instance().refuse(L"没有可重做的命令。", L"REDO 紧接在 U 之后");
  else
    acutPrintf(L"\n已重做 %s。\n", name);
}

} // namespace commands
