#include "plugin/frame/CZPSystemSettingsDlg.h"

#include "host/ed/acedCommand.h"
#include "plugin/frame/TextStyleNames.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/graph/ResourceBracket.h"

namespace {

struct NumberField {
  CNumberEdit CZPSystemSettingsDlg::*field;
  double (*read)();
  bool (*write)(double);
};
constexpr NumberField kNumbers[] = {
    {&CZPSystemSettingsDlg::m_outScale, ZP::GetOutDwgScale, ZP::SetOutDwgScale},
    {&CZPSystemSettingsDlg::m_drawingScale, ZP::GetDrawingScale, ZP::SetDrawingScale},
    {&CZPSystemSettingsDlg::m_chineseHeight, ZP::GetZwZg, ZP::SetZwZg},
    {&CZPSystemSettingsDlg::m_westernHeight, ZP::GetXwZg, ZP::SetXwZg},
};
constexpr int kDecimals = 2;
constexpr int kOwnTextStyle = 1;

} // namespace

CZPSystemSettingsDlg::CZPSystemSettingsDlg(CWnd* parent) : CDialog(L"系统设置", parent) {
  m_font.SetCurSel(kOwnTextStyle);
  m_editStyles.Clicked.Connect([this] { EditStyles(); });
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CZPSystemSettingsDlg::Layout() {
  return ui::Column({
      ui::Item(m_outScale),
      ui::Item(m_drawingScale),
      ui::Item(m_chineseHeight),
      ui::Item(m_westernHeight),
      ui::Item(m_font),
      ui::Row({ui::Item(m_styles).Stretch(1), ui::Item(m_editStyles)}),
      ui::Row({ui::Space(), ui::Item(m_ok), ui::Item(m_cancel)}),
  });
}

void CZPSystemSettingsDlg::OnInitDialog() {
  for (const NumberField& number : kNumbers) (this->*number.field).SetValue(number.read(), kDecimals);
  FillStyles();
  m_font.SetCurSel(ZP::GetFontType());
}

// The stored style may be one that the drawing lacks; then the first one stands for it.
void CZPSystemSettingsDlg::FillStyles() {
  const UiQuietly quietly(m_styles);
  m_styles.ResetContent();
  for (const CString& name : TextStyleNames()) m_styles.AddString(name);
  m_styles.SetCurSel(0);
  if (const int stored = m_styles.FindStringExact(ZP::GetTextStyle()); stored >= 0)
    m_styles.SetCurSel(stored);
}

void CZPSystemSettingsDlg::EditStyles() {
  const ResourceBracket bracket;
  BeginEditorCommand();
  acedCommand(RTSTR, L".DDSTYLE", RTNONE);
  CompleteEditorCommand();
  FillStyles();
}

void CZPSystemSettingsDlg::OnOK() {
  for (const NumberField& number : kNumbers) number.write((this->*number.field).GetValue());
  ZP::SetTextStyle(m_styles.SelectedText());
  ZP::SetFontType(m_font.GetCurSel());
  CDialog::OnOK();
}
