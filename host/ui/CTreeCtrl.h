// A tree of texts of which one is selected. Items are named by HTREEITEM, null for none; an item is valid
// until it or one above it is deleted.
#pragma once

#include "host/ui/CWnd.h"
#include "host/ui/UiContextMenu.h"
#include "host/ui/UiTreeItem.h"

#include <functional>

class CTreeCtrl : public CWnd {
 public:
  CTreeCtrl(CFormWnd& form, CString caption) : CWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::tree; }
  virtual bool HasTicks() const { return false; }

  // Below the parent, or at the top for null, as the last.
  HTREEITEM InsertItem(const CString& text, HTREEITEM parent = nullptr, void* data = nullptr);
  // With all below it. A selection among them is gone.
  void DeleteItem(HTREEITEM item);
  void DeleteAllItems();

  const std::vector<std::unique_ptr<UiTreeItem>>& TopItems() const { return m_root.children; }
  HTREEITEM GetRootItem() const; // the first at the top, or null
  // Null for an item at the top.
  HTREEITEM GetParentItem(HTREEITEM item) const;
  bool ItemHasChildren(HTREEITEM item) const { return !item->children.empty(); }
  // All items in their order from the top, until the visitor gives false.
  void Walk(const std::function<bool(HTREEITEM)>& visitor) const;
  // The first item that the test accepts, or null.
  HTREEITEM Find(const std::function<bool(const UiTreeItem&)>& test) const;
  bool Contains(const UiTreeItem* item) const;

  void SetItemText(HTREEITEM item, const CString& text);
  void Expand(HTREEITEM item, bool expand = true);
  HTREEITEM GetSelectedItem() const { return m_selected; }
  // Opens everything above it.
  void SelectItem(HTREEITEM item);

  // --- what the user does
  UiOutcome UserSelect(HTREEITEM item);
  UiOutcome UserDoubleClick(HTREEITEM item);
  UiOutcome UserExpand(HTREEITEM item, bool expand);
  // A right click: selects the item, if any, then Menu.Items() are to be shown.
  UiOutcome UserOpenMenu(HTREEITEM item);

  UiContextMenu Menu;
  UiSignal<> SelectionChanged; // by the user
  UiSignal<HTREEITEM> DoubleClicked;

 private:
  UiTreeItem m_root; // not shown
  HTREEITEM m_selected = nullptr;
};
