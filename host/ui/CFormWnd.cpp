#include "host/ui/CFormWnd.h"

#include "host/ui/UiFrontEnd.h"

#include <utility>

CFormWnd::~CFormWnd() {
  if (Form()) return;
  if (auto* frontEnd = UiFrontEnd::Get()) frontEnd->WindowGone(*this);
}

void CFormWnd::Unregister(CWnd& control) {
  std::erase(m_controls, &control);
  CFormWnd* top = TopForm();
  for (CFormWnd* form : {this, top}) {
    if (!form) continue;
    if (form->m_focus == &control) form->m_focus = nullptr;
    if (form->m_editing == &control) form->m_editing = nullptr;
  }
}

void CFormWnd::MoveFocus(CWnd* control) {
  m_focus = control;
  FocusMoved();
}

bool CFormWnd::FinishEditing(const CWnd* except) {
  if (!m_editing || m_editing == except) return true;
  return m_editing->FinishEdit();
}
