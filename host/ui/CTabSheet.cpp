#include "host/ui/CTabSheet.h"

#include "host/afx/CInvalidArgException.h"

void CTabSheet::AddPage(CPropertyPage& page) {
  m_pages.push_back(&page);
  page.ShowWindow(false);
  if (m_active < 0) SetActivePage(0);
  Notify(UiChange::Kind::content);
}

CPropertyPage* CTabSheet::GetActivePage() const {
  return m_active < 0 ? nullptr : m_pages[static_cast<std::size_t>(m_active)];
}

void CTabSheet::SetActivePage(int page) {
  if (page < 0 || page >= static_cast<int>(m_pages.size())) AfxThrowInvalidArgException();
  if (CPropertyPage* old = GetActivePage()) old->ShowWindow(false);
  m_active = page;
  GetActivePage()->ShowWindow(true);
  Notify(UiChange::Kind::selection);
}

UiOutcome CTabSheet::UserSelect(int page) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (page < 0 || page >= static_cast<int>(m_pages.size())) return {L"没有这一页。", L"一页的标题"};
  SetActivePage(page);
  PageChanged();
  return {};
}
