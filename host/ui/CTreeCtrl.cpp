#include "host/ui/CTreeCtrl.h"

#include <algorithm>

namespace {

bool WalkBelow(const UiTreeItem& item, const std::function<bool(HTREEITEM)>& visitor) {
  for (const auto& child : item.children)
    if (!visitor(child.get()) || !WalkBelow(*child, visitor)) return false;
  return true;
}

bool IsBelow(const UiTreeItem* item, const UiTreeItem* above) {
  while (item && item != above) item = item->parent;
  return item != nullptr;
}

} // namespace

HTREEITEM CTreeCtrl::InsertItem(const CString& text, HTREEITEM parent, void* data) {
  UiTreeItem& above = parent ? *parent : m_root;
  auto item = std::make_unique<UiTreeItem>();
  item->text = text;
  item->data = data;
  item->parent = parent;
  above.children.push_back(std::move(item));
  Notify(UiChange::Kind::content);
  return above.children.back().get();
}

void CTreeCtrl::DeleteItem(HTREEITEM item) {
  if (!item) return;
  if (IsBelow(m_selected, item)) m_selected = nullptr;
  UiTreeItem& above = item->parent ? *item->parent : m_root;
  std::erase_if(above.children, [&](const auto& child) { return child.get() == item; });
  Notify(UiChange::Kind::content);
}

void CTreeCtrl::DeleteAllItems() {
  m_selected = nullptr;
  m_root.children.clear();
  Notify(UiChange::Kind::content);
}

HTREEITEM CTreeCtrl::GetRootItem() const {
  return m_root.children.empty() ? nullptr : m_root.children.front().get();
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const {
  return item ? item->parent : nullptr;
}

void CTreeCtrl::Walk(const std::function<bool(HTREEITEM)>& visitor) const {
  WalkBelow(m_root, visitor);
}

HTREEITEM CTreeCtrl::Find(const std::function<bool(const UiTreeItem&)>& test) const {
  HTREEITEM found = nullptr;
  Walk([&](HTREEITEM item) {
    if (test(*item)) found = item;
    return !found;
  });
  return found;
}

bool CTreeCtrl::Contains(const UiTreeItem* item) const {
  return item && Find([&](const UiTreeItem& other) { return &other == item; });
}

void CTreeCtrl::SetItemText(HTREEITEM item, const CString& text) {
  item->text = text;
  Notify(UiChange::Kind::content);
}

void CTreeCtrl::Expand(HTREEITEM item, bool expand) {
  item->expanded = expand;
  Notify(UiChange::Kind::content);
}

void CTreeCtrl::SelectItem(HTREEITEM item) {
  m_selected = item;
  if (item)
    for (HTREEITEM above = item->parent; above; above = above->parent) above->expanded = true;
  Notify(UiChange::Kind::selection);
}

UiOutcome CTreeCtrl::UserSelect(HTREEITEM item) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (!Contains(item)) return {L"“" + GetCaption() + L"”没有这一项。", L"树中的一项"};
  SelectItem(item);
  SelectionChanged();
  return {};
}

UiOutcome CTreeCtrl::UserDoubleClick(HTREEITEM item) {
  UiOutcome outcome = UserSelect(item);
  if (outcome && Contains(item)) DoubleClicked(item);
  return outcome;
}

UiOutcome CTreeCtrl::UserExpand(HTREEITEM item, bool expand) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (!Contains(item)) return {L"“" + GetCaption() + L"”没有这一项。", L"树中的一项"};
  Expand(item, expand);
  return {};
}

UiOutcome CTreeCtrl::UserOpenMenu(HTREEITEM item) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (!Menu.Exists()) return {L"“" + GetCaption() + L"”没有右键菜单。", {}};
  return item && item != m_selected ? UserSelect(item) : UiOutcome();
}
