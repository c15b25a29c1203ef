#include "plugin/pipes/dialogs/ShowPipeDialogs.h"

#include "plugin/graph/ResourceBracket.h"
#include "plugin/pipes/dialogs/CZPDuctManagerDlg.h"
#include "plugin/pipes/dialogs/CZPFlowVelocityMngDlg.h"
#include "plugin/pipes/dialogs/CZPPipeManagerDlg.h"

namespace {

template <class Dialog, class Material> int Pick(Material*& material, CWnd* parent) {
  const ResourceBracket bracket;
  Dialog dialog(material, parent);
  if (dialog.DoModal() != IDOK || !dialog.Material()) return 0;
  material = dialog.Material();
  return 1;
}

} // namespace

int ZP::ShowPipeMaterialDlg(CWnd* parent) {
  const ResourceBracket bracket;
  return CZPPipeManagerDlg(nullptr, parent).DoModal();
}

int ZP::ShowPipeMaterialDlg(CZPPipeMaterial*& material, CWnd* parent) {
  return Pick<CZPPipeManagerDlg>(material, parent);
}

int ZP::ShowDuctMaterialDlg(CWnd* parent) {
  const ResourceBracket bracket;
  return CZPDuctManagerDlg(nullptr, parent).DoModal();
}

int ZP::ShowDuctMaterialDlg(CZPDuctMaterial*& material, CWnd* parent) {
  return Pick<CZPDuctManagerDlg>(material, parent);
}

int ZP::ShowFVMngDlg(CWnd* parent) {
  const ResourceBracket bracket;
  return CZPFlowVelocityMngDlg(parent).DoModal();
}
