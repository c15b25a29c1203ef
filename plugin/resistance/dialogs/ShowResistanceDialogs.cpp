#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"

#include "plugin/graph/ResourceBracket.h"
#include "plugin/resistance/dialogs/CZPLocalResistanceMngDlg.h"
#include "plugin/resistance/dialogs/CZPLocalResistanceSettingsDlg.h"

int ZP::ShowLRMDlg(CWnd* parent) {
  const ResourceBracket bracket;
  return CZPLocalResistanceMngDlg(parent).DoModal();
}

int ZP::ShowLRSDlg(CZPLocalResistanceSettings& settings, CWnd* parent) {
  const ResourceBracket bracket;
  CZPLocalResistanceSettingsDlg dialog(settings, parent);
  if (dialog.DoModal() != IDOK) return 0;
  settings = dialog.Section();
  return 1;
}
