#include "host/ui/CComboBox.h"

#include "host/afx/CInvalidArgException.h"

const CComboBox::Entry& CComboBox::At(int index) const {
  if (index < 0 || index >= GetCount()) AfxThrowInvalidArgException();
  return m_entries[static_cast<std::size_t>(index)];
}

const CString& CComboBox::GetLBText(int index) const {
  return At(index).text;
}

void* CComboBox::GetItemData(int index) const {
  return At(index).data;
}

int CComboBox::AddString(const CString& text, void* data) {
  InsertString(GetCount(), text, data);
  return GetCount() - 1;
}

void CComboBox::InsertString(int index, const CString& text, void* data) {
  if (index < 0 || index > GetCount()) AfxThrowInvalidArgException();
  m_entries.insert(m_entries.begin() + index, {text, data});
  if (m_selected >= index) ++m_selected;
  Notify(UiChange::Kind::content);
}

void CComboBox::DeleteString(int index) {
  At(index);
  m_entries.erase(m_entries.begin() + index);
  if (m_selected == index) SetCurSel(-1);
  if (m_selected > index) --m_selected;
  Notify(UiChange::Kind::content);
}

void CComboBox::ResetContent() {
  m_entries.clear();
  m_selected = -1;
  m_text.Empty();
  Notify(UiChange::Kind::content);
}

int CComboBox::FindStringExact(const CString& text) const {
  for (int i = 0; i < GetCount(); ++i)
    if (m_entries[static_cast<std::size_t>(i)].text == text) return i;
  return -1;
}

void CComboBox::SetCurSel(int index) {
  m_selected = index >= 0 && index < GetCount() ? index : -1;
  m_text = m_selected >= 0 ? GetLBText(m_selected) : CString();
  Notify(UiChange::Kind::content);
}

void CComboBox::SetText(const CString& text) {
  const int index = FindStringExact(text);
  if (index < 0 && !m_free) return;
  m_selected = index;
  m_text = text;
  Notify(UiChange::Kind::content);
}

UiOutcome CComboBox::UserSelect(int index) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (index < 0 || index >= GetCount()) return {L"“" + GetCaption() + L"”没有这一项。", L"列表中的一项"};
  SetCurSel(index);
  SelectionChanged();
  return {};
}

UiOutcome CComboBox::UserType(const CString& text) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (!m_free && FindStringExact(text) < 0) return {L"“" + GetCaption() + L"”没有这一项。", L"列表中的一项"};
  SetText(text);
  SelectionChanged();
  return {};
}
