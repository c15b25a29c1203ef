#include "host/console/verbs/VerbArguments.h"
#include "host/ed/EdLineParser.h"

namespace console {
namespace {

// The command of the menu that now stands open.
UiOutcome ChooseFromMenu(const UiContextMenu& menu, const CString& command) {
  CString names;
  for (const UiMenuItem& item : menu.Items()) {
    if (PlainName(item.text).CompareNoCase(PlainName(command).View()) == 0) return menu.UserChoose(item.id);
    names += (names.IsEmpty() ? L"" : L"、") + PlainName(item.text);
  }
  return {L"菜单中没有“" + ed::Excerpt(command) + L"”。", names};
}

} // namespace

UiOutcome verbs::Menu(const DialogOrder& order) {
  UiOutcome outcome;
  const auto found = FindTarget(
      order.form, order.rest, [](const DialogTarget& t) { return Is<CTableWnd>(t) || Is<CTreeCtrl>(t); },
      outcome);
  if (!found) return outcome;
  auto* table = dynamic_cast<CTableWnd*>(found->target.control);
  auto* tree = dynamic_cast<CTreeCtrl*>(found->target.control);
  const UiContextMenu& menu = table ? table->Menu : tree->Menu;
  const auto rows = DialogRows(*found->target.control);
  for (const auto& [rowText, command] : CutsAtBlanks(found->rest)) {
    const DialogRow* row = FindRow(rows, rowText);
    if (!row) continue;
    outcome = table ? table->UserOpenMenu(row->index, 0) : tree->UserOpenMenu(row->item);
    return outcome ? ChooseFromMenu(menu, command) : outcome;
  }
  if (CutsAtBlanks(found->rest).empty() && !found->rest.IsEmpty()) {
    outcome = table ? table->UserOpenMenu(-1, 0) : tree->UserOpenMenu(nullptr);
    return outcome ? ChooseFromMenu(menu, found->rest) : outcome;
  }
  return MissingRow(found->rest, rows);
}

} // namespace console
