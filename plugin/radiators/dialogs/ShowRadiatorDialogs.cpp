#include "plugin/radiators/dialogs/ShowRadiatorDialogs.h"

#include "plugin/graph/ResourceBracket.h"
#include "plugin/radiators/dialogs/CZPRadiatorManagerDlg.h"

int ZP::ShowRadMngDlg(CWnd* parent) {
  const ResourceBracket bracket;
  return CZPRadiatorManagerDlg(nullptr, parent).DoModal();
}

int ZP::ShowRadMngDlg(CZPRadiator*& radiator, CWnd* parent) {
  const ResourceBracket bracket;
  CZPRadiatorManagerDlg dialog(radiator, parent);
  const bool chosen = dialog.DoModal() == IDOK && dialog.Chosen();
  CZPRadiator* const result = chosen ? dialog.Chosen() : dialog.InUse();
  if (!chosen && result == radiator) return 0;
  radiator = result;
  return 1;
}
