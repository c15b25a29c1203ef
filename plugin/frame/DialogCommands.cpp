#include "plugin/frame/DialogCommands.h"

#include "host/ed/acedWindows.h"
#include "plugin/frame/CZPSystemSettingsDlg.h"
#include "plugin/graph/ResourceBracket.h"

void dialogs::SystemSettings() {
  const ResourceBracket bracket;
  CZPSystemSettingsDlg(acedGetAcadDwgView()).DoModal();
}
