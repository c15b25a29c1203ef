// NEW, OPEN, RECOVER, SAVE, SAVEAS, CLOSE and QUIT.
#include "host/commands/AskFileName.h"
#include "host/commands/CommandFunctions.h"
#include "host/commands/DrawingFiles.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/acutPrintf.h"

#include <memory>
#include <vector>

namespace commands {
namespace {

void openAsked(bool recover) {
  const auto path =
      AskFileName({L"输入图形文件名:", recover ? L"修复图形" : L"打开图形", {L"*.dxf", L"*.DXF"}, {}, false});
  if (path) OpenDrawing(*path, recover);
}

std::vector<AcApDocument*> unsaved() {
  std::vector<AcApDocument*> changed;
  const std::unique_ptr<AcApDocumentIterator> documents(acDocManager->newAcApDocumentIterator());
  for (; !documents->done(); documents->step())
    if (documents->document()->database()->isModified()) changed.push_back(documents->document());
  return changed;
}

CString titlesOf(const std::vector<AcApDocument*>& documents) {
  CString titles;
  for (const auto* document : documents)
    titles += (titles.IsEmpty() ? CString() : L"、") + document->docTitle();
  return titles;
}

// In a window each drawing is asked about, and may be saved on the way.
bool saveOrLose(const std::vector<AcApDocument*>& documents, EdFrontEnd& frontEnd) {
  for (auto* document : documents) {
    acDocManager->activateDocument(document);
    const CString text = L"图形“" + document->docTitle() + L"”有未保存的修改。要保存吗？";
    constexpr std::size_t save = 0;
    constexpr std::size_t lose = 1;
    const auto box = frontEnd.messageBox({L"zpcad", text, {L"保存(S)", L"不保存(N)", L"取消"}, save});
    if (box.button == lose) continue;
    if (box.button != save || !SaveDrawing(*document)) return false;
  }
  return true;
}

// Losing work must be asked for: the default keeps it.
bool mayLose(const std::vector<AcApDocument*>& documents, const wchar_t* question, const wchar_t* command) {
  auto* frontEnd = EdSession::instance().frontEnd();
  if (documents.empty()) return true;
  if (frontEnd && frontEnd->hasWindows()) {
    if (saveOrLose(documents, *frontEnd)) return true;
    acutPrintf(L"\n未执行 %s。\n", command);
    return false;
  }
  const CString text = L"图形“" + titlesOf(documents) + L"”有未保存的修改。" + question;
  const auto box =
      frontEnd ? frontEnd->messageBox({L"zpcad", text, {L"是(Y)", L"否(N)"}, 1}) : EdBoxResult{1, false};
  if (box.button == 0) return true;
  if (box.answered) {
    acutPrintf(L"\n未执行 %s。\n", command);
    return false;
  }
  EdSession::instance().refuse(CString(L"有未保存的修改，未执行 ") + command + L"。",
                               CString(L"先 SAVE；或在 ") + command + L" 的下一行写 answer 是");
  return false;
}

} // namespace

void New() {
  const auto& document = acDocManager->newDocument();
  acutPrintf(L"\n新建 %s\n", document.docTitle());
}

void Open() {
  openAsked(false);
}

void Recover() {
  openAsked(true);
}

void Save() {
  SaveDrawing(*curDoc());
}

void SaveAs() {
  SaveDrawingAs(*curDoc());
}

void Close() {
  auto* document = curDoc();
  if (!document) {
    EdSession::instance().refuse(L"没有打开的图形。");
    return;
  }
  const CString title = document->docTitle();
  if (document->database()->isModified() && !mayLose({document}, L"放弃修改并关闭吗？", L"CLOSE")) return;
  if (acDocManager->closeDocument(document) != Acad::eOk) {
    EdSession::instance().refuse(L"图形“" + title + L"”正被使用，不能关闭。");
    return;
  }
  acutPrintf(L"\n已关闭 %s\n", title);
  if (const auto* next = curDoc()) acutPrintf(L"\n当前图形：%s\n", next->docTitle());
}

void Quit() {
  if (mayLose(unsaved(), L"放弃修改并退出吗？", L"QUIT")) EdSession::instance().requestQuit();
}

} // namespace commands
