#include "host/ui/CDialog.h"

#include "host/ui/CButton.h"
#include "host/ui/UiFrontEnd.h"

CDialog::CDialog(const CString& caption, CWnd* parent) : m_parent(parent) {
  SetCaption(caption);
}

int CDialog::DoModal() {
  auto* frontEnd = UiFrontEnd::Get();
  if (!frontEnd) return -1;
  m_state = State::running;
  m_result = -1;
  OnInitDialog();
  if (!HasEnded()) frontEnd->RunModal(*this);
  if (!HasEnded()) EndDialog(IDCANCEL); // a front end that goes down
  return m_result;
}

bool CDialog::Create() {
  auto* frontEnd = UiFrontEnd::Get();
  if (!frontEnd) return false;
  m_state = State::running;
  m_result = -1;
  OnInitDialog();
  if (!HasEnded()) frontEnd->ShowModeless(*this);
  return !HasEnded();
}

void CDialog::EndDialog(int result) {
  if (HasEnded()) return;
  m_result = result;
  m_state = State::ended;
  Notify(UiChange::Kind::look);
}

void CDialog::BeginEditorCommand() {
  ShowWindow(false);
  if (auto* below = dynamic_cast<CDialog*>(m_parent)) below->BeginEditorCommand();
}

void CDialog::CompleteEditorCommand() {
  if (auto* below = dynamic_cast<CDialog*>(m_parent)) below->CompleteEditorCommand();
  ShowWindow(true);
}

void CDialog::UserClose() {
  if (HasEnded() || m_closing) return;
  m_closing = true;
  FinishEditing();
  OnCancel();
  m_closing = false;
}

void CDialog::UserEscape() {
  if (HasEnded()) return;
  if (CWnd* editing = Editing(); editing && editing->CancelEdit()) return;
  OnCancel();
}

UiOutcome CDialog::UserEnter() {
  for (CWnd* control : Controls())
    if (auto* button = dynamic_cast<CButton*>(control); button && button->IsDefault())
      return button->UserClick();
  return {L"这个对话框没有默认按钮。", L"click 加按钮名"};
}
