#include "plugin/resistance/dialogs/CZPLocalResistanceSettingsDlg.h"

#include "plugin/base/NumberText.h"
#include "plugin/resistance/CZPLocalResistanceMng.h"
#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"

using resistance::kTeeFlows;

CZPLocalResistanceSettingsDlg::CZPLocalResistanceSettingsDlg(const CZPLocalResistanceSettings& section,
                                                             CWnd* parent)
    : CDialog(L"局部阻力系数", parent), m_section(section) {
  m_grid.ShowCaption(false);
  m_addition.SetReadOnly(true);
  m_total.SetReadOnly(true);
  m_grid.Edited.Connect([this] { Recalculate(); });
  for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
    m_counts[flow].TextChanged.Connect([this] { Recalculate(); });
  m_other.TextChanged.Connect([this] { Recalculate(); });
  m_manage.Clicked.Connect([this] { Manage(); });
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CZPLocalResistanceSettingsDlg::Layout() {
  constexpr int countWidth = 64;
  return ui::Column({
      ui::Row({
                  ui::Column({ui::Item(m_grid).Stretch(1).Size(380, 300), ui::Item(m_other),
                              ui::Item(m_addition), ui::Item(m_total)})
                      .Stretch(1),
                  m_pictures.Layout([&](std::size_t flow) {
                    return ui::Row({ui::Item(m_counts[flow]).Size(countWidth, 0),
                                    ui::Item(m_coefficients[flow]), ui::Space()});
                  }),
              })
          .Stretch(1),
      ui::Row({ui::Item(m_manage), ui::Space(), ui::Item(m_ok), ui::Item(m_cancel)}),
  });
}

void CZPLocalResistanceSettingsDlg::OnInitDialog() {
  m_pictures.Show();
  Show();
  resistance::ShowCoefficient(m_other, m_section.m_dOtherCoe);
  resistance::ShowCoefficient(m_addition, m_section.m_dAdditionCoe);
  Recalculate();
}

void CZPLocalResistanceSettingsDlg::Show() {
  const CZPPipe3T4TCoe& coefficients = CZPLocalResistanceMng::GetInstance()->m_coe3T4T;
  m_grid.Fill(m_section);
  for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow) {
    m_coefficients[flow].SetCaption(L"局阻 " + ZP::ftoa(coefficients.*kTeeFlows[flow].coefficient, 2, true));
    m_counts[flow].SetCount(m_section.m_num3T4T.*kTeeFlows[flow].count);
  }
}

void CZPLocalResistanceSettingsDlg::Recalculate() {
  m_section.m_arrParts = m_grid.Fittings();
  for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
    m_section.m_num3T4T.*kTeeFlows[flow].count = m_counts[flow].GetCount();
  m_section.m_dOtherCoe = m_other.GetValue();
  m_section.m_dAdditionCoe = m_addition.GetValue();
  m_total.SetText(ZP::ftoa(m_section.GetCoefficient(), 2, true));
}

void CZPLocalResistanceSettingsDlg::Manage() {
  if (ZP::ShowLRMDlg(this) != IDOK) return;
  Show();
  Recalculate();
}
