// Pages of which one is showing. The user's controls on the others can't be reached.
#pragma once

#include "host/ui/CPropertyPage.h"

class CTabSheet : public CWnd {
 public:
  CTabSheet(CFormWnd& form, CString caption) : CWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::tabSheet; }

  // The page must live as long as the sheet. The first one added is showing.
  void AddPage(CPropertyPage& page);
  const std::vector<CPropertyPage*>& Pages() const { return m_pages; }
  int GetActiveIndex() const { return m_active; } // -1 without pages
  CPropertyPage* GetActivePage() const;
  void SetActivePage(int page);

  UiOutcome UserSelect(int page);

  UiSignal<> PageChanged; // by the user

 private:
  std::vector<CPropertyPage*> m_pages;
  int m_active = -1;
};
