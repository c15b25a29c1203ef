#include "plugin/radiators/dialogs/CZPRadiatorCalculateDlg.h"

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/graph/Notice.h"
#include "plugin/radiators/CZPRadiatorManager.h"
#include "plugin/radiators/dialogs/CZPRadiatorReportDlg.h"
#include "plugin/radiators/dialogs/CalculationDefaults.h"
#include "plugin/radiators/dialogs/RadiatorNote.h"
#include "plugin/radiators/dialogs/RadiatorTexts.h"
#include "plugin/radiators/dialogs/ShowRadiatorDialogs.h"
#include "plugin/rooms/RoomLoads.h"

namespace {

using Dlg = CZPRadiatorCalculateDlg;

constexpr int kDecimals = 2;
// Pixels. The texts of all radiators have room in the width, so that the window doesn't jump.
constexpr int kTextWidth = 300;
constexpr int kSmallButton = 32;

struct TemperatureField {
  CComboBox Dlg::*field;
  double SZPRadCalData::*value;
  int first, last, step; // ℃, what is offered
};
constexpr TemperatureField kTemperatures[] = {
    {&Dlg::m_supply, &SZPRadCalData::dbTg, 50, 100, 5},
    {&Dlg::m_return, &SZPRadCalData::dbTh, 50, 100, 5},
    {&Dlg::m_room, &SZPRadCalData::dbTn, 16, 32, 1},
};

constexpr double SZPRadCalData::*kBetas[radiators::kCorrectionTableCount] = {
    &SZPRadCalData::dbBeta1, &SZPRadCalData::dbBeta2, &SZPRadCalData::dbBeta3, &SZPRadCalData::dbBeta4};

void ShowTemperature(CComboBox& field, double value) {
  field.SetText(ZP::ftoa(value, kDecimals, true));
}

} // namespace

