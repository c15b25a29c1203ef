// A list of named values in groups. Items are named by a number that counts them over all groups from 0; an
// item that there is not raises CInvalidArgException in functions of the program.
#pragma once

#include "host/ui/CPropTreeItem.h"
#include "host/ui/CWnd.h"

class CPropTree : public CWnd {
 public:
  CPropTree(CFormWnd& form, CString caption) : CWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::propTree; }

  void AddGroup(const CString& title);
  // Into the last group, which must exist. Gives its number.
  int AddItem(CPropTreeItem item);
  void DeleteAll();

  const std::vector<CPropTreeGroup>& Groups() const { return m_groups; }
  int GetItemCount() const;
  const CPropTreeItem& Item(int item) const;
  int FindItem(const CString& label) const; // the first, or -1

  const CString& GetText(int item) const { return Item(item).text; }
  double GetNumber(int item) const; // as the text begins, 0 for none
  void SetText(int item, const CString& text);
  void SetReadOnly(int item, bool readOnly);
  void SetInfo(int item, const CString& info);
  void SetTick(int item, bool ticked);

  int GetCurSel() const { return m_selected; } // -1 for none
  void SetCurSel(int item);

  // --- what the user does
  UiOutcome UserSelect(int item);
  // A finished change of a value.
  UiOutcome UserSetText(int item, const CString& text);
  UiOutcome UserTick(int item, bool ticked);
  UiOutcome UserPress(int item); // the button of an item

  UiSignal<int> ItemChanged; // the user changed its text
  UiSignal<int> ItemTicked;
  UiSignal<int> ButtonPressed;
  UiSignal<int> ItemSelected;

 private:
  CPropTreeItem& ItemAt(int item);
  UiOutcome CheckItem(int item) const;
  std::vector<CPropTreeGroup> m_groups;
  int m_selected = -1;
};
