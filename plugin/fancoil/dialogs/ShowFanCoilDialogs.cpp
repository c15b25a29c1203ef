#include "plugin/fancoil/dialogs/ShowFanCoilDialogs.h"

#include "plugin/fancoil/dialogs/CKTFCUManagerDlg.h"
#include "plugin/graph/ResourceBracket.h"

int ZP::ShowFCUMngDlg(CWnd* parent) {
  const ResourceBracket bracket;
  CKTFCUManagerDlg dialog(false, parent);
  dialog.SetReadOnly(true);
  return dialog.DoModal();
}

int ZP::ShowFCUMngDlg(CFCUEquipment*& equipment, CWnd* parent) {
  const ResourceBracket bracket;
  CKTFCUManagerDlg dialog(equipment, parent);
  dialog.SetReadOnly(true);
  if (dialog.DoModal() != IDOK || !dialog.Equipment()) return 0;
  equipment = dialog.Equipment();
  return 1;
}

int ZP::ShowCommonFCUMngDlg(CFCUEquipment*& equipment) {
  const ResourceBracket bracket;
  CKTFCUManagerDlg dialog(true, nullptr);
  const int result = dialog.DoModal();
  if (result == IDOK) equipment = dialog.Equipment();
  return result;
}
