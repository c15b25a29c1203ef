#include "host/ui/CMutiTreeCtrl.h"

namespace {

void CheckAll(UiTreeItem& item, bool checked) {
  item.checked = checked;
  for (const auto& child : item.children) CheckAll(*child, checked);
}

} // namespace

void CMutiTreeCtrl::SetCheck(HTREEITEM item, bool checked) {
  item->checked = checked;
  Notify(UiChange::Kind::content);
}

UiOutcome CMutiTreeCtrl::UserCheck(HTREEITEM item, bool checked) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (!Contains(item)) return {L"“" + GetCaption() + L"”没有这一项。", L"树中的一项"};
  CheckAll(*item, checked);
  Notify(UiChange::Kind::content);
  CheckChanged(item);
  return {};
}
