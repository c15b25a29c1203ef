// WB_JZXS: the manager of local-resistance coefficients.
#include "host/ed/acedWindows.h"
#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"
#include "plugins/workbench/Commands.h"

void workbench::ManageResistance() {
  ZP::ShowLRMDlg(acedGetAcadDwgView());
}
