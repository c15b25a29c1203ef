// The page of the tees and crosses: their pictures, and a coefficient for each flow.
#pragma once

#include "host/ui/CNumberEdit.h"
#include "plugin/resistance/CZPLocalResistanceMng.h"
#include "plugin/resistance/dialogs/CoefficientPage.h"
#include "plugin/resistance/dialogs/TeePictures.h"

class CZPLocalResistance3T4TDlg : public CoefficientPage {
 public:
  explicit CZPLocalResistance3T4TDlg(CFormWnd& form);
  UiLayout Layout() override;
  void Open() override;
  void Commit() override;

  resistance::TeePictures m_pictures{*this};
  resistance::TeeControls<CNumberEdit> m_fields;

 private:
  CZPLocalResistanceMng& m_store = *CZPLocalResistanceMng::GetInstance();
};
