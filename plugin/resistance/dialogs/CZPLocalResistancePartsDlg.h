// The page of the fittings: a list that is edited in place. Names are not looked at: one that is empty is
// gone at the next start, and of several alike sections take the first.
#pragma once

#include "host/ui/CButton.h"
#include "plugin/resistance/CZPLocalResistanceMng.h"
#include "plugin/resistance/dialogs/CoefficientPage.h"
#include "plugin/resistance/dialogs/FittingRows.h"

class CZPLocalResistancePartsDlg : public CoefficientPage {
 public:
  explicit CZPLocalResistancePartsDlg(CFormWnd& form);
  UiLayout Layout() override;
  void Open() override;
  void Commit() override;

  CEditListCtrl m_list{*this, L"管道配件"};
  CButton m_add{*this, CButton::Image::add, L"新建"};
  CButton m_remove{*this, CButton::Image::remove, L"删除"};
  CButton m_up{*this, CButton::Image::up, L"上移"};
  CButton m_down{*this, CButton::Image::down, L"下移"};

 private:
  void Fill();
  void ReadRows();
  void Add();
  void Remove();
  void Move(int step);

  CZPLocalResistanceMng& m_store = *CZPLocalResistanceMng::GetInstance();
  // A row of the list for each; what the user has typed stands in the rows alone until ReadRows.
  CZPArray<CZPPipePartsCoe, CZPPipePartsCoe&> m_fittings;
};
