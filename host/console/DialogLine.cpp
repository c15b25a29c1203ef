#include "host/console/DialogLine.h"

#include "host/console/verbs/DialogVerbs.h"
#include "host/ed/EdLineParser.h"
#include "host/ui/ObeyUser.h"

namespace console {
namespace {

UiOutcome Answer(const DialogOrder&) {
  return {L"没有等待回答的消息框。", L"show 查看对话框"};
}

struct Verb {
  const wchar_t* word;
  UiOutcome (*obey)(const DialogOrder&);
};
constexpr Verb kVerbs[] = {
    {L"show", verbs::Show}, {L"click", verbs::Click},
    {L"set", verbs::Set},   {L"select", verbs::Select},
    {L"edit", verbs::Edit}, {L"check", verbs::Check},
    {L"menu", verbs::Menu}, {L"dblclick", verbs::DoubleClick},
    {L"step", verbs::Step}, {L"close", verbs::Close},
    {L"answer", Answer},
};

} // namespace

UiOutcome ObeyDialogLine(CFormWnd& form, const CString& line,
                         const std::function<void(const CString&)>& print) {
  const CString text = CString(line).TrimLeft();
  const CString word = text.SpanExcluding(L" \t");
  const CString rest = text.Mid(word.GetLength()).TrimLeft();
  CString words;
  for (const Verb& verb : kVerbs) {
    if (word.CompareNoCase(verb.word) == 0) return ObeyUser([&] { return verb.obey({form, rest, print}); });
    if (verb.obey != Answer) words += (words.IsEmpty() ? L"" : L"、") + CString(verb.word);
  }
  return {L"对话框中没有“" + ed::Excerpt(word) + L"”这种操作。", words};
}

} // namespace console
