#include "host/ui/CAcUiDockControlBar.h"

#include "host/ui/UiFrontEnd.h"

bool CAcUiDockControlBar::Create(CWnd* /*parent*/, const CString& title) {
  if (m_created) return false;
  SetCaption(title);
  ShowWindow(false);
  m_created = true;
  OnCreate();
  return true;
}

void CAcUiDockControlBar::DestroyWindow() {
  if (!m_created) return;
  m_created = false;
  if (auto* frontEnd = UiFrontEnd::Get()) frontEnd->WindowGone(*this);
}

void CAcUiDockControlBar::ShowBar(bool show) {
  if (!m_created) return;
  if (!show) FinishEditing();
  ShowWindow(show);
  if (auto* frontEnd = UiFrontEnd::Get(); frontEnd && show) frontEnd->ShowModeless(*this);
}
