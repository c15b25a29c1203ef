// A list of texts of which one is selected.
#pragma once

#include "host/ui/CWnd.h"

#include <vector>

class CListBox : public CWnd {
 public:
  CListBox(CFormWnd& form, CString caption) : CWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::listBox; }

  int GetCount() const { return static_cast<int>(m_entries.size()); }
  // A bad index raises CInvalidArgException.
  const CString& GetText(int index) const;
  int AddString(const CString& text);
  void InsertString(int index, const CString& text);
  void DeleteString(int index); // a selected one leaves none selected
  void ResetContent();
  int FindStringExact(const CString& text) const; // the first, or -1

  int GetCurSel() const { return m_selected; } // -1 for none
  void SetCurSel(int index);
  // The selected entry; empty for none.
  CString SelectedText() const { return m_selected < 0 ? CString() : GetText(m_selected); }

  UiOutcome UserSelect(int index);
  UiOutcome UserDoubleClick(int index);

  UiSignal<> SelectionChanged; // the user chose, perhaps the same again
  UiSignal<> DoubleClicked;

 private:
  std::vector<CString> m_entries;
  int m_selected = -1;
};
