// A drop-down list, which may also take typed text.
#pragma once

#include "host/ui/CWnd.h"

#include <vector>

class CComboBox : public CWnd {
 public:
  enum class Text { fromList, free };
  CComboBox(CFormWnd& form, CString caption, Text text = Text::fromList)
      : CWnd(form, std::move(caption)), m_free(text == Text::free) {}
  UiKind Kind() const override { return UiKind::comboBox; }

  bool TakesFreeText() const { return m_free; }
  int GetCount() const { return static_cast<int>(m_entries.size()); }
  // Bad indices raise CInvalidArgException.
  const CString& GetLBText(int index) const;
  void* GetItemData(int index) const;
  // The index of the new entry, which is the last.
  int AddString(const CString& text, void* data = nullptr);
  void DeleteString(int index);
  void InsertString(int index, const CString& text, void* data = nullptr);
  void ResetContent();
  // The first entry that equals the text, or -1.
  int FindStringExact(const CString& text) const;

  // -1 for none; a free text that no entry equals is none.
  int GetCurSel() const { return m_selected; }
  void SetCurSel(int index);
  // The selected entry, or the typed text.
  const CString& GetText() const { return m_text; }
  void SetText(const CString& text);

  UiOutcome UserSelect(int index);
  UiOutcome UserType(const CString& text); // of an entry, unless it takes free text

  UiSignal<> SelectionChanged; // the user chose or typed

 private:
  struct Entry {
    CString text;
    void* data = nullptr;
  };
  const Entry& At(int index) const;

  std::vector<Entry> m_entries;
  int m_selected = -1;
  CString m_text;
  bool m_free;
};
