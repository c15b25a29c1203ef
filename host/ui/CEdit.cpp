#include "host/ui/CEdit.h"

void CEdit::SetText(const CString& text) {
  m_text = text;
  Notify(UiChange::Kind::content);
}

void CEdit::SetReadOnly(bool readOnly) {
  m_readOnly = readOnly;
  Notify(UiChange::Kind::look);
}

UiOutcome CEdit::UserType(const CString& text) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (m_readOnly) return {L"“" + GetCaption() + L"”是只读的。", L"一个可以修改的控件"};
  outcome = CheckTyped(text);
  if (!outcome) return outcome;
  ChangeByUser(text);
  return {};
}

void CEdit::ChangeByUser(const CString& text) {
  m_typing = true;
  BeginEditing();
  const bool changed = m_text != text;
  SetText(text);
  if (changed) TextChanged();
}

bool CEdit::FinishEdit() {
  EndEditing();
  if (!m_typing) return true;
  m_typing = false;
  Left();
  return true;
}

// What was typed stands; Escape in a field is for the dialog.
bool CEdit::CancelEdit() {
  FinishEdit();
  return false;
}
