#include "host/commands/FileVersionPrompt.h"

#include "host/db/AcDbDatabase.h"
#include "host/dxf/DrawingFile.h"
#include "host/dxf/FileVersion.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/acutPrintf.h"

namespace commands {
namespace {

CString versionNames(const wchar_t* separator) {
  CString names;
  for (const dxf::FileVersion& version : dxf::writableVersions()) {
    if (!names.IsEmpty()) names += separator;
    names += version.name;
  }
  return names;
}

std::string markOf(const CString& name) {
  for (const dxf::FileVersion& version : dxf::writableVersions())
    if (name == version.name) return std::string(version.mark);
  return {};
}

// Losing a part of the drawing must be asked for: the default keeps it.
bool mayLose(const std::vector<CString>& losses, const CString& version) {
  if (losses.empty()) return true;
  for (const CString& loss : losses) acutPrintText(L"\n  " + loss);
  acutPrintText(L"\n");
  auto* frontEnd = EdSession::instance().frontEnd();
  const CString text = version + L" 格式不能保存以上内容，图形本身不变。仍用这个版本吗？";
  const auto box =
      frontEnd ? frontEnd->messageBox({L"zpcad", text, {L"是(Y)", L"否(N)"}, 1}) : EdBoxResult{1, false};
  if (box.button == 0) return true;
  if (box.answered)
    acutPrintf(L"\n版本未改。\n");
  else
    EdSession::instance().refuse(version + L" 格式不能保存图形的全部内容，版本未改。",
                                 L"较新的版本，或在下一行写 answer 是");
  return false;
}

} // namespace

std::optional<std::string> AskFileVersion(AcDbDatabase& database) {
  const DrawingForm& form = database.form();
  const std::string current = form.saveVersion.empty() ? form.version : form.saveVersion;
  const CString names = versionNames(L"/");
  const auto answer = ed::AskKeyword(
      {L"输入文件版本 [" + names + L"] <" + dxf::versionName(current) + L">:", versionNames(L" "), 0, {}});
  if (answer.isCancelled()) return std::nullopt;
  if (answer.isNone()) return current;
  const std::string chosen = markOf(answer.text);
  if (chosen.empty() || !mayLose(dxf::LossesInVersion(database, chosen), answer.text)) return std::nullopt;
  return chosen;
}

} // namespace commands
