// The dialogs of fan-coil units, for siblings. All run with the plug-in's resources. The parent may be null.
#pragma once

#include "plugin/base/ZpExport.h"

class CFCUEquipment;
class CWnd;

namespace ZP {

// To look through the catalogue, which can't be changed: the dialog's result, IDOK or IDCANCEL; -1 when it
// can't be shown.
ZP_EXPORT int ShowFCUMngDlg(CWnd* parent);
// To pick a model, beginning with `equipment`, which may be null. 1 and the selected model in it when the
// user confirms and one is selected; otherwise 0, and it stays.
ZP_EXPORT int ShowFCUMngDlg(CFCUEquipment*& equipment, CWnd* parent);
// To pick a model with the list of favourites beside: the dialog's result. With 1 (IDOK) the selected model
// is in `equipment`, null when none is selected; otherwise it stays.
ZP_EXPORT int ShowCommonFCUMngDlg(CFCUEquipment*& equipment);

} // namespace ZP
