#include "host/console/verbs/VerbArguments.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CMutiTreeCtrl.h"
#include "host/ui/CPropTree.h"

namespace console {
namespace {

std::optional<bool> ParseSwitch(const CString& word) {
  if (word.CompareNoCase(L"on") == 0 || word == L"开") return true;
  if (word.CompareNoCase(L"off") == 0 || word == L"关") return false;
  return std::nullopt;
}

} // namespace

UiOutcome verbs::Check(const DialogOrder& order) {
  const int blank = order.rest.ReverseFind(L' ');
  const auto state = ParseSwitch(blank < 0 ? CString() : order.rest.Mid(blank + 1));
  if (!state) return {L"缺少 on 或 off。", L"check 控件 行 on，或 off"};
  UiOutcome outcome;
  const auto found = FindTarget(
      order.form, order.rest.Left(blank).TrimRight(),
      [](const DialogTarget& t) {
        return Is<CCheckBox>(t) || Is<CMutiTreeCtrl>(t) || dynamic_cast<CPropTree*>(t.control);
      },
      outcome);
  if (!found) return outcome;
  const auto& [target, rest] = *found;
  auto* list = dynamic_cast<CPropTree*>(target.control);
  if (auto* box = dynamic_cast<CCheckBox*>(target.control)) {
    outcome = NothingMore(rest);
    return outcome ? box->UserCheck(*state) : outcome;
  }
  if (list && target.item >= 0) return list->UserTick(target.item, *state);
  const auto rows = DialogRows(*target.control);
  const DialogRow* row = FindRow(rows, rest);
  if (!row) return MissingRow(rest, rows);
  if (list) return list->UserTick(row->index, *state);
  return static_cast<CMutiTreeCtrl*>(target.control)->UserCheck(row->item, *state);
}

} // namespace console
