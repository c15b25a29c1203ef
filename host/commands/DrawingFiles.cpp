#include "host/commands/DrawingFiles.h"

#include "host/afx/AtomicFile.h"
#include "host/afx/Paths.h"
#include "host/commands/AskFileName.h"
#include "host/commands/FileVersionPrompt.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/ExternalReferences.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/EntitySearch.h"
#include "host/ed/LongTask.h"
#include "host/ed/SystemVariables.h"
#include "host/ed/ViewState.h"
#include "host/ed/acutPrintf.h"

#include <filesystem>

namespace commands {
namespace {

namespace fs = std::filesystem;

bool exists(const CString& path) {
  std::error_code error;
  return fs::exists(afx::NativePath(path), error);
}

void printRepair(const dxf::Repair& repair) {
  CString where;
  if (repair.line > 0) where.Format(L"第 %d 行", repair.line);
  if (repair.groupCode >= 0)
    where.AppendFormat(where.IsEmpty() ? L"组码 %d" : L"，组码 %d", repair.groupCode);
  acutPrintText(L"\n  " + (where.IsEmpty() ? repair.what : where + L"：" + repair.what));
}

void printSummary(const AcApDocument& document, const dxf::ReadReport& report) {
  const auto& database = *document.database();
  AcDbObjectPointer<AcDbLayerTable> layers(database.layerTableId(), AcDb::kForRead);
  const auto layerCount = layers ? layers->records().size() : 0;
  acutPrintf(L"\n已打开 %s：图层 %d 个，实体 %d 个。\n", document.fileName(), layerCount,
             ed::AllEntities(database).size());
  if (report.repairs.empty()) return;
  acutPrintf(L"\n读入时修正 %d 处：", report.repairs.size());
  for (const auto& repair : report.repairs) printRepair(repair);
  acutPrintText(L"\n");
}

void printXrefs(const AcDbDatabase& database) {
  const auto count = acdbXrefBlocks(database).size();
  if (count == 0) return;
  const auto problems = acdbXrefProblems(database);
  if (problems.empty()) {
    acutPrintf(L"\n外部参照 %d 个，均已载入。\n", static_cast<int>(count));
    return;
  }
  acutPrintf(L"\n外部参照 %d 个，其中未能载入：", static_cast<int>(count));
  for (const auto& problem : problems) acutPrintText(L"\n  " + problem.name + L"：" + problem.reason);
  acutPrintText(L"\n");
}

CString withExtension(const CString& path) {
  return fs::path(afx::NativePath(path)).has_extension() ? path : path + L".dxf";
}

void printLosses(const std::vector<CString>& losses) {
  for (const CString& loss : losses) acutPrintText(L"\n  " + loss);
  if (!losses.empty()) acutPrintText(L"\n");
}

bool write(AcApDocument& document, const CString& path) {
  ed::FileView(document);
  LongTask task(L"存图");
  const auto report = dxf::WriteDrawing(*document.database(), path, {{}, task.progress()});
  if (task.isCancelled()) {
    acutPrintf(L"\n存图已取消，没有保存；文件 %s 未改动。\n", path);
    return false;
  }
  if (!report.ok) {
    EdSession::instance().refuse(report.error, L"可写的文件夹和文件名；原文件未改动");
    return false;
  }
  document.database()->setModified(false);
  document.setRescueBeforeSave(false);
  acutPrintf(L"\n已保存 %s\n", path);
  printLosses(report.losses);
  return true;
}

bool saveUnder(AcApDocument& document, const CString& path) {
  auto* other = acDocManager->documentOfFile(path);
  if (other == &document) return SaveDrawing(document);
  if (other) {
    EdSession::instance().refuse(L"文件“" + path + L"”是另一个打开着的图形，未保存。", L"另一个文件名");
    return false;
  }
  if (!MayReplace(path, L"未保存") || !write(document, path)) return false;
  document.setFileName(path);
  acDocManager->titleChanged(document);
  return true;
}

} // namespace

bool MayReplace(const CString& path, const wchar_t* undone) {
  auto* frontEnd = EdSession::instance().frontEnd();
  constexpr long replacesUnasked = 2; // as EXPERT has it
  if (!exists(path) || !frontEnd || SystemVariables::integer(L"EXPERT") >= replacesUnasked) return true;
  const auto box =
      frontEnd->messageBox({L"zpcad", L"文件“" + path + L"”已存在。要替换吗？", {L"是(Y)", L"否(N)"}, 1});
  if (box.button == 0) return true;
  if (box.answered) {
    acutPrintf(L"\n%s。\n", undone);
    return false;
  }
  EdSession::instance().refuse(L"文件“" + path + L"”已存在，" + undone + L"。",
                               L"另一个文件名，或在下一行 answer 是");
  return false;
}

bool OpenDrawing(const CString& path, bool recover) {
  auto& session = EdSession::instance();
  if (!exists(path)) {
    session.refuse(L"没有文件“" + path + L"”。", L"存在的图形文件；相对路径从当前文件夹算起");
    return false;
  }
  if (const auto* open = acDocManager->documentOfFile(path); open && recover) {
    session.refuse(L"图形“" + path + L"”已经打开。", L"先用 CLOSE 关闭它");
    return false;
  }
  dxf::ReadReport report;
  dxf::ReadOptions options;
  options.recover = recover;
  LongTask task(L"读图");
  options.progress = task.progress();
  if (auto* frontEnd = session.frontEnd()) options.watcher = frontEnd->entityWatcher();
  auto* document = acDocManager->openDocument(path, report, options);
  if (task.isCancelled() && !document) {
    acutPrintf(L"\n读图已取消，没有打开 %s。\n", path);
    return false;
  }
  if (!document) {
    session.refuse(report.error,
                   recover ? L"图形文件（DXF）" : L"完好的图形文件；损坏的文件可用 RECOVER 抢救");
    return false;
  }
  // What recovery could not save is still in the file, which a save must not destroy.
  if (recover && !report.repairs.empty()) document->setRescueBeforeSave(true);
  printSummary(*document, report);
  printXrefs(*document->database());
  return true;
}

bool SaveDrawing(AcApDocument& document) {
  if (!document.isNamed()) return SaveDrawingAs(document);
  if (document.rescueBeforeSave()) {
    const CString copy = afx::RescueFile(document.fileName());
    if (copy.IsEmpty()) {
      EdSession::instance().refuse(L"原文件不能先复制一份，未保存。", L"用 SAVEAS 另存为其他文件");
      return false;
    }
    acutPrintf(L"\n损坏的原文件已复制为 %s\n", copy);
  }
  return write(document, document.fileName());
}

bool SaveDrawingAs(AcApDocument& document) {
  if (HasFileChooser()) {
    const auto name = AskFileName({L"输入文件名:", L"另存为", {L"*.dxf"}, {}, true});
    return name && saveUnder(document, withExtension(*name));
  }
  DrawingForm& form = document.database()->form();
  const std::string before = form.saveVersion;
  ed::Answer answer;
  for (;;) {
    answer = ed::AskText({L"输入文件名或 [版本(V)]:", L"V 版本 _ Version Version", RSG_NONULL, {}});
    if (!answer.isKeyword(L"Version")) break;
    if (const auto version = AskFileVersion(*document.database())) form.saveVersion = *version;
  }
  const CString path = withExtension(CString(answer.text).Trim());
  if (answer.hasValue() && saveUnder(document, path)) return true;
  form.saveVersion = before;
  return false;
}

} // namespace commands
