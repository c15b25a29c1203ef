#include "plugin/resistance/dialogs/CZPLocalResistance3T4TDlg.h"

#include "plugin/resistance/dialogs/CoefficientField.h"

using resistance::kTeeFlows;

CZPLocalResistance3T4TDlg::CZPLocalResistance3T4TDlg(CFormWnd& form)
    : CoefficientPage(form, L"三通四通"), m_fields(*this, m_pictures, resistance::kCoefficientSpin) {}

UiLayout CZPLocalResistance3T4TDlg::Layout() {
  return m_pictures.Layout([this](std::size_t flow) { return ui::Item(m_fields[flow]); });
}

void CZPLocalResistance3T4TDlg::Open() {
  m_pictures.Show();
  for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
    resistance::ShowCoefficient(m_fields[flow], m_store.m_coe3T4T.*kTeeFlows[flow].coefficient);
}

void CZPLocalResistance3T4TDlg::Commit() {
  for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
    m_store.m_coe3T4T.*kTeeFlows[flow].coefficient = m_fields[flow].GetValue();
  m_store.SaveData();
}