CZPRadiatorCalculateDlg::CZPRadiatorCalculateDlg(CWnd* parent) : CDialog(L"散热器片数计算", parent) {
  m_pickRoom.SetBelongsTo(m_load);
  m_pickRoom.Clicked.Connect([this] { TakeLoadOfRoom(); });
  for (int table = 0; table < radiators::kCorrectionTableCount; ++table) {
    m_tables[table].SetBelongsTo(m_betas[table]);
    m_tables[table].Clicked.Connect([this, table] { ChooseBeta(table); });
  }
  m_result.TextChanged.Connect([this] { m_number = m_result.GetValue(); });
  m_manager.Clicked.Connect([this] { ManageRadiators(); });
  m_calculate.Clicked.Connect([this] { Calculate(); });
  m_annotate.Clicked.Connect([this] { Annotate(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CZPRadiatorCalculateDlg::Layout() {
  const auto withButton = [](CNumberEdit& field, CButton& button) {
    return ui::Row({ui::Item(field).Stretch(1), ui::Item(button).Size(kSmallButton, 0)});
  };
  std::vector<UiLayout> factors;
  for (int table = 0; table < radiators::kCorrectionTableCount; ++table)
    factors.push_back(withButton(m_betas[table], m_tables[table]));
  return ui::Column({
      ui::Row({
          ui::Column({
                         ui::Group(L"散热器", {ui::Item(m_type), ui::Item(m_name), ui::Item(m_parameters),
                                               ui::Row({ui::Item(m_manager), ui::Space()})}),
                         ui::Group(L"计算公式", {ui::Item(m_formula), ui::Item(m_rule)}),
                     })
              .Size(kTextWidth, 0),
          ui::Column({
              ui::Group(L"计算条件", {withButton(m_load, m_pickRoom), ui::Item(m_supply), ui::Item(m_return),
                                      ui::Item(m_room)}),
              ui::Group(L"修正系数", std::move(factors)),
          }),
      }),
      ui::Row(
          {ui::Item(m_result), ui::Space(), ui::Item(m_calculate), ui::Item(m_annotate), ui::Item(m_cancel)}),
  });
}

void CZPRadiatorCalculateDlg::OnInitDialog() {
  m_pRadiator = CZPRadiatorManager::GetInstance()->GetInitialRadiator();
  if (!m_pRadiator) {
    notice::Tell(L"散热器为空，无法启动散热器计算对话框，请检查散热器数据库!");
    return EndDialog(-1);
  }
  m_data = radiators::RememberedCalculation();
  ShowRadiator();
  ShowInput();
  ShowNumber();
}

void CZPRadiatorCalculateDlg::ShowRadiator() {
  const CZPRadiator& radiator = *m_pRadiator;
  m_type.SetCaption(radiators::TypeText(radiator));
  m_name.SetCaption(radiators::NameText(radiator));
  m_parameters.SetCaption(radiators::ParameterText(radiator));
  m_formula.SetCaption(radiators::FormulaText(radiator));
  m_result.SetCaption(radiators::ResultCaption(radiator));
  for (const TemperatureField& temperature : kTemperatures)
    (this->*temperature.field).EnableWindow(radiators::FollowsTemperatures(radiator));
}

void CZPRadiatorCalculateDlg::ShowInput() {
  for (const TemperatureField& temperature : kTemperatures) {
    CComboBox& field = this->*temperature.field;
    const UiQuietly quietly(field);
    field.ResetContent();
    for (int value = temperature.first; value <= temperature.last; value += temperature.step)
      field.AddString(ZP::itoa(value));
    ShowTemperature(field, m_data.*temperature.value);
  }
  for (int table = 0; table < radiators::kCorrectionTableCount; ++table)
    m_betas[table].SetValue(m_data.*kBetas[table], kDecimals);
  m_load.SetValue(m_data.dbQj, kDecimals);
}

// What is no number counts as 0.
void CZPRadiatorCalculateDlg::ReadInput() {
  for (const TemperatureField& temperature : kTemperatures)
    m_data.*temperature.value = afx::wcstod((this->*temperature.field).GetText(), nullptr);
  for (int table = 0; table < radiators::kCorrectionTableCount; ++table)
    m_data.*kBetas[table] = m_betas[table].GetValue();
  m_data.dbQj = m_load.GetValue();
  radiators::RememberCalculation(m_data);
}

// The number itself: whether a remainder is worth a section is for the designer to say.
void CZPRadiatorCalculateDlg::ShowNumber() {
  m_pRadiator->Attach(m_data);
  m_number = m_pRadiator->CalculateNumber();
  m_result.SetValue(m_number, kDecimals);
}

void CZPRadiatorCalculateDlg::Calculate() {
  ReadInput();
  ShowNumber();
}

// The number stays that of the radiator before until the user calculates, as after a chosen factor. What was
// changed of the radiator in use is shown only when the user has chosen it.
void CZPRadiatorCalculateDlg::ManageRadiators() {
  if (ZP::ShowRadMngDlg(m_pRadiator, this)) ShowRadiator();
}

void CZPRadiatorCalculateDlg::ChooseBeta(int table) {
  CString text;
  if (radiators::ChooseCorrectionFactor(table, text, this) != IDOK) return;
  m_betas[table].SetValue(afx::wcstod(text, nullptr), kDecimals);
}

void CZPRadiatorCalculateDlg::TakeLoadOfRoom() {
  BeginEditorCommand();
  double load = 0;
  double temperature = 0;
  if (ZP::GetSelHvacSpaceWinData(load, temperature)) {
    m_load.SetValue(load, kDecimals);
    ShowTemperature(m_room, temperature);
  }
  Calculate(); // also where no room was picked
  CompleteEditorCommand();
}

void CZPRadiatorCalculateDlg::Annotate() {
  BeginEditorCommand();
  radiators::PlaceNote(radiators::NoteText(*m_pRadiator, m_number));
  CompleteEditorCommand();
}
