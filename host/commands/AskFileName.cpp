#include "host/commands/AskFileName.h"

#include "host/ed/AcApDocManager.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/SystemVariables.h"
#include "host/ui/UiFrontEnd.h"

namespace commands {
namespace {

CString currentFolder() {
  const auto* document = curDoc();
  if (!document || !document->isNamed()) return {};
  const CString& file = document->fileName();
  const int end =
      file.ReverseFind(L'/') > file.ReverseFind(L'\\') ? file.ReverseFind(L'/') : file.ReverseFind(L'\\');
  return file.Left(end + 1);
}

} // namespace

bool HasFileChooser() {
  auto& session = EdSession::instance();
  session.input().dropFinished();
  const bool userAnswers = session.input().depth() == 0;
  return userAnswers && session.frontEnd() && session.frontEnd()->hasWindows() && UiFrontEnd::Get() &&
         SystemVariables::integer(L"FILEDIA") != 0;
}

std::optional<CString> AskFileName(const FileNameQuestion& question) {
  if (HasFileChooser()) {
    auto chosen = UiFrontEnd::Get()->ChooseFile(
        {question.title, currentFolder(), question.name, question.patterns, question.save});
    EdSession::instance().noteInput(!chosen);
    if (!chosen) ed::PrintCancelled();
    return chosen;
  }
  const int flags = question.name.IsEmpty() ? RSG_NONULL : 0;
  const auto answer = ed::AskText({question.prompt, {}, flags, {}});
  if (answer.isCancelled() || (answer.isNone() && question.name.IsEmpty())) return std::nullopt;
  return CString(answer.text).Trim();
}

} // namespace commands
