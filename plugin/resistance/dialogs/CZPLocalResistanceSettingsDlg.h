// What one pipe section contains: its fittings, its tees and crosses by the direction of the flow, and a free
// coefficient. The total follows each change. It works on a copy that the caller takes after OK.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CStatic.h"
#include "plugin/resistance/dialogs/CoefficientField.h"
#include "plugin/resistance/dialogs/CountField.h"
#include "plugin/resistance/dialogs/SectionGrid.h"
#include "plugin/resistance/dialogs/TeePictures.h"

class CZPLocalResistanceSettingsDlg : public CDialog {
 public:
  CZPLocalResistanceSettingsDlg(const CZPLocalResistanceSettings& section, CWnd* parent);
  UiLayout Layout() override;

  // As the dialog shows it.
  const CZPLocalResistanceSettings& Section() const { return m_section; }

  resistance::SectionGrid m_grid{*this, L"管道配件"};
  resistance::TeePictures m_pictures{*this};
  resistance::TeeControls<resistance::CountField> m_counts{*this, m_pictures};
  resistance::TeeControls<CStatic> m_coefficients{*this, m_pictures};
  CNumberEdit m_other{*this, L"其它局部阻力系数：", resistance::kCoefficientSpin};
  CNumberEdit m_addition{*this, L"附加局部阻力系数："};
  CNumberEdit m_total{*this, L"总局部阻力系数："};
  CButton m_manage{*this, L"局阻系数管理器..."};
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;

 private:
  // Shows the section with the coefficients that the store has now.
  void Show();
  void Recalculate();
  void Manage();

  CZPLocalResistanceSettings m_section;
};
