// The dialogs of pipes and ducts, for commands and siblings. All run with the plug-in's resources. The parent
// may be null.
#pragma once

#include "plugin/base/ZpExport.h"

class CWnd;
class CZPDuctMaterial;
class CZPPipeMaterial;

namespace ZP {

// To manage the catalogue: the dialog's result, IDOK or IDCANCEL; -1 when it can't be shown.
ZP_EXPORT int ShowPipeMaterialDlg(CWnd* parent);
ZP_EXPORT int ShowDuctMaterialDlg(CWnd* parent);
// To pick a material. `material`, which may be null, is the one in use and can't be deleted meanwhile. 1 and
// the selected material in it when the user leaves with OK and one is selected; otherwise 0, and it stays.
ZP_EXPORT int ShowPipeMaterialDlg(CZPPipeMaterial*& material, CWnd* parent);
ZP_EXPORT int ShowDuctMaterialDlg(CZPDuctMaterial*& material, CWnd* parent);

// The velocity limits by pipe size: the dialog's result.
ZP_EXPORT int ShowFVMngDlg(CWnd* parent);

} // namespace ZP
