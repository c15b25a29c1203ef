// Which names a material may take in the list that shows all of them.
#pragma once

#include "host/ui/CEditListCtrl.h"

namespace pipes {

enum class NameFault { none, empty, taken };
// The name, without blanks at its ends, for the material of that row: it may be neither empty nor that of
// another row.
NameFault CheckMaterialName(const CEditListCtrl& list, int row, const CString& name);
// Tells the user what is wrong with it.
void TellNameFault(NameFault fault, const CString& name);

} // namespace pipes
