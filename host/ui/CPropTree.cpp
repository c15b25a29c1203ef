#include "host/ui/CPropTree.h"

#include "host/afx/CInvalidArgException.h"
#include "host/afx/Numbers.h"

#include <algorithm>

int CPropTreeItem::ChoiceIndex() const {
  const auto at = std::find(choices.begin(), choices.end(), text);
  return at == choices.end() ? -1 : static_cast<int>(at - choices.begin());
}

void CPropTree::AddGroup(const CString& title) {
  m_groups.push_back({title, true, {}});
  Notify(UiChange::Kind::content);
}

int CPropTree::AddItem(CPropTreeItem item) {
  if (m_groups.empty()) AfxThrowInvalidArgException();
  m_groups.back().items.push_back(std::move(item));
  Notify(UiChange::Kind::content);
  return GetItemCount() - 1;
}

void CPropTree::DeleteAll() {
  m_groups.clear();
  m_selected = -1;
  Notify(UiChange::Kind::content);
}

int CPropTree::GetItemCount() const {
  std::size_t count = 0;
  for (const CPropTreeGroup& group : m_groups) count += group.items.size();
  return static_cast<int>(count);
}

const CPropTreeItem& CPropTree::Item(int item) const {
  if (item < 0) AfxThrowInvalidArgException();
  auto left = static_cast<std::size_t>(item);
  for (const CPropTreeGroup& group : m_groups) {
    if (left < group.items.size()) return group.items[left];
    left -= group.items.size();
  }
  AfxThrowInvalidArgException();
}

CPropTreeItem& CPropTree::ItemAt(int item) {
  return const_cast<CPropTreeItem&>(Item(item));
}

int CPropTree::FindItem(const CString& label) const {
  for (int i = 0; i < GetItemCount(); ++i)
    if (Item(i).label == label) return i;
  return -1;
}

double CPropTree::GetNumber(int item) const {
  return afx::wcstod(GetText(item), nullptr);
}

void CPropTree::SetText(int item, const CString& text) {
  ItemAt(item).text = text;
  Notify(UiChange::Kind::row, item);
}

void CPropTree::SetReadOnly(int item, bool readOnly) {
  ItemAt(item).readOnly = readOnly;
  Notify(UiChange::Kind::row, item);
}

void CPropTree::SetInfo(int item, const CString& info) {
  ItemAt(item).info = info;
  Notify(UiChange::Kind::row, item);
}

void CPropTree::SetTick(int item, bool ticked) {
  ItemAt(item).ticked = ticked;
  Notify(UiChange::Kind::row, item);
}

void CPropTree::SetCurSel(int item) {
  m_selected = item >= 0 && item < GetItemCount() ? item : -1;
  Notify(UiChange::Kind::selection);
}

UiOutcome CPropTree::CheckItem(int item) const {
  if (item >= 0 && item < GetItemCount()) return {};
  return {L"“" + GetCaption() + L"”没有这一项。", L"列表中的一项"};
}

UiOutcome CPropTree::UserSelect(int item) {
  UiOutcome outcome = BeginUserEvent();
  if (outcome) outcome = CheckItem(item);
  if (!outcome) return outcome;
  SetCurSel(item);
  ItemSelected(item);
  return {};
}

UiOutcome CPropTree::UserSetText(int item, const CString& text) {
  UiOutcome outcome = BeginUserEvent();
  if (outcome) outcome = CheckItem(item);
  if (!outcome) return outcome;
  const CPropTreeItem& changed = Item(item);
  using Kind = CPropTreeItem::Kind;
  if (changed.readOnly || changed.kind == Kind::button)
    return {L"“" + changed.label + L"”是只读的。", L"一个可以修改的项"};
  if (changed.kind == Kind::choice && std::ranges::find(changed.choices, text) == changed.choices.end())
    return {L"“" + changed.label + L"”没有这一选项。", L"下拉列表中的一项"};
  SetCurSel(item);
  SetText(item, text);
  ItemChanged(item);
  return {};
}

UiOutcome CPropTree::UserTick(int item, bool ticked) {
  UiOutcome outcome = BeginUserEvent();
  if (outcome) outcome = CheckItem(item);
  if (!outcome) return outcome;
  if (!Item(item).hasTick) return {L"“" + Item(item).label + L"”没有勾选框。", L"有勾选框的项"};
  SetTick(item, ticked);
  ItemTicked(item);
  return {};
}

UiOutcome CPropTree::UserPress(int item) {
  UiOutcome outcome = BeginUserEvent();
  if (outcome) outcome = CheckItem(item);
  if (!outcome) return outcome;
  if (Item(item).kind != CPropTreeItem::Kind::button || Item(item).readOnly)
    return {L"“" + Item(item).label + L"”没有按钮。", L"有按钮的项"};
  SetCurSel(item);
  ButtonPressed(item);
  return {};
}
