// The manager of radiators, for commands and siblings. It runs with the plug-in's resources. The parent may
// be null.
#pragma once

#include "plugin/base/ZpExport.h"

class CWnd;
class CZPRadiator;

namespace ZP {

// To manage the catalogue: the dialog's result, IDOK or IDCANCEL; -1 when it can't be shown.
ZP_EXPORT int ShowRadMngDlg(CWnd* parent);
// To choose a radiator. `radiator`, which may be null, is the one in use and can't be deleted meanwhile, nor
// its type. 1 when the pointer has been replaced, otherwise 0 and it stays. It is replaced by the selected
// radiator when the user leaves with OK and one is selected. However he leaves otherwise, it is replaced as
// well if he has moved the one in use to another type: that made another object of it, and the old one is
// gone.
ZP_EXPORT int ShowRadMngDlg(CZPRadiator*& radiator, CWnd* parent);

} // namespace ZP
