#include "host/console/verbs/VerbArguments.h"

#include "host/ed/EdLineParser.h"
#include "host/ui/CPropTree.h"

namespace console {
namespace {

// Where a line may be cut into what is changed and its new text: at every "=" outside of quotes.
std::vector<int> CutsAtEquals(const CString& text) {
  std::vector<int> cuts;
  bool quoted = false;
  for (int i = 0; i < text.GetLength(); ++i) {
    if (text[i] == L'"') quoted = !quoted;
    if (!quoted && text[i] == L'=') cuts.push_back(i);
  }
  return cuts;
}

} // namespace

std::optional<Assignment> ParseAssignment(const DialogOrder& order, const Fits& fits, UiOutcome& outcome) {
  const auto cuts = CutsAtEquals(order.rest);
  if (cuts.empty()) outcome = {L"缺少“= 文字”。", L"= 后面写新的文字"};
  for (const int at : cuts) {
    UiOutcome here;
    const CString left = order.rest.Left(at).TrimRight();
    CString text = order.rest.Mid(at + 1);
    if (text.View().starts_with(L' ')) text = text.Mid(1);
    if (auto found = FindTarget(order.form, left, fits, here)) return Assignment{std::move(*found), text};
    if (outcome) outcome = here;
  }
  return std::nullopt;
}

UiOutcome NothingMore(const CString& rest) {
  if (rest.IsEmpty()) return {};
  return {L"“" + ed::Excerpt(rest) + L"”是多余的。", L"到此为止的一行"};
}

UiOutcome MissingRow(const CString& text, const std::vector<DialogRow>& rows) {
  CString range;
  range.Format(L"1 到 %d 的行号，或行中文字", static_cast<int>(rows.size()));
  return {L"没有这一行：“" + ed::Excerpt(text) + L"”。", range};
}

UiOutcome SetProperty(const DialogTarget& target, const CString& between, const CString& text) {
  auto& list = static_cast<CPropTree&>(*target.control);
  int item = target.item;
  if (item < 0) {
    const auto rows = DialogRows(list);
    const DialogRow* row = FindRow(rows, between);
    if (!row) return MissingRow(between, rows);
    item = row->index;
  } else if (auto more = NothingMore(between); !more) {
    return more;
  }
  return list.UserSetText(item, text);
}

} // namespace console
