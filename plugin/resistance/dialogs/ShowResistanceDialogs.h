// The dialogs of local resistance, for siblings. Both run with the plug-in's resources. The parent may be
// null.
#pragma once

#include "plugin/base/ZpExport.h"

class CWnd;
class CZPLocalResistanceSettings;

namespace ZP {

// The manager of the store's coefficients: the dialog's result, IDOK or IDCANCEL; -1 when it can't be shown.
// Coefficients may have changed in any case, since the user can apply changes and then cancel.
ZP_EXPORT int ShowLRMDlg(CWnd* parent);

// What a section contains. 1 when the user leaves with OK, and `settings` is what he has made of it; else 0,
// and it stays as it was. The diameter stays in any case. The user can change the store's coefficients from
// here, too.
ZP_EXPORT int ShowLRSDlg(CZPLocalResistanceSettings& settings, CWnd* parent);

} // namespace ZP
