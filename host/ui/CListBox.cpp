#include "host/ui/CListBox.h"

#include "host/afx/CInvalidArgException.h"

const CString& CListBox::GetText(int index) const {
  if (index < 0 || index >= GetCount()) AfxThrowInvalidArgException();
  return m_entries[static_cast<std::size_t>(index)];
}

int CListBox::AddString(const CString& text) {
  InsertString(GetCount(), text);
  return GetCount() - 1;
}

void CListBox::InsertString(int index, const CString& text) {
  if (index < 0 || index > GetCount()) AfxThrowInvalidArgException();
  m_entries.insert(m_entries.begin() + index, text);
  if (m_selected >= index) ++m_selected;
  Notify(UiChange::Kind::content);
}

void CListBox::DeleteString(int index) {
  GetText(index);
  m_entries.erase(m_entries.begin() + index);
  if (m_selected == index) m_selected = -1;
  if (m_selected > index) --m_selected;
  Notify(UiChange::Kind::content);
}

void CListBox::ResetContent() {
  m_entries.clear();
  m_selected = -1;
  Notify(UiChange::Kind::content);
}

int CListBox::FindStringExact(const CString& text) const {
  for (int i = 0; i < GetCount(); ++i)
    if (m_entries[static_cast<std::size_t>(i)] == text) return i;
  return -1;
}

void CListBox::SetCurSel(int index) {
  m_selected = index >= 0 && index < GetCount() ? index : -1;
  Notify(UiChange::Kind::selection);
}

UiOutcome CListBox::UserSelect(int index) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (index < 0 || index >= GetCount()) return {L"“" + GetCaption() + L"”没有这一行。", L"列表中的一行"};
  SetCurSel(index);
  SelectionChanged();
  return {};
}

UiOutcome CListBox::UserDoubleClick(int index) {
  UiOutcome outcome = UserSelect(index);
  if (outcome) DoubleClicked();
  return outcome;
}
