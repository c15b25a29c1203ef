#include "plugin/frame/DialogCommands.h"

#include "host/ed/acedWindows.h"
#include "plugin/fancoil/dialogs/CKTFCUManagerDlg.h"
#include "plugin/frame/CZPSystemSettingsDlg.h"
#include "plugin/graph/ResourceBracket.h"
#include "plugin/layers/bar/LayerControlBar.h"
#include "plugin/layers/dialogs/CCADGroupLayerDlg.h"
#include "plugin/layers/dialogs/CZPLayerManagerDlg.h"
#include "plugin/pipes/dialogs/ShowPipeDialogs.h"
#include "plugin/radiators/dialogs/CZPRadiatorCalculateDlg.h"
#include "plugin/radiators/dialogs/ShowRadiatorDialogs.h"

void dialogs::PipeMaterials() {
  ZP::ShowPipeMaterialDlg(acedGetAcadDwgView());
}

void dialogs::VelocityLimits() {
  ZP::ShowFVMngDlg(acedGetAcadDwgView());
}

void dialogs::DuctMaterials() {
  ZP::ShowDuctMaterialDlg(acedGetAcadDwgView());
}

void dialogs::SystemSettings() {
  const ResourceBracket bracket;
  CZPSystemSettingsDlg(acedGetAcadDwgView()).DoModal();
}

void dialogs::LayerManager() {
  const ResourceBracket bracket;
  CZPLayerManagerDlg().DoModal();
}

void dialogs::LayerGroups() {
  const ResourceBracket bracket;
  CCADGroupLayerDlg dialog(acedGetAcadDwgView());
  dialog.DoModal();
  layers::DestroyControlBar();
}

void dialogs::LayerControl() {
  void* instance = module::InstanceHandle();
  const ResourceBracket bracket(instance ? instance : module::ResourceHandle());
  layers::ShowControlBar();
}

void dialogs::Radiators() {
  ZP::ShowRadMngDlg(nullptr);
}

void dialogs::FanCoils() {
  const ResourceBracket bracket;
  constexpr bool favourites = false;
  CKTFCUManagerDlg(favourites, nullptr).DoModal();
}

void dialogs::RadiatorCalculation() {
  const ResourceBracket bracket;
  CZPRadiatorCalculateDlg(nullptr).DoModal();
}
