#include "host/ui/CWnd.h"

#include "host/ui/CFormWnd.h"

#include <utility>

CWnd::CWnd(CFormWnd& form, CString caption) : m_form(&form), m_caption(std::move(caption)) {
  form.Register(*this);
}

CWnd::~CWnd() {
  if (m_form) m_form->Unregister(*this);
}

void CWnd::SetCaption(const CString& caption) {
  if (m_caption == caption) return;
  m_caption = caption;
  Notify(UiChange::Kind::look);
}

void CWnd::ShowCaption(bool show) {
  m_captionShown = show;
  Notify(UiChange::Kind::look);
}

void CWnd::SetToolTip(const CString& text) {
  m_toolTip = text;
  Notify(UiChange::Kind::look);
}

void CWnd::SetFont(const UiFont& font) {
  m_font = font;
  Notify(UiChange::Kind::look);
}

void CWnd::EnableWindow(bool enable) {
  if (m_enabled == enable) return;
  m_enabled = enable;
  Notify(UiChange::Kind::look);
}

void CWnd::ShowWindow(bool show) {
  if (m_visible == show) return;
  m_visible = show;
  Notify(UiChange::Kind::look);
}

void CWnd::SetFocus() {
  if (CFormWnd* top = TopForm()) top->MoveFocus(this);
}

void CWnd::SetRedraw(bool redraw) {
  m_redrawOff += redraw ? -1 : 1;
  if (redraw && m_redrawOff == 0) Notify(UiChange::Kind::content);
}

CFormWnd* CWnd::TopForm() {
  CWnd* window = this;
  while (window->m_form) window = window->m_form;
  return dynamic_cast<CFormWnd*>(window);
}

void CWnd::Notify(UiChange::Kind kind, int row) {
  if (m_redrawOff == 0) Changed({kind, row});
}

UiOutcome CWnd::BeginUserEvent() {
  const auto unusable = [&] {
    for (const CWnd* window = this; window; window = window->m_form)
      if (!window->m_enabled || !window->m_visible) return true;
    return false;
  };
  const UiOutcome refusal(L"“" + m_caption + L"”现在不可用。", L"一个可用的控件");
  if (unusable()) return refusal;
  CFormWnd* top = TopForm();
  if (!top) return {};
  if (!top->FinishEditing(this)) return {L"正在编辑的内容还没有被接受。", L"先完成编辑，或用 close 关闭"};
  if (top->HasEnded()) return {L"对话框已经关闭。", {}};
  return unusable() ? refusal : UiOutcome();
}

void CWnd::BeginEditing() {
  if (CFormWnd* top = TopForm()) top->SetEditing(this);
}

void CWnd::EndEditing() {
  CFormWnd* top = TopForm();
  if (top && top->Editing() == this) top->SetEditing(nullptr);
}
